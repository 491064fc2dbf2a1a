#include "inspect/kind_json.h"

#include "inspect/json_writer.h"

namespace kavrix::inspect {

std::vector<KeyInfo> KeysOf(const BubbleKindInfo& info) {
  KeyLister lister;
  info.codec.list_keys(lister);
  return lister.keys();
}

std::string ToJsonLine(const BubbleKindInfo& info, std::string_view sample) {
  JsonWriter json;
  json.BeginObject();
  json.Text("kind", info.Name());
  json.Text("marker", info.marker);
  json.Key("kind_code");
  info.kind_code ? json.Integer(*info.kind_code) : json.Null();
  json.Text("descriptor_type", info.descriptor_type);
  json.Key("way");
  json.Integer(static_cast<int>(info.way));
  json.Text("grammar", info.grammar);
  json.Key("keys");
  json.BeginArray();
  for (const KeyInfo& key : KeysOf(info)) {
    json.BeginObject();
    json.Text("key", key.key);
    json.Text("type", key.type);
    json.Text("rule", key.rule);
    json.EndObject();
  }
  json.EndArray();
  json.Text("sample", sample);
  json.EndObject();
  return json.TakeLine();
}

}  // namespace kavrix::inspect
