#include "bench/plain/plain_transform.h"

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "descriptors/flat_members.h"
#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

enum class Entry { kBubble, kMarker };

struct Outcome {
  std::shared_ptr<BubbleDrawDescriptor> out;
  bool is_out_of_range = false;
};

std::vector<std::string> Lines(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> Files(const std::string& folder, const std::string& ending) {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ending) paths.push_back(entry.path().string());
  }
  return paths;
}

std::vector<std::string> GoldenNames() {
  std::vector<std::string> names;
  for (const std::string& path : Files(KAVRIX_SOURCE_DIR "/tests/golden", ".jsonl")) {
    for (const std::string& line : Lines(path)) {
      names.push_back(nlohmann::json::parse(line).at("resource_name").get<std::string>());
    }
  }
  return names;
}

std::vector<std::string> SampleNames() {
  std::vector<std::string> names;
  for (const std::string& path : Files(KAVRIX_SOURCE_DIR "/samples", ".txt")) {
    for (const std::string& name : Lines(path)) names.push_back(name);
  }
  return names;
}

// Decodes each name by both ways through both entry points, whatever the name was made for.
class PlainTransformTest : public DecodeTest {
 protected:
  PlainTransformTest() { context_->multi_light_type = 70000; }

  void ExpectSame(const std::string& name) {
    for (const Entry entry : {Entry::kBubble, Entry::kMarker}) {
      const auto before = std::make_shared<BubbleDrawDescriptor>();
      const Outcome expected = Run(transform_, entry, name, before);
      const Outcome plain = Run(plain_, entry, name, before);
      ASSERT_EQ(plain.is_out_of_range, expected.is_out_of_range) << name;
      ASSERT_EQ(plain.out == before, expected.out == before) << name;
      ASSERT_STREQ(plain.out->TypeName(), expected.out->TypeName()) << name;
      ASSERT_EQ(*plain.out, *expected.out)
          << name << "\nplain: " << Printed(*plain.out) << "\nlibrary: " << Printed(*expected.out);
      if (expected.out != before) ++decoded_;
    }
  }

  template <class Transform>
  static Outcome Run(Transform& transform, Entry entry, const std::string& name,
                     const std::shared_ptr<BubbleDrawDescriptor>& before) {
    Outcome outcome{before};
    try {
      if (entry == Entry::kBubble) {
        transform.GetBubbleDrawDescriptor(name, outcome.out);
      } else {
        transform.GetMarkerDrawDescriptor(name, outcome.out);
      }
    } catch (const std::out_of_range&) {
      outcome.is_out_of_range = true;
    }
    return outcome;
  }

  plain::PlainTransform plain_{context_};
  int decoded_ = 0;
};

TEST_F(PlainTransformTest, GoldenNamesDecodeTheSame) {
  const std::vector<std::string> names = GoldenNames();
  for (const std::string& name : names) ExpectSame(name);
  EXPECT_GT(names.size(), 200U);
  EXPECT_GT(decoded_, 200);
}

TEST_F(PlainTransformTest, SampleNamesDecodeTheSameWhereverTheyAreCut) {
  const std::vector<std::string> names = SampleNames();
  EXPECT_GE(names.size(), 69U);
  for (const std::string& name : names) {
    for (std::size_t size = 0; size <= name.size(); ++size) ExpectSame(name.substr(0, size));
  }
}

TEST_F(PlainTransformTest, SampleNamesDecodeTheSameWithoutOneOfTheirCharacters) {
  for (const std::string& name : SampleNames()) {
    for (std::size_t i = 0; i < name.size(); ++i) ExpectSame(name.substr(0, i) + name.substr(i + 1));
  }
}

TEST_F(PlainTransformTest, ValuesOfEveryTypeDecodeTheSame) {
  for (const char* const value : {"0",
                                  "1",
                                  "-1",
                                  "2",
                                  "70000",
                                  "2147483647",
                                  "2147483648",
                                  "-2147483649",
                                  "3000000000",
                                  "1.0",
                                  "1e2",
                                  "99999999999999999999",
                                  "\"1\"",
                                  "\"\"",
                                  "true",
                                  "null",
                                  "[1]",
                                  "{\"a\":1}",
                                  "[{},5,\"x\",null,[]]",
                                  "\"a\\u0000b\""}) {
    for (const std::string& name : SampleNames()) {
      for (std::size_t colon = name.find("\":"); colon != std::string::npos;
           colon = name.find("\":", colon + 1)) {
        const std::size_t end = name.find_first_of(",}", colon);
        ExpectSame(name.substr(0, colon + 2) + value + name.substr(end));
      }
    }
  }
}

}  // namespace
}  // namespace kavrix::test
