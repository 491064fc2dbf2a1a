#include "map_resource/resource_name_encoder.h"

#include <nlohmann/json.hpp>
#include <random>

#include "map_resource/bubble_kinds.h"
#include "tests/support/all_kinds.h"
#include "tests/support/decode_test.h"
#include "tests/support/random_bubbles.h"
#include "util/json_util.h"

namespace kavrix::test {
namespace {

constexpr int kRoundTrips = 300;

const std::string kPrefix = "kavrix://resource/";

class ResourceNameEncoderTest : public DecodeTest {
 protected:
  // Encodes random bubbles and decodes them with the real decoder. What names do not carry (style, kind code
  // and what the kind sets itself) is taken over from the decoded bubble by `take_over`.
  template <class Descriptor, class Encode, class TakeOver>
  void ExpectRoundTrips(void (RandomBubbles::*fill)(Descriptor&), Encode encode, TakeOver take_over) {
    RandomBubbles random(20261121);
    for (int i = 0; i < kRoundTrips; ++i) {
      Descriptor bubble;
      (random.*fill)(bubble);
      const std::string name = encode(bubble);
      DecodeWhole(name);
      const auto& decoded = Out<Descriptor>();
      bubble.bubble_kind = decoded.bubble_kind;
      bubble.style_name = decoded.style_name;
      bubble.style_word = decoded.style_word;
      bubble.style_scale = decoded.style_scale;
      take_over(bubble, decoded);
      ASSERT_EQ(decoded, bubble) << name;
      ASSERT_EQ(encode(decoded), name);
    }
  }
  template <class Descriptor, class Encode>
  void ExpectRoundTrips(void (RandomBubbles::*fill)(Descriptor&), Encode encode) {
    ExpectRoundTrips(fill, encode, [](Descriptor&, const Descriptor&) {});
  }
};

TEST_F(ResourceNameEncoderTest, TrafficRoundTripsWithItsNavMode) {
  for (const int nav_mode : {1, 0, -7}) {
    ExpectRoundTrips(
        &RandomBubbles::FillTraffic,
        [&](const auto& bubble) { return EncodeTrafficBubbleResourceName(bubble, nav_mode); },
        [&](auto& bubble, const auto& decoded) {
          bubble.style_float_1 = decoded.style_float_1;
          bubble.style_float_2 = decoded.style_float_2;
          bubble.style_float_3 = decoded.style_float_3;
          bubble.style_word_2 = decoded.style_word_2;
          const char* const expected_style = bubble.scene == 0 ? "traffic_style"
                                             : nav_mode == 1   ? "traffic_nav_style"
                                                               : "traffic_scene_style";
          EXPECT_EQ(decoded.style_name, expected_style);
        });
  }
}

TEST_F(ResourceNameEncoderTest, RouteNameRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillRouteName, EncodeRouteNameBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, IndoorEntriesRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillIndoorEntries, EncodeIndoorEntriesBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, CompanionRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillCompanion, EncodeCompanionBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, CameraRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillCamera, EncodeCameraBubbleResourceName,
                   [](auto& bubble, const auto& decoded) {
                     bubble.plain_style_values = decoded.plain_style_values;
                     bubble.mode_style_value = decoded.mode_style_value;
                   });
}

TEST_F(ResourceNameEncoderTest, EtaRoundTripsWithBarsInItsContent) {
  ExpectRoundTrips(&RandomBubbles::FillEta, EncodeEtaBubbleResourceName,
                   [](auto& bubble, const auto& decoded) {
                     bubble.second_style_value = decoded.second_style_value;
                     bubble.second_mode_style_value = decoded.second_mode_style_value;
                     bubble.third_mode_style_value = decoded.third_mode_style_value;
                     bubble.fourth_mode_style_value = decoded.fourth_mode_style_value;
                   });
}

TEST_F(ResourceNameEncoderTest, RouteLabelRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillRouteLabel, EncodeRouteLabelBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, RouteExplainRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillRouteExplain, EncodeRouteExplainBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, MarkerBubbleRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillMarkerBubble, EncodeMarkerBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, LightCountdownRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillLightCountdown, EncodeLightCountdownBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, MultiLightCountdownRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillMultiLightCountdown, EncodeMultiLightCountdownBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, ViaCircleRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillViaCircle, EncodeViaCircleBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, LightWaitRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillLightWait, EncodeLightWaitBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, TurnRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillTurn, EncodeTurnBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, HdLongSolidRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillHdLongSolid, EncodeHdLongSolidBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, UndergroundParkRoundTrips) {
  ExpectRoundTrips(&RandomBubbles::FillUndergroundPark, EncodeUndergroundParkBubbleResourceName);
}

TEST_F(ResourceNameEncoderTest, ForceBubblesRoundTrip) {
  const auto take_over = [](auto& bubble, const auto& decoded) {
    bubble.content = decoded.content;
    bubble.is_force = true;
  };
  ExpectRoundTrips(&RandomBubbles::FillForce, EncodeForceDotBubbleResourceName, take_over);
  ExpectRoundTrips(&RandomBubbles::FillForce, EncodeForcePollBubbleResourceName, take_over);
}

TEST_F(ResourceNameEncoderTest, SelfInitialisedKindsRoundTrip) {
  ExpectRoundTrips(&RandomBubbles::FillYawNotice, EncodeYawNoticeResourceName);
  ExpectRoundTrips(&RandomBubbles::FillRouteAccident, EncodeRouteAccidentResourceName);
  ExpectRoundTrips(&RandomBubbles::FillSafeWarning, EncodeSafeWarningResourceName);
  ExpectRoundTrips(&RandomBubbles::FillLaneChange, EncodeLaneChangeResourceName);
}

TEST_F(ResourceNameEncoderTest, MarkerNamesRoundTrip) {
  RandomBubbles random(20261121);
  for (int i = 0; i < kRoundTrips; ++i) {
    MarkerDrawDescriptor marker;
    random.FillMarker(marker);
    const std::string name = EncodeMarkerResourceName(marker);
    transform_.GetMarkerDrawDescriptor(name, out_);
    marker.bubble_kind = 21;
    marker.is_force = true;
    marker.content = Base().content;
    ASSERT_EQ(Base(), marker) << name;
  }
}

// Every name that the goldens hold: what is built of its fields decodes to the same bubble.
TEST_F(ResourceNameEncoderTest, CanonicalFormOfADecodableNameDecodesTheSame) {
  int names = 0;
  for (std::size_t i = 0; i < kBubbleMarkers.size(); ++i) {
    const auto kind = static_cast<BubbleKind>(i);
    for (const std::string& name : GoldenNames(kind)) {
      std::optional<std::string> fields;
      if (name.size() >= kPrefix.size()) fields = InfoOf(kind).codec.read_fields(name);
      if (!fields) continue;
      ++names;
      DecodeWhole(name);
      const auto original = out_;
      Json::Value json;
      ASSERT_TRUE(JsonUtil::ParseObject(*fields, json));
      const std::string canonical = InfoOf(kind).codec.encode_fields(json);
      DecodeWhole(canonical);
      EXPECT_EQ(*out_, *original) << name << " became " << canonical;
      EXPECT_EQ(InfoOf(kind).codec.read_fields(canonical), fields);
    }
  }
  EXPECT_GT(names, 150);
}

TEST_F(ResourceNameEncoderTest, TextOfEveryAsciiCharacterComesThroughEveryTextOfEveryJsonKind) {
  std::string ascii;
  for (int c = 0; c < 128; ++c) ascii += static_cast<char>(c);
  int texts = 0;
  for (const BubbleKindInfo* const info : AllKinds()) {
    if (std::string_view(info->grammar).substr(0, 4) != "JSON") continue;
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
  traffic.style_name = "not carried";
  EXPECT_EQ(
      EncodeTrafficBubbleResourceName(traffic, 0),
      kPrefix +
          R"({"content":"a\u002eb\u0040c\u000a\"\\/路","mode":0,"light_text":"3","nav_mode":0}.trafficBubble)");
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.resize(2);
  lights.light_descriptors[1].turn_arrow_type = 0;
  EXPECT_EQ(
      EncodeMultiLightCountdownBubbleResourceName(lights),
      kPrefix + R"({"mode":1,"light_descriptors":[{},{"turn_arrow_type":0}]}@0.multiLightCountdownBubble)");
}

TEST_F(ResourceNameEncoderTest, FieldsThatNothingWasSetForStandThereAllTheSame) {
  EXPECT_EQ(EncodeRouteNameBubbleResourceName({}), kPrefix + "_1_0@0.nameBubble");
  EXPECT_EQ(EncodeIndoorEntriesBubbleResourceName({}), kPrefix + "_1__0_@0.inDoorEntriesBubble");
  EXPECT_EQ(EncodeEtaBubbleResourceName({}), kPrefix + "_1__0@0.etaBubble");
  EXPECT_EQ(EncodeRouteLabelBubbleResourceName({}), kPrefix + "_1@0.labelBubble");
  EXPECT_EQ(EncodeLightWaitBubbleResourceName({}), kPrefix + "_1_0_0@0.lightWaitBubble");
  EXPECT_EQ(EncodeHdLongSolidBubbleResourceName({}), kPrefix + "_1@0.hdLongSolidBubble");
}

TEST_F(ResourceNameEncoderTest, DirectionOfASafeWarningStandsBehindTheObjectAlone) {
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
