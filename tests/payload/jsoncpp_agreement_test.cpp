// Compares the reading of payloads with JsonCpp. KAVRIX_TEST_PAYLOADS=COUNT and KAVRIX_TEST_SEED=SEED make a
// longer run.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>

#include "tests/support/payload_agreement.h"
#include "tests/support/random_payloads.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

// On the heap without a byte to spare, so that the sanitizers notice reading past the end.
std::string DisagreementOfExactCopy(const std::string& payload) {
  const std::unique_ptr<char[]> bytes(new char[payload.size()]);
  payload.copy(bytes.get(), payload.size());
  return DisagreementWithJsonCpp({bytes.get(), payload.size()});
}

TEST(JsonCppAgreementTest, RandomPayloads) {
  RandomPayloads payloads(FromEnvironment("KAVRIX_TEST_SEED", 1));
  for (std::uint64_t left = FromEnvironment("KAVRIX_TEST_PAYLOADS", 50000); left > 0; --left) {
    const std::string payload = payloads.Next();
    ASSERT_EQ(DisagreementOfExactCopy(payload), "") << payload;
  }
}

TEST(JsonCppAgreementTest, PayloadsCutAtEveryByte) {
  RandomPayloads payloads(2);
  for (int count = 0; count < 200; ++count) {
    const std::string payload = payloads.Next();
    for (std::size_t size = 0; size < payload.size(); ++size) {
      ASSERT_EQ(DisagreementOfExactCopy(payload.substr(0, size)), "") << payload << " cut at " << size;
    }
  }
}

// The bytes that fuzz/pack_corpus.py wrote as a JSON string: each character is one.
std::string BytesOf(const std::string& line) {
  const std::string text = nlohmann::json::parse(line);
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Piece piece = NextUtf8(std::string_view(text).substr(at));
    bytes += static_cast<char>(piece.code_point);
    at += piece.length;
  }
  return bytes;
}

TEST(JsonCppAgreementTest, PayloadsThatTheFuzzerKept) {
  std::ifstream file(KAVRIX_SOURCE_DIR "/fuzz/corpus/nodes.jsonl");
  int count = 0;
  for (std::string line; std::getline(file, line); ++count) {
    ASSERT_EQ(DisagreementOfExactCopy(BytesOf(line)), "") << line;
  }
  EXPECT_GT(count, 500);
}

}  // namespace
}  // namespace kavrix::test
