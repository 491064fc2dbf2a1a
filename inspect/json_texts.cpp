#include "inspect/json_texts.h"

#include <algorithm>
#include <cstdint>

#include "payload/escapes.h"
#include "payload/payload_nodes.h"

namespace kavrix::inspect {
namespace {

// The length of the piece that `source` begins with: bytes without escapes, one escape, or a backslash that
// begins none.
std::size_t PieceLength(std::string_view source) {
  const std::size_t escape = source.find('\\');
  if (escape != 0) return std::min(escape, source.size());
  return std::max<std::size_t>(EscapeLength(source), 1);
}

// Appends what the piece stands for.
void AppendPiece(std::string_view piece, std::string& text) {
  if (piece.size() > 1 && piece[0] == '\\') return AppendUnescaped(text, piece);
  text += piece;
}

std::optional<JsonObjectError> FindErrorInObject(std::string_view line) {
  PayloadNodes payload;
  if (!payload.Read(line)) return FindJsonError(line);
  const std::size_t after = line.find_first_not_of(kJsonBlanks, payload.ObjectEnd(line));
  if (after == std::string_view::npos) return std::nullopt;
  return JsonObjectError{after, "the end of the line"};
}

}  // namespace

bool JsonTexts::Next() {
  const std::size_t quote = line_.find('"', next_);
  if (quote == std::string_view::npos) return false;
  bool has_escapes = false;
  std::size_t end = quote + 1;
  for (;; end += 2) {
    end = line_.find_first_of("\"\\", end);
    if (end == std::string_view::npos || line_[end] == '"') break;
    has_escapes = true;
  }
  end = std::min(end, line_.size());
  source_ = line_.substr(quote + 1, end - quote - 1);
  next_ = end + 1;
  text_ = source_;
  passed_source_ = passed_text_ = 0;
  if (!has_escapes) return true;
  decoded_.clear();
  for (std::string_view rest = source_; !rest.empty();) {
    const std::size_t length = PieceLength(rest);
    AppendPiece(rest.substr(0, length), decoded_);
    rest.remove_prefix(length);
  }
  text_ = decoded_;
  return true;
}

std::size_t JsonTexts::PlaceOf(std::size_t at) {
  if (at < passed_text_) passed_source_ = passed_text_ = 0;
  while (passed_text_ < at) {
    const std::string_view rest = source_.substr(passed_source_);
    const std::size_t plain = std::min(rest.substr(0, at - passed_text_).find('\\'), at - passed_text_);
    passed_source_ += plain;
    passed_text_ += plain;
    if (passed_text_ == at) break;
    const std::size_t length = PieceLength(rest.substr(plain));
    std::string piece;
    AppendPiece(rest.substr(plain, length), piece);
    if (passed_text_ + piece.size() > at) break;  // in the middle of a character that is an escape
    passed_source_ += length;
    passed_text_ += piece.size();
  }
  return static_cast<std::size_t>(source_.data() - line_.data()) + passed_source_;
}

// The reader of payloads reads objects: any other value becomes the one element of an array in one.
std::optional<JsonObjectError> FindErrorInJsonLine(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(kJsonBlanks);
  if (begin == std::string_view::npos) return std::nullopt;
  if (line[begin] == '{') return FindErrorInObject(line);
  constexpr std::string_view kBefore = "{\"\":[";
  const std::string object = std::string(kBefore).append(line).append("]}");
  PayloadNodes payload;
  const bool is_read = payload.Read(object) && payload.ObjectEnd(object) == object.size();
  constexpr std::uint32_t kArray = 1;
  constexpr std::uint32_t kFirstElement = 2;
  const bool is_one = is_read && payload.nodes()[kArray].last == kFirstElement;
  if (is_one) return std::nullopt;
  JsonObjectError error = is_read ? JsonObjectError{0, "one value in the line"} : FindJsonError(object);
  error.at = std::clamp(error.at, kBefore.size(), kBefore.size() + line.size()) - kBefore.size();
  return error;
}

}  // namespace kavrix::inspect
