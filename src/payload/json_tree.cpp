#include "payload/json_tree.h"

#include <json/reader.h>

#include "payload/json_nesting.h"

// Some JsonCpp versions mark the legacy reader as deprecated. It stays: what it accepts is part of what a
// name means.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix {

bool ParseTree(std::string_view text, Json::Value& root) {
  // A text no longer than the limit cannot nest deeper: so many brackets leave no room for a value.
  if (text.size() > kDeepestTreeValue && IsNestedDeeperThan(text, kDeepestTreeValue)) return false;
  try {
    Json::Reader reader;
    return reader.parse(text.data(), text.data() + text.size(), root, false) && root.isObject();
  } catch (const Json::Exception&) {
    return false;
  }
}

}  // namespace kavrix
