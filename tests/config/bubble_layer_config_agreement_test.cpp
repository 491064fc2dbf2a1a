// Compares the loader of configuration files with the reference.

#include <gtest/gtest.h>

#include "config/bubble_layer_config_file.h"
#include "tests/reference/config.h"
#include "tests/support/config_agreement.h"
#include "tests/support/effort.h"
#include "tests/support/global_locale.h"
#include "tests/support/random_config.h"
#include "tests/support/read_file.h"

namespace kavrix::test {
namespace {

std::string BundledText() { return ReadFile(KAVRIX_SOURCE_DIR "/samples/default_config.json"); }

TEST(ConfigAgreementTest, FilesWithOddNumbersTextsAndBlanks) {
  const unsigned seed = Seed();
  RandomConfig random(seed);
  for (int left = IsComplete() ? 100'000 : 1000; left > 0; --left) {
    const std::string text = random.Valid();
    ASSERT_EQ(DisagreementOnConfig(text), "") << text << '\n' << HowToRepeat(seed);
  }
}

TEST(ConfigAgreementTest, FilesOfTheGeneratorAreMostlyTaken) {
  RandomConfig random(1);
  int taken = 0;
  for (int left = 300; left > 0; --left) {
    if (reference::ReadConfig(random.Valid())) ++taken;
  }
  EXPECT_GT(taken, 200);
}

TEST(ConfigAgreementTest, FilesWithAFewChanges) {
  const unsigned seed = Seed();
  RandomConfig random(seed);
  int taken = 0;
  const int files = IsComplete() ? 200'000 : 3000;
  for (int left = files; left > 0; --left) {
    std::string text = random.Changed(left % 16 == 0 ? BundledText() : random.Valid());
    if (left % 2 == 0) text = random.Changed(text);
    ASSERT_EQ(DisagreementOnConfig(text), "") << text << '\n' << HowToRepeat(seed);
    if (reference::ReadConfig(text)) ++taken;
  }
  EXPECT_GT(taken, files / 20);
  EXPECT_LT(taken, files * 3 / 4);
}

TEST(ConfigAgreementTest, BundledFileCutAtEveryByte) {
  const std::string text = BundledText();
  ASSERT_TRUE(reference::ReadConfig(text));
  for (std::size_t size = 0; size <= text.size(); ++size) {
    ASSERT_EQ(DisagreementOnConfig(text.substr(0, size)), "") << size;
  }
}

// Numbers that only the digits tell apart, and what one reader of JSON might take for the end or drop.
TEST(ConfigAgreementTest, TextsThatReadersTakeApart) {
  using namespace std::string_literals;
  const std::string head = R"({"bubble_layer":{"light_wait_style":{"values":[)";
  for (const std::string& values :
       {"0,0,-0"s, "0,0,-0.0"s, "-0"s, "0,0,1e-400"s, "0,0,1e400"s, "0,0,9007199791611905"s,
        "0,0,18446744073709551616"s, "0,0,340282356779733661637539395458142568447"s,
        "0,0,340282356779733661637539395458142568448"s, "4294967296"s, "\"0x00000000000000ff\""s,
        "\"0x100000000\""s, "\"0xG\""s, "\"0X1\""s, "1e0"s, "{}"s, "0,0,0,0,0"s}) {
    EXPECT_EQ(DisagreementOnConfig(head + values + "]}}}"), "") << values;
  }
  for (const std::string& text :
       {"{}\0"s, "\xEF\xBB\xBF{}"s, "{} "s, "{}\xFF"s, "{\"context_name\":\"\\ud800\"}"s,
        "{\"context_name\":\"a\",\"context_name\":\"a\"}"s, "{\"bubble_layer\":{},\"bubble_layer\":{}}"s,
        "{\"\":{}}"s, "[]"s, ""s, "{\"bubble_layer\":{\"marker_bubble\":{}}}"s}) {
    EXPECT_EQ(DisagreementOnConfig(text), "") << text;
  }
}

TEST(ConfigAgreementTest, ReferenceReadsTheSameUnderEveryGlobalLocale) {
  const std::string text = R"({"bubble_layer":{"light_wait_style":{"values":[0,0,1.5]}}})";
  const auto expected = reference::ReadConfig(text);
  ASSERT_TRUE(expected);
  EXPECT_EQ(expected->records.at("light_wait_style").cells[2], 0x3FC00000U);
  const GlobalLocale other;
  EXPECT_EQ(reference::ReadConfig(text), expected);
}

}  // namespace
}  // namespace kavrix::test
