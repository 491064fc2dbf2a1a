#include "key_list/key_lister.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>

namespace kavrix {

static bool operator==(const KeyInfo& a, const KeyInfo& b) {
  return a.key == b.key && a.type == b.type && a.rule == b.rule;
}

static void PrintTo(const KeyInfo& info, std::ostream* stream) {
  *stream << "{\"" << info.key << "\", \"" << info.type << "\", \"" << info.rule << "\"}";
}

namespace test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Light {
  std::int32_t type = 0;
  std::string text;
};

struct Members {
  std::string text = "unchanged";
  std::int32_t wide = 5;
  std::int16_t narrow = 6;
  bool flag = true;
  std::vector<Light> lights;
  std::vector<std::string> lines;
};

TEST(KeyListerTest, NamesNothingAtFirst) { EXPECT_THAT(KeyLister().keys(), IsEmpty()); }

TEST(KeyListerTest, ListsKeysInReadingOrderWithTheirTypesAndRules) {
  KeyLister lister;
  Members members;
  lister.Text("content", members.text);
  lister.Integer("scene", members.wide);
  lister.Integer("direction", members.narrow);
  lister.TrueWhenZero("mode", members.flag);
  lister.TrueWhenOne("is_force_", members.flag);
  lister.TrueWhenNonZero("is_main_map", members.flag);
  lister.Texts("lines", members.lines);
  EXPECT_THAT(
      lister.keys(),
      ElementsAre(KeyInfo{"content", "text", ""}, KeyInfo{"scene", "integer", ""},
                  KeyInfo{"direction", "integer, low 16 bits", ""}, KeyInfo{"mode", "flag", "true when 0"},
                  KeyInfo{"is_force_", "flag", "true when 1"},
                  KeyInfo{"is_main_map", "flag", "true when not 0"}, KeyInfo{"lines", "array of texts", ""}));
}

TEST(KeyListerTest, DefaultOtherThanZeroIsARule) {
  KeyLister lister;
  Members members;
  lister.Integer("arrow", members.wide, -1);
  lister.Integer("scene", members.wide, 0);
  EXPECT_THAT(lister.keys(),
              ElementsAre(KeyInfo{"arrow", "integer", "-1 when absent"}, KeyInfo{"scene", "integer", ""}));
}

TEST(KeyListerTest, ReadsNothing) {
  KeyLister lister;
  Members members;
  lister.Text("content", members.text);
  lister.Integer("scene", members.wide);
  lister.TrueWhenZero("mode", members.flag);
  EXPECT_EQ(members.text, "unchanged");
  EXPECT_EQ(members.wide, 5);
  EXPECT_TRUE(members.flag);
}

TEST(KeyListerTest, KeysInsideAListStandUnderItsPathAndLaterOnesDoNot) {
  KeyLister lister;
  Members members;
  lister.Objects("lights", members.lights, [](auto& keys, Light& light) {
    keys.Integer("type", light.type);
    keys.Text("text", light.text);
  });
  lister.Text("after", members.text);
  EXPECT_THAT(lister.keys(),
              ElementsAre(KeyInfo{"lights", "array of objects", ""}, KeyInfo{"lights[].type", "integer", ""},
                          KeyInfo{"lights[].text", "text", ""}, KeyInfo{"after", "text", ""}));
  EXPECT_THAT(members.lights, IsEmpty());
}

TEST(KeyListerTest, FieldsByIndexAreListedUnderTheirNames) {
  KeyLister lister;
  Members members;
  lister.Text(0, "content", members.text);
  lister.TrueWhenZero(1, "mode", members.flag);
  lister.Integer(2, "scene", members.wide);
  lister.LeadingInteger(3, "entries_value", members.narrow);
  EXPECT_THAT(lister.keys(),
              ElementsAre(KeyInfo{"content", "text", ""}, KeyInfo{"mode", "flag", "true when 0"},
                          KeyInfo{"scene", "integer", ""},
                          KeyInfo{"entries_value", "integer, low 16 bits",
                                  "its leading digits, 0 where there are none"}));
}

}  // namespace
}  // namespace test
}  // namespace kavrix
