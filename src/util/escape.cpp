#include "util/escape.h"

#include "util/utf8.h"

namespace kavrix {
namespace {

void AppendBytes(std::string& line, std::string_view bytes) {
  for (const char byte : bytes) {
    line += "\\x";
    AppendHex(line, static_cast<unsigned char>(byte), 2);
  }
}

enum class Quotes { kKept, kEscaped };

bool IsPlain(const Utf8Piece& piece, Quotes quotes) {
  if (!piece.is_valid || piece.code_point == '\\' || IsControl(piece.code_point)) return false;
  return piece.code_point != '"' || quotes == Quotes::kKept;
}

void AppendPiece(std::string& line, const Utf8Piece& piece, std::string_view bytes) {
  if (!piece.is_valid) return AppendBytes(line, bytes);
  if (IsControl(piece.code_point)) return AppendControl(line, piece.code_point);
  line += '\\';
  line += bytes;
}

template <class Line>
void AppendEscaped(Line& line, std::string_view text, Quotes quotes) {
  std::size_t plain = 0;  // bytes at the beginning that need no escape, not yet appended
  for (;;) {
    plain += UnescapedLength(text.substr(plain));
    if (plain == text.size()) break;
    const Utf8Piece piece = NextUtf8(text.substr(plain));
    if (IsPlain(piece, quotes)) {
      plain += piece.length;
      continue;
    }
    line += text.substr(0, plain);
    std::string escape;
    AppendPiece(escape, piece, text.substr(plain, piece.length));
    line += escape;
    text.remove_prefix(plain + piece.length);
    plain = 0;
  }
  line += text;
}

template <class Line>
void AppendInQuotes(Line& line, std::string_view text) {
  line += '"';
  AppendEscaped(line, text, Quotes::kEscaped);
  line += '"';
}

}  // namespace

void AppendHex(std::string& line, std::uint32_t number, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
    line += "0123456789abcdef"[number >> shift & 0xF];
}

void AppendControl(std::string& line, char32_t c) {
  if (c == '\n') {
    line += "\\n";
  } else if (c == '\r') {
    line += "\\r";
  } else if (c == '\t') {
    line += "\\t";
  } else {
    line += "\\u";
    AppendHex(line, c, 4);
  }
}

void AppendEscaped(std::string& line, std::string_view text) { AppendEscaped(line, text, Quotes::kKept); }

void AppendQuoted(std::string& line, std::string_view text) { AppendInQuotes(line, text); }
void AppendQuoted(TextBuffer& line, std::string_view text) { AppendInQuotes(line, text); }

}  // namespace kavrix
