#include "map_resource/resource_name_encoder.h"

#include <nlohmann/json.hpp>
#include <random>

#include "map_resource/bubble_kinds.h"
#include "payload/json_tree.h"
#include "tests/support/carried_fields.h"
#include "tests/support/decode_test.h"
#include "tests/support/golden.h"
#include "tests/support/random_fields.h"

namespace kavrix::test {
namespace {

constexpr int kRoundTrips = 300;

const std::string kPrefix = "kavrix://resource/";

class ResourceNameEncoderTest : public DecodeTest {
 protected:
  void DecodeAs(EntryPoint entry_point, const std::string& name) {
    if (entry_point == EntryPoint::kBubble) return DecodeWhole(name);
    transform_.GetMarkerDrawDescriptor(name, out_);
  }
};

// Encodes `bubble`, which must have the kind's type, by the kind's function.
std::string EncodeTyped(const BubbleKindInfo& info, const BubbleDrawDescriptor& bubble) {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) \
  if (&info == &k##Kind##BubbleInfo) return Encode(dynamic_cast<const Descriptor&>(bubble));
#include "map_resource/bubble_kinds.def"
  return EncodeMarkerResourceName(dynamic_cast<const MarkerDrawDescriptor&>(bubble));
}

TEST_F(ResourceNameEncoderTest, FieldsOfEveryKindComeBackAndTheirBubbleGivesTheSameName) {
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    RandomFields random(20261121);
    for (int i = 0; i < kRoundTrips; ++i) {
      const Json::Value fields = random.Make(*info);
      const std::string name = info->codec.encode_fields(fields);
      Json::Value read_back;
      ASSERT_TRUE(ParseTree(info->codec.read_fields(name).value(), read_back)) << name;
      ASSERT_EQ(CompleteFields(*info, read_back), CompleteFields(*info, fields)) << name;
      DecodeAs(info->entry_point, name);
      const bool is_navigating = CompleteFields(*info, fields).get("nav_mode", 1) == 1;
      if (is_navigating) {
        ASSERT_EQ(EncodeTyped(*info, *out_), name);
      }
    }
  }
}

// Encodes the fields of the name again.
std::string EncodedAgain(const BubbleKindInfo& info, const std::string& name) {
  Json::Value fields;
  EXPECT_TRUE(ParseTree(info.codec.read_fields(name).value(), fields));
  return info.codec.encode_fields(fields);
}

TEST_F(ResourceNameEncoderTest, NavigationModeOfATrafficBubbleSelectsItsStyle) {
  for (const int scene : {0, 1, -5}) {
    for (const int nav_mode : {1, 0, 2, -7}) {
      TrafficDrawDescriptor traffic;
      traffic.scene = scene;
      DecodeWhole(EncodeTrafficBubbleResourceName(traffic, nav_mode));
      const char* const expected_style = scene == 0      ? "traffic_style"
                                         : nav_mode == 1 ? "traffic_nav_style"
                                                         : "traffic_scene_style";
      EXPECT_EQ(Base().style_name, expected_style);
    }
  }
}

TEST_F(ResourceNameEncoderTest, NavigationModesThatSelectTheSameStyleGiveTheSameName) {
  TrafficDrawDescriptor traffic;
  for (const int nav_mode : {0, 1, 2, -7}) {
    EXPECT_EQ(EncodeTrafficBubbleResourceName(traffic, nav_mode), kPrefix + R"({"mode":1}.trafficBubble)");
  }
  traffic.scene = 3;
  EXPECT_EQ(EncodeTrafficBubbleResourceName(traffic, 1), kPrefix + R"({"mode":1,"scene":3}.trafficBubble)");
  for (const int nav_mode : {0, 2, 3, -7}) {
    EXPECT_EQ(EncodeTrafficBubbleResourceName(traffic, nav_mode),
              kPrefix + R"({"mode":1,"scene":3,"nav_mode":0}.trafficBubble)");
  }
  Json::Value fields(Json::objectValue);
  fields["mode"] = 1;
  fields["scene"] = 3;
  fields["nav_mode"] = 2;
  EXPECT_EQ(kTrafficBubbleInfo.codec.encode_fields(fields), EncodeTrafficBubbleResourceName(traffic, 0));
}

// Encodes the fields of every golden name: the new name decodes to the same bubble.
TEST_F(ResourceNameEncoderTest, CanonicalFormOfADecodableNameDecodesTheSame) {
  int names = 0;
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    for (const std::string& name : GoldenNames(*info)) {
      std::optional<std::string> fields;
      if (name.size() >= kPrefix.size()) fields = info->codec.read_fields(name);
      if (!fields) continue;
      ++names;
      DecodeAs(info->entry_point, name);
      const auto original = out_;
      Json::Value json;
      ASSERT_TRUE(ParseTree(*fields, json));
      const std::string canonical = info->codec.encode_fields(json);
      DecodeAs(info->entry_point, canonical);
      EXPECT_EQ(*out_, *original) << name << " became " << canonical;
      EXPECT_EQ(EncodedAgain(*info, canonical), canonical);
    }
  }
  EXPECT_GT(names, 150);
}

