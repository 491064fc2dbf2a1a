#include "map_resource/bubble_markers.h"
#include "tests/support/decode_test.h"

// What all kinds of one way to the payload have in common, and how styles are chosen.
namespace kavrix::test {
namespace {

struct JsonKind {
  const char* marker;
  const char* type;
  int code;
};

// The kinds whose whole payload is a JSON object.
constexpr JsonKind kJsonKinds[] = {{".trafficBubble", "TrafficDrawDescriptor", 1},
                                   {".cameraBubble", "CameraDrawDescriptor", 0},
                                   {".routeExplainBubble", "ExplainBubbleDrawDescriptor", 0},
                                   {".markerBubble", "BubbleDrawDescriptor", 0},
                                   {".viaCircleBubble", "ViaPointDrawDescriptor", 20},
                                   {".turnBubble", "TurnArrowBubbleDrawDescriptor", 10},
                                   {".UndergroundParkBubble", "BubbleDrawDescriptor", 25},
                                   {".ForceDotBubble", "BubbleDrawDescriptor", 27},
                                   {".ForcePollBubble", "BubbleDrawDescriptor", 28}};

class EnvelopeTest : public DecodeTest {
 protected:
  // The turn bubble alone says nothing about a payload that does not parse.
  bool SaysThatItFailed(const JsonKind& kind, const std::string& payload) const {
    if (kind.marker == std::string(".turnBubble")) return records().back().level == 0;
    return records().back().level == 1 &&
           records().back().message == "[Kavrix][ctx]parse json failed: " + payload;
  }
  bool SaysNothingOfAFailure() const {
    for (const SeenRecord& record : records()) {
      if (record.message.find("]parse ") != std::string::npos) return false;
    }
    return true;
  }
  std::string StyleOf(const std::string& rest) {
    Decode(rest);
    return Base().style_name;
  }
};

TEST_F(EnvelopeTest, BrokenJsonLeavesANewDescriptorOfTheMarkersTypeWithItsKindCode) {
  for (const JsonKind& kind : kJsonKinds) {
    const auto earlier = std::make_shared<BubbleDrawDescriptor>();
    out_ = earlier;
    Decode(std::string("{broken") + kind.marker);
    ASSERT_NE(out_, nullptr) << kind.marker;
    EXPECT_NE(out_, earlier) << kind.marker;
    EXPECT_STREQ(Base().TypeName(), kind.type);
    EXPECT_EQ(Base().bubble_kind, kind.code) << kind.marker;
    EXPECT_TRUE(SaysThatItFailed(kind, "{broken")) << kind.marker;
  }
}

TEST_F(EnvelopeTest, PayloadThatIsAnArrayOrABareNumberIsNoObject) {
  for (const JsonKind& kind : kJsonKinds) {
    for (const std::string payload : {"[1]", "5", "\"text\"", "null", ""}) {
      Decode(payload + kind.marker);
      EXPECT_TRUE(SaysThatItFailed(kind, payload)) << payload << kind.marker;
    }
  }
}

TEST_F(EnvelopeTest, EmptyObjectIsAccepted) {
  for (const JsonKind& kind : kJsonKinds) {
    Decode(std::string("{}") + kind.marker);
    EXPECT_STREQ(Base().TypeName(), kind.type);
    EXPECT_EQ(Base().bubble_kind, kind.code) << kind.marker;
    EXPECT_EQ(Base().scene, 0) << kind.marker;
    EXPECT_EQ(Base().lan, "") << kind.marker;
    EXPECT_EQ(Base().direction, 0) << kind.marker;
    EXPECT_TRUE(SaysNothingOfAFailure()) << kind.marker;
  }
}

TEST_F(EnvelopeTest, EmptyObjectStillTakesItsStyleFromTheConfiguration) {
  EXPECT_EQ(StyleOf("{}.trafficBubble"), "traffic_style");
  EXPECT_EQ(Base().style_word, WordOf(2, 2));
  EXPECT_EQ(StyleOf("{}.cameraBubble"), "camera_style");
  EXPECT_EQ(StyleOf("{}.turnBubble"), "turn_style");
}

TEST_F(EnvelopeTest, TextBehindTheMarkerCutsThePayloadInTheWrongPlace) {
  for (const JsonKind& kind : kJsonKinds) {
    Decode(std::string("[]") + kind.marker + "?v=1");
    EXPECT_TRUE(SaysThatItFailed(kind, "[]" + std::string(kind.marker).substr(0, 4))) << kind.marker;
  }
}

TEST_F(EnvelopeTest, PrefixIsDroppedWhateverItIs) {
  for (const JsonKind& kind : kJsonKinds) {
    DecodeWhole(std::string("another-prefix-18b{}") + kind.marker);
    EXPECT_TRUE(SaysNothingOfAFailure()) << kind.marker;
  }
}

TEST_F(EnvelopeTest, NameShorterThanThePrefixThrowsBehindTheNewDescriptor) {
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
