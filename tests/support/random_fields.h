#ifndef KAVRIX_TESTS_SUPPORT_RANDOM_FIELDS_H_
#define KAVRIX_TESTS_SUPPORT_RANDOM_FIELDS_H_

#include <json/value.h>

#include <cstdint>
#include <random>
#include <string>

#include "map_resource/bubble_kinds.h"

namespace kavrix::test {

// Makes fields for names of a kind, with many awkward values: extremes, separators, markers, escapes. The
// kind's encoder accepts every value.
class RandomFields {
 public:
  explicit RandomFields(unsigned seed) : random_(seed) {}

  Json::Value Make(const BubbleKindInfo& info);

 private:
  // Makes an object of the keys of `lister` under `path`, such as "cameras[].".
  Json::Value Object(const KeyLister& lister, const std::string& path, bool is_json);
  Json::Value Value(const KeyLister& lister, const KeyInfo& key, bool is_json);

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool Flag() { return Below(2) == 0; }
  std::int32_t Int();
  std::string Text();        // any UTF-8, for JSON
  std::string PlainField();  // UTF-8 without '_', '@', '|' and whole markers

  std::mt19937 random_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_RANDOM_FIELDS_H_
