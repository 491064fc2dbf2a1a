#include "tests/support/random_fields.h"

#include <array>
#include <limits>

#include "tests/support/carried_fields.h"

namespace kavrix::test {

Json::Value RandomFields::Make(const BubbleKindInfo& info) {
  KeyLister lister;
  info.codec.list_keys(lister);
  return Object(lister, "", IsJsonKind(info));
}

Json::Value RandomFields::Object(const KeyLister& lister, const std::string& path, bool is_json) {
  Json::Value object(Json::objectValue);
  for (const KeyInfo& key : lister.keys()) {
    const bool is_here =
        key.key.substr(0, path.size()) == path && key.key.find("[].", path.size()) == std::string::npos;
    if (is_here) object[key.key.substr(path.size())] = Value(lister, key, is_json);
  }
  return object;
}

Json::Value RandomFields::Value(const KeyLister& lister, const KeyInfo& key, bool is_json) {
  if (key.type == "text") return is_json ? Text() : PlainField();
  if (key.type == "integer") return Int();
  if (key.type == "integer, low 16 bits") return static_cast<std::int16_t>(Int());
  if (key.type == "flag") return Below(2);
  Json::Value array(Json::arrayValue);
  for (int elements = Below(4); elements > 0; --elements) {
    array.append(key.type == "array of texts" ? Json::Value(Text())
                                              : Object(lister, key.key + "[].", is_json));
  }
  return array;
}

std::int32_t RandomFields::Int() {
  switch (Below(4)) {
    case 0:
      return 0;
    case 1:
      return Below(200) - 100;
    case 2: {
      constexpr std::array<std::int32_t, 8> kEdges = {1,
                                                      -1,
                                                      32767,
                                                      -32768,
                                                      -25536,
                                                      70000,
                                                      std::numeric_limits<std::int32_t>::max(),
                                                      std::numeric_limits<std::int32_t>::min()};
      return kEdges[static_cast<std::size_t>(Below(kEdges.size()))];
    }
    default:
      return static_cast<std::int32_t>(random_());
  }
}

std::string RandomFields::Text() {
  static const std::vector<std::string> kPieces = {"@",
                                                   "_",
                                                   ".",
                                                   "|",
                                                   "\"",
                                                   "\\",
                                                   "/",
                                                   "{",
                                                   "}",
                                                   "[",
                                                   "]",
                                                   ":",
                                                   ",",
                                                   "\n",
                                                   "\r",
                                                   "\t",
                                                   std::string(1, '\0'),
                                                   "\x01",
                                                   "\x1f",
                                                   "\x7f",
                                                   " ",
                                                   "//",
                                                   "/*",
                                                   "*/",
                                                   "\\u0040",
                                                   ".trafficBubble",
                                                   ".etaBubble",
                                                   "Bubble",
                                                   "路线",
                                                   "\xC2\x80",
                                                   "\xE2\x80\xA8",
                                                   "\xEF\xBF\xBD",
                                                   "\xEF\xBB\xBF",
                                                   "\xF0\x9F\x9A\xA6",
                                                   "\xF4\x8F\xBF\xBF"};
  std::string text;
  for (int pieces = Below(6); pieces > 0; --pieces) {
    if (Flag()) {
      text += kPieces[random_() % kPieces.size()];
    } else {
      text += static_cast<char>(Below(128));
    }
  }
  return text;
}

std::string RandomFields::PlainField() {
  std::string plain;
  for (const char c : Text()) {
    if (c != '_' && c != '@' && c != '|') plain += c;
  }
  return FindBubbleKind(plain) ? "" : plain;
}

}  // namespace kavrix::test
