#include "inspect/xml_writer.h"

#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

bool IsNoCharacter(char32_t c) { return (c & 0xFFFE) == 0xFFFE || (c >= 0xFDD0 && c <= 0xFDEF); }

const char* ReferenceTo(char32_t c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return nullptr;
  }
}

}  // namespace

std::string XmlText(std::string_view text) {
  std::string safe;
  safe.reserve(text.size());
  while (!text.empty()) {
    const Utf8Piece piece = NextUtf8(text);
    if (!piece.is_valid || IsControl(piece.code_point) || IsNoCharacter(piece.code_point)) {
      safe += "\xEF\xBF\xBD";
    } else if (const char* const reference = ReferenceTo(piece.code_point)) {
      safe += reference;
    } else {
      safe += text.substr(0, piece.length);
    }
    text.remove_prefix(piece.length);
  }
  return safe;
}

XmlWriter& XmlWriter::Begin(const char* element) {
  EndStartTag();
  text_ += '<';
  text_ += element;
  open_.push_back(element);
  in_start_tag_ = true;
  return *this;
}

XmlWriter& XmlWriter::With(const char* attribute, std::string_view value) {
  text_ += ' ';
  text_ += attribute;
  text_ += "=\"";
  text_ += XmlText(value);
  text_ += '"';
  return *this;
}

XmlWriter& XmlWriter::With(const char* attribute, std::int64_t value) {
  return With(attribute, std::to_string(value));
}

XmlWriter& XmlWriter::Text(std::string_view text) { return Markup(XmlText(text)); }

XmlWriter& XmlWriter::End() {
  EndStartTag();
  text_ += "</";
  text_ += open_.back();
  text_ += '>';
  open_.pop_back();
  return *this;
}

XmlWriter& XmlWriter::EndEmpty() {
  text_ += "/>";
  open_.pop_back();
  in_start_tag_ = false;
  return *this;
}

XmlWriter& XmlWriter::Markup(std::string_view markup) {
  EndStartTag();
  text_ += markup;
  return *this;
}

void XmlWriter::EndStartTag() {
  if (in_start_tag_) text_ += '>';
  in_start_tag_ = false;
}

}  // namespace kavrix::inspect
