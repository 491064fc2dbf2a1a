#include "inspect/name_end.h"

#include <algorithm>
#include <iterator>

#include "inspect/json_error.h"
#include "inspect/text_search.h"
#include "map_resource/bubble_markers.h"
#include "payload/payload_nodes.h"

namespace kavrix::inspect {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The length of the marker that `text` begins with; 0 when it begins with none.
std::size_t MarkerLength(std::string_view text) {
  if (!StartsWith(text, ".")) return 0;
  for (const std::string_view marker : kBubbleMarkers) {
    if (StartsWith(text, marker)) return marker.size();
  }
  return StartsWith(text, kMarkerNameTail) ? kMarkerNameTail.size() : 0;
}

// The length of "@", an optional sign and digits at the beginning of `text`; 0 when it begins otherwise.
std::size_t DirectionLength(std::string_view text) {
  if (!StartsWith(text, "@")) return 0;
  std::size_t end = 1;
  if (end < text.size() && (text[end] == '+' || text[end] == '-')) ++end;
  const std::size_t digits = end;
  while (end < text.size() && IsDigit(text[end])) ++end;
  return end == digits ? 0 : end;
}

// The same at the end of `text`: whether it ends so.
bool EndsWithDirection(std::string_view text) {
  std::size_t begin = text.size();
  while (begin > 0 && IsDigit(text[begin - 1])) --begin;
  if (begin == text.size()) return false;
  if (begin > 0 && (text[begin - 1] == '+' || text[begin - 1] == '-')) --begin;
  return begin > 0 && text[begin - 1] == '@';
}

// The length of what a name holds after its object, which `text` begins with; 0 when it is none.
std::size_t TailLength(std::string_view text) {
  const std::size_t direction = DirectionLength(text);
  const std::size_t marker = MarkerLength(text.substr(direction));
  return marker == 0 ? 0 : direction + marker;
}

// Whether JsonCpp may take what begins with this brace: after it comes a key, the end or a comment.
bool CouldBeginObject(std::string_view text) {
  const std::size_t second = text.find_first_not_of(kJsonBlanks, 1);
  return second != kNone && std::string_view("\"}/").find(text[second]) != kNone;
}

}  // namespace

std::size_t NameEnds::EndOf(std::size_t begin) {
  const std::size_t first = line_.find_first_not_of(kJsonBlanks, begin + prefix_.size());
  if (first != kNone && line_[first] == '{') {
    const std::size_t end = EndAfterObject(first);
    if (end != kNone) return end;
  }
  return EndByMarkers(begin);
}

// Reading plain JSON stops at its first error. JsonCpp looks for a place to go on after an error: so that
// many broken names in a long line take time in proportion to its length, it gets no more than a window after
// the brace, and in all no more than a multiple of the line.
std::size_t NameEnds::EndAfterObject(std::size_t object_begin) {
  constexpr std::size_t kWindow = 1 << 14;
  const std::size_t last = LastObjectEndIn(object_begin, line_.size());
  if (last == 0) return kNone;
  const std::string_view text = line_.substr(object_begin, last - object_begin);
  PayloadNodes plain;
  if (plain.ReadPlain(text)) return EndOfTail(object_begin + plain.ObjectEnd(text));
  const std::size_t end = LastObjectEndIn(object_begin, std::min(last, object_begin + kWindow));
  const std::size_t most_in_vain = std::max(4 * kWindow, 2 * line_.size());
  if (end == 0 || !CouldBeginObject(text) || read_in_vain_ > most_in_vain) return kNone;
  const std::string_view window = line_.substr(object_begin, end - object_begin);
  PayloadNodes payload;
  if (payload.Read(window)) return EndOfTail(object_begin + payload.ObjectEnd(window));
  read_in_vain_ += window.size();
  return kNone;
}

// The end of a name whose object ends at `object_end`.
std::size_t NameEnds::EndOfTail(std::size_t object_end) const {
  const std::size_t length = TailLength(line_.substr(object_end));
  return length == 0 ? kNone : object_end + length;
}

// The end of the last brace in a stretch of the line after which a name could end; 0 when there is none.
std::size_t NameEnds::LastObjectEndIn(std::size_t begin, std::size_t end) {
  if (!object_ends_) {
    object_ends_.emplace();
    for (std::size_t at = line_.find('}', begin); at != kNone; at = line_.find('}', at + 1)) {
      if (TailLength(line_.substr(at + 1)) != 0) object_ends_->push_back(at + 1);
    }
  }
  const auto after = std::upper_bound(object_ends_->begin(), object_ends_->end(), end);
  return after == object_ends_->begin() || *std::prev(after) <= begin ? 0 : *std::prev(after);
}

std::size_t NameEnds::EndByMarkers(std::size_t begin) const {
  const std::size_t rest = begin + prefix_.size();
  const std::size_t limit = std::min(FindWord(line_, prefix_, rest), line_.size());
  const std::string_view name = line_.substr(0, limit);
  std::size_t last = kNone;
  for (std::size_t dot = name.find('.', rest); dot != kNone; dot = name.find('.', dot + 1)) {
    const std::size_t length = MarkerLength(name.substr(dot));
    if (length == 0) continue;
    last = dot + length;
    if (EndsWithDirection(name.substr(rest, dot - rest))) return last;
  }
  if (last != kNone) return last;
  const bool is_told = EndsWith(name.substr(rest), kNotValidTail);
  return is_told ? limit - kNotValidTail.size() : limit;
}

}  // namespace kavrix::inspect
