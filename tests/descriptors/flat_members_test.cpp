#include "descriptors/flat_members.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "descriptors/descriptors.h"

namespace kavrix {

static void PrintTo(const FlatMember& member, std::ostream* stream) {
  *stream << member.path << "=" << ::testing::PrintToString(member.value);
}

namespace test {
namespace {

using ::testing::ElementsAre;

FlatMember Integer(const char* path, std::int64_t value) { return {path, value}; }
FlatMember Word(const char* path, std::uint32_t value) { return {path, value}; }
FlatMember Code(const char* path, MarkerType value) { return {path, value}; }
FlatMember Flag(const char* path, bool value) { return {path, value}; }
FlatMember Real(const char* path, float value) { return {path, value}; }
FlatMember Text(const char* path, const char* value) { return {path, std::string(value)}; }

// Returns the members that a type adds after the 14 values of the base.
std::vector<FlatMember> OwnMembers(const BubbleDrawDescriptor& descriptor) {
  std::vector<FlatMember> members = FlatMembers(descriptor);
  members.erase(members.begin(), members.begin() + 14);
  return members;
}

TEST(FlatMembersTest, BaseMembersComeFirstInDeclarationOrder) {
  BubbleDrawDescriptor bubble;
  bubble.scene = -1;
  bubble.content = "c";
  bubble.lan = "l";
  bubble.bubble_kind = 65535;
  bubble.type = -2;
  bubble.direction = -3;
  bubble.mode_flag = true;
  bubble.style_name = "s";
  bubble.icon = "i";
  bubble.style_word = 4294967295U;
  bubble.style_scale = {1.5F, 2.5F};
  bubble.selected = true;
  bubble.is_force = true;
  EXPECT_THAT(FlatMembers(bubble),
              ElementsAre(Integer("scene", -1), Text("content", "c"), Text("lan", "l"),
                          Integer("bubble_kind", 65535), Integer("type", -2), Integer("direction", -3),
                          Flag("mode_flag", true), Text("style_name", "s"), Text("icon", "i"),
                          Word("style_word", 4294967295), Real("style_scale[0]", 1.5F),
                          Real("style_scale[1]", 2.5F), Flag("selected", true), Flag("is_force", true)));
}

TEST(FlatMembersTest, RecordsOfAListStandUnderTheirIndexAndName) {
  CameraDrawDescriptor camera;
  camera.cameras = {{1, 60}, {2, 80}};
  camera.distance = 300;
  camera.snap_text = "s";
  camera.plain_style_values = {14, 15, 16};
  camera.mode_style_value = 17;
  EXPECT_THAT(OwnMembers(camera),
              ElementsAre(Integer("cameras[0].type", 1), Integer("cameras[0].speed", 60),
                          Integer("cameras[1].type", 2), Integer("cameras[1].speed", 80),
                          Integer("distance", 300), Text("snap_text", "s"), Word("plain_style_values[0]", 14),
                          Word("plain_style_values[1]", 15), Word("plain_style_values[2]", 16),
                          Word("mode_style_value", 17)));
}

TEST(FlatMembersTest, PlainValuesOfAListStandUnderTheirIndex) {
  ExplainBubbleDrawDescriptor explain;
  explain.second_content = {"a", ""};
  EXPECT_THAT(OwnMembers(explain),
              ElementsAre(Text("uid", ""), Text("explain_content", ""), Text("second_content[0]", "a"),
                          Text("second_content[1]", ""), Integer("second_type", 0), Integer("scene_type", 0),
                          Integer("bubble_type", 0)));
}

TEST(FlatMembersTest, MembersAfterAListOfRecordsHaveTheirOwnNames) {
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.resize(1);
  EXPECT_THAT(
      OwnMembers(lights),
      ElementsAre(Integer("style", 0), Text("id", ""), Flag("is_animation", false),
                  Integer("light_descriptors[0].light_type", 0),
                  Integer("light_descriptors[0].turn_arrow_type", -1),
                  Integer("light_descriptors[0].remain_time", 0), Text("light_descriptors[0].text", ""),
                  Integer("light_descriptors[0].total_time", 0)));
}

// Returns the style words of a descriptor, by path.
std::vector<std::string> WordsOf(const BubbleDrawDescriptor& descriptor) {
  std::vector<std::string> words;
  for (const FlatMember& member : FlatMembers(descriptor)) {
    if (std::holds_alternative<std::uint32_t>(member.value)) words.push_back(member.path);
  }
  return words;
}

TEST(FlatMembersTest, StyleWordsAreToldFromOtherIntegers) {
  EXPECT_THAT(WordsOf(TrafficDrawDescriptor()), ElementsAre("style_word", "style_word_2"));
  EXPECT_THAT(WordsOf(CameraDrawDescriptor()),
              ElementsAre("style_word", "plain_style_values[0]", "plain_style_values[1]",
                          "plain_style_values[2]", "mode_style_value"));
  EXPECT_THAT(WordsOf(DestNameEtaDrawDescriptor()),
              ElementsAre("style_word", "second_style_value", "second_mode_style_value",
                          "third_mode_style_value", "fourth_mode_style_value"));
  EXPECT_THAT(WordsOf(BubbleDrawDescriptor()), ElementsAre("style_word"));
  EXPECT_THAT(WordsOf(LightCountdownTimerDrawDescriptor()), ElementsAre("style_word"));
  EXPECT_THAT(WordsOf(MultiLightCountdownTimerDrawDescriptor()), ElementsAre("style_word"));
}

TEST(FlatMembersTest, MarkerTypeIsToldFromOtherIntegers) {
  MarkerDrawDescriptor marker;
  marker.marker_type = -1;
  EXPECT_THAT(OwnMembers(marker), ElementsAre(Code("marker_type", MarkerType(-1)), Text("name", ""),
                                              Integer("resource_id", 0), Flag("is_main_map", false)));
  EXPECT_TRUE(IsDefault(Code("marker_type", MarkerType::Poi)));
  EXPECT_FALSE(IsDefault(Code("marker_type", MarkerType::Start)));
}

// Visits all integers alike.
class Integers : public MemberVisitor {
 public:
  void Integer(const char* name, std::int64_t value) override { seen.emplace_back(name, value); }
  void Flag(const char*, bool) override {}
  void Real(const char*, float) override {}
  void Text(const char*, const std::string&) override {}
  void BeginList(const char*) override {}
  void EndList() override {}
  void BeginObject() override {}
  void EndObject() override {}
  std::vector<std::pair<std::string, std::int64_t>> seen;
};

TEST(MemberVisitorTest, WordsAndCodesAreIntegersWhereNobodyAsks) {
  MarkerDrawDescriptor marker;
  marker.style_word = 4294967295U;
  marker.marker_type = -2;
  marker.resource_id = 7;
  Integers integers;
  marker.VisitBaseMembers(integers);
  marker.VisitOwnMembers(integers);
  using Pair = std::pair<std::string, std::int64_t>;
  EXPECT_THAT(integers.seen,
              ElementsAre(Pair("scene", 0), Pair("bubble_kind", 0), Pair("type", 0), Pair("direction", 0),
                          Pair("style_word", 4294967295), Pair("marker_type", -2), Pair("resource_id", 7)));
}

TEST(FlatMembersTest, EmptyListHasNoMembers) {
  EXPECT_THAT(OwnMembers(MultiLightCountdownTimerDrawDescriptor()),
              ElementsAre(Integer("style", 0), Text("id", ""), Flag("is_animation", false)));
}

TEST(FlatMembersTest, CompanionHasTwoScenesUnderOneName) {
  CompanionBubbleDrawDescriptor companion;
  companion.scene = 5;
  const auto members = FlatMembers(companion);
  EXPECT_EQ(members.front(), Integer("scene", 0));
  EXPECT_EQ(members.back(), Integer("scene", 5));
}

TEST(FlatMembersTest, ValuesOfANewDescriptorAreDefaults) {
  for (const FlatMember& member : FlatMembers(TrafficDrawDescriptor()))
    EXPECT_TRUE(IsDefault(member)) << member.path;
  EXPECT_FALSE(IsDefault(Integer("n", 1)));
  EXPECT_FALSE(IsDefault(Flag("f", true)));
  EXPECT_FALSE(IsDefault(Real("r", -0.5F)));
  EXPECT_FALSE(IsDefault(Text("t", " ")));
}

TEST(FlatMembersTest, AValueUnderAnotherPathIsAnotherMember) {
  EXPECT_FALSE(Integer("a", 1) == Integer("b", 1));
  EXPECT_FALSE(Integer("a", 1) == Integer("a", 2));
  EXPECT_TRUE(Integer("a", 1) == Integer("a", 1));
}

}  // namespace
}  // namespace test
}  // namespace kavrix
