#include "payload/plain_scanner.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <cstdint>
#include <cstring>
#include <limits>

#include "payload/escapes.h"
#include "util/eight_bytes.h"

namespace kavrix {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }
bool IsExponentSign(char c) { return c == 'e' || c == 'E'; }

// Each function below takes a place in the text and returns the place after what it scanned; null where the
// text is not plain. The place is not a member: it would be written to memory at every step.
//
// `last_` is the last "}" of the text. It ends every token but a string, so that no step needs to ask whether
// the text has ended, and only a bracket can be scanned there.
class PlainScanner {
 public:
  PlainScanner(const char* last, NodeList& nodes) : last_(last), nodes_(nodes) {}

  const char* Scan(const char* at) {
    at = SkipBlanks(at);
    if (*at != '{') return nullptr;
    at = Open(at, {}, NodeType::kObject);
    while (at != nullptr && open_count_ > 0) at = ScanMemberOrEnd(at);
    return at;
  }

 private:
  static const char* SkipBlanks(const char* at) {
    while (IsBlank(*at)) ++at;
    return at;
  }

  // Scans one member or element of the innermost open array or object, or its closing bracket.
  const char* ScanMemberOrEnd(const char* at) {
    at = SkipBlanks(at);
    const Node& open = nodes_[open_];
    const bool in_object = open.type == NodeType::kObject;
    if (*at == (in_object ? '}' : ']')) return Close(at);
    if (open.last != 0) {
      if (*at != ',') return nullptr;
      at = SkipBlanks(at + 1);
    }
    std::string_view key;
    if (in_object) at = ScanKey(at, key);
    return at == nullptr ? nullptr : ScanValue(at, key);
  }

  const char* Open(const char* at, std::string_view key, NodeType type) {
    const std::uint32_t index = nodes_.size();
    Node& node = nodes_.Append(open_, key);
    node.type = type;
    node.bytes = at;
    node.parent = open_;
    open_ = index;
    ++open_count_;
    return at + 1;
  }

  const char* Close(const char* at) {
    Node& node = nodes_[open_];
    node.length = static_cast<std::uint32_t>(at + 1 - node.bytes);
    open_ = node.parent;
    --open_count_;
    return at == last_ && open_count_ > 0 ? nullptr : at + 1;
  }

  const char* ScanKey(const char* at, std::string_view& key) const {
    if (*at != '"') return nullptr;
    const char* const begin = at + 1;
    at = FindQuoteOrBackslash(begin);
    if (*at != '"') return nullptr;
    key = {begin, static_cast<std::size_t>(at - begin)};
    at = SkipBlanks(at + 1);
    return *at == ':' ? SkipBlanks(at + 1) : nullptr;
  }

  const char* ScanValue(const char* at, std::string_view key) {
    if (open_count_ == kDeepestPlainValue) return nullptr;
    switch (*at) {
      case '"':
        return ScanText(at, key);
      case '{':
        return Open(at, key, NodeType::kObject);
      case '[':
        return Open(at, key, NodeType::kArray);
      case 't':
        return ScanWord(at, key, "true");
      case 'f':
        return ScanWord(at, key, "false");
      case 'n':
        return ScanWord(at, key, "null");
      default:
        return ScanNumber(at, key);
    }
  }

  Node& Append(std::string_view key, NodeType type, const char* begin, const char* end) {
    Node& node = nodes_.Append(open_, key);
    node.type = type;
    node.bytes = begin;
    node.length = static_cast<std::uint32_t>(end - begin);
    return node;
  }

  const char* FindQuoteOrBackslash(const char* at) const {
#ifdef __SSE2__  // every x86-64 processor has it
    for (; last_ - at >= 16; at += 16) {
      __m128i bytes;
      std::memcpy(&bytes, at, sizeof bytes);
      const __m128i marks =
          _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\\')));
      const auto bits = static_cast<unsigned>(_mm_movemask_epi8(marks));
      if (bits != 0) return at + __builtin_ctz(bits);
    }
#endif
    for (; last_ - at >= 8; at += 8) {
      const std::uint64_t word = eight_bytes::Load(at);
      const std::uint64_t marks = eight_bytes::Mark(word, '"') | eight_bytes::Mark(word, '\\');
      if (marks != 0) return at + eight_bytes::BytesBefore(marks);
    }
    while (at != last_ && *at != '"' && *at != '\\') ++at;
    return at;
  }

