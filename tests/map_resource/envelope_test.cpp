#include <algorithm>

#include "map_resource/bubble_kinds.h"
#include "tests/support/decode_test.h"
#include "tests/support/json_tail.h"

// Tests what kinds with the same way to their payload have in common, and how styles are chosen.
namespace kavrix::test {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::EndsWith;
using ::testing::Field;

// The kinds whose names are prefix, JSON object, marker.
std::vector<const BubbleKindInfo*> JsonKinds() {
  std::vector<const BubbleKindInfo*> kinds;
  for (const BubbleKind kind : kBubbleKinds) {
    const BubbleKindInfo& info = InfoOf(kind);
    const bool is_json =
        info.way == PayloadWay::kPrefixAndMarkerStripped && TailAfterObject(info) == info.marker;
    if (is_json) kinds.push_back(&info);
  }
  return kinds;
}

bool HasKey(const BubbleKindInfo& info, std::string_view name) {
  KeyLister lister;
  info.codec.list_keys(lister);
  return std::any_of(lister.keys().begin(), lister.keys().end(),
                     [&](const KeyInfo& key) { return key.key == name; });
}

class EnvelopeTest : public DecodeTest {
 protected:
  void DecodeOf(const BubbleKindInfo& info, const std::string& payload, const std::string& after = "") {
    Decode(payload + std::string(info.marker) + after);
  }

  // Expects that the last decode found its payload broken. A kind to which that is no failure only logs the
  // name; its mode flag, which a readable object without "mode" inverts, is as constructed.
  void ExpectFailed(const BubbleKindInfo& info, const std::string& payload) const {
    EXPECT_FALSE(Base().mode_flag) << payload << info.marker;
    const bool is_failure = !info.codec.read_fields(name_).has_value();
    if (!is_failure) {
      EXPECT_THAT(records(), Each(AllOf(Field(&SeenRecord::level, 0),
                                        Field(&SeenRecord::message, EndsWith("resource_name:" + name_)))));
      return;
    }
    ASSERT_EQ(records().size(), 2U) << payload << info.marker;
    EXPECT_EQ(records()[1].level, 1) << payload << info.marker;
    EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: " + payload) << info.marker;
  }

  // Expects that the last decode read an object without "mode".
  void ExpectRead(const BubbleKindInfo& info) const {
    EXPECT_EQ(Base().mode_flag, HasKey(info, "mode")) << info.marker;
    for (const SeenRecord& record : records()) {
      EXPECT_EQ(record.message.find("]parse "), std::string::npos) << record;
    }
  }

