#include "inspect/json_texts.h"

#include <algorithm>

#include "payload/escapes.h"
#include "payload/payload_nodes.h"

namespace kavrix::inspect {
namespace {

// The length of the piece that `source` begins with: bytes without escapes, one escape, or a backslash that
// begins none.
std::size_t PieceLength(std::string_view source) {
  if (source[0] != '\\') return std::min(source.find('\\'), source.size());
  return std::max<std::size_t>(EscapeLength(source), 1);
}

// Appends what the piece stands for.
void AppendPiece(std::string_view piece, std::string& text) {
  if (piece.size() > 1 && piece[0] == '\\') return AppendUnescaped(text, piece);
  text += piece;
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
  const auto source_begin = static_cast<std::size_t>(source_.data() - line_.data());
  while (passed_source_ < source_.size()) {
    const std::string_view rest = source_.substr(passed_source_);
    const std::size_t length = PieceLength(rest);
    std::string piece;
    AppendPiece(rest.substr(0, length), piece);
    const std::size_t left = at - passed_text_;
    if (left < piece.size()) return source_begin + passed_source_ + (rest[0] == '\\' ? 0 : left);
    passed_source_ += length;
    passed_text_ += piece.size();
  }
  return source_begin + passed_source_;
}

// The reader of payloads reads objects: the line becomes the one value of one.
std::optional<JsonObjectError> FindErrorInJsonLine(std::string_view line) {
  constexpr std::string_view kBefore = "{\"\":";
  if (line.find_first_not_of(kJsonBlanks) == std::string_view::npos) return std::nullopt;
  const std::string object = std::string(kBefore).append(line).append("}");
  PayloadNodes payload;
  JsonObjectError error;
  if (!payload.Read(object)) {
    error = FindJsonError(object);
  } else if (payload.ObjectEnd(object) < object.size()) {
    error = {payload.ObjectEnd(object) - 1, "the end of the line"};
  } else {
    return std::nullopt;
  }
  error.at = std::clamp(error.at, kBefore.size(), kBefore.size() + line.size()) - kBefore.size();
  return error;
}

}  // namespace kavrix::inspect
