// The library against the reference decoder, on what a payload can be made of.

#include "fuzz/vocabulary.h"
#include "tests/support/reference_test.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

std::string Repeated(const std::string& text, std::size_t times) {
  std::string repeated;
  while (times-- > 0) repeated += text;
  return repeated;
}

// The first sample name of each kind.
std::vector<SampleName> FirstSampleNames() {
  std::vector<SampleName> firsts;
  for (const SampleName& sample : SampleNames()) {
    if (firsts.empty() || firsts.back().stem != sample.stem) firsts.push_back(sample);
  }
  return firsts;
}

class ReferencePayloadsTest : public ReferenceTest {
 protected:
  // Every payload under the marker of each way to read JSON.
  void ExpectSamePayload(const std::string& payload) {
    const std::string start = MapResourceManager::kavrix_resource_prefix + payload;
    for (const char* const end : {".trafficBubble", "@1.lightCountdownBubble", ".YawNoticeBubble"}) {
      ExpectSame(start + end);
    }
    ExpectSame(start + ".marker", true);
  }
};

TEST_F(ReferencePayloadsTest, ValuesOfEveryType) {
  std::vector<std::string> values = fuzz::Words().values;
  for (const char* const value :
       {"70000", "3000000000", "-2147483649", "18446744073709551615", "1.0", "007", "[1]", R"({"a":1})",
        R"("a.nameBubble")", R"("Bubble")", R"("\"\\\/\t")", "\"\x7f\x01\xff\"", R"(["a","",3,"b"])",
        R"([{},5,"x",null,[],{"type":1,"text":"t"}])"}) {
    values.emplace_back(value);
  }
  for (const auto& [stem, is_marker, name] : SampleNames()) {
    for (std::size_t at = name.find("\":"); at != std::string::npos; at = name.find("\":", at + 1)) {
      const std::string rest = name.substr(name.find_first_of(",}", at));
      for (const std::string& value : values) ExpectSame(name.substr(0, at + 2) + value + rest, is_marker);
    }
  }
}

TEST_F(ReferencePayloadsTest, KeysOfEverySpelling) {
  for (const auto& [stem, is_marker, name] : SampleNames()) {
    for (std::size_t end = name.find("\":"); end != std::string::npos; end = name.find("\":", end + 1)) {
      const std::size_t begin = name.rfind('"', end - 1) + 1;
      const std::string key = name.substr(begin, end - begin);
      const std::string capital = std::string(1, static_cast<char>(key[0] - 'a' + 'A')) + key.substr(1);
      const std::string letter_by_number = "\\u00" + std::string(1, key[0] < 'p' ? '6' : '7') +
                                           "0123456789abcdef"[key[0] % 16] + key.substr(1);
      for (const std::string& other :
           {capital, letter_by_number, key + " ", " " + key, key + "_", key + "s", key.substr(1),
            key.substr(0, key.size() - 1), key + "\\u0000", std::string()}) {
        ExpectSame(name.substr(0, begin) + other + name.substr(end), is_marker);
      }
      // Once more, with another value, before and after all other keys.
      const std::string once_more = "\"" + key + R"(":7)";
      const std::size_t object = name.find('{');
      ExpectSame(name.substr(0, object + 1) + once_more + "," + name.substr(object + 1), is_marker);
      const std::size_t object_end = name.rfind('}');
      ExpectSame(name.substr(0, object_end) + "," + once_more + name.substr(object_end), is_marker);
    }
  }
}

TEST_F(ReferencePayloadsTest, ObjectsOfManyMembers) {
  for (const auto& [stem, is_marker, name] : FirstSampleNames()) {
    const std::size_t begin = name.find('{');
    const std::size_t end = name.rfind('}');
    if (begin == std::string::npos) continue;
    std::string before;
    std::string after;
    for (int count = 1; count < 40; ++count) {
      before += "\"a" + std::to_string(count) + "\":1,";
      after += ",\"z" + std::to_string(count) + "\":{\"scene\":9}";
      ExpectSame(name.substr(0, begin + 1) + before + name.substr(begin + 1), is_marker);
      ExpectSame(name.substr(0, end) + after + name.substr(end), is_marker);
    }
  }
}

