#include "tools/suggestion.h"

#include <optional>

#include "inspect/nearest.h"
#include "tools/command_line.h"
#include "util/utf8.h"

namespace kavrix::tools {

std::string DidYouMean(std::string_view text, const std::vector<std::string>& words) {
  const std::optional<std::string> nearest = inspect::NearestWord(text, words);
  return nearest ? "; did you mean \"" + *nearest + "\"?" : "";
}

std::vector<std::string> KindNames() {
  std::vector<std::string> names;
  for (const BubbleKindInfo* const info : AllKindInfos()) names.emplace_back(info->Name());
  return names;
}

const BubbleKindInfo& KindCalled(const std::string& name) {
  if (const BubbleKindInfo* const info = FindKindInfo(name)) return *info;
  std::string hint = DidYouMean(name, KindNames());
  if (hint.empty()) hint = "; kavrix-resource kinds lists them";
  throw UsageError("no kind is called \"" + Excerpt(name) + "\"" + hint);
}

}  // namespace kavrix::tools
