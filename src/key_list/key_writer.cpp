#include "key_list/key_writer.h"

#include <utility>

#include "util/utf8.h"

namespace kavrix {
namespace {

std::string UnicodeEscape(char32_t c) {
  constexpr char kDigits[] = "0123456789abcdef";
  return {'\\', 'u', '0', '0', kDigits[c >> 4 & 0xF], kDigits[c & 0xF]};
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string joined;
  for (const std::string& part : parts) {
    if (!joined.empty()) joined += ',';
    joined += part;
  }
  return joined;
}

}  // namespace

void KeyWriter::Texts(std::string_view key, const std::vector<std::string>& texts) {
  std::vector<std::string> elements;
  elements.reserve(texts.size());
  for (const std::string& text : texts) {
    elements.push_back(Quoted(std::string(key) + "[" + std::to_string(elements.size()) + "]", text));
  }
  AddArray(key, elements);
}

std::string KeyWriter::Object(std::string_view left_out) const {
  std::vector<std::string> parts;
  for (const Member& member : members_) {
    if (member.is_default || member.key == left_out) continue;
    parts.push_back('"' + member.key + "\":" + member.json);
  }
  return "{" + Joined(parts) + "}";
}

void KeyWriter::Add(std::string_view key, std::string json, bool is_default) {
  members_.push_back({std::string(key), std::move(json), is_default});
}

void KeyWriter::AddArray(std::string_view key, const std::vector<std::string>& elements) {
  Add(key, "[" + Joined(elements) + "]", elements.empty());
}

void KeyWriter::SetField(std::size_t index, const char* name, std::string text) {
  if (fields_.size() <= index) fields_.resize(index + 1);
  fields_[index] = {name, std::move(text)};
}

void KeyWriter::NoteBadOf(const KeyWriter& item, const std::string& path) {
  if (bad_ || !item.bad_) return;
  bad_ = item.bad_;
  bad_->field = path + bad_->field;
}

std::string KeyWriter::Quoted(std::string_view key, std::string_view text) {
  std::string quoted = "\"";
  std::size_t offset = 0;
  while (offset < text.size()) {
    const Utf8Piece piece = NextUtf8(text.substr(offset));
    const char32_t c = piece.code_point;
    if (!piece.is_valid && !bad_) bad_ = BadText{std::string(key), std::string(text), offset, "is not UTF-8"};
    if (piece.is_valid && (c == '"' || c == '\\')) {
      quoted += {'\\', static_cast<char>(c)};
    } else if (piece.is_valid && (c < 0x20 || (escapes_ == Escapes::kForNames && (c == '@' || c == '.')))) {
      quoted += UnicodeEscape(c);
    } else {
      quoted += text.substr(offset, piece.length);
    }
    offset += piece.length;
  }
  return quoted + '"';
}

}  // namespace kavrix
