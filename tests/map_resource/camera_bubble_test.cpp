#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Camera = CameraDrawDescriptor::Camera;

constexpr char kTag[] = "KavrixMapLayerMgr_CameraLayer";
constexpr char kFunction[] = "ParseCameraBubbleResourceName";

auto IsCamera(int type, int speed) {
  return AllOf(Field("type", &Camera::type, type), Field("speed", &Camera::speed, speed));
}

class CameraBubbleTest : public DecodeTest {
 protected:
  const CameraDrawDescriptor& DecodeCamera(const std::string& payload) {
    Decode(payload + ".cameraBubble");
    return Out<CameraDrawDescriptor>();
  }
};

TEST_F(CameraBubbleTest, EveryKeyFillsItsMember) {
  const auto& camera = DecodeCamera(
      R"({"cameras":[{"type":1,"speed":60}],"scene":3,"is_selected_":1,"is_force_":1,"snap_text":"限速60",)"
      R"("lan":"zh","mode":1,"distance":350,"direction":90})");
  CameraDrawDescriptor expected;
  expected.cameras = {{1, 60}};
  expected.scene = 3;
  expected.selected = true;
  expected.is_force = true;
  expected.snap_text = "限速60";
  expected.lan = "zh";
  expected.mode_flag = false;
  expected.distance = 350;
  expected.direction = 90;
  expected.style_name = "camera_scene_style";
  expected.plain_style_values = {WordOf(8, 14), WordOf(8, 15), WordOf(8, 16)};
  expected.mode_style_value = WordOf(8, 18);
  EXPECT_EQ(camera, expected);  // content, bubble_kind, style_word and style_scale are unchanged
}

constexpr char kTwoCameras[] =
    R"({"cameras":[{"type":1,"speed":60},{"type":2}],"scene":0,"mode":0,"distance":350,"direction":90})";

TEST_F(CameraBubbleTest, TwoCamerasWithSceneZeroAndModeZero) {
  const auto& camera = DecodeCamera(kTwoCameras);
  EXPECT_THAT(camera.cameras, ElementsAre(IsCamera(1, 60), IsCamera(2, 0)));
  EXPECT_EQ(camera.style_name, "camera_style");
  EXPECT_TRUE(camera.mode_flag);
  EXPECT_THAT(camera.plain_style_values, ElementsAre(WordOf(4, 14), WordOf(4, 15), WordOf(4, 16)));
  EXPECT_EQ(camera.mode_style_value, WordOf(4, 17));
  EXPECT_EQ(camera.distance, 350);
  EXPECT_EQ(camera.direction, 90);
}

TEST_F(CameraBubbleTest, RoutineRecordPrintsAllMembers) {
  const auto& camera = DecodeCamera(kTwoCameras);
  EXPECT_THAT(records(), ElementsAre(Request(), Routine(kTag, kFunction, Printed(camera))));
  EXPECT_EQ(records()[1].message,
            "[Kavrix][ctx]CameraDrawDescriptor{scene:0, content:\"\", lan:\"\", bubble_kind:0, type:0, "
            "direction:90, mode_flag:true, style_name:\"camera_style\", icon:\"\", style_word:0, "
            "style_scale:[0.000000, 0.000000], selected:false, is_force:false, "
            "cameras:[{type:1, speed:60}, {type:2, speed:0}], distance:350, snap_text:\"\", "
            "plain_style_values:[4014, 4015, 4016], mode_style_value:4017}");
}

TEST_F(CameraBubbleTest, CamerasThatAreNoArrayLeaveTheListEmptyAndTheOtherKeysAreRead) {
  for (const std::string cameras : {R"({"type":1,"speed":60})", "1", "\"[]\"", "null", "true"}) {
    const auto& camera = DecodeCamera(R"({"cameras":)" + cameras + R"(,"distance":350,"lan":"en"})");
    EXPECT_THAT(camera.cameras, IsEmpty()) << cameras;
    EXPECT_EQ(camera.distance, 350) << cameras;
    EXPECT_EQ(camera.lan, "en") << cameras;
  }
}

