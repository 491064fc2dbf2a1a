#include "inspect/drawn_name.h"

#include <algorithm>

#include "inspect/picture.h"

namespace kavrix::inspect {

std::string KindNameOf(const Decoded& decoded, EntryPoint entry_point) {
  if (entry_point == EntryPoint::kMarker) return std::string(kMarkerNameInfo.Name());
  return decoded.kind ? std::string(InfoOf(*decoded.kind).Name()) : "";
}

std::string WhyFailed(const Decoded& decoded, const std::vector<Problem>& problems) {
  if (!decoded.failed) return "";
  const auto is_error = [](const Problem& problem) { return problem.severity == Severity::kError; };
  const auto error = std::find_if(problems.begin(), problems.end(), is_error);
  if (error != problems.end()) return error->message;
  return decoded.exception.value_or("the name does not decode");
}

std::string PictureOf(const Decoded& decoded, EntryPoint entry_point, const std::string& problem,
                      std::optional<bool> is_day) {
  const PictureOptions options = {KindNameOf(decoded, entry_point), is_day, problem};
  return decoded.descriptor == nullptr ? PictureOfNothing(options) : Picture(*decoded.descriptor, options);
}

std::optional<std::string> InMode(const Explanation& explanation, bool is_day) {
  for (const ExplainedMember& explained : explanation.members) {
    if (explained.member.path != "mode_flag") continue;
    if (explained.from != Origin::kName || !explained.bytes) return std::nullopt;
    std::string name = explanation.resource_name;
    const auto [begin, end] = *explained.bytes;
    return name.replace(begin, end - begin, is_day ? "0" : "1");
  }
  return std::nullopt;
}

}  // namespace kavrix::inspect
