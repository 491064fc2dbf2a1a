#include "inspect/decoded_line.h"

#include <json/value.h>

#include <algorithm>
#include <set>
#include <utility>

#include "util/json_value.h"
#include "util/strict_json.h"

namespace kavrix::inspect {
namespace {

// Takes the members of a "base" or "own" object apart as Members does.
class MemberReader {
 public:
  MemberReader(const std::string& line, DecodedLine& decoded) : line_(line), decoded_(decoded) {}

  // JsonCpp sorts the members of an object; their order in the line is that of their places.
  void AddAll(const Json::Value& object, const std::string& path) {
    std::vector<std::string> names = object.getMemberNames();
    std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
      return object[a].getOffsetStart() < object[b].getOffsetStart();
    });
    for (const std::string& name : names) Add(object[name], path + name);
  }

 private:
  void Add(const Json::Value& value, const std::string& path) {
    if (!value.isArray()) return AddValue(path, std::string(JsonUtil::SourceOf(value, line_)));
    const bool is_list = value.empty() || value[0].isObject() || value[0].isString();
    if (is_list) AddValue(path, std::to_string(value.size()));
    for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
      const std::string item = path + "[" + std::to_string(i) + "]";
      if (value[i].isObject()) {
        AddAll(value[i], item + ".");
      } else {
        Add(value[i], item);
      }
    }
  }

  void AddValue(const std::string& path, std::string value) {
    const bool hides = !paths_.insert(path).second;
    decoded_.members.push_back({(hides ? "own." : "") + path, std::move(value)});
  }

  const std::string& line_;
  DecodedLine& decoded_;
  std::set<std::string> paths_;
};

const Json::Value& Part(const Json::Value& object, const char* key) {
  const Json::Value* const part = JsonUtil::Find(object, key);
  if (part == nullptr) throw CompareError(std::string("\"") + key + "\" is missing");
  return *part;
}

const Json::Value& ObjectIn(const Json::Value& object, const char* key) {
  const Json::Value& part = Part(object, key);
  if (!part.isObject()) throw CompareError(std::string("\"") + key + "\" is no object");
  return part;
}

// A string or null, as it stands.
std::string TextIn(const Json::Value& object, const char* key, const std::string& line) {
  const Json::Value& part = Part(object, key);
  if (!part.isString() && !part.isNull())
    throw CompareError(std::string("\"") + key + "\" is neither string nor null");
  return std::string(JsonUtil::SourceOf(part, line));
}

}  // namespace

DecodedLine ReadDecodedLine(const std::string& line) {
  DecodedLine decoded;
  try {
    const Json::Value root = JsonUtil::ReadStrictly(line);
    const auto name = JsonUtil::AsText(Part(root, "resource_name"));
    if (!name) throw CompareError("\"resource_name\" is no string");
    decoded.resource_name = *name;
    decoded.kind = TextIn(root, "kind", line);
    decoded.exception = TextIn(root, "exception", line);
    if (Part(root, "descriptor").isNull()) return decoded;
    const Json::Value& descriptor = ObjectIn(root, "descriptor");
    MemberReader members(line, decoded);
    members.AddAll(ObjectIn(descriptor, "base"), "");
    members.AddAll(ObjectIn(descriptor, "own"), "");
  } catch (const JsonUtil::JsonError& error) {
    throw CompareError(error.what());
  }
  return decoded;
}

}  // namespace kavrix::inspect
