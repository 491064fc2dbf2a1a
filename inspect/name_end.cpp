#include "inspect/name_end.h"

#include <algorithm>

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

}  // namespace

std::size_t NameEnds::EndOf(std::size_t begin) {
  const std::size_t first = line_.find_first_not_of(kJsonBlanks, begin + prefix_.size());
  if (first != kNone && line_[first] == '{') {
    const std::size_t end = EndAfterObject(first);
    if (end != kNone) return end;
  }
  return EndByMarkers(begin);
}

// Only the end of the last object that a name could have in this line bounds the reading of plain JSON, which
// stops at its first error. JsonCpp looks for a place to go on after an error: so that many broken names in a
// long line take time in proportion to its length, it gets no more than a window after the brace.
std::size_t NameEnds::EndAfterObject(std::size_t object_begin) {
  constexpr std::size_t kWindow = 1 << 14;
  constexpr std::size_t kMostInVain = 64;  // times the length of the line
  if (last_object_end_ == kNone) last_object_end_ = LastObjectEndIn(0, line_.size());
  if (last_object_end_ <= object_begin) return kNone;
  const std::string_view text = line_.substr(object_begin, last_object_end_ - object_begin);
  PayloadNodes plain;
  if (plain.ReadPlain(text)) return EndOfTail(object_begin + plain.ObjectEnd(text));
  if (read_in_vain_ > kMostInVain * line_.size()) return kNone;
  const std::size_t limit = LastObjectEndIn(object_begin, std::min(last_object_end_, object_begin + kWindow));
  if (limit == 0) return kNone;
  const std::string_view window = line_.substr(object_begin, limit - object_begin);
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
std::size_t NameEnds::LastObjectEndIn(std::size_t begin, std::size_t end) const {
  std::string_view stretch = line_.substr(begin, end - begin);
  for (;;) {
    const std::size_t brace = stretch.rfind('}');
    if (brace == kNone) return 0;
    if (TailLength(line_.substr(begin + brace + 1)) != 0) return begin + brace + 1;
    stretch = stretch.substr(0, brace);
  }
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
  const bool is_told =
      limit - rest >= kNotValidTail.size() && name.substr(limit - kNotValidTail.size()) == kNotValidTail;
  return is_told ? limit - kNotValidTail.size() : limit;
}

}  // namespace kavrix::inspect
