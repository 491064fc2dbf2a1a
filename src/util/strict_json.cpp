#include "util/strict_json.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "util/json_number.h"
#include "util/utf8.h"

namespace kavrix::JsonUtil {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsHighSurrogate(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool IsLowSurrogate(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

void AppendUtf8(char32_t c, std::string& text) {
  const auto append_low_bits = [&](int shift) { text += static_cast<char>(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    text += static_cast<char>(c);
  } else if (c < 0x800) {
    text += static_cast<char>(0xC0 | c >> 6);
    append_low_bits(0);
  } else if (c < 0x10000) {
    text += static_cast<char>(0xE0 | c >> 12);
    append_low_bits(6);
    append_low_bits(0);
  } else {
    text += static_cast<char>(0xF0 | c >> 18);
    append_low_bits(12);
    append_low_bits(6);
    append_low_bits(0);
  }
}

std::string Hex(std::uint32_t number, std::size_t digits, const char* digit_set) {
  std::string hex;
  for (std::size_t i = digits; i > 0; --i) hex += digit_set[number >> 4 * (i - 1) & 0xF];
  return hex;
}

// Shows the first character of `rest` in a message, beyond ASCII with its number: some are invisible.
std::string Found(std::string_view rest) {
  constexpr char32_t kByteOrderMark = 0xFEFF;
  if (rest.empty()) return "the end";
  const Utf8Piece piece = NextUtf8(rest);
  if (!piece.is_valid) {
    return "the byte 0x" + Hex(static_cast<unsigned char>(rest[0]), 2, "0123456789abcdef");
  }
  if (IsControl(piece.code_point) || piece.code_point == kByteOrderMark) {
    return "U+" + Hex(piece.code_point, 4, "0123456789ABCDEF");
  }
  std::string shown = "'" + std::string(rest.substr(0, piece.length)) + "'";
  if (piece.code_point < 0x80) return shown;
  return shown + " (U+" + Hex(piece.code_point, 4, "0123456789ABCDEF") + ")";
}

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(NextUtf8(text).length);
  return count;
}

class StrictReader {
 public:
  explicit StrictReader(std::string_view text) : text_(text) {}

  Json::Value ReadRoot() {
    SkipBlanks();
    if (!IsNext('{') && !IsNext('[')) FailFor("an object or an array");
    Json::Value root = ReadValue(1);
    SkipBlanks();
    if (at_ != text_.size()) FailFor("the end");
    return root;
  }

 private:
  Json::Value ReadValue(std::size_t depth) {
    if (depth > kDeepestStrictValue) {
      Fail("nested deeper than " + std::to_string(kDeepestStrictValue) + " levels");
    }
    const std::size_t begin = at_;
    Json::Value value = ReadAnyType(depth);
    value.setOffsetStart(static_cast<std::ptrdiff_t>(begin));
    value.setOffsetLimit(static_cast<std::ptrdiff_t>(at_));
    return value;
  }

  Json::Value ReadAnyType(std::size_t depth) {
    if (Take('{')) return ReadObject(depth);
    if (Take('[')) return ReadArray(depth);
    if (Take('"')) return ReadText();
    if (TakeWord("true")) return true;
    if (TakeWord("false")) return false;
    if (TakeWord("null")) return {};
    if (IsNext('-') || IsDigitNext()) return ReadNumber();
    FailFor("a value");
  }

  Json::Value ReadObject(std::size_t depth) {
    Json::Value object(Json::objectValue);
    SkipBlanks();
    if (Take('}')) return object;
    do {
      SkipBlanks();
      ReadMember(depth, object);
      SkipBlanks();
    } while (Take(','));
    Require('}', "',' or '}'");
    return object;
  }

  void ReadMember(std::size_t depth, Json::Value& object) {
    const std::size_t begin = at_;
    Require('"', "a key in double quotes");
    const std::string key = ReadText();
    if (object.isMember(key)) {
      const std::string_view source = text_.substr(begin + 1, at_ - begin - 2);
      at_ = begin;
      Fail("key \"" + Excerpt(source) + "\" is there twice");
    }
    SkipBlanks();
    Require(':', "':'");
    SkipBlanks();
    object[key] = ReadValue(depth + 1);
  }

  Json::Value ReadArray(std::size_t depth) {
    Json::Value array(Json::arrayValue);
    SkipBlanks();
    if (Take(']')) return array;
    do {
      SkipBlanks();
      array.append(ReadValue(depth + 1));
      SkipBlanks();
    } while (Take(','));
    Require(']', "',' or ']'");
    return array;
  }

  // Reads what follows the opening quote.
  std::string ReadText() {
    std::string text;
    while (!Take('"')) {
      if (Take('\\')) {
        ReadEscape(text);
      } else {
        ReadCharacter(text);
      }
    }
    return text;
  }

  void ReadCharacter(std::string& text) {
    const Utf8Piece piece = NextUtf8(text_.substr(at_));
    if (piece.length == 0) FailFor("'\"'");
    if (!piece.is_valid) FailFor("UTF-8");
    if (piece.code_point < 0x20) FailFor("an escape such as \\t");
    text += text_.substr(at_, piece.length);
    at_ += piece.length;
  }

  // Reads what follows the backslash.
  void ReadEscape(std::string& text) {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    if (Take('u')) return AppendUtf8(ReadCodePoint(), text);
    const std::size_t which = at_ < text_.size() ? kLetters.find(text_[at_]) : std::string_view::npos;
    if (which == std::string_view::npos) FailFor(R"(one of " \ / b f n r t u after '\')");
    text += kMeanings[which];
    ++at_;
  }

  // Reads what follows "\u": four digits, or the two escapes of a surrogate pair.
  char32_t ReadCodePoint() {
    const std::size_t begin = at_ - 2;
    const char32_t first = ReadFourDigits();
    if (!IsHighSurrogate(first) && !IsLowSurrogate(first)) return first;
    if (IsHighSurrogate(first) && TakeWord("\\u")) {
      const char32_t second = ReadFourDigits();
      if (IsLowSurrogate(second)) return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }
    at_ = begin;
    Fail("half of a surrogate pair");
  }

  char32_t ReadFourDigits() {
    const std::string_view digits = text_.substr(at_, 4);
    const char* const end = digits.data() + digits.size();
    std::uint16_t number = 0;
    const char* const stop = std::from_chars(digits.data(), end, number, 16).ptr;
    at_ += static_cast<std::size_t>(stop - digits.data());
    if (stop != digits.data() + 4) FailFor("four hexadecimal digits");
    return number;
  }

  Json::Value ReadNumber() {
    const std::size_t begin = at_;
    Take('-');
    if (Take('0')) {
      if (IsDigitNext()) Fail("a number does not begin with 0");
    } else {
      TakeDigits();
    }
    bool is_integer = true;
    if (Take('.')) {
      is_integer = false;
      TakeDigits();
    }
    if (Take('e') || Take('E')) {
      is_integer = false;
      if (!Take('+')) Take('-');
      TakeDigits();
    }
    const std::string_view number = text_.substr(begin, at_ - begin);
    return is_integer ? Integer(number) : NearestDouble(number);
  }

  static Json::Value Integer(std::string_view number) {
    Json::Int64 integer = 0;
    Json::UInt64 large_integer = 0;
    const char* const end = number.data() + number.size();
    if (std::from_chars(number.data(), end, integer).ec == std::errc()) return integer;
    if (std::from_chars(number.data(), end, large_integer).ec == std::errc()) return large_integer;
    return NearestDouble(number);
  }

  void TakeDigits() {
    if (!IsDigitNext()) FailFor("a digit");
    while (IsDigitNext()) ++at_;
  }

  void SkipBlanks() { at_ = std::min(text_.find_first_not_of(" \t\n\r", at_), text_.size()); }

  bool IsNext(char c) const { return at_ < text_.size() && text_[at_] == c; }
  bool IsDigitNext() const { return at_ < text_.size() && IsDigit(text_[at_]); }

  bool Take(char c) { return TakeWord(std::string_view(&c, 1)); }

  bool TakeWord(std::string_view word) {
    if (text_.substr(at_, word.size()) != word) return false;
    at_ += word.size();
    return true;
  }

  void Require(char c, const char* expected) {
    if (!Take(c)) FailFor(expected);
  }

  [[noreturn]] void FailFor(const std::string& expected) const {
    Fail("expected " + expected + ", found " + Found(text_.substr(at_)));
  }

  [[noreturn]] void Fail(const std::string& message) const {
    std::size_t line_number = 1;
    std::string_view line = text_.substr(0, at_);
    for (std::size_t end = line.find_first_of("\r\n"); end != std::string_view::npos;
         end = line.find_first_of("\r\n")) {
      line.remove_prefix(line.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
      ++line_number;
    }
    throw JsonError("Line " + std::to_string(line_number) + ", Column " +
                    std::to_string(CharacterCount(line) + 1) + ": " + message);
  }

  const std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

Json::Value ReadStrictly(std::string_view text) { return StrictReader(text).ReadRoot(); }

std::string_view SourceOf(const Json::Value& value, std::string_view text) {
  const auto begin = static_cast<std::size_t>(value.getOffsetStart());
  return text.substr(begin, static_cast<std::size_t>(value.getOffsetLimit()) - begin);
}

}  // namespace kavrix::JsonUtil
