#ifndef KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_
#define KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_

namespace kavrix {

struct MapResourceManager {
  // The text that every resource name begins with. Null-terminated, owned by the client; a client that uses
  // another prefix sets it once, before the first name is built or decoded. Only its length matters to the
  // decoder: that many bytes are dropped, whatever they are.
  static const char* kavrix_resource_prefix;
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_
