#include "inspect/picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "descriptors/descriptors.h"
#include "inspect/members.h"
#include "tests/support/global_locale.h"
#include "tests/support/read_picture.h"
#include "tests/support/read_xml.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

using inspect::Picture;
using inspect::PictureOfNothing;
using inspect::PictureOptions;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

std::vector<std::pair<SampleName, std::shared_ptr<BubbleDrawDescriptor>>> DecodedSamples() {
  std::vector<std::pair<SampleName, std::shared_ptr<BubbleDrawDescriptor>>> decoded;
  for (const SampleName& sample : SampleNames())
    decoded.emplace_back(sample, DecodeToDraw(sample.name, sample.is_marker));
  return decoded;
}

std::string Pointer(const std::string& picture) {
  for (const XmlElement& element : ReadXml(picture)) {
    if (element.Has("data-pointer")) return element.attributes.at("data-pointer");
  }
  return "";
}

std::set<std::string> Fills(const std::string& picture) {
  std::set<std::string> fills;
  for (const XmlElement& element : ReadXml(picture)) {
    if (element.Has("fill")) fills.insert(element.attributes.at("fill"));
  }
  return fills;
}

// Members that name something to programs, and whose texts are no part of what a bubble says.
bool IsIdentifier(const std::string& path) {
  return path == "id" || path == "uid" || path == "route_id" || path == "accident_id";
}

TEST(PictureTest, SamplesShowAllTheirTexts) {
  std::size_t texts = 0;
  for (const auto& [sample, descriptor] : DecodedSamples()) {
    const std::string picture = Picture(*descriptor);
    EXPECT_LT(picture.size(), kLargestPicture) << sample.name;
    EXPECT_THAT(VisibleTexts(picture), Contains(HasSubstr("schematic"))) << sample.name;
    EXPECT_THAT(Named(ReadXml(picture), "title").at(0).text, HasSubstr(descriptor->TypeName()));
    EXPECT_FALSE(Named(ReadXml(picture), "desc").at(0).text.empty());
    const std::map<std::string, std::string> shown = MemberTexts(picture);
    for (const FlatMember& member : inspect::Members(*descriptor)) {
      const auto* const text = std::get_if<std::string>(&member.value);
      if (text == nullptr || text->empty() || IsIdentifier(member.path)) continue;
      ASSERT_EQ(shown.count(member.path), 1U) << member.path << " of " << sample.name;
      ExpectShown(member.path, shown.at(member.path), *text, sample.name);
      ++texts;
    }
  }
  EXPECT_GT(texts, 100U);
}

TEST(PictureTest, TitleHasTheKindAndTheText) {
  const auto descriptor =
      DecodeToDraw("kavrix://resource/{\"content\":\"Jam\",\"mode\":0}.trafficBubble", false);
  const auto title = [&](const PictureOptions& options) {
    return Named(ReadXml(Picture(*descriptor, options)), "title").at(0).text;
  };
  EXPECT_EQ(title({}), "TrafficDrawDescriptor: Jam, day");
  EXPECT_EQ(title({"trafficBubble", {}, ""}), "trafficBubble: Jam, day");
}

TEST(PictureTest, DayDiffersFromNightAndIsTheMode) {
  for (const auto& [sample, descriptor] : DecodedSamples()) {
    const std::string day = Picture(*descriptor, {"", true, ""});
    const std::string night = Picture(*descriptor, {"", false, ""});
    EXPECT_NE(Fills(day), Fills(night)) << sample.name;
    EXPECT_THAT(VisibleTexts(day), Contains(HasSubstr("day"))) << sample.name;
    EXPECT_THAT(VisibleTexts(night), Contains(HasSubstr("night"))) << sample.name;
    EXPECT_EQ(Picture(*descriptor), descriptor->mode_flag ? day : night) << sample.name;
    descriptor->mode_flag = !descriptor->mode_flag;
    EXPECT_EQ(Picture(*descriptor), descriptor->mode_flag ? day : night) << sample.name;
  }
}

TEST(PictureTest, DirectionMovesThePointer) {
  for (const auto& [sample, descriptor] : DecodedSamples()) {
    std::set<std::string> outlines;
    for (const auto& [direction, pointer] : std::map<int, std::string>{
             {0, "down"}, {1, "left"}, {2, "right"}, {3, "up"}, {-1, "down"}, {90, "down"}}) {
      descriptor->direction = static_cast<std::int16_t>(direction);
      const std::string picture = Picture(*descriptor);
      EXPECT_EQ(Pointer(picture), pointer) << sample.name;
      EXPECT_THAT(VisibleTexts(picture),
                  Contains(HasSubstr("(direction " + std::to_string(direction) + ")")));
      for (const XmlElement& path : Named(ReadXml(picture), "path")) {
        if (path.Has("data-pointer")) outlines.insert(path.attributes.at("d"));
      }
    }
    EXPECT_EQ(outlines.size(), 4U) << sample.name;
  }
}

