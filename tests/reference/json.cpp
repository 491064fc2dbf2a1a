#include "tests/reference/json.h"

#include <json/reader.h>

#include <algorithm>
#include <memory>

#include "tests/reference/plain.h"
#include "tests/support/global_locale.h"

// Some JsonCpp versions mark the legacy reader deprecated.
#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::reference {
namespace {

// Plain JSON means the same under every locale.
bool Parse(const std::string& text, Json::Value& root) {
  Json::Reader reader;
  if (std::locale() == std::locale::classic() || !IsPlain(text)) return reader.parse(text, root, false);
  const test::ClassicLocale classic;
  return reader.parse(text, root, false);
}

// Whether a text that parses, but is not plain, has a value inside 256 arrays and objects. JsonCpp's other
// reader, which can be given a limit, takes it apart in the same way and throws there. The tree does not
// tell: of the values of a key that comes twice it holds the last one only.
bool IsNestedTooDeep(const std::string& text) {
  constexpr int kDeepestValue = 256;
  const auto is_opening = [](char c) { return c == '[' || c == '{'; };
  if (std::count_if(text.begin(), text.end(), is_opening) < kDeepestValue) return false;
  Json::CharReaderBuilder builder;
  builder["stackLimit"] = kDeepestValue;
  const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
  Json::Value root;
  try {
    reader->parse(text.data(), text.data() + text.size(), &root, nullptr);
    return false;
  } catch (const Json::Exception&) {
    return !IsPlain(text);
  }
}

}  // namespace

bool ParseObject(const std::string& text, Json::Value& root) {
  try {
    return Parse(text, root) && root.isObject() && !IsNestedTooDeep(text);
  } catch (const Json::Exception&) {  // nested deeper than JsonCpp goes
    return false;
  }
}

std::string TextOr(const Json::Value& object, const std::string& key, const std::string& current) {
  if (!object.isObject() || !object.isMember(key)) return current;
  return object[key].isString() ? object[key].asString() : current;
}

int IntOr(const Json::Value& object, const std::string& key, int current) {
  if (!object.isObject() || !object.isMember(key)) return current;
  const Json::Value& value = object[key];
  const bool is_integer = value.type() == Json::intValue || value.type() == Json::uintValue;
  return is_integer && value.isInt() ? value.asInt() : current;
}

}  // namespace kavrix::reference
