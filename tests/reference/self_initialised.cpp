#include "tests/reference/self_initialised.h"

#include "map_resource/map_resource_manager.h"
#include "tests/reference/fields.h"
#include "tests/reference/json.h"

namespace kavrix::reference {

std::string BetweenBraces(const std::string& name) {
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  const std::size_t start = name.find(prefix) == 0 ? prefix.size() : 0;
  const std::size_t begin = name.find('{', start);
  const std::size_t end = name.rfind('}');
  if (begin == std::string::npos || end == std::string::npos || end < begin) return "";
  return name.substr(begin, end - begin + 1);
}

void ReadSharedKeys(const Json::Value& root, BubbleDrawDescriptor& bubble) {
  bubble.scene = IntOr(root, "scene", bubble.scene);
  bubble.content = TextOr(root, "content", bubble.content);
  bubble.lan = TextOr(root, "lan", bubble.lan);
  bubble.type = Low16(IntOr(root, "type", bubble.type));
  bubble.direction = Low16(IntOr(root, "direction", bubble.direction));
  bubble.mode_flag = IntOr(root, "mode", bubble.mode_flag ? 1 : 0) == 0;
  bubble.is_force = IntOr(root, "is_force_", bubble.is_force ? 1 : 0) == 1;
}

}  // namespace kavrix::reference
