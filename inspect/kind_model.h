#ifndef KAVRIX_INSPECT_KIND_MODEL_H_
#define KAVRIX_INSPECT_KIND_MODEL_H_

#include <map>
#include <string>
#include <vector>

#include "inspect/style_origins.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::inspect {

// How the keys of a kind and the members of its descriptor belong together. Lists have "[]" for an index:
// "cameras[].type".
struct KindModel {
  std::vector<KeyInfo> keys;
  // The keys that a member's value is made of, in reading order. More than one: it is computed from them.
  std::map<std::string, std::vector<std::string>> keys_of_member;

  const KeyInfo* Find(const std::string& key) const;  // null when the kind has no such key
};

// Finds out by building names that differ in one key, and comparing what they decode to.
const KindModel& ModelOf(const BubbleKindInfo& info);

// A path with "[]" for every index.
std::string WithoutIndexes(const std::string& path);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_KIND_MODEL_H_
