#include "tests/support/read_picture.h"

#include <gtest/gtest.h>

#include "inspect/display_width.h"
#include "inspect/text_width.h"
#include "map_resource/map_resource_transform.h"
#include "tests/support/read_xml.h"
#include "util/muted_logs.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

constexpr char kReplaced[] = "\xEF\xBF\xBD";
constexpr char kDots[] = "\xE2\x80\xA6";

}  // namespace

std::shared_ptr<BubbleDrawDescriptor> DecodeToDraw(const std::string& name, bool is_marker) {
  const logging::MutedLogs muted;
  MapResourceTransform transform(std::make_shared<KavrixContext>("main-map"));
  std::shared_ptr<BubbleDrawDescriptor> out;
  if (is_marker) {
    transform.GetMarkerDrawDescriptor(name, out);
  } else {
    transform.GetBubbleDrawDescriptor(name, out);
  }
  return out;
}

std::vector<std::string> VisibleTexts(const std::string& picture) {
  std::vector<std::string> texts;
  for (const XmlElement& element : Named(ReadXml(picture), "text")) texts.push_back(element.text);
  return texts;
}

std::map<std::string, std::string> MemberTexts(const std::string& picture) {
  std::map<std::string, std::string> texts;
  for (const XmlElement& element : ReadXml(picture)) {
    if (element.Has("data-member")) texts[element.attributes.at("data-member")] = element.text;
  }
  return texts;
}

std::string WithReplacements(std::string_view text) {
  std::string cleaned;
  while (!text.empty()) {
    const Utf8Piece piece = NextUtf8(text);
    const char32_t c = piece.code_point;
    const bool is_character = piece.is_valid && (c & 0xFFFE) != 0xFFFE && (c < 0xFDD0 || c > 0xFDEF);
    cleaned += is_character && !IsControl(c) ? text.substr(0, piece.length) : kReplaced;
    text.remove_prefix(piece.length);
  }
  return cleaned;
}

void ExpectShown(const std::string& path, const std::string& shown, const std::string& text,
                 const std::string& where) {
  const std::string expected = WithReplacements(text);
  if (shown == expected) return;
  ASSERT_GE(shown.size(), 3U) << where;
  EXPECT_EQ(shown.substr(shown.size() - 3), kDots) << where;
  EXPECT_EQ(shown.substr(0, shown.size() - 3), expected.substr(0, shown.size() - 3)) << where;
  EXPECT_GE(inspect::DisplayWidth(expected) + expected.size() / 4, 12U)
      << where << " is short enough to be shown";
  // The least room beside a cell is that of a language in its badge.
  const bool is_in_cell = path.rfind("light_descriptors", 0) == 0;
  EXPECT_GE(inspect::TextWidth(shown, {11}), is_in_cell ? 70 : 150)
      << where << " has room for more: " << shown;
}

}  // namespace kavrix::test
