#ifndef KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_
#define KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_

#include "../util/export.h"

namespace kavrix {

/// What all resource names have in common.
struct KAVRIX_EXPORT MapResourceManager {
  /// The prefix of every resource name. Null-terminated, owned by the client; a client that uses another
  /// prefix sets it once, before it encodes or decodes the first name. Parsers drop as many bytes as it has,
  /// whatever they are; only the kinds that read the whole name compare them.
  static const char* kavrix_resource_prefix;
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_MAP_RESOURCE_MANAGER_H_
