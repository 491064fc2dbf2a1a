#ifndef KAVRIX_TESTS_SUPPORT_JSON_TAIL_H_
#define KAVRIX_TESTS_SUPPORT_JSON_TAIL_H_

#include <json/value.h>

#include <optional>
#include <string>

#include "map_resource/bubble_kinds.h"

namespace kavrix::test {

// Returns what follows the JSON object in an encoded name of the kind, such as "@0.companionBubble"; nullopt
// for a kind without JSON.
inline std::optional<std::string> TailAfterObject(const BubbleKindInfo& info) {
  const std::string name = info.codec.encode_fields(Json::objectValue);
  const std::size_t end = name.rfind('}');
  if (end == std::string::npos) return std::nullopt;
  return name.substr(end + 1);
}

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_JSON_TAIL_H_