TEST_F(CameraBubbleTest, AbsentOrEmptyCamerasLeaveTheListEmpty) {
  EXPECT_THAT(DecodeCamera("{}").cameras, IsEmpty());
  EXPECT_THAT(DecodeCamera(R"({"cameras":[]})").cameras, IsEmpty());
}

TEST_F(CameraBubbleTest, ElementOfAnyJsonTypeGivesACamera) {
  const auto& camera = DecodeCamera(
      R"({"cameras":[1,-1.5,null,true,"type",[],[1,[2]],[{"type":5}],{},{"Type":5}],"distance":350})");
  EXPECT_THAT(camera.cameras, AllOf(SizeIs(10), Each(IsCamera(0, 0))));
  EXPECT_EQ(camera.distance, 350);
}

TEST_F(CameraBubbleTest, OddElementsKeepTheirPlacesAmongTheCameras) {
  EXPECT_THAT(DecodeCamera(R"({"cameras":[{"type":1,"speed":60},null,{"speed":80}]})").cameras,
              ElementsAre(IsCamera(1, 60), IsCamera(0, 0), IsCamera(0, 80)));
}

TEST_F(CameraBubbleTest, TypeAndSpeedOfAnotherTypeAreZero) {
  const auto& camera = DecodeCamera(
      R"({"cameras":[{"type":"1","speed":null},{"type":1.0,"speed":[]},{"type":2147483648,"speed":-5}]})");
  EXPECT_THAT(camera.cameras, ElementsAre(IsCamera(0, 0), IsCamera(0, 0), IsCamera(0, -5)));
}

TEST_F(CameraBubbleTest, SelectedIsSetOnlyByOne) {
  EXPECT_TRUE(DecodeCamera(R"({"is_selected_":1})").selected);
  for (const std::string value : {"0", "2", "-1", "true", "\"1\"", "1.0", "null"}) {
    EXPECT_FALSE(DecodeCamera(R"({"is_selected_":)" + value + "}").selected) << value;
  }
}

TEST_F(CameraBubbleTest, ForceIsSetOnlyByOne) {
  EXPECT_TRUE(DecodeCamera(R"({"is_force_":1})").is_force);
  for (const std::string value : {"0", "2", "-1", "true", "\"1\"", "1.0", "null"}) {
    EXPECT_FALSE(DecodeCamera(R"({"is_force_":)" + value + "}").is_force) << value;
  }
}

TEST_F(CameraBubbleTest, FlagKeysWithoutTheirTrailingUnderscoreAreOtherKeys) {
  const auto& camera = DecodeCamera(R"({"is_selected":1,"is_force":1,"selected":1})");
  EXPECT_FALSE(camera.selected);
  EXPECT_FALSE(camera.is_force);
}

TEST_F(CameraBubbleTest, AbsentOrMistypedModeInvertsTheFlag) {
  EXPECT_TRUE(DecodeCamera("{}").mode_flag);
  EXPECT_TRUE(DecodeCamera(R"({"mode":"1"})").mode_flag);
  EXPECT_TRUE(DecodeCamera(R"({"mode":1.0})").mode_flag);
}

TEST_F(CameraBubbleTest, ModeSelectsTheModeStyleValue) {
  EXPECT_EQ(DecodeCamera(R"({"mode":0})").mode_style_value, WordOf(4, 17));
  EXPECT_EQ(DecodeCamera(R"({"mode":1})").mode_style_value, WordOf(4, 18));
  EXPECT_EQ(DecodeCamera(R"({"mode":2})").mode_style_value, WordOf(4, 18));
  EXPECT_EQ(DecodeCamera(R"({"mode":0,"scene":1})").mode_style_value, WordOf(8, 17));
  EXPECT_EQ(DecodeCamera(R"({"mode":1,"scene":1})").mode_style_value, WordOf(8, 18));
}

TEST_F(CameraBubbleTest, EveryOtherSceneSelectsCameraSceneStyle) {
  for (const int scene : {1, 2, -1}) {
    const auto& camera = DecodeCamera(R"({"scene":)" + std::to_string(scene) + "}");
    EXPECT_EQ(camera.scene, scene);
    EXPECT_EQ(camera.style_name, "camera_scene_style");
    EXPECT_THAT(camera.plain_style_values, ElementsAre(WordOf(8, 14), WordOf(8, 15), WordOf(8, 16)));
  }
}

