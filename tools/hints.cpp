#include "tools/hints.h"

#include <filesystem>
#include <string_view>
#include <system_error>

#include "inspect/text_search.h"
#include "map_resource/map_resource_manager.h"

namespace kavrix::tools {
namespace {

bool IsFile(const std::string& name) {
  std::error_code error;
  return std::filesystem::is_regular_file(name, error);
}

}  // namespace

std::string Hints::For(const std::string& name) {
  if (options_.bulk.names.empty()) return "";
  if (IsFile(name)) {
    return "\"" + name + "\" is a file; names are read from one with \"--input " + name + "\"";
  }
  if (!options_.marker && inspect::EndsWith(name, kMarkerNameTail) && !told_of_marker_.exchange(true)) {
    return "names that end in \".marker\" are marker names, which need --marker";
  }
  const std::string_view prefix = MapResourceManager::kavrix_resource_prefix;
  if (name.size() < prefix.size() && !told_of_prefix_.exchange(true)) {
    return "the name is shorter than the prefix \"" + std::string(prefix) + "\"; --prefix sets another";
  }
  return "";
}

}  // namespace kavrix::tools
