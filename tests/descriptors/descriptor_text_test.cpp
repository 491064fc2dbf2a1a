// A descriptor prints on one line, for all values of its members and all states of its stream.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

#include "descriptors/descriptors.h"

namespace kavrix::test {
namespace {

using ::testing::HasSubstr;

template <class Descriptor>
std::string Printed(const Descriptor& descriptor) {
  std::ostringstream stream;
  stream << std::fixed << std::setprecision(6) << descriptor;
  return stream.str();
}

TEST(DescriptorTextTest, NoTextImitatesAnotherMember) {
  BubbleDrawDescriptor bubble;
  bubble.content = R"(", lan:"en)";
  EXPECT_THAT(Printed(bubble), HasSubstr(R"(content:"\", lan:\"en", lan:"")"));
  bubble.content = R"(\)";
  EXPECT_THAT(Printed(bubble), HasSubstr(R"(content:"\\", lan:"")"));
}

TEST(DescriptorTextTest, TextsOfEveryMemberStayOnOneLine) {
  const std::string text = "a\n\r\t\x1b\xE2\x80\xA8\xFF\"\\";
  const std::string escaped = R"("a\n\r\t\u001b\u2028\xff\"\\")";
  ExplainBubbleDrawDescriptor explain;
  explain.content = text;
  explain.lan = text;
  explain.style_name = text;
  explain.icon = text;
  explain.uid = text;
  explain.second_content = {text, text};
  EXPECT_EQ(Printed(explain),
            "ExplainBubbleDrawDescriptor{scene:0, content:" + escaped + ", lan:" + escaped +
                ", bubble_kind:0, type:0, direction:0, mode_flag:false, style_name:" + escaped +
                ", icon:" + escaped +
                ", style_word:0, style_scale:[0.000000, 0.000000], selected:false, is_force:false, uid:" +
                escaped + ", explain_content:\"\", second_content:[" + escaped + ", " + escaped +
                "], second_type:0, scene_type:0, bubble_type:0}");
  MultiLightCountdownTimerDrawDescriptor lights;
  lights.light_descriptors.push_back({1, 2, 3, text, 4});
  EXPECT_THAT(Printed(lights), HasSubstr("remain_time:3, text:" + escaped + ", total_time:4}"));
}

TrafficDrawDescriptor Traffic() {
  TrafficDrawDescriptor traffic;
  traffic.scene = -1234567;
  traffic.content = "slow";
  traffic.bubble_kind = 65535;
  traffic.mode_flag = true;
  traffic.style_word = 4294967295U;
  traffic.style_scale = {1.5F, -2500};
  traffic.style_float_1 = 1e20F;
  traffic.style_float_2 = -0.0F;
  traffic.style_float_3 = std::numeric_limits<float>::infinity();
  return traffic;
}

// Writes numbers and flags differently from the classic locale.
class OddNumbers : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\1"; }
  std::string do_truename() const override { return "ja"; }
  std::string do_falsename() const override { return "nein"; }
};

std::locale OddLocale() { return std::locale(std::locale::classic(), new OddNumbers); }

constexpr char kTrafficText[] =
    "TrafficDrawDescriptor{scene:-1234567, content:\"slow\", lan:\"\", bubble_kind:65535, type:0, "
    "direction:0, mode_flag:true, style_name:\"\", icon:\"\", style_word:4294967295, "
    "style_scale:[1.5, -2500], selected:false, is_force:false, light_text:\"\", extra_type:0, "
    "style_float_1:1e+20, style_float_2:-0, style_float_3:inf, style_word_2:0}";

TEST(DescriptorTextTest, IsTheSameUnderEveryStateOfTheStreamButItsFloatFormat) {
  const std::vector<std::ios_base::fmtflags> states = {
      std::ios_base::hex,       std::ios_base::oct,        std::ios_base::hex | std::ios_base::showbase,
      std::ios_base::showpos,   std::ios_base::left,       std::ios_base::internal,
      std::ios_base::boolalpha, std::ios_base::showpoint,  std::ios_base::uppercase,
      std::ios_base::unitbuf,   ~std::ios_base::floatfield};
  for (const auto state : states) {
    for (const int width : {0, 5, 1000}) {
      std::ostringstream stream;
      stream.imbue(OddLocale());
      stream.flags(state);
      stream << std::setfill('*') << std::setw(width) << Traffic();
      EXPECT_EQ(stream.str(), kTrafficText) << state << ", width " << width;
    }
  }
}

TEST(DescriptorTextTest, IsTheSameUnderEveryGlobalLocale) {
  const std::locale before = std::locale::global(OddLocale());
  std::ostringstream stream;
  stream << Traffic() << std::hexfloat << TurnArrowBubbleDrawDescriptor();
  std::locale::global(before);
  EXPECT_THAT(stream.str(), ::testing::StartsWith(kTrafficText));
  EXPECT_THAT(stream.str(), HasSubstr("style_scale:[0x0p+0, 0x0p+0]"));
}

TEST(DescriptorTextTest, LeavesTheStateOfTheStreamAsItWasButForTheWidth) {
  std::ostringstream stream;
  stream << std::hex << std::showbase << std::uppercase << std::scientific << std::setprecision(3)
         << std::setfill('*') << std::setw(20);
  const std::ios_base::fmtflags flags = stream.flags();
  const std::locale locale = OddLocale();
  stream.imbue(locale);
  stream << Traffic() << static_cast<const BubbleDrawDescriptor&>(Traffic());
  EXPECT_EQ(stream.flags(), flags);
  EXPECT_EQ(stream.precision(), 3);
  EXPECT_EQ(stream.fill(), '*');
  EXPECT_EQ(stream.width(), 0);
  EXPECT_EQ(stream.getloc(), locale);
  EXPECT_TRUE(stream.good());
}

// Formats a float as a stream of the classic locale does.
std::string Streamed(float value, std::ios_base::fmtflags notation, int precision) {
  std::ostringstream stream;
  stream.imbue(std::locale::classic());
  stream.setf(notation, std::ios_base::floatfield);
  stream << std::setprecision(precision) << value;
  return stream.str();
}

TEST(DescriptorTextTest, FloatsPrintInTheNotationAndPrecisionOfTheStream) {
  const std::ios_base::fmtflags hexfloat = std::ios_base::fixed | std::ios_base::scientific;
  using Limits = std::numeric_limits<float>;
  for (const float value :
       {0.0F, -0.0F, 1.0F, -1.5F, 0.1F, 0.5F, 2.5F, 1e-7F, 123456.789F, 16777217.0F, 1e20F, Limits::max(),
        Limits::min(), Limits::denorm_min(), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    for (const auto notation :
         {std::ios_base::fmtflags(), std::ios_base::fixed, std::ios_base::scientific, hexfloat}) {
      for (const int precision : {-1, 0, 1, 6, 17, 60, 200}) {
        BubbleDrawDescriptor bubble;
        bubble.style_scale = {value, 0};
        std::ostringstream stream;
        stream.setf(notation, std::ios_base::floatfield);
        stream << std::setprecision(precision) << bubble;
        EXPECT_THAT(stream.str(), HasSubstr("style_scale:[" + Streamed(value, notation, precision) + ", "));
      }
    }
  }
}

TEST(DescriptorTextTest, MarkerTypePrintsAsItsName) {
  MarkerDrawDescriptor marker;
  EXPECT_THAT(Printed(marker), HasSubstr("is_force:false, marker_type:Poi, name:\"\""));
  marker.marker_type = 14;
  EXPECT_THAT(Printed(marker), HasSubstr("marker_type:Favorite, "));
  marker.marker_type = 15;
  EXPECT_THAT(Printed(marker), HasSubstr("marker_type:15, "));
  marker.marker_type = -1;
  std::ostringstream stream;
  stream << std::hex << std::showpos << marker;
  EXPECT_THAT(stream.str(), HasSubstr("marker_type:-1, "));
}

TEST(DescriptorTextTest, AStreamThatCannotTakeTheTextSaysSo) {
  std::ostream nowhere(nullptr);
  nowhere << Traffic();
  EXPECT_TRUE(nowhere.bad());
}

}  // namespace
}  // namespace kavrix::test
