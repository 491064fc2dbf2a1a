#include "key_list/key_checker.h"

#include <utility>

namespace kavrix {

KeyChecker::KeyChecker(const Json::Value& object, std::string path)
    : object_(object), path_(std::move(path)) {
  if (!object.isObject()) throw KeyError(path_, "expected an object, found " + JsonUtil::ToText(object));
  if (!path_.empty()) path_ += '.';
}

void KeyChecker::Text(std::string_view key, std::string& text) {
  const Json::Value* const value = Take(key);
  if (value == nullptr) return;
  const auto found = JsonUtil::AsText(*value);
  if (!found) Fail(key, "a string", *value, "\"" + text + "\"");
  text = *found;
}

void KeyChecker::Texts(std::string_view key, std::vector<std::string>& texts) {
  const Json::Value* const array = TakeArray(key);
  if (array == nullptr) return;
  for (const Json::Value& element : *array) {
    const auto text = JsonUtil::AsText(element);
    if (!text)
      Fail(std::string(key) + "[" + std::to_string(texts.size()) + "]", "a string", element, "no line");
    texts.emplace_back(*text);
  }
}

void KeyChecker::RequireAllRead() const {
  for (const std::string& key : object_.getMemberNames()) {
    if (read_.count(key) == 0)
      throw KeyError(path_ + key,
                     "names of this kind do not carry this key; the reader would have ignored it");
  }
}

const Json::Value* KeyChecker::Take(std::string_view key) {
  read_.emplace(key);
  return JsonUtil::Find(object_, key);
}

const Json::Value* KeyChecker::TakeArray(std::string_view key) {
  const Json::Value* const value = Take(key);
  if (value != nullptr && !value->isArray()) Fail(key, "an array", *value, "[]");
  return value;
}

std::int64_t KeyChecker::CheckedInteger(std::string_view key, std::int64_t current, std::int64_t least,
                                        std::int64_t most) {
  const Json::Value* const value = Take(key);
  if (value == nullptr) return current;
  const auto number = JsonUtil::AsInteger(*value);
  if (number && *number >= least && *number <= most) return *number;
  const auto low_bits = JsonUtil::AsInt(*value);  // an int that is out of range: the member has 16 bits
  const std::int64_t decoded = low_bits ? static_cast<std::int16_t>(*low_bits) : current;
  Fail(key, "an integer from " + std::to_string(least) + " to " + std::to_string(most), *value,
       std::to_string(decoded));
}

bool KeyChecker::CheckedFlag(std::string_view key, int current, bool (*rule)(int value)) {
  const Json::Value* const value = Take(key);
  if (value == nullptr) return rule(current);
  const auto number = JsonUtil::AsInt(*value);
  if (number && (*number == 0 || *number == 1)) return rule(*number);
  Fail(key, "0 or 1", *value, rule(number.value_or(current)) ? "true" : "false");
}

void KeyChecker::Fail(std::string_view key, const std::string& expected, const Json::Value& found,
                      const std::string& decoded) const {
  throw KeyError(path_ + std::string(key), "expected " + expected + ", found " + JsonUtil::ToText(found) +
                                               "; the reader would have decoded " + decoded);
}

}  // namespace kavrix
