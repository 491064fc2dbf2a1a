#include <json/reader.h>

#include <limits>
#include <locale>
#include <sstream>

#include "tests/support/decode_test.h"
#include "tests/support/global_locale.h"

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;

constexpr char kTag[] = "KavrixMapLayerMgr_BubbleTraffic";
constexpr char kFunction[] = "GetMarkerDrawDescriptor";

class MarkerNameTest : public DecodeTest {
 protected:
  const MarkerDrawDescriptor& DecodeMarker(const std::string& payload) {
    DecodeMarkerWhole(MapResourceManager::kavrix_resource_prefix + payload + ".marker");
    return Out<MarkerDrawDescriptor>();
  }
  void DecodeMarkerWhole(const std::string& name) {
    name_ = name;
    collector_.Clear();
    transform_.GetMarkerDrawDescriptor(name, out_);
  }
  SeenRecord WholeNameFailure() const { return Failure(kTag, kFunction, "parse json failed: " + name_); }
};

TEST_F(MarkerNameTest, EveryKeyFillsItsMember) {
  const auto& marker = DecodeMarker(
      R"({"lan":"zh","mode":0,"scene":3,"direction":2,"marker_type":2,"name":"天安门","resource_id":65541,)"
      R"("is_main_map":1})");
  EXPECT_EQ(marker.lan, "zh");
  EXPECT_TRUE(marker.mode_flag);
  EXPECT_EQ(marker.scene, 3);
  EXPECT_EQ(marker.direction, 2);
  EXPECT_EQ(marker.marker_type, 2);
  EXPECT_EQ(marker.name, "天安门");
  EXPECT_EQ(marker.resource_id, 65541);
  EXPECT_TRUE(marker.is_main_map);
  EXPECT_EQ(marker.bubble_kind, 21);
  EXPECT_TRUE(marker.is_force);
  EXPECT_EQ(marker.content, "kavrix://resource/destination_天安门");
}

TEST_F(MarkerNameTest, EmptyObjectGivesKindCodeForceImageKeyAndAnInvertedModeFlag) {
  DecodeMarker("{}");
  MarkerDrawDescriptor expected;
  expected.bubble_kind = 21;
  expected.mode_flag = true;
  expected.is_force = true;
  expected.content = "kavrix://resource/poi_";
  EXPECT_EQ(Base(), expected);
}

TEST_F(MarkerNameTest, SuccessIsNotLoggedAndTakesNoSnapshot) {
  DecodeMarker(R"({"name":"A"})");
  EXPECT_TRUE(records().empty());
  EXPECT_EQ(snapshots(), 0);
}

TEST_F(MarkerNameTest, PrintsAllItsMembers) {
  EXPECT_EQ(
      Printed(DecodeMarker(R"({"mode":1,"marker_type":9,"name":"A","resource_id":4,"is_main_map":1})")),
      "MarkerDrawDescriptor{scene:0, content:\"kavrix://resource/camera_A\", lan:\"\", bubble_kind:21, "
      "type:0, direction:0, mode_flag:false, style_name:\"\", icon:\"\", style_word:0, "
      "style_scale:[0.000000, 0.000000], selected:false, is_force:true, marker_type:Camera, name:\"A\", "
      "resource_id:4, is_main_map:true}");
}

TEST_F(MarkerNameTest, ForceIsSetWhateverTheNameSays) {
  EXPECT_TRUE(DecodeMarker(R"({"is_force_":0,"is_force":0})").is_force);
}

TEST_F(MarkerNameTest, ContentAndTypeAreNotReadFromTheName) {
  const auto& marker = DecodeMarker(R"({"content":"c","type":4,"icon":"i","is_selected_":1})");
  EXPECT_EQ(marker.content, "kavrix://resource/poi_");
  EXPECT_EQ(marker.type, 0);
  EXPECT_EQ(marker.icon, "");
  EXPECT_FALSE(marker.selected);
}

