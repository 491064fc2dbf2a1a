#ifndef KAVRIX_TESTS_REFERENCE_FLAT_JSON_H_
#define KAVRIX_TESTS_REFERENCE_FLAT_JSON_H_

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kavrix::reference {

enum class JsonType { kObject, kArray, kText, kInteger, kReal, kOther };

struct FlatValue {
  JsonType type;
  std::string text;  // of a text, decoded; of a number, as digits
};

// The keys and places that lead to a value: {"bubble_layer", "eta_style", "values", "0"}. Empty for the root.
using JsonPath = std::vector<std::string>;

// All values of strict JSON by their paths. Returns nullopt for a text that is not strict JSON, holds a key
// twice in one object, or a number that no double can hold.
std::optional<std::map<JsonPath, FlatValue>> ReadFlatJson(const std::string& text);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_FLAT_JSON_H_
