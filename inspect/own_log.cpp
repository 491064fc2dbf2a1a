#include "inspect/own_log.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "inspect/text_search.h"
#include "map_resource/bubble_markers.h"
#include "payload/escapes.h"

namespace kavrix::inspect {
namespace {

constexpr std::string_view kHead = "[Kavrix][";
constexpr std::string_view kRequest = "]resource_name:";

bool Holds(std::string_view text, std::string_view word) { return text.find(word) != std::string_view::npos; }

// routine|failure, tag, function, file:line
bool IsWrittenByFormatLogLine(std::string_view before_message) {
  constexpr std::ptrdiff_t kFields = 4;
  return (StartsWith(before_message, "routine ") || StartsWith(before_message, "failure ")) &&
         std::count(before_message.begin(), before_message.end(), ' ') == kFields;
}

// Whether all of `text` is the context's name: the messages of other records hold texts of names, which could
// hold anything.
bool IsContext(std::string_view text) {
  const std::size_t end = text.find(']');
  return end == std::string_view::npos || text.find_first_of(" \"{", end) == std::string_view::npos;
}

// Appends what the escape at the beginning of `rest` stands for, and takes it off; a backslash that begins
// none stands for itself.
void AppendMeaning(std::string_view& rest, std::string& text) {
  constexpr std::size_t kByteEscape = 4;  // \xff
  const char letter = rest.size() > 1 ? rest[1] : '\0';
  if (letter == 'x' && rest.size() >= kByteEscape) {
    unsigned byte = 0;
    const char* const end = rest.data() + kByteEscape;
    if (std::from_chars(rest.data() + 2, end, byte, 16).ptr == end) {
      text += static_cast<char>(byte);
      return rest.remove_prefix(kByteEscape);
    }
  }
  const bool is_escape = letter == '\\' || letter == 'n' || letter == 'r' || letter == 't' || letter == 'u';
  const std::size_t length = is_escape ? EscapeLength(rest) : 0;
  if (length == 0) {
    text += rest[0];
    return rest.remove_prefix(1);
  }
  AppendUnescaped(text, rest.substr(0, length));
  rest.remove_prefix(length);
}

}  // namespace

std::optional<OwnLine> ReadOwnLine(std::string_view line, std::size_t limit) {
  const std::size_t head = line.substr(0, limit).find(kHead);
  if (head == std::string_view::npos) return std::nullopt;
  const std::string_view before = line.substr(0, head);
  OwnLine own;
  own.is_escaped = IsWrittenByFormatLogLine(before);
  own.is_request = Holds(before, "GetBubbleDrawDescriptor");
  own.is_repeat =
      Holds(before, "ParseEtaBubbleResourceName") || Holds(before, "KavrixMapLayerMgr_DestNameEta");
  const std::string_view context_and_message = line.substr(head + kHead.size());
  const std::size_t request = context_and_message.find(kRequest);
  if (request != std::string_view::npos && IsContext(context_and_message.substr(0, request))) {
    own.name_begin = head + kHead.size() + request + kRequest.size();
  }
  return own;
}

std::string WithoutEscapes(std::string_view message) {
  std::string text;
  for (;;) {
    const std::size_t plain = message.find('\\');
    text += message.substr(0, plain);
    if (plain == std::string_view::npos) return text;
    message.remove_prefix(plain);
    AppendMeaning(message, text);
  }
}

bool RepeatedRequests::Repeats(const OwnLine& line, const std::string& name, bool is_told_not_valid,
                               std::size_t line_begin, std::size_t line_end) {
  const bool follows = line_begin == next_line_begin_ && line_begin != 0 && name == name_;
  const bool is_eta = FindBubbleKind(name) == BubbleKind::kEta;
  const bool repeats = line.is_repeat || (follows && (is_told_not_valid || (is_eta && !line.is_request)));
  name_ = name;
  next_line_begin_ = repeats || is_told_not_valid ? 0 : line_end + 1;
  return repeats;
}

}  // namespace kavrix::inspect
