// Asks the library and each peer what they make of payloads on which JSON readers differ. Prints the answers
// as lines with tabs: the payload, then for each reader "refused", "throws", or the values of the keys
// "scene" and "content". Fails when one of them is not what is written here.

#include <array>
#include <cstddef>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "bench/peers.h"
#include "util/escape.h"

namespace kavrix::bench {
namespace {

constexpr std::size_t kReaderCount = 5;
constexpr std::array<const char*, kReaderCount> kReaders = {"the library", "JsonCpp", "nlohmann::json",
                                                            "RapidJSON", "simdjson"};
using Answers = std::array<std::string, kReaderCount>;

struct Values {
  int scene = 0;
  std::string content;
};

struct ValueKeys {
  template <class Keys>
  void operator()(Keys& keys, Values& values) const {
    keys.Integer("scene", values.scene);
    keys.Text("content", values.content);
  }
};

struct Odd {
  const char* what;
  std::string payload;
  Answers expected;  // in the order of kReaders
};

std::string WithArrays(std::size_t count) {
  return R"({"scene":1,"x":)" + std::string(count, '[') + std::string(count, ']') + "}";
}

std::vector<Odd> OddPayloads() {
  const char* const no = "refused";
  const char* const none = R"(0 "")";
  const char* const one = R"(1 "")";
  const char* const nul = R"(0 "a\u0000b")";
  const char* const byte = R"(0 "a\xff")";
  const char* const half = R"(0 "a\xed\xb0\x80")";
  return {
      {"comment", R"({"scene":1/**/})", {one, one, no, no, no}},
      {"text after the root", R"({"scene":1} x)", {one, one, no, no, no}},
      {"byte order mark", "\xEF\xBB\xBF{\"scene\":1}", {no, no, one, one, no}},
      {"key twice", R"({"scene":1,"scene":2})", {R"(2 "")", R"(2 "")", R"(2 "")", one, one}},
      {"escape in a key", R"({"\u0073cene":1})", {one, one, one, one, none}},
      {"broken after the keys", R"({"content":"a","scene":1,"x":tru})", {no, no, no, no, R"(1 "a")"}},
      {"comma at the end", R"({"scene":1,})", {no, no, no, no, no}},
      {"comma after an empty key", R"({"scene":1,"":1,})", {one, one, no, no, no}},
      {"raw control character", "{\"content\":\"a\tb\"}", {R"(0 "a\tb")", R"(0 "a\tb")", no, no, no}},
      {"raw NUL", {"{\"content\":\"a\0b\"}", 17}, {nul, nul, no, no, no}},
      {"escaped NUL", R"({"content":"a\u0000b"})", {nul, nul, nul, nul, nul}},
      {"invalid UTF-8", "{\"content\":\"a\xFF\"}", {byte, byte, no, byte, no}},
      {"second half of a surrogate pair", R"({"content":"a\udc00"})", {half, half, no, half, no}},
      {"first half of a surrogate pair", R"({"content":"a\ud800"})", {no, no, no, no, no}},
      {"unknown escape", R"({"content":"\a"})", {no, no, no, no, no}},
      {"integer of 33 bits", R"({"scene":4294967297})", {none, none, none, none, none}},
      {"integer of 64 bits", R"({"scene":18446744073709551615})", {none, none, none, none, none}},
      {"integer of 20 digits", R"({"scene":99999999999999999999})", {none, none, none, none, none}},
      {"real with an integral value", R"({"scene":1.0})", {none, none, none, none, none}},
      {"real out of range", R"({"x":1e400,"scene":1})", {no, no, no, no, one}},
      {"real too small", R"({"x":1e-400,"scene":1})", {one, one, one, one, one}},
      {"01", R"({"scene":01})", {one, one, no, no, no}},
      {"1.", R"({"x":1.,"scene":1})", {one, one, no, no, one}},
      {"- as a value", R"({"x":-,"scene":1})", {one, one, no, no, one}},
      {"NaN", R"({"x":NaN,"scene":1})", {no, no, no, no, one}},
      {"998 arrays", WithArrays(998), {one, one, one, one, one}},
      {"1100 arrays", WithArrays(1100), {no, "throws", one, one, one}},
  };
}

template <class Peer>
std::string Answer(const std::string& payload) {
  Values values;
  try {
    if (!Peer().Read(payload, values, ValueKeys())) return "refused";
  } catch (const std::exception&) {
    return "throws";
  }
  std::string answer = std::to_string(values.scene) + ' ';
  AppendQuoted(answer, values.content);
  return answer;
}

Answers AskAll(const std::string& payload) {
  return {Answer<LibraryPeer>(payload), Answer<JsonCppPeer>(payload), Answer<NlohmannPeer>(payload),
          Answer<RapidJsonPeer>(payload), Answer<SimdjsonPeer>(payload)};
}

bool PrintAnswers() {
  bool all_as_expected = true;
  std::cout << "payload";
  for (const char* const reader : kReaders) std::cout << '\t' << reader;
  std::cout << '\n';
  for (const Odd& odd : OddPayloads()) {
    const Answers answers = AskAll(odd.payload);
    std::cout << odd.what;
    for (const std::string& answer : answers) std::cout << '\t' << answer;
    std::cout << '\n';
    for (std::size_t i = 0; i < kReaderCount; ++i) {
      if (answers[i] == odd.expected[i]) continue;
      std::cerr << "peer-answers: " << odd.what << ": " << kReaders[i] << " answers " << answers[i]
                << ", expected " << odd.expected[i] << '\n';
      all_as_expected = false;
    }
  }
  return all_as_expected;
}

}  // namespace
}  // namespace kavrix::bench

int main() { return kavrix::bench::PrintAnswers() ? 0 : 1; }