TEST_F(ResourceNameEncoderTest, TextOfEveryAsciiCharacterComesThroughEveryTextOfEveryJsonKind) {
  std::string ascii;
  for (int c = 0; c < 128; ++c) ascii += static_cast<char>(c);
  int texts = 0;
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    if (!IsJsonKind(*info)) continue;
    KeyLister lister;
    info->codec.list_keys(lister);
    for (const KeyInfo& key : lister.keys()) {
      if (key.type != "text" || key.key.find("[].") != std::string::npos) continue;
      ++texts;
      Json::Value fields(Json::objectValue);
      fields[key.key] = ascii;
      const std::string name = info->codec.encode_fields(fields);
      const auto read_back = nlohmann::json::parse(info->codec.read_fields(name).value());
      EXPECT_EQ(read_back.at(key.key), ascii) << name;
    }
  }
  EXPECT_EQ(texts, 33);
}

TEST_F(ResourceNameEncoderTest, NamesAreCanonical) {
  TrafficDrawDescriptor traffic;
  EXPECT_EQ(EncodeTrafficBubbleResourceName(traffic), kPrefix + R"({"mode":1}.trafficBubble)");
  traffic.light_text = "3";
  traffic.content = "a.b@c\n\"\\/路";
  traffic.mode_flag = true;
  traffic.scene = 2;
  traffic.style_name = "not carried";
  EXPECT_EQ(
      EncodeTrafficBubbleResourceName(traffic, 0),
      kPrefix +
          R"({"content":"a\u002eb\u0040c\u000a\"\\/路","mode":0,"light_text":"3","scene":2,"nav_mode":0}.trafficBubble)");
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.resize(2);
  lights.light_descriptors[1].turn_arrow_type = 0;
  EXPECT_EQ(
      EncodeMultiLightCountdownBubbleResourceName(lights),
      kPrefix + R"({"mode":1,"light_descriptors":[{},{"turn_arrow_type":0}]}@0.multiLightCountdownBubble)");
}

TEST_F(ResourceNameEncoderTest, FieldsThatHoldTheirDefaultsAreWrittenToo) {
  EXPECT_EQ(EncodeRouteNameBubbleResourceName({}), kPrefix + "_1_0@0.nameBubble");
  EXPECT_EQ(EncodeIndoorEntriesBubbleResourceName({}), kPrefix + "_1__0_@0.inDoorEntriesBubble");
  EXPECT_EQ(EncodeEtaBubbleResourceName({}), kPrefix + "_1__0@0.etaBubble");
  EXPECT_EQ(EncodeRouteLabelBubbleResourceName({}), kPrefix + "_1@0.labelBubble");
  EXPECT_EQ(EncodeLightWaitBubbleResourceName({}), kPrefix + "_1_0_0@0.lightWaitBubble");
  EXPECT_EQ(EncodeHdLongSolidBubbleResourceName({}), kPrefix + "_1@0.hdLongSolidBubble");
}

TEST_F(ResourceNameEncoderTest, DirectionOfASafeWarningIsWrittenOnlyAfterTheObject) {
  SafeWarningBubbleDrawDescriptor warning;
  warning.direction = 5;
  EXPECT_EQ(EncodeSafeWarningResourceName(warning), kPrefix + R"({"mode":1}@5.SafeWarningBubble)");
}

TEST_F(ResourceNameEncoderTest, ForceIsAFieldOfItsOwn) {
  LightWaitBubbleDrawDescriptor wait;
  wait.is_force = true;
  EXPECT_EQ(EncodeLightWaitBubbleResourceName(wait), kPrefix + "_1_0_1@0.lightWaitBubble");
  HDLongSolidBubbleDrawDescriptor solid;
  solid.is_force = true;
  EXPECT_EQ(EncodeHdLongSolidBubbleResourceName(solid), kPrefix + "_1_1@0.hdLongSolidBubble");
}

TEST_F(ResourceNameEncoderTest, NothingIsLogged) {
  collector_.Clear();
  EncodeTrafficBubbleResourceName({});
  EncodeRouteLabelBubbleResourceName({});
  EXPECT_TRUE(records().empty());
}

}  // namespace
}  // namespace kavrix::test