TEST(PictureTest, ShowsTheColoursAmongStyleWords) {
  DestNameEtaDrawDescriptor eta;
  eta.style_word = 0xFFFF0000;
  eta.second_style_value = 14;
  eta.second_mode_style_value = 0x8012ABEF;
  eta.third_mode_style_value = 0x3F800000;  // the bits of the float 1
  const std::string picture = Picture(eta);
  EXPECT_THAT(Fills(picture), AllOf(Contains("#ff0000"), Contains("#12abef"), Not(Contains("#00000e"))));
  EXPECT_THAT(VisibleTexts(picture), AllOf(Contains("0xffff0000"), Contains("0x8012abef")));
  EXPECT_THAT(VisibleTexts(picture), Not(Contains(HasSubstr("0x3f80"))));
  EXPECT_THAT(picture, HasSubstr("fill-opacity=\"0.501\""));
  EXPECT_THAT(VisibleTexts(Picture(BubbleDrawDescriptor())), Not(Contains(HasSubstr("0x"))));
}

TEST(PictureTest, LightsShowPhaseArrowAndSeconds) {
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors = {{1, 2, 30, "half", 60}, {7, -1, 12, "", 0}};
  const std::vector<std::string> texts = VisibleTexts(Picture(lights));
  for (const char* const text : {"30", "half", "of 60 s", "phase 1", "arrow 2", "12", "seconds", "phase 7"}) {
    EXPECT_THAT(texts, Contains(text));
  }
  EXPECT_THAT(texts, Not(Contains("arrow -1")));
  EXPECT_THAT(texts, Not(Contains("no text")));
  EXPECT_THAT(Picture(lights), HasSubstr("stroke-dasharray=\"59 119\""));  // half of the circle
  EXPECT_THAT(Named(ReadXml(Picture(lights)), "desc").at(0).text,
              AllOf(HasSubstr("Light of phase 1: 30 of 60 s, arrow 2."), HasSubstr("phase 7: 12 s.")));

  LightCountdownTimerDrawDescriptor light;
  light.light_type = 3;
  light.time = 28;
  light.text = "28 s";
  EXPECT_THAT(VisibleTexts(Picture(light)), AllOf(Contains("28 s"), Contains("28"), Contains("phase 3")));
}

TEST(PictureTest, CamerasShowTypeAndSpeed) {
  CameraDrawDescriptor cameras;
  cameras.cameras = {{1, 60}, {2, 80}, {3, 0}};
  const std::vector<std::string> texts = VisibleTexts(Picture(cameras));
  for (const char* const text : {"60", "80", "type 1", "type 2", "type 3"})
    EXPECT_THAT(texts, Contains(text));
  EXPECT_THAT(texts, Not(Contains("0")));
  EXPECT_THAT(Named(ReadXml(Picture(cameras)), "desc").at(0).text, HasSubstr("Camera of type 2: 80."));
}

TEST(PictureTest, LanesShowTheOneToChangeTo) {
  HDLaneChangeBubbleDrawDescriptor change;
  const auto dashes = [&](int lane) {
    change.target_lane = lane;
    std::size_t lines = 0;
    for (const XmlElement& path : Named(ReadXml(Picture(change)), "path"))
      lines += path.Has("stroke-dasharray");
    return lines;
  };
  EXPECT_EQ(dashes(1), 0U);
  EXPECT_EQ(dashes(3), 2U);
  EXPECT_EQ(dashes(8), 7U);
  EXPECT_EQ(dashes(9), 0U);  // too many to be drawn
  EXPECT_THAT(VisibleTexts(Picture(change)), Contains("to lane 9"));
  change.target_lane = 3;
  EXPECT_THAT(VisibleTexts(Picture(change)), AllOf(Contains("3"), Contains("to lane 3")));
  EXPECT_THAT(Picture(change), HasSubstr("width=\"105\" height=\"44\""));  // three lanes, and a bit of road
  change.target_lane = 0;
  EXPECT_THAT(VisibleTexts(Picture(change)), Not(Contains(HasSubstr("lane"))));
}

