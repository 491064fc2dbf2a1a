#include "tests/support/utf8_agreement.h"

#include "tests/reference/utf8.h"
#include "util/utf8.h"

namespace kavrix::test {
namespace {

bool IsSameUnit(const Utf8Piece& piece, const reference::Utf8Unit& unit) {
  return piece.length == unit.length && piece.code_point == unit.code_point &&
         piece.is_valid == unit.is_valid;
}

std::size_t PlainUnescapedLength(const std::string& text) {
  std::size_t length = 0;
  while (length < text.size() && text[length] >= ' ' && text[length] <= '~' && text[length] != '"' &&
         text[length] != '\\') {
    ++length;
  }
  return length;
}

std::string PlainExcerpt(const std::string& text) {
  std::size_t length = 0;
  for (int left = 60; left > 0; --left) length += reference::FirstUtf8Unit(text.substr(length, 4)).length;
  return length < text.size() ? text.substr(0, length) + "..." : text;
}

}  // namespace

std::string DisagreementOnUtf8(std::string_view text) {
  const std::string copy(text);
  for (std::size_t at = 0; at <= text.size();) {
    const reference::Utf8Unit unit = reference::FirstUtf8Unit(copy.substr(at, 4));
    if (!IsSameUnit(NextUtf8(text.substr(at)), unit)) return "the character at byte " + std::to_string(at);
    at += unit.length + (at == text.size() ? 1 : 0);
  }
  if (ValidUtf8Length(text) != reference::ValidUtf8Bytes(copy)) return "how many bytes are valid";
  if (ToValidUtf8(text) != reference::ReplaceInvalidUtf8(copy)) return "the text made valid";
  if (UnescapedLength(text) != PlainUnescapedLength(copy)) return "how many bytes need no escape";
  if (Excerpt(text) != PlainExcerpt(copy)) return "the excerpt";
  return "";
}

}  // namespace kavrix::test