  const char* ScanText(const char* at, std::string_view key) {
    const char* const begin = at + 1;
    at = FindQuoteOrBackslash(begin);
    const bool has_escapes = *at == '\\';
    while (*at == '\\') {
      const std::size_t length = EscapeLength({at, static_cast<std::size_t>(last_ - at)});
      if (length == 0) return nullptr;
      at = FindQuoteOrBackslash(at + length);
    }
    if (at == last_) return nullptr;
    Append(key, NodeType::kText, begin, at).has_escapes = has_escapes;
    return at + 1;
  }

  const char* ScanWord(const char* at, std::string_view key, std::string_view word) {
    if (std::string_view(at, static_cast<std::size_t>(last_ - at)).substr(0, word.size()) != word) {
      return nullptr;
    }
    Append(key, NodeType::kOther, at, at + word.size());
    return at + word.size();
  }

  // The value of more than 18 digits is not used.
  const char* ScanNumber(const char* at, std::string_view key) {
    const char* const begin = at;
    const bool is_negative = *at == '-';
    if (is_negative) ++at;
    const char* const digits = at;
    std::uint64_t magnitude = 0;
    for (; IsDigit(*at); ++at) magnitude = magnitude * 10 + static_cast<unsigned char>(*at - '0');
    const std::ptrdiff_t count = at - digits;
    if (count != 1 && (count == 0 || count > kMostDigits || *digits == '0')) return nullptr;
    if (*at == '.' || IsExponentSign(*at)) return ScanRestOfReal(at, key, begin);

    const auto value =
        is_negative ? -static_cast<std::int64_t>(magnitude) : static_cast<std::int64_t>(magnitude);
    const auto number = static_cast<std::int32_t>(value);
    Append(key, number == value ? NodeType::kInteger : NodeType::kOther, begin, at).number = number;
    return at;
  }

  // Returns the place after 1 to `most` digits.
  static const char* SkipDigits(const char* at, std::ptrdiff_t most) {
    const char* const begin = at;
    while (IsDigit(*at)) ++at;
    return at == begin || at - begin > most ? nullptr : at;
  }

  // Reals count as absent, so only their form matters: no reader finds one of these too great or too small.
  const char* ScanRestOfReal(const char* at, std::string_view key, const char* begin) {
    if (*at == '.') at = SkipDigits(at + 1, kMostDigits);
    if (at == nullptr) return nullptr;
    if (IsExponentSign(*at)) {
      ++at;
      if (*at == '+' || *at == '-') ++at;
      at = SkipDigits(at, kMostExponentDigits);
      if (at == nullptr) return nullptr;
    }
    Append(key, NodeType::kOther, begin, at);
    return at;
  }

  static constexpr std::ptrdiff_t kMostDigits = 18;  // fit 64 signed bits, whatever they are
  static constexpr std::ptrdiff_t kMostExponentDigits = 2;

  const char* const last_;
  NodeList& nodes_;
  std::uint32_t open_ = 0;  // the innermost open array or object
  std::size_t open_count_ = 0;
};

}  // namespace

bool ScanPlain(std::string_view text, NodeList& nodes) {
  constexpr std::size_t kLongest = std::numeric_limits<std::uint32_t>::max();  // what a node can count
  if (text.size() > kLongest) return false;  // GCOVR_EXCL_BR_LINE: no test has 4 GiB
  const std::size_t last = text.rfind('}');
  if (last == std::string_view::npos) return false;
  return PlainScanner(text.data() + last, nodes).Scan(text.data()) != nullptr;
}

}  // namespace kavrix