TEST(PictureTest, FlagsAndCodesAreBadges) {
  ViaPointDrawDescriptor via;
  via.index = 2;
  via.is_reached = true;
  via.resource_id = 65546;
  EXPECT_THAT(VisibleTexts(Picture(via)),
              AllOf(Contains("stop 2"), Contains("reached"), Contains("icon 65546")));
  EXPECT_THAT(VisibleTexts(Picture(via)), Not(Contains("selected")));
  MarkerDrawDescriptor marker;
  EXPECT_THAT(VisibleTexts(Picture(marker)), AllOf(Contains("no text"), Contains("Poi")));
}

TEST(PictureTest, SaysNothingThatTheDescriptorDoesNot) {
  TurnArrowBubbleDrawDescriptor turn;
  turn.distance = 240;
  turn.type = 4;
  EXPECT_THAT(VisibleTexts(Picture(turn)), AllOf(Contains("distance 240"), Contains("type 4")));
  CameraDrawDescriptor camera;
  camera.distance = 240;
  EXPECT_THAT(VisibleTexts(Picture(camera)), Contains("distance 240"));
}

TEST(PictureTest, ColoursMayBeTransparent) {
  DestNameEtaDrawDescriptor eta;
  eta.style_word = 0x66FF0000;
  eta.second_style_value = 0x1900FF00;       // an alpha of 25
  eta.third_mode_style_value = 0x00FFFFFF;   // an alpha of 0
  eta.fourth_mode_style_value = 0x41600000;  // the bits of the float 14
  const std::string picture = Picture(eta);
  EXPECT_THAT(VisibleTexts(picture), AllOf(Contains("0x66ff0000"), Contains("0x1900ff00")));
  EXPECT_THAT(VisibleTexts(picture),
              AllOf(Not(Contains("0x00ffffff")), Not(Contains("0x41600000")), Not(Contains("0xffffff"))));
  EXPECT_THAT(picture, HasSubstr("fill=\"#00ff00\" fill-opacity=\"0.098\""));
  std::size_t transparent = 0;
  for (const XmlElement& element : Named(ReadXml(picture), "rect")) {
    transparent += element.attributes.at("fill") == "#ff0000" && element.Has("fill-opacity");
  }
  EXPECT_EQ(transparent, 2U);  // the bar too
}

TEST(PictureTest, ModeOfAFailedNameIsNotKnown) {
  const std::string picture = Picture(BubbleDrawDescriptor(), {"", {}, "no JSON"});
  EXPECT_THAT(VisibleTexts(picture), Contains("schematic, mode not known, drawn as night"));
  EXPECT_THAT(VisibleTexts(Picture(BubbleDrawDescriptor(), {"", true, "no JSON"})),
              Contains(HasSubstr("mode not known, drawn as day")));
}

TEST(PictureTest, ProblemIsSaidInThePicture) {
  const BubbleDrawDescriptor descriptor;
  const std::string picture = Picture(descriptor, {"", {}, "<no> JSON"});
  EXPECT_THAT(VisibleTexts(picture), Contains("<no> JSON"));
  EXPECT_THAT(Named(ReadXml(picture), "desc").at(0).text, HasSubstr("Problem: <no> JSON."));
}

TEST(PictureTest, NothingIsDrawnWhereThereIsNoDescriptor) {
  const std::string picture = PictureOfNothing({"YawNoticeBubble", {}, "no JSON"});
  EXPECT_THAT(VisibleTexts(picture),
              AllOf(Contains("nothing is drawn"), Contains("no JSON"), Contains("schematic, nothing drawn")));
  EXPECT_EQ(Pointer(picture), "nowhere");
  EXPECT_EQ(Named(ReadXml(PictureOfNothing({})), "title").at(0).text, "bubble: nothing is drawn");
}

TEST(PictureTest, IsTheSameOnEveryRunAndHasNoIds) {
  for (const auto& [sample, descriptor] : DecodedSamples()) {
    const std::string picture = Picture(*descriptor);
    EXPECT_EQ(picture, Picture(*descriptor));
    {
      const GlobalLocale locale;
      EXPECT_EQ(picture, Picture(*descriptor)) << sample.name;
    }
    for (const XmlElement& element : ReadXml(picture)) {
      for (const char* const attribute : {"id", "href", "xlink:href", "class", "style", "onload"}) {
        EXPECT_FALSE(element.Has(attribute)) << attribute;
      }
      EXPECT_NE(element.name, "style");
    }
  }
}

}  // namespace
}  // namespace kavrix::test