TEST_F(CameraBubbleTest, StyleWordAndScaleAreLeftAlone) {
  const auto& camera = DecodeCamera(kTwoCameras);
  EXPECT_EQ(camera.style_word, 0U);
  EXPECT_THAT(camera.style_scale, ElementsAre(0.0F, 0.0F));
}

TEST_F(CameraBubbleTest, DirectionIsNarrowedTo16Bits) {
  EXPECT_EQ(DecodeCamera(R"({"direction":40000})").direction, -25536);
  EXPECT_EQ(DecodeCamera(R"({"direction":-1})").direction, -1);
}

TEST_F(CameraBubbleTest, ContentIsNotRead) { EXPECT_EQ(DecodeCamera(R"({"content":"c"})").content, ""); }

TEST_F(CameraBubbleTest, KeysOfAnotherTypeKeepTheDefaults) {
  CameraDrawDescriptor expected;
  expected.mode_flag = true;
  expected.style_name = "camera_style";
  expected.plain_style_values = {WordOf(4, 14), WordOf(4, 15), WordOf(4, 16)};
  expected.mode_style_value = WordOf(4, 17);
  EXPECT_EQ(DecodeCamera(R"({"cameras":7,"scene":"1","is_selected_":[],"is_force_":{},"snap_text":5,)"
                         R"("lan":null,"mode":"1","distance":350.0,"direction":"90"})"),
            expected);
}

TEST_F(CameraBubbleTest, BrokenPayloadLeavesABareDescriptorWithoutStyleAndOneRecord) {
  for (const std::string payload : {"", "{", "[1]", "5", "null", "\"{}\"", R"({"distance":350,})"}) {
    EXPECT_EQ(DecodeCamera(payload), CameraDrawDescriptor()) << payload;
    EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
    EXPECT_EQ(snapshots(), 0) << payload;
  }
  DecodeCamera("[1]");
  EXPECT_EQ(records()[1].message, "[Kavrix][ctx]parse json failed: [1]");
}

TEST_F(CameraBubbleTest, PayloadNestedTooDeepIsABrokenPayload) {
  const std::string payload = R"({"cameras":)" + std::string(2000, '[') + std::string(2000, ']') + "}";
  EXPECT_EQ(DecodeCamera(payload), CameraDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: " + payload)));
}

TEST_F(CameraBubbleTest, OneSnapshotIsTakenForAGoodPayload) {
  DecodeCamera("{}");
  EXPECT_EQ(snapshots(), 1);
}

TEST_F(CameraBubbleTest, TheMarkersLengthIsCutFromTheEndWhereverTheMarkerStands) {
  Decode(R"(.cameraBubble{"distance":350})");
  EXPECT_EQ(Base(), CameraDrawDescriptor());
  EXPECT_THAT(records(),
              ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: .cameraBubble{\"d")));
}

TEST_F(CameraBubbleTest, NameTooShortForPrefixAndMarkerIsParsedToItsEnd) {
  DecodeWhole("eight678.cameraBubble");
  EXPECT_EQ(Base(), CameraDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request(), Failure(kTag, kFunction, "parse json failed: ble")));
  transform_.ParseCameraBubbleResourceName(
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"scene":1})"), out_);
  EXPECT_EQ(Base().style_name, "camera_scene_style");
}

TEST_F(CameraBubbleTest, NameShorterThanThePrefixThrowsWithOutAlreadyReplaced) {
  const auto earlier = std::make_shared<BubbleDrawDescriptor>();
  out_ = earlier;
  EXPECT_THROW(DecodeWhole(".cameraBubble"), std::out_of_range);
  EXPECT_NE(out_, earlier);
  EXPECT_EQ(Base(), CameraDrawDescriptor());
  EXPECT_THAT(records(), ElementsAre(Request()));
  EXPECT_EQ(snapshots(), 0);
}

}  // namespace
}  // namespace kavrix::test
