// What pictures make of texts that are long, hostile or random.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>

#include "descriptors/descriptors.h"
#include "inspect/members.h"
#include "inspect/picture.h"
#include "tests/support/mixed_names.h"
#include "tests/support/read_picture.h"
#include "tests/support/read_xml.h"

namespace kavrix::test {
namespace {

using inspect::Picture;
using inspect::PictureOfNothing;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(PictureTextTest, LongTextsAreCutAndLongListsCounted) {
  for (const std::string character : {"W", "\"", "前", "\xCC\x81", "\xFF", "\xF0\x9F\x98\x80", " "}) {
    std::string text;
    for (int i = 0; i < 100000; ++i) text += character;
    MultiLightCountdownTimerDrawDescriptor lights;
    lights.content = lights.lan = lights.style_name = lights.icon = text;
    lights.light_descriptors.assign(1000, {-2147483647, 2147483647, -2147483647, text, 2147483647});
    const std::string picture = Picture(lights, {text, {}, text});
    EXPECT_LT(picture.size(), kLargestPicture);
    if (text[0] != ' ') ExpectShown("content", MemberTexts(picture).at("content"), text, "content");
    EXPECT_EQ(text[0] == ' ', MemberTexts(picture).count("content") == 0);
    EXPECT_THAT(VisibleTexts(picture), Contains("+996"));
    EXPECT_LT(PictureOfNothing({text, {}, text}).size(), kLargestPicture);
  }
  ExplainBubbleDrawDescriptor explain;
  explain.explain_content = "Main";
  explain.second_content = {"a", "b", "c", "d", "e", "f"};
  EXPECT_THAT(VisibleTexts(Picture(explain)), AllOf(Contains("d"), Contains("+2"), Not(Contains("e"))));
  CameraDrawDescriptor cameras;
  cameras.cameras.assign(100000, {});
  EXPECT_THAT(VisibleTexts(Picture(cameras)), Contains("+99995"));
}

TEST(PictureTextTest, TextOfBlanksIsNone) {
  TrafficDrawDescriptor traffic;
  traffic.content = "   ";
  EXPECT_THAT(VisibleTexts(Picture(traffic)), Contains("no text"));
}

TEST(PictureTextTest, LinesDoNotBeginWithBlanks) {
  for (int letters = 20; letters < 44; ++letters) {
    for (const std::string blanks : {" ", "   "}) {
      TrafficDrawDescriptor traffic;
      traffic.content = std::string(static_cast<std::size_t>(letters), 'n') + blanks + "Street";
      const std::string picture = Picture(traffic);
      EXPECT_EQ(picture.find("> "), std::string::npos) << picture;
      EXPECT_THAT(VisibleTexts(picture), Contains(traffic.content));
    }
  }
}

TEST(PictureTextTest, HostileTextsStayTexts) {
  const std::string nul(1, '\0');
  const std::vector<std::pair<std::string, std::string>> texts = {
      {"</svg><script>1</script>", "</svg><script>1</script>"},
      {"]]>&lt;<!--'\"", "]]>&lt;<!--'\""},
      {"a" + nul + "b\tc\r\nd", "a\uFFFDb\uFFFDc\uFFFD\uFFFDd"},
      {"x\xFF\xE4\xB8y\xED\xA0\x80", "x\uFFFD\uFFFDy\uFFFD\uFFFD\uFFFD"},
      {"\xEF\xBF\xBE\xEF\xBF\xBFz", "\uFFFD\uFFFDz"},
      {"a\u202Eb\u2066c\u200Fd", "a\uFFFDb\uFFFDc\uFFFDd"},
  };
  for (const auto& [text, expected] : texts) {
    TrafficDrawDescriptor traffic;
    traffic.content = traffic.light_text = traffic.style_name = traffic.icon = traffic.lan = text;
    const std::string picture = Picture(traffic, {text, {}, text});
    for (const char* const path : {"content", "light_text", "style_name", "icon"}) {
      EXPECT_EQ(MemberTexts(picture).at(path), expected) << path;
    }
    EXPECT_TRUE(Named(ReadXml(picture), "script").empty());
    EXPECT_THAT(Named(ReadXml(picture), "title").at(0).text, HasSubstr(expected));
  }
}

TEST(PictureTextTest, EveryDecodeOfAnyNameHasItsPicture) {
  MixedNames names(16);
  std::size_t pictures = 0;
  std::size_t texts = 0;
  for (int i = 0; i < 6000; ++i) {
    const std::string name = names.Next();
    std::shared_ptr<BubbleDrawDescriptor> descriptor;
    try {
      descriptor = DecodeToDraw(name, i % 8 == 0);
    } catch (const std::out_of_range&) {  // shorter than the prefix
    }
    if (descriptor == nullptr) continue;
    ++pictures;
    const std::string picture = Picture(*descriptor, {name, {}, name});
    ASSERT_LT(picture.size(), kLargestPicture) << name;
    ASSERT_NO_THROW(ReadXml(picture)) << name;
    const std::map<std::string, std::string> shown = MemberTexts(picture);
    for (const FlatMember& member : inspect::Members(*descriptor)) {
      const auto* const text = std::get_if<std::string>(&member.value);
      if (text == nullptr || shown.count(member.path) == 0) continue;
      ExpectShown(member.path, shown.at(member.path), *text, name);
      ++texts;
    }
  }
  EXPECT_GT(pictures, 3000U);
  EXPECT_GT(texts, 1000U);
}

TEST(PictureTextTest, RandomBytesInEveryTextAreReadBack) {
  constexpr std::array<const char*, 14> kPieces = {
      "<",        "&", "\"",           "'",    ">", "]]>", "\xE2\x80\xAE", "\xED\xA0\x80", "前",
      "\xCC\x81", " ", "\xEF\xBF\xBF", "<!--", "a"};
  std::mt19937 random(7);
  const auto text = [&] {
    std::string made;
    for (auto pieces = random() % 60; pieces > 0; --pieces) {
      made += random() % 2 == 0 ? std::string(1, static_cast<char>(random()))
                                : kPieces[random() % kPieces.size()];
    }
    return made;
  };
  for (int i = 0; i < 2000; ++i) {
    CompanionBubbleDrawDescriptor companion;
    companion.time = text();
    companion.label = text();
    companion.distance = text();
    companion.fee = text();
    companion.light = text();
    companion.style_name = text();
    companion.style_word = static_cast<std::uint32_t>(random());
    const std::string picture = Picture(companion, {text(), {}, text()});
    ASSERT_LT(picture.size(), kLargestPicture);
    for (const auto& [path, shown] : MemberTexts(picture)) {
      for (const FlatMember& member : inspect::Members(companion)) {
        const auto* const whole = std::get_if<std::string>(&member.value);
        if (whole != nullptr && member.path == path) ExpectShown(path, shown, *whole, path);
      }
    }
  }
}

}  // namespace
}  // namespace kavrix::test
