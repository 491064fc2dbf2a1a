#include "tests/support/generated_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "inspect/name_extractor.h"
#include "tests/support/effort.h"

namespace kavrix::test {
namespace {

using inspect::ExtractedName;
using inspect::LineError;
using inspect::LogLines;
using inspect::NameExtractor;

std::vector<std::string> Texts(const std::vector<GeneratedLog::Name>& names) {
  std::vector<std::string> texts;
  for (const auto& [name, line, byte] : names) {
    texts.push_back(std::to_string(line) + ":" + std::to_string(byte) + " " + name);
  }
  return texts;
}

std::vector<std::string> Texts(const std::vector<ExtractedName>& names) {
  std::vector<std::string> texts;
  for (const auto& [name, line, byte] : names) {
    texts.push_back(std::to_string(line) + ":" + std::to_string(byte) + " " + name);
  }
  return texts;
}

// The names in a text that comes in blocks of whole lines.
std::vector<std::string> ExtractInBlocks(const std::string& text, LogLines lines, std::size_t block_size) {
  NameExtractor extractor(lines);
  std::vector<ExtractedName> names;
  std::vector<LineError> errors;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t newline = text.find('\n', std::min(begin + block_size, text.size()));
    const std::size_t end = newline == std::string::npos ? text.size() : newline + 1;
    extractor.Extract(std::string_view(text).substr(begin, end - begin), names, errors);
    begin = end;
  }
  EXPECT_EQ(errors.size(), 0U);
  return Texts(names);
}

void ExpectSame(const std::vector<std::string>& found, const std::vector<std::string>& expected) {
  const auto [first, second] = std::mismatch(found.begin(), found.end(), expected.begin(), expected.end());
  if (first == found.end() && second == expected.end()) return;
  ADD_FAILURE() << found.size() << " names found, " << expected.size() << " expected; first difference:\n"
                << (first == found.end() ? "none" : *first) << "\n"
                << (second == expected.end() ? "none" : *second);
}

class GeneratedLogTest : public ::testing::Test {
 protected:
  const unsigned seed_ = Seed();
  const std::size_t lines_ = IsComplete() ? 200'000 : 5000;
};

TEST_F(GeneratedLogTest, NamesComeOutExactlyAsTheyWentIn) {
  const GeneratedLog log = GenerateLog(seed_, lines_);
  ASSERT_GT(log.names.size(), lines_ / 4);
  for (const std::size_t block_size : {log.text.size(), std::size_t{0}, std::size_t{1000}}) {
    SCOPED_TRACE(HowToRepeat(seed_));
    ExpectSame(ExtractInBlocks(log.text, LogLines::kCountedText, block_size), Texts(log.names));
  }
}

TEST_F(GeneratedLogTest, NamesComeOutOfJsonLinesToo) {
  const GeneratedLog log = AsJsonLines(GenerateLog(seed_, lines_));
  for (const std::size_t block_size : {log.text.size(), std::size_t{1000}}) {
    SCOPED_TRACE(HowToRepeat(seed_));
    ExpectSame(ExtractInBlocks(log.text, LogLines::kJson, block_size), Texts(log.names));
  }
}

}  // namespace
}  // namespace kavrix::test
