#include "map_resource/encode_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map_resource/map_resource_manager.h"
#include "map_resource/resource_name_encoder.h"

namespace kavrix::test {
namespace {

// Lists near-misses and the error of each.
template <class Encode>
EncodeError ErrorOf(Encode encode) {
  try {
    const std::string name = encode();
    ADD_FAILURE() << "not refused: " << name;
  } catch (const EncodeError& error) {
    return error;
  }
  return {"", "", ""};
}

BubbleDrawDescriptor WithContent(const std::string& content) {
  BubbleDrawDescriptor bubble;
  bubble.content = content;
  return bubble;
}

TEST(EncodeErrorTest, SeparatorInAFieldNamesKindFieldCharacterAndPlace) {
  const EncodeError error =
      ErrorOf([] { return EncodeRouteLabelBubbleResourceName(WithContent("路线_家")); });
  EXPECT_EQ(error.kind(), "labelBubble");
  EXPECT_EQ(error.field(), "content");
  ASSERT_TRUE(error.character());
  EXPECT_EQ(error.character()->bytes, "_");
  EXPECT_EQ(error.character()->byte_offset, 6U);
  EXPECT_EQ(error.character()->column, 3U);
  EXPECT_STREQ(
      error.what(),
      "labelBubble: content: \"_\" at byte 6, column 3, separates fields; the reader would have decoded "
      "labelBubble {\"mode\":1}");
}

TEST(EncodeErrorTest, AtSignInAField) {
  EXPECT_STREQ(
      ErrorOf([] { return EncodeRouteNameBubbleResourceName(WithContent("a@b")); }).what(),
      "nameBubble: content: \"@\" at byte 1, column 2, separates fields; the reader would have decoded "
      "nameBubble {\"mode\":1}");
}

TEST(EncodeErrorTest, SeparatorsInEveryFieldOfTheKindsWithoutJson) {
  IndoorEntriesBubbleDrawDescriptor entries;
  entries.lan = "z_h";
  EXPECT_EQ(ErrorOf([&] { return EncodeIndoorEntriesBubbleResourceName(entries); }).field(), "lan");
  entries.lan = "";
  entries.entries_text = "@";
  EXPECT_EQ(ErrorOf([&] { return EncodeIndoorEntriesBubbleResourceName(entries); }).field(), "entries_text");
  LightWaitBubbleDrawDescriptor wait;
  wait.content = "_";
  EXPECT_EQ(ErrorOf([&] { return EncodeLightWaitBubbleResourceName(wait); }).kind(), "lightWaitBubble");
  HDLongSolidBubbleDrawDescriptor solid;
  solid.content = "solid_line";
  EXPECT_STREQ(ErrorOf([&] { return EncodeHdLongSolidBubbleResourceName(solid); }).what(),
               "hdLongSolidBubble: content: \"_\" at byte 5, column 6, separates fields; the reader would "
               "have decoded "
               "hdLongSolidBubble {\"content\":\"solid\",\"mode\":1,\"force\":1}");
}

TEST(EncodeErrorTest, BarInTheSecondTextOfAnEta) {
  DestNameEtaDrawDescriptor eta;
  eta.content = "Home";
  eta.sub_text = "12|min";
  EXPECT_STREQ(
      ErrorOf([&] { return EncodeEtaBubbleResourceName(eta); }).what(),
      "etaBubble: sub_text: \"|\" at byte 2, column 3, ends the content; the reader would have decoded "
      "etaBubble {\"content\":\"Home|12\",\"mode\":1,\"sub_text\":\"min\"}");
}

TEST(EncodeErrorTest, FieldWithBytesThatAreNotUtf8) {
  EXPECT_STREQ(
      ErrorOf([] { return EncodeRouteLabelBubbleResourceName(WithContent("a\xFF")); }).what(),
      "labelBubble: content: \"\xEF\xBF\xBD\" at byte 1, column 2, is not UTF-8; the reader would have "
      "decoded labelBubble with bytes that are not UTF-8");
}

TEST(EncodeErrorTest, SeparatorInTheSecondTextOfAnEta) {
  DestNameEtaDrawDescriptor eta;
  eta.sub_text = "1_2";
  const EncodeError error = ErrorOf([&] { return EncodeEtaBubbleResourceName(eta); });
  EXPECT_EQ(error.field(), "sub_text");
  EXPECT_EQ(error.character()->byte_offset, 1U);
}

TEST(EncodeErrorTest, MarkerOfAKindThatIsRecognisedFirst) {
  const EncodeError error =
      ErrorOf([] { return EncodeRouteLabelBubbleResourceName(WithContent("a.etaBubble")); });
  EXPECT_STREQ(
      error.what(),
      "labelBubble: content: \".\" at byte 1, column 2, begins the marker of another kind; the reader would "
      "have decoded etaBubble {\"mode\":1}");
}

TEST(EncodeErrorTest, MarkersThatDoNotWinAreNoError) {
  EXPECT_NE(EncodeRouteLabelBubbleResourceName(WithContent("a.turnBubble.labelBubble")), "");
}

TEST(EncodeErrorTest, BytesThatAreNotUtf8) {
  TrafficDrawDescriptor traffic;
  traffic.light_text = "\xE8\xB7\xAF\xFF";
  const EncodeError error = ErrorOf([&] { return EncodeTrafficBubbleResourceName(traffic); });
  EXPECT_EQ(error.field(), "light_text");
  EXPECT_EQ(error.character()->bytes, "\xFF");
  EXPECT_EQ(error.character()->byte_offset, 3U);
  EXPECT_EQ(error.character()->column, 2U);
  EXPECT_EQ(
      ErrorOf([] { return EncodeRouteLabelBubbleResourceName(WithContent("\xC0\x80")); }).character()->bytes,
      "\xC0");
}

TEST(EncodeErrorTest, BytesThatAreNotUtf8InsideALightOrALine) {
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.resize(2);
  lights.light_descriptors[1].text = "\x80";
  EXPECT_EQ(ErrorOf([&] { return EncodeMultiLightCountdownBubbleResourceName(lights); }).field(),
            "light_descriptors[1].text");
  ExplainBubbleDrawDescriptor explain;
  explain.second_content = {"a", "\xED\xA0\x80"};
  EXPECT_EQ(ErrorOf([&] { return EncodeRouteExplainBubbleResourceName(explain); }).field(),
            "second_content[1]");
}

TEST(EncodeErrorTest, TheFirstOfSeveralBadTextsIsNamed) {
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.id = "\xFF";
  lights.light_descriptors.resize(1);
  lights.light_descriptors[0].text = "\xFE";
  EXPECT_EQ(ErrorOf([&] { return EncodeMultiLightCountdownBubbleResourceName(lights); }).field(), "id");
  DestNameEtaDrawDescriptor eta;
  eta.content = "a_b";
  eta.sub_text = "c_d";
  EXPECT_EQ(ErrorOf([&] { return EncodeEtaBubbleResourceName(eta); }).field(), "content");
}

TEST(EncodeErrorTest, MarkerNameWithBytesThatAreNotUtf8) {
  MarkerDrawDescriptor marker;
  marker.name = "\xFF";
  const EncodeError error = ErrorOf([&] { return EncodeMarkerResourceName(marker); });
  EXPECT_EQ(error.kind(), "marker");
  EXPECT_EQ(error.field(), "name");
  EXPECT_STREQ(error.what(),
               "marker: name: \"\xEF\xBF\xBD\" at byte 0, column 1, is not UTF-8; the reader would have "
               "decoded marker "
               "with bytes that are not UTF-8");
}

TEST(EncodeErrorTest, PrefixThatHoldsAMarker) {
  const char* const prefix = MapResourceManager::kavrix_resource_prefix;
  MapResourceManager::kavrix_resource_prefix = "x.trafficBubble/";
  const EncodeError error = ErrorOf([] { return EncodeTurnBubbleResourceName({}); });
  MapResourceManager::kavrix_resource_prefix = prefix;
  EXPECT_EQ(error.field(), "prefix");
  EXPECT_STREQ(error.what(),
               "turnBubble: prefix: \"x.trafficBubble/\" holds a marker; the reader would have decoded "
               "trafficBubble without fields, because its payload does not parse");
  EXPECT_FALSE(error.character());
}

}  // namespace
}  // namespace kavrix::test
