#ifndef KAVRIX_TESTS_REFERENCE_JSON_H_
#define KAVRIX_TESTS_REFERENCE_JSON_H_

#include <json/value.h>

#include <string>

namespace kavrix::reference {

// True when the text is a JSON object, which is then in `root`.
bool ParseObject(const std::string& text, Json::Value& root);

// The member `key` of an object when it is there and of the type, else `current`. An integer is of the type
// when 32 bits hold it; a real never is, whatever its value.
std::string TextOr(const Json::Value& object, const std::string& key, const std::string& current);
int IntOr(const Json::Value& object, const std::string& key, int current);

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_JSON_H_
