// The decode of P1 to P4 beside what else does the job, or a part of it: the bare JsonCpp parse, the
// reference decoder, and parse + keys into the descriptor by two other JSON readers.

#include <json/reader.h>
#include <rapidjson/document.h>

#include <nlohmann/json.hpp>

#include "bench/cases.h"
#include "bench/key_lists.h"
#include "bench/names.h"
#include "key_list/key_reader.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reference/reference_decoder.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::bench {
namespace {

// Applies the rules that all readers share; `Reader` finds the value of a key.
template <class Reader>
class PeerKeyReader : public Reader {
 public:
  using Reader::Reader;

  template <class Int>
  void Integer(const char* key, Int& number) {
    number = static_cast<Int>(Reader::IntOr(key, number));
  }
  void TrueWhenZero(const char* key, bool& flag) { flag = Reader::IntOr(key, flag ? 1 : 0) == 0; }
  void TrueWhenOne(const char* key, bool& flag) { flag = Reader::IntOr(key, flag ? 1 : 0) == 1; }

  template <class Item, class ItemKeys>
  void Objects(const char* key, std::vector<Item>& items, ItemKeys item_keys) {
    Reader::ForEach(key, [&](const auto& element) {
      Item item;
      PeerKeyReader keys(element);
      item_keys(keys, item);
      items.push_back(std::move(item));
    });
  }
};

class NlohmannReader {
 public:
  explicit NlohmannReader(const nlohmann::json& object) : object_(object) {}

  void Text(const char* key, std::string& text) const {
    const auto found = object_.find(key);
    if (found != object_.end() && found->is_string()) text = found->get_ref<const std::string&>();
  }
  int IntOr(const char* key, int current) const {
    const auto found = object_.find(key);
    return found != object_.end() && found->is_number_integer() ? found->get<int>() : current;
  }
  template <class Visit>
  void ForEach(const char* key, Visit visit) const {
    const auto found = object_.find(key);
    if (found == object_.end() || !found->is_array()) return;
    for (const nlohmann::json& element : *found) visit(element);
  }

 private:
  const nlohmann::json& object_;
};

class RapidJsonReader {
 public:
  explicit RapidJsonReader(const rapidjson::Value& object) : object_(object) {}

  void Text(const char* key, std::string& text) const {
    const auto found = object_.FindMember(key);
    if (found == object_.MemberEnd() || !found->value.IsString()) return;
    text.assign(found->value.GetString(), found->value.GetStringLength());
  }
  int IntOr(const char* key, int current) const {
    const auto found = object_.FindMember(key);
    return found != object_.MemberEnd() && found->value.IsInt() ? found->value.GetInt() : current;
  }
  template <class Visit>
  void ForEach(const char* key, Visit visit) const {
    const auto found = object_.FindMember(key);
    if (found == object_.MemberEnd() || !found->value.IsArray()) return;
    for (const rapidjson::Value& element : found->value.GetArray()) visit(element);
  }

 private:
  const rapidjson::Value& object_;
};

template <class Transform>
Case DecodeCase(const char* group, const Name& name) {
  return {std::string(group) + "/" + name.id, [&name] {
            return [transform = std::make_shared<Transform>(MakeContext()), &name] {
              std::shared_ptr<BubbleDrawDescriptor> out;
              transform->GetBubbleDrawDescriptor(name.name, out);
              Use(out);
            };
          }};
}

// Adds each way to parse one payload and read its keys into a descriptor, and the bare parse.
template <class Descriptor, class KeyList>
void AddJsonCases(std::vector<Case>& cases, const Name& name, KeyList key_list) {
  const auto add = [&](const char* group, auto parse_and_read) {
    cases.push_back({std::string(group) + "/" + name.id, [&name, parse_and_read] {
                       return [&name, parse_and_read] {
                         const auto descriptor = std::make_shared<Descriptor>();
                         parse_and_read(name.payload, *descriptor);
                         Use(descriptor);
                       };
                     }});
  };
  add("jsoncpp-job", [key_list](const std::string& payload, Descriptor& descriptor) {
    if (!ReadJsonObject(payload, [&](auto& keys) { key_list(keys, descriptor); })) std::abort();
  });
  add("nlohmann-job", [key_list](const std::string& payload, Descriptor& descriptor) {
    const nlohmann::json root = nlohmann::json::parse(payload, nullptr, false);
    if (!root.is_object()) std::abort();
    PeerKeyReader<NlohmannReader> keys(root);
    key_list(keys, descriptor);
  });
  add("rapidjson-job", [key_list](const std::string& payload, Descriptor& descriptor) {
    rapidjson::Document root;
    root.Parse(payload.data(), payload.size());
    if (root.HasParseError() || !root.IsObject()) std::abort();
    PeerKeyReader<RapidJsonReader> keys(root);
    key_list(keys, descriptor);
  });
  cases.push_back({std::string("bare-parse/") + name.id, [&name] {
                     return [&name] {
                       Json::Value root;
                       Json::Reader reader;
                       Use(reader.parse(name.payload, root, false));
                     };
                   }});
}

}  // namespace

void AddPeerCases(std::vector<Case>& cases) {
  for (const Name* const name : {&P1(), &P2(), &P3(), &P4()}) {
    cases.push_back(DecodeCase<MapResourceTransform>("decode", *name));
    cases.push_back(DecodeCase<reference::ReferenceDecoder>("reference", *name));
  }
  AddJsonCases<TrafficDrawDescriptor>(cases, P1(), TrafficKeys());
  AddJsonCases<CameraDrawDescriptor>(cases, P2(), CameraKeys());
  AddJsonCases<MultiLightCountdownTimerDrawDescriptor>(cases, P3(), LightsKeys());
}

}  // namespace kavrix::bench
