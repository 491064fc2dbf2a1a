// Which members pictures show.

#include <gtest/gtest.h>

#include <set>

#include "inspect/kind_model.h"
#include "inspect/members.h"
#include "inspect/picture_content.h"
#include "tests/support/read_picture.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

// All that a picture is made of.
std::string Drawn(const std::vector<FlatMember>& members) {
  const inspect::PictureParts parts = inspect::PartsOf(members);
  return inspect::DrawContent(parts, "", inspect::PaletteOf(parts.is_day)).svg + parts.style_name +
         std::to_string(parts.direction);
}

struct Change {
  void operator()(std::int64_t& number) const { number = number == 7 ? 6 : 7; }
  void operator()(std::uint32_t& word) const { word ^= 0xFF123457; }
  void operator()(MarkerType& type) const {
    type = type == MarkerType::Poi ? MarkerType::Toll : MarkerType::Poi;
  }
  void operator()(bool& flag) const { flag = !flag; }
  void operator()(float& real) const { real += 1; }
  void operator()(std::string& text) const { text = text == "changed" ? "other" : "changed"; }
};

// Whoever adds a member shows it in the picture (inspect/picture_parts.cpp) or names it here.
TEST(PictureMembersTest, EveryMemberIsShownOrNamedHere) {
  const std::set<std::string> not_shown = {
      // Names for programs.
      "bubble_kind",
      "id",
      "uid",
      "route_id",
      "accident_id",
      // Sizes of the client's own drawing.
      "style_scale[]",
      "style_float_1",
      "style_float_2",
      "style_float_3",
      // The lengths of lists, whose items are shown.
      "cameras",
      "light_descriptors",
      "second_content",
  };
  std::set<std::string> all;
  std::set<std::string> shown;
  for (const SampleName& sample : SampleNames()) {
    const auto descriptor = DecodeToDraw(sample.name, sample.is_marker);
    const std::string type = descriptor->TypeName();
    const std::vector<FlatMember> members = inspect::Members(*descriptor);
    for (std::size_t i = 0; i < members.size(); ++i) {
      std::vector<FlatMember> changed = members;
      std::visit(Change(), changed[i].value);
      const std::string path = inspect::WithoutIndexes(members[i].path);
      const std::string member = not_shown.count(path) == 0 ? type + ' ' + path : path;
      all.insert(member);
      if (Drawn(changed) != Drawn(members)) shown.insert(member);
    }
  }
  EXPECT_GT(all.size(), 100U);
  for (const std::string& member : all) {
    EXPECT_NE(shown.count(member), not_shown.count(member)) << member;
  }
  for (const std::string& member : not_shown) EXPECT_EQ(all.count(member), 1U) << member;
}

}  // namespace
}  // namespace kavrix::test