TEST_F(MarkerNameTest, OnlyModeZeroSetsTheFlagAndAMistypedOneInvertsIt) {
  EXPECT_TRUE(DecodeMarker(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(DecodeMarker(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(DecodeMarker(R"({"mode":2})").mode_flag);
  EXPECT_FALSE(DecodeMarker(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(DecodeMarker(R"({"mode":"1"})").mode_flag);
}

TEST_F(MarkerNameTest, MainMapCountsWhenNotZero) {
  EXPECT_TRUE(DecodeMarker(R"({"is_main_map":1})").is_main_map);
  EXPECT_TRUE(DecodeMarker(R"({"is_main_map":2})").is_main_map);
  EXPECT_TRUE(DecodeMarker(R"({"is_main_map":-1})").is_main_map);
  EXPECT_FALSE(DecodeMarker(R"({"is_main_map":0})").is_main_map);
  EXPECT_FALSE(DecodeMarker(R"({"is_main_map":true})").is_main_map);
  EXPECT_FALSE(DecodeMarker("{}").is_main_map);
}

TEST_F(MarkerNameTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeMarker(R"({"direction":70000})").direction, 4464);
  EXPECT_EQ(DecodeMarker(R"({"direction":-1})").direction, -1);
}

TEST_F(MarkerNameTest, MarkerTypeIsNarrowedTo16BitsAndPrintedAsSuch) {
  const auto& minus_one = DecodeMarker(R"({"marker_type":65535,"name":"A"})");
  EXPECT_EQ(minus_one.marker_type, -1);
  EXPECT_EQ(minus_one.content, "kavrix://resource/-1_A");
  const auto& start = DecodeMarker(R"({"marker_type":65537,"name":"A"})");
  EXPECT_EQ(start.marker_type, 1);
  EXPECT_EQ(start.content, "kavrix://resource/start_A");
}

TEST_F(MarkerNameTest, SceneAndResourceIdKeepAll32Bits) {
  const auto& marker = DecodeMarker(R"({"scene":70000,"resource_id":-2147483648})");
  EXPECT_EQ(marker.scene, 70000);
  EXPECT_EQ(marker.resource_id, std::numeric_limits<std::int32_t>::min());
}

TEST_F(MarkerNameTest, ImageKeyLowersTheTypeAndKeepsTheNameAsItIs) {
  EXPECT_EQ(DecodeMarker(R"({"marker_type":0,"name":"A"})").content, "kavrix://resource/poi_A");
  EXPECT_EQ(DecodeMarker(R"({"marker_type":5,"name":"Big ÉTOILE_站"})").content,
            "kavrix://resource/chargingstation_Big ÉTOILE_站");
}

TEST_F(MarkerNameTest, ImageKeyOfAnUnknownTypeIsTheSameInEveryLocale) {
  struct Grouping : std::numpunct<char> {
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale earlier = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  const std::string content = DecodeMarker(R"({"marker_type":12345,"name":"A"})").content;
  std::locale::global(earlier);
  EXPECT_EQ(content, "kavrix://resource/12345_A");
}

TEST_F(MarkerNameTest, KeysOfAnotherTypeKeepTheDefaults) {
  DecodeMarker(
      R"({"lan":5,"mode":1,"scene":"3","direction":2.0,"marker_type":"2","name":7,"resource_id":null,)"
      R"("is_main_map":[]})");
  MarkerDrawDescriptor expected;
  expected.bubble_kind = 21;
  expected.is_force = true;
  expected.content = "kavrix://resource/poi_";
  EXPECT_EQ(Base(), expected);
}

TEST_F(MarkerNameTest, BrokenPayloadIsLoggedWithTheWholeNameAndLeavesOutUntouched) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"mode":0,})"}) {
    out_ = earlier;
    DecodeMarkerWhole(MapResourceManager::kavrix_resource_prefix + payload + ".marker");
    EXPECT_EQ(out_, earlier) << payload;
    EXPECT_EQ(*earlier, BubbleDrawDescriptor());
    EXPECT_THAT(records(), ElementsAre(WholeNameFailure()));
    EXPECT_EQ(snapshots(), 0);
  }
}

TEST_F(MarkerNameTest, NameOfOnlyPrefixAndTailFails) {
  DecodeMarkerWhole("kavrix://resource/.marker");
  EXPECT_EQ(out_, nullptr);
  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(records()[0].message, "[Kavrix][ctx]parse json failed: kavrix://resource/.marker");
}

TEST_F(MarkerNameTest, PrefixAndTailAreNeverCompared) {
  DecodeMarkerWhole("PREFIX://resource/{\"name\":\"A\"}-TAIL-!");
  EXPECT_EQ(Base().content, "kavrix://resource/poi_A");
}

TEST_F(MarkerNameTest, NameTooShortForTheTailIsParsedToItsEnd) {
  DecodeMarkerWhole("kavrix://resource/{}");
  EXPECT_EQ(Base().bubble_kind, 21);
  DecodeMarkerWhole("kavrix://resource/.marke");
  EXPECT_THAT(records(), ElementsAre(WholeNameFailure()));
}

TEST_F(MarkerNameTest, NameShorterThanThePrefixThrowsWithOutUntouched) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeMarkerWhole(".marker"), std::out_of_range);
  EXPECT_EQ(out_, earlier);
  EXPECT_TRUE(records().empty());
}

