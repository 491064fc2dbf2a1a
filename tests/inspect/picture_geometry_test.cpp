// Where the texts of pictures stand, by the width that they have at most.

#include <gtest/gtest.h>

#include "descriptors/descriptors.h"
#include "inspect/picture.h"
#include "inspect/text_width.h"
#include "tests/support/mixed_names.h"
#include "tests/support/read_picture.h"
#include "tests/support/read_xml.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

using inspect::Picture;
using inspect::TextWidth;

int Number(const XmlElement& element, const char* attribute) {
  return element.Has(attribute) ? std::stoi(element.attributes.at(attribute)) : 0;
}

struct Box {
  std::string text;
  int most_right;  // where its callout ends, or the picture
  int left;
  int top;
  int right;
  int bottom;
};

bool Overlap(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

Box BoxOf(const XmlElement& element, const std::string& text, const XmlElement& letters, const Box& around) {
  const int size = Number(letters, "font-size");
  const int width =
      TextWidth(text.substr(0, text.find_last_not_of(' ') + 1), {size, letters.Has("font-weight")});
  const int left = around.left + Number(element, "x") - (letters.Has("text-anchor") ? width / 2 : 0);
  const int baseline = around.top + Number(element, "y");
  return {text, around.right, left, baseline - size * 3 / 4, left + width, baseline + size / 5};
}

// The boxes of all texts, each line by itself.
std::vector<Box> Boxes(const std::string& picture) {
  std::vector<Box> boxes;
  const std::vector<XmlElement> elements = ReadXml(picture);
  const Box whole = {"", 0, 0, 0, Number(elements[0], "width"), Number(elements[0], "height")};
  Box around = whole;
  const XmlElement* text = nullptr;
  for (const XmlElement& element : elements) {
    if (element.name == "svg" && &element != elements.data()) {
      const int left = Number(element, "x");
      const int top = Number(element, "y");
      around = {"", 0, left, top, left + Number(element, "width"), top + Number(element, "height")};
    }
    if (element.name == "text") {
      if (element.text.rfind("schematic, ", 0) == 0) around = whole;
      text = &element;
      boxes.push_back(BoxOf(element, element.text, element, around));
    } else if (element.name == "tspan" && element.Has("x")) {  // the second line of a text
      const std::string first = text->text.substr(0, text->text.size() - element.text.size());
      boxes.back() = BoxOf(*text, first, *text, around);
      boxes.push_back(BoxOf(element, element.text, *text, around));
    }
  }
  return boxes;
}

void ExpectTidy(const std::string& picture) {
  const std::vector<Box> boxes = Boxes(picture);
  for (const Box& a : boxes) {
    EXPECT_GE(a.left, 0) << a.text;
    EXPECT_LE(a.right, a.most_right) << a.text;
    for (const Box& b : boxes) EXPECT_TRUE(&a == &b || !Overlap(a, b)) << a.text << " and " << b.text;
  }
}

// Descriptors with all their texts and numbers as long as these.
std::vector<std::string> PicturesWith(const std::string& text, std::int32_t number) {
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.content = lights.icon = lights.lan = lights.style_name = text;
  lights.light_descriptors.assign(50, {number, number, number, text, number});
  CameraDrawDescriptor cameras;
  cameras.snap_text = text;
  cameras.cameras.assign(50, {number, number});
  cameras.distance = number;
  cameras.plain_style_values = {0xFFFF0000, 0x66FF0000, 0xFFABCDEF};
  CompanionBubbleDrawDescriptor companion;
  companion.time = companion.label = companion.distance = companion.fee = companion.light = text;
  TrafficDrawDescriptor traffic;
  traffic.content = traffic.light_text = text;
  traffic.scene = traffic.extra_type = number;
  ExplainBubbleDrawDescriptor explain;
  explain.second_content.assign(9, text);
  explain.second_type = explain.scene_type = explain.bubble_type = number;
  HDLaneChangeBubbleDrawDescriptor lane;
  lane.content = text;
  lane.target_lane = number;
  ViaPointDrawDescriptor via;
  via.index = via.resource_id = number;
  std::vector<std::string> pictures;
  for (const BubbleDrawDescriptor* const descriptor : std::initializer_list<const BubbleDrawDescriptor*>{
           &lights, &cameras, &companion, &traffic, &explain, &lane, &via}) {
    pictures.push_back(Picture(*descriptor));
    pictures.push_back(Picture(*descriptor, {text, true, text}));
  }
  return pictures;
}

TEST(PictureGeometryTest, TextsOfSamplesStandApart) {
  for (const SampleName& sample : SampleNames()) {
    ExpectTidy(Picture(*DecodeToDraw(sample.name, sample.is_marker)));
  }
}

TEST(PictureGeometryTest, LongTextsStandApart) {
  std::string companions;
  for (int i = 0; i < 60; ++i) companions += "MW";
  for (const std::string& text : {std::string("WWWWWWWWWWWWW"), companions,
                                  std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), std::string("a b c d e f g h i"),
                                  std::string(200, '@'), std::string(200, 'i'), std::string(60, '\x01')}) {
    for (const std::int32_t number : {1, 8, 999, -2147483647, 2147483647}) {
      for (const std::string& picture : PicturesWith(text, number)) ExpectTidy(picture);
    }
  }
}

TEST(PictureGeometryTest, AnyDecodeStandsApart) {
  MixedNames names(17);
  std::size_t pictures = 0;
  while (pictures < 500) {
    const std::string name = names.Next();
    try {
      const auto descriptor = DecodeToDraw(name, false);
      if (descriptor == nullptr) continue;
      ExpectTidy(Picture(*descriptor, {"", {}, name}));
      ++pictures;
    } catch (const std::out_of_range&) {  // shorter than the prefix
    }
  }
}

TEST(PictureGeometryTest, WidthGrowsWithTheText) {
  int last = 0;
  for (const std::size_t letters : {22U, 26U}) {
    TrafficDrawDescriptor traffic;
    traffic.content = std::string(letters, 'n');
    const int width = Number(ReadXml(Picture(traffic)).at(0), "width");
    EXPECT_GT(width, last);
    last = width;
    traffic.content = std::string(letters, 'N');
    EXPECT_GT(Number(ReadXml(Picture(traffic)).at(0), "width"), width);
  }
}

TEST(PictureGeometryTest, NumbersAreReadable) {
  for (const std::string& picture : PicturesWith("x", 2147483647)) {
    for (const XmlElement& text : Named(ReadXml(picture), "text")) EXPECT_GE(Number(text, "font-size"), 9);
  }
}

}  // namespace
}  // namespace kavrix::test
