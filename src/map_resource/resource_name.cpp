#include "map_resource/resource_name.h"

#include <cstdint>
#include <cstring>

#include "map_resource/map_resource_manager.h"
#include "map_resource/name_format.h"
#include "util/fields.h"

namespace kavrix {

const char* MapResourceManager::kavrix_resource_prefix = "kavrix://resource/";

namespace {

std::size_t PrefixLength() { return std::strlen(MapResourceManager::kavrix_resource_prefix); }

}  // namespace

std::string_view StripPrefix(const std::string& resource_name) {
  return std::string_view(resource_name).substr(PrefixLength());
}

std::string_view StripPrefixAndMarker(const std::string& resource_name, std::string_view marker) {
  const std::size_t prefix_length = PrefixLength();
  return std::string_view(resource_name)
      .substr(prefix_length, resource_name.size() - prefix_length - marker.size());
}

void ReadDirection(std::string_view text, BubbleDrawDescriptor& descriptor) {
  int direction = 0;
  if (ReadInt(text, direction)) descriptor.direction = static_cast<std::int16_t>(direction);
}

void ReadDirectionTail(std::string_view tail, BubbleDrawDescriptor& descriptor) {
  ReadDirectionTail(tail, descriptor, Decoding());
}

std::string_view FindJsonObject(std::string_view resource_name) {
  const std::string_view prefix = MapResourceManager::kavrix_resource_prefix;
  if (resource_name.substr(0, prefix.size()) == prefix) resource_name.remove_prefix(prefix.size());
  const std::size_t begin = resource_name.find('{');
  const std::size_t end = resource_name.rfind('}');
  if (end == std::string_view::npos || end < begin) return {};  // without a "{", `begin` is past every end
  return resource_name.substr(begin, end - begin + 1);
}

}  // namespace kavrix