TEST_F(MarkerNameTest, ParsedObjectFillsANewMarkerWithoutATransform) {
  Json::Value root;
  root["marker_type"] = 12;
  root["name"] = "Home";
  const auto earlier = std::make_shared<MarkerDrawDescriptor>();
  out_ = earlier;
  MapResourceTransform::ParseMarkerResourceName(root, out_);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base().content, "kavrix://resource/home_Home");
}

TEST_F(MarkerNameTest, ParsedObjectGivesTheMarkerThatItsNameGives) {
  for (const std::string payload :
       {R"({})", R"({"lan":"zh","mode":0,"scene":2,"direction":-1,"marker_type":12,"name":"Home"})",
        R"({"name":"a\u0041\n\u0000b","resource_id":2147483647,"is_main_map":2})",
        R"({"name":"first","name":"last","marker_type":1.0,"scene":3000000000,"mode":"0"})",
        R"({"name":["x"],"lan":null,"is_main_map":true,"other":{"name":"deep"},"":0})",
        R"({/**/"name":"a comment","marker_type":3})", R"({"n\u0061me":"an escaped key"})"}) {
    Json::Value root;
    {
      const ClassicLocale classic;
      std::istringstream(payload) >> root;
    }
    MapResourceTransform::ParseMarkerResourceName(root, out_);
    const auto from_value = out_;
    DecodeMarkerWhole(MapResourceManager::kavrix_resource_prefix + payload + ".marker");
    EXPECT_EQ(*out_, *from_value) << payload;
  }
}

TEST_F(MarkerNameTest, ParsedValueThatIsNoObjectGivesAMarkerWithoutAName) {
  for (const Json::Value& value :
       {Json::Value(), Json::Value(5), Json::Value("name"), Json::Value(Json::arrayValue)}) {
    MapResourceTransform::ParseMarkerResourceName(value, out_);
    const auto from_value = out_;
    DecodeMarkerWhole(MapResourceManager::kavrix_resource_prefix + std::string("{}.marker"));
    EXPECT_EQ(*out_, *from_value) << value.type();
  }
}

TEST_F(MarkerNameTest, DispatcherNeverTakesAMarkerName) {
  Decode("{}.marker");
  EXPECT_EQ(out_, nullptr);
  EXPECT_THAT(records(),
              ElementsAre(Request(), Failure("KavrixMapLayerMgr", "GetBubbleDrawDescriptor",
                                             "resource_name:" + name_ + ", it is a not valid bubble.")));
}

}  // namespace
}  // namespace kavrix::test
