// The global C++ locale belongs to the client: names decode the same under every one.

#include "tests/support/global_locale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "config/bubble_layer_config_file.h"
#include "descriptors/flat_members.h"
#include "map_resource/bubble_markers.h"
#include "map_resource/map_resource_transform.h"
#include "tests/support/read_file.h"
#include "tests/support/record_collector.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

using OtherJson = nlohmann::ordered_json;

// Returns the members as the tool prints them, under the paths of FlatMembers.
void Flatten(const std::string& path, const OtherJson& value, OtherJson& members) {
  if (value.is_object()) {
    for (const auto& [key, member] : value.items())
      Flatten(path.empty() ? key : path + "." + key, member, members);
  } else if (value.is_array()) {
    for (std::size_t i = 0; i < value.size(); ++i)
      Flatten(path + "[" + std::to_string(i) + "]", value[i], members);
  } else {
    members.push_back({path, value.is_number_float() ? OtherJson(value.get<float>()) : value});
  }
}

OtherJson MembersOf(const OtherJson& printed) {
  OtherJson members = OtherJson::array();
  if (printed.is_null()) return members;
  Flatten("", printed.at("base"), members);
  Flatten("", printed.at("own"), members);
  return members;
}

OtherJson ToJson(const std::string& text) { return ToValidUtf8(text); }
template <class Value>
OtherJson ToJson(Value value) {
  return value;
}

OtherJson MembersOf(const BubbleDrawDescriptor* descriptor) {
  OtherJson members = OtherJson::array();
  if (descriptor == nullptr) return members;
  for (const FlatMember& member : FlatMembers(*descriptor)) {
    members.push_back(
        {member.path, std::visit([](const auto& value) { return ToJson(value); }, member.value)});
  }
  return members;
}

OtherJson RecordsOf(const RecordCollector& collector) {
  OtherJson records = OtherJson::array();
  for (const SeenRecord& record : collector.records()) {
    records.push_back({{"level", record.level},
                       {"tag", record.tag},
                       {"function", record.function},
                       {"message", ToValidUtf8(record.message)}});
  }
  return records;
}

class GlobalLocaleTest : public ::testing::Test {
 protected:
  GlobalLocaleTest() {
    context_->multi_light_type = config_.multi_light_type;
    context_->SetBubbleLayerConfig(config_.bubble_layer);
    transform_.SetMarkerBubbleConfig(config_.marker_bubble);
  }

  void ExpectAsPrinted(const OtherJson& line, bool is_marker_name) {
    const std::string name = line.at("resource_name");
    std::shared_ptr<BubbleDrawDescriptor> out;
    collector_.Clear();
    bool threw = false;
    try {
      is_marker_name ? transform_.GetMarkerDrawDescriptor(name, out)
                     : transform_.GetBubbleDrawDescriptor(name, out);
    } catch (const std::out_of_range&) {
      threw = true;
    }
    EXPECT_EQ(threw, !line.at("exception").is_null()) << name;
    EXPECT_EQ(out == nullptr, line.at("descriptor").is_null()) << name;
    EXPECT_EQ(MembersOf(out.get()), MembersOf(line.at("descriptor"))) << name;
    EXPECT_EQ(RecordsOf(collector_), line.at("records")) << name;
  }

  const GlobalLocale other_;
  const BubbleLayerConfigFile config_ =
      ParseBubbleLayerConfig(ReadFile(KAVRIX_SOURCE_DIR "/samples/default_config.json"));
  std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>(config_.context_name);
  MapResourceTransform transform_{context_};
  RecordCollector collector_;
};

TEST_F(GlobalLocaleTest, IsAnother) {
  std::ostringstream stream;
  stream << 1234567 << ' ' << 1.5;
  EXPECT_EQ(stream.str(), "1.234.567 1,5");
}

TEST_F(GlobalLocaleTest, NamesDecodeAsRecorded) {
  std::size_t files = 0;
  for (const auto& file : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/tests/golden")) {
    ++files;
    std::istringstream lines(ReadFile(file.path()));
    for (std::string text; std::getline(lines, text);) {
      ExpectAsPrinted(OtherJson::parse(text), file.path().stem() == "marker_name");
    }
  }
  EXPECT_EQ(files, kBubbleMarkers.size() + 1);
}

TEST_F(GlobalLocaleTest, PlainRealsLeaveTheOtherKeysOfTheirPayloadRead) {
  for (const std::string real : {"1.5", "-0.25", "1e5", "1.0E-3"}) {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetBubbleDrawDescriptor(
        R"(kavrix://resource/{"scene":)" + real + R"(,"content":"read"}.markerBubble)", out);
    EXPECT_EQ(out->content, "read") << real;
    EXPECT_EQ(out->scene, 0) << real;
  }
}

TEST_F(GlobalLocaleTest, RealInAPayloadThatIsNotPlainIsReadByIt) {
  const std::string name = "kavrix://resource/{/**/\"scene\":1.5,\"content\":\"read\"}.markerBubble";
  std::shared_ptr<BubbleDrawDescriptor> out;
  transform_.GetBubbleDrawDescriptor(name, out);
  EXPECT_EQ(out->content, "") << "1.5 is no number here: the payload is broken";
  const ClassicLocale classic;
  transform_.GetBubbleDrawDescriptor(name, out);
  EXPECT_EQ(out->content, "read");
}

}  // namespace
}  // namespace kavrix::test
