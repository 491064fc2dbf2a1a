#ifndef KAVRIX_BENCH_PEERS_H_
#define KAVRIX_BENCH_PEERS_H_

#include <json/reader.h>
#include <rapidjson/document.h>
#include <simdjson.h>

#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "bench/peer_key_reader.h"
#include "key_list/key_reader.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

// The library's JSON reader and others, each with Read(payload, descriptor, key_list): parses the payload and
// reads the keys into the descriptor; false when the reader refuses the payload.
namespace kavrix::bench {

class LibraryPeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    return ReadJsonObject(payload, [&](auto& keys) { key_list(keys, descriptor); });
  }
};

// JsonCpp's legacy reader, which judges what a payload means, and a look-up for each key in its tree.
class JsonCppPeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    Json::Value root;
    Json::Reader reader;
    if (!reader.parse(payload, root, false) || !root.isObject()) return false;
    PeerKeyReader keys{Object{root}};
    key_list(keys, descriptor);
    return true;
  }

 private:
  struct Object {
    const Json::Value* Find(const char* key) const { return value.find(key, key + std::strlen(key)); }
    void Text(const char* key, std::string& text) const {
      const Json::Value* const found = Find(key);
      if (found != nullptr && found->isString()) text = found->asString();
    }
    int IntOr(const char* key, int current) const {
      const Json::Value* const found = Find(key);
      if (found == nullptr || found->type() != Json::intValue) return current;
      const std::int64_t number = found->asInt64();
      return FitsInt(number) ? static_cast<int>(number) : current;
    }
    template <class Visit>
    void ForEach(const char* key, Visit visit) const {
      const Json::Value* const found = Find(key);
      if (found == nullptr || !found->isArray()) return;
      for (const Json::Value& element : *found) visit(Object{element});
    }
    const Json::Value& value;
  };
};

class NlohmannPeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    const nlohmann::json root = nlohmann::json::parse(payload, nullptr, false);
    if (!root.is_object()) return false;
    PeerKeyReader keys{Object{root}};
    key_list(keys, descriptor);
    return true;
  }

 private:
  struct Object {
    void Text(const char* key, std::string& text) const {
      const auto found = value.find(key);
      if (found != value.end() && found->is_string()) text = found->get_ref<const std::string&>();
    }
    int IntOr(const char* key, int current) const {
      const auto found = value.find(key);
      if (found == value.end() || !found->is_number_integer()) return current;
      const auto number = found->get<std::int64_t>();
      if (found->is_number_unsigned() && number < 0) return current;  // does not fit 64 signed bits
      return FitsInt(number) ? static_cast<int>(number) : current;
    }
    template <class Visit>
    void ForEach(const char* key, Visit visit) const {
      const auto found = value.find(key);
      if (found == value.end() || !found->is_array()) return;
      for (const nlohmann::json& element : *found) visit(Object{element});
    }
    const nlohmann::json& value;
  };
};

class RapidJsonPeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    rapidjson::Document root;
    root.Parse(payload.data(), payload.size());
    if (root.HasParseError() || !root.IsObject()) return false;
    PeerKeyReader keys{Object{root}};
    key_list(keys, descriptor);
    return true;
  }

 private:
  struct Object {
    void Text(const char* key, std::string& text) const {
      const auto found = value.FindMember(key);
      if (found == value.MemberEnd() || !found->value.IsString()) return;
      text.assign(found->value.GetString(), found->value.GetStringLength());
    }
    int IntOr(const char* key, int current) const {
      const auto found = value.FindMember(key);
      return found != value.MemberEnd() && found->value.IsInt() ? found->value.GetInt() : current;
    }
    template <class Visit>
    void ForEach(const char* key, Visit visit) const {
      const auto found = value.FindMember(key);
      if (found == value.MemberEnd() || !found->value.IsArray()) return;
      for (const rapidjson::Value& element : found->value.GetArray()) visit(Object{element});
    }
    const rapidjson::Value& value;
  };
};

// simdjson on demand: parses a value when it is asked for it. It wants bytes after the payload that it may
// read, so the payload is copied. Parser and copy are kept for the next payload, as its manual asks.
class SimdjsonPeer {
 public:
  template <class Descriptor, class KeyList>
  bool Read(const std::string& payload, Descriptor& descriptor, KeyList key_list) {
    padded_.reserve(payload.size() + simdjson::SIMDJSON_PADDING);
    padded_ = payload;
    simdjson::ondemand::document document;
    simdjson::ondemand::object root;
    if (parser_.iterate(padded_.data(), padded_.size(), padded_.capacity()).get(document)) return false;
    if (document.get_object().get(root)) return false;
    bool is_broken = false;
    PeerKeyReader keys{Object{root, &is_broken}};
    key_list(keys, descriptor);
    return !is_broken;
  }

 private:
  struct Object {
    // Absent keys and values of another type leave `value` alone; every other error breaks the payload.
    template <class Value>
    bool Get(const char* key, Value& value) {
      const simdjson::error_code error = object.find_field_unordered(key).get(value);
      if (error == simdjson::SUCCESS) return true;
      const bool is_absent = error == simdjson::NO_SUCH_FIELD || error == simdjson::INCORRECT_TYPE;
      if (!is_absent) *is_broken = true;
      return false;
    }
    void Text(const char* key, std::string& text) {
      std::string_view value;
      if (Get(key, value)) text = value;
    }
    int IntOr(const char* key, int current) {
      std::int64_t number = 0;
      return Get(key, number) && FitsInt(number) ? static_cast<int>(number) : current;
    }
    template <class Visit>
    void ForEach(const char* key, Visit visit) {
      simdjson::ondemand::array array;
      if (!Get(key, array)) return;
      for (auto element : array) {
        simdjson::ondemand::object value;
        if (element.get_object().get(value)) {
          *is_broken = true;
          return;
        }
        visit(Object{value, is_broken});
      }
    }
    simdjson::ondemand::object object;
    bool* is_broken;
  };

  simdjson::ondemand::parser parser_;
  std::string padded_;
};

}  // namespace kavrix::bench

#endif  // KAVRIX_BENCH_PEERS_H_