TEST_F(ReferencePayloadsTest, BlanksAndCommentsAnywhere) {
  for (const auto& [stem, is_marker, name] : FirstSampleNames()) {
    for (std::size_t at = 0; at <= name.size(); ++at) {
      for (const char* const text : {" \t\r\n", "/*{\"*/", "//}\n", "//]\r", "/", "/**", "\xef\xbb\xbf"}) {
        ExpectSame(name.substr(0, at) + text + name.substr(at), is_marker);
      }
    }
  }
}

TEST_F(ReferencePayloadsTest, FieldsOfEveryShape) {
  const std::size_t prefix_length = std::string(MapResourceManager::kavrix_resource_prefix).size();
  for (const auto& [stem, is_marker, name] : SampleNames()) {
    for (std::size_t begin = prefix_length; begin <= name.size();) {
      const std::size_t end = std::min(name.find_first_of("@_.|", begin), name.size());
      for (const char* const field : {"",
                                      "0",
                                      "-0",
                                      "+0",
                                      "1",
                                      "01",
                                      "-1",
                                      "+7",
                                      "+-7",
                                      "--7",
                                      "-",
                                      "+",
                                      " 1",
                                      "1 ",
                                      "1x",
                                      "\v\f7",
                                      "0x1",
                                      "1e2",
                                      "32768",
                                      "70000",
                                      "2147483647",
                                      "2147483648",
                                      "-2147483648",
                                      "-2147483649",
                                      "4294967296",
                                      "9223372036854775807",
                                      "9223372036854775808",
                                      "-9223372036854775809",
                                      "a",
                                      "a|b|c",
                                      "_",
                                      "@",
                                      ".",
                                      "|",
                                      "0_0",
                                      "0@0",
                                      "0.0",
                                      "\t12\xff"}) {
        ExpectSame(name.substr(0, begin) + field + name.substr(end), is_marker);
      }
      begin = end + 1;
    }
  }
}

TEST_F(ReferencePayloadsTest, NestedToTheLimitAndBeyond) {
  for (const std::size_t depth : {253U, 254U, 255U, 256U, 257U, 998U, 999U, 1000U}) {
    for (const std::string& deep :
         {Repeated("[", depth) + Repeated("]", depth), Repeated("[0,", depth) + "1" + Repeated("]", depth),
          Repeated(R"({"k":)", depth) + "1" + Repeated("}", depth)}) {
      for (const std::string& payload :
           {R"({"scene":1,"k":)" + deep + "}", R"({"k":)" + deep + R"(,"k":0,"scene":1})",
            R"({"scene":1,"k":)" + deep, R"({"scene":1,"k":)" + deep + ",}", R"({,"k":)" + deep + "}",
            R"({"scene":1/**/[)" + ("\"k\":" + deep) + "}", "{/*[*/\"k\"://[\r" + deep + "}",
            "//{\n{\"scene\":1,\"k\":/*/[*/" + deep + "}", deep}) {
        ExpectSamePayload(payload);
      }
    }
  }
}

TEST_F(ReferencePayloadsTest, BracketsThatOpenNothing) {
  const std::string brackets = Repeated("[{", 2000);
  for (const std::string& payload :
       {R"({"content":")" + brackets + "\"}", R"({"content":"\")" + brackets + "\"}",
        R"({"content":"\\")" + brackets + "}", R"({")" + brackets + R"(":1,"scene":1})",
        R"({"scene":1/*)" + brackets + "*/}", R"({"scene":1//)" + brackets + "\n}",
        R"({"scene":1//)" + brackets + "\r}", "//" + brackets + "\r{\"scene\":1}",
        "{\"scene\":1} " + brackets, "{\"scene\":1}//" + brackets, brackets}) {
    ExpectSamePayload(payload);
  }
}

}  // namespace
}  // namespace kavrix::test
