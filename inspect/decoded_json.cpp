#include "inspect/decoded_json.h"

#include "inspect/json_writer.h"

namespace kavrix::inspect {
namespace {

class JsonMembers : public MemberVisitor {
 public:
  explicit JsonMembers(JsonWriter& json) : json_(json) {}

  void Integer(const char* name, std::int64_t value) override { Named(name).Integer(value); }
  void Flag(const char* name, bool value) override { Named(name).Flag(value); }
  void Real(const char* name, float value) override { Named(name).Real(value); }
  void Text(const char* name, const std::string& value) override { Named(name).Text(value); }
  void BeginList(const char* name) override { Named(name).BeginArray(); }
  void EndList() override { json_.EndArray(); }
  void BeginObject() override { json_.BeginObject(); }
  void EndObject() override { json_.EndObject(); }

 private:
  JsonWriter& Named(const char* name) {
    if (*name != '\0') json_.Key(name);
    return json_;
  }

  JsonWriter& json_;
};

void WriteDescriptor(JsonWriter& json, const BubbleDrawDescriptor& descriptor) {
  JsonMembers members(json);
  json.BeginObject();
  json.Text("type", descriptor.TypeName());
  json.Key("base");
  json.BeginObject();
  descriptor.VisitBaseMembers(members);
  json.EndObject();
  json.Key("own");
  json.BeginObject();
  descriptor.VisitOwnMembers(members);
  json.EndObject();
  json.EndObject();
}

void WriteRecord(JsonWriter& json, const CapturedRecord& record) {
  json.BeginObject();
  json.Key("level");
  json.Integer(record.level);
  json.Text("tag", record.tag);
  json.Text("function", record.function);
  json.Text("message", record.message);
  json.EndObject();
}

void WriteMembers(JsonWriter& json, const Decoded& decoded) {
  json.Text("resource_name", decoded.name);
  json.Key("kind");
  decoded.kind ? json.Text(MarkerOf(*decoded.kind).substr(1)) : json.Null();
  json.Key("descriptor");
  decoded.descriptor != nullptr ? WriteDescriptor(json, *decoded.descriptor) : json.Null();
  json.Key("records");
  json.BeginArray();
  for (const CapturedRecord& record : decoded.records) WriteRecord(json, record);
  json.EndArray();
  json.Key("exception");
  decoded.exception ? json.Text(*decoded.exception) : json.Null();
}

}  // namespace

std::string ToJsonLine(const Decoded& decoded) {
  JsonWriter json;
  json.BeginObject();
  WriteMembers(json, decoded);
  json.EndObject();
  return json.TakeLine();
}

std::string ToJsonLine(const Decoded& decoded, const std::vector<Problem>& problems) {
  JsonWriter json;
  json.BeginObject();
  WriteMembers(json, decoded);
  json.Key("codes");
  json.BeginArray();
  for (const Problem& problem : problems) json.Text(problem.code);
  json.EndArray();
  json.EndObject();
  return json.TakeLine();
}

}  // namespace kavrix::inspect
