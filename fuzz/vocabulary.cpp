#include "fuzz/vocabulary.h"

#include <set>

#include "config/bubble_layer_config_container.h"
#include "map_resource/bubble_kinds.h"

namespace kavrix::fuzz {
namespace {

// "cameras[].type" names two keys; each is listed by itself too.
std::string LastKey(const std::string& path) {
  const std::size_t dot = path.rfind('.');
  return dot == std::string::npos ? path : path.substr(dot + 1);
}

std::vector<std::string> AllKeys() {
  KeyLister lister;
  for (const BubbleKindInfo* const info : AllKindInfos()) info->codec.list_keys(lister);
  std::set<std::string> keys = {"context_name", "multi_light_type", "bubble_layer", "marker_bubble", "name",
                                "values"};
  for (const KeyInfo& info : lister.keys()) keys.insert(LastKey(info.key));
  BubbleLayerConfigContainer config;
  ForEachStyleRecord(config, [&](const char* name, const auto&) { keys.insert(name); });
  return {keys.begin(), keys.end()};
}

std::vector<std::string> AllMarkers() {
  std::vector<std::string> markers;
  for (const BubbleKindInfo* const info : AllKindInfos()) markers.emplace_back(info->marker);
  return markers;
}

}  // namespace

const Vocabulary& Words() {
  static const Vocabulary words = {
      AllKeys(),
      AllMarkers(),
      {"@", "_", ".", "|", "{", "}", "[", "]", ",", ":", "\"", "\\", "//", "/*", "*/", "\n", "\r"},
      {"0",
       "1",
       "-1",
       "2",
       "32768",
       "65536",
       "2147483647",
       "-2147483648",
       "2147483648",
       "4294967295",
       "9223372036854775808",
       "99999999999999999999",
       "5.0",
       "1e5",
       "1e400",
       "-0",
       "true",
       "null",
       "\"\"",
       "\"1\"",
       "\"text\"",
       "\"\\u0000\"",
       "\"\\ud83d\\ude97\"",
       "\"0xffff0000\"",
       "[]",
       "{}",
       "[{}]",
       "[1]",
       "[[[]]]"}};
  return words;
}

}  // namespace kavrix::fuzz