  std::string StyleOf(const std::string& rest) {
    Decode(rest);
    return Base().style_name;
  }
};

TEST_F(EnvelopeTest, BrokenJsonLeavesANewDescriptorOfTheMarkersTypeWithItsKindCode) {
  for (const BubbleKindInfo* const kind : JsonKinds()) {
    const auto earlier = std::make_shared<BubbleDrawDescriptor>();
    out_ = earlier;
    DecodeOf(*kind, "{broken");
    ASSERT_NE(out_, nullptr) << kind->marker;
    EXPECT_NE(out_, earlier) << kind->marker;
    EXPECT_STREQ(Base().TypeName(), kind->descriptor_type);
    EXPECT_EQ(Base().bubble_kind, kind->kind_code.value_or(0)) << kind->marker;
    ExpectFailed(*kind, "{broken");
  }
}

TEST_F(EnvelopeTest, PayloadThatIsAnArrayOrABareNumberIsNoObject) {
  for (const BubbleKindInfo* const kind : JsonKinds()) {
    for (const std::string payload : {"[1]", "5", "\"text\"", "null", ""}) {
      DecodeOf(*kind, payload);
      ExpectFailed(*kind, payload);
    }
  }
}

TEST_F(EnvelopeTest, EmptyObjectIsAccepted) {
  for (const BubbleKindInfo* const kind : JsonKinds()) {
    DecodeOf(*kind, "{}");
    EXPECT_STREQ(Base().TypeName(), kind->descriptor_type);
    EXPECT_EQ(Base().bubble_kind, kind->kind_code.value_or(0)) << kind->marker;
    EXPECT_EQ(Base().scene, 0) << kind->marker;
    EXPECT_EQ(Base().lan, "") << kind->marker;
    EXPECT_EQ(Base().direction, 0) << kind->marker;
    ExpectRead(*kind);
  }
}

TEST_F(EnvelopeTest, EmptyObjectStillTakesItsStyleFromTheConfiguration) {
  EXPECT_EQ(StyleOf("{}.trafficBubble"), "traffic_style");
  EXPECT_EQ(Base().style_word, WordOf(2, 2));
  EXPECT_EQ(StyleOf("{}.cameraBubble"), "camera_style");
  EXPECT_EQ(StyleOf("{}.turnBubble"), "turn_style");
}

TEST_F(EnvelopeTest, TextAfterTheMarkerCutsThePayloadInTheWrongPlace) {
  for (const BubbleKindInfo* const kind : JsonKinds()) {
    DecodeOf(*kind, "[]", "?v=1");
    ExpectFailed(*kind, "[]" + std::string(kind->marker.substr(0, 4)));
  }
}

TEST_F(EnvelopeTest, PrefixIsDroppedWhateverItIs) {
  for (const BubbleKindInfo* const kind : JsonKinds()) {
    DecodeWhole("another-prefix-18b{}" + std::string(kind->marker));
    ExpectRead(*kind);
  }
}

TEST_F(EnvelopeTest, NameShorterThanThePrefixThrowsAfterTheNewDescriptorIsThere) {
  const std::pair<const char*, const char*> kinds[] = {{".turnBubble", "TurnArrowBubbleDrawDescriptor"},
                                                       {".nameBubble", "BubbleDrawDescriptor"},
                                                       {".etaBubble", "DestNameEtaDrawDescriptor"},
                                                       {".cameraBubble", "CameraDrawDescriptor"}};
  for (const auto& [marker, type] : kinds) {
    const auto earlier = std::make_shared<BubbleDrawDescriptor>();
    out_ = earlier;
    EXPECT_THROW(DecodeWhole(marker), std::out_of_range);
    EXPECT_NE(out_, earlier) << marker;
    EXPECT_STREQ(out_->TypeName(), type);
  }
}

TEST_F(EnvelopeTest, KeyOfTheWrongTypeKeepsTheDefault) {
  Decode(R"({"scene":"1","lan":5,"type":1.0,"direction":null,"is_force_":true}.turnBubble)");
  EXPECT_EQ(Base().scene, 0);
  EXPECT_EQ(Base().lan, "");
  EXPECT_EQ(Base().type, 0);
  EXPECT_EQ(Base().direction, 0);
  EXPECT_FALSE(Base().is_force);
}

TEST_F(EnvelopeTest, ForceAndSelectedKeysEndInAnUnderscore) {
  Decode(R"({"is_selected_":1,"is_force_":1}.cameraBubble)");
  EXPECT_TRUE(Base().selected);
  Decode(R"({"is_selected":1,"is_force":1}.cameraBubble)");
  EXPECT_FALSE(Base().selected);
  EXPECT_FALSE(Base().is_force);
}

TEST_F(EnvelopeTest, RecordWithAnEmptyNameGivesAnEmptyStyleNameWithoutAFallback) {
  BubbleLayerConfigContainer config = MakeConfig();
  config.traffic_nav_style.name.clear();
  config.turn_style.name.clear();
  context_->SetBubbleLayerConfig(config);
  EXPECT_EQ(StyleOf(R"({"scene":1}.trafficBubble)"), "");
  EXPECT_EQ(Base().style_word, WordOf(9, 2));
  EXPECT_EQ(StyleOf("{}.turnBubble"), "");
}

TEST_F(EnvelopeTest, EveryNonZeroSceneSelectsTheSameRecordAsOne) {
  for (const std::string scene : {"1", "2", "7", "-1", "2147483647", "-2147483648"}) {
    const std::string json = "{\"scene\":" + scene;
    EXPECT_EQ(StyleOf(json + "}.trafficBubble"), "traffic_nav_style") << scene;
    EXPECT_EQ(StyleOf(json + ",\"nav_mode\":0}.trafficBubble"), "traffic_scene_style") << scene;
    EXPECT_EQ(StyleOf(json + "}.cameraBubble"), "camera_scene_style") << scene;
    EXPECT_EQ(StyleOf("a_0_" + scene + "@1.nameBubble"), "route_name_scene_style") << scene;
  }
}

TEST_F(EnvelopeTest, DescriptorKeepsItsStyleWhenTheConfigurationIsReplaced) {
  Decode("{}.trafficBubble");
  const auto earlier = out_;
  context_->SetBubbleLayerConfig({});
  EXPECT_EQ(earlier->style_name, "traffic_style");
  EXPECT_EQ(StyleOf("{}.trafficBubble"), "");
}

}  // namespace
}  // namespace kavrix::test
