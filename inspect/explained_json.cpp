#include "inspect/explained_json.h"

#include "inspect/json_writer.h"
#include "inspect/members.h"

namespace kavrix::inspect {
namespace {

void WriteRange(JsonWriter& json, const ByteRange& range) {
  json.BeginArray();
  json.Integer(static_cast<std::int64_t>(range.begin));
  json.Integer(static_cast<std::int64_t>(range.end));
  json.EndArray();
}

void WriteBytes(JsonWriter& json, const std::optional<ByteRange>& bytes) {
  json.Key("bytes");
  bytes ? WriteRange(json, *bytes) : json.Null();
}

void WriteTexts(JsonWriter& json, const char* key, const std::vector<std::string>& texts) {
  json.Key(key);
  json.BeginArray();
  for (const std::string& text : texts) json.Text(text);
  json.EndArray();
}

const char* NameOf(Origin origin) {
  switch (origin) {
    case Origin::kName:
      return "name";
    case Origin::kConfig:
      return "config";
    case Origin::kContext:
      return "context";
    case Origin::kKind:
      return "kind";
    case Origin::kComputed:
      return "computed";
    case Origin::kDefault:
      return "default";
  }
  return "";
}

void WriteMember(JsonWriter& json, const ExplainedMember& explained) {
  json.BeginObject();
  json.Text("member", explained.member.path);
  json.Key("value");
  WriteValue(json, explained.member);
  json.Text("from", NameOf(explained.from));
  if (!explained.key.empty()) json.Text("key", explained.key);
  if (explained.from == Origin::kName) WriteBytes(json, explained.bytes);
  if (!explained.rule.empty()) json.Text("rule", explained.rule);
  if (explained.from == Origin::kConfig) {
    json.Text("record", explained.record);
    json.Key("number");
    json.Integer(static_cast<std::int64_t>(explained.number));
    WriteTexts(json, "chosen_by", explained.chosen_by);
  }
  if (explained.from == Origin::kComputed) WriteTexts(json, "of", explained.of);
  json.EndObject();
}

void WriteProblems(JsonWriter& json, const std::vector<Problem>& problems) {
  json.Key("problems");
  json.BeginArray();
  for (const Problem& problem : problems) {
    json.BeginObject();
    json.Text("code", problem.code);
    json.Text("severity", SeverityName(problem.severity));
    WriteBytes(json, problem.bytes);
    json.Text("message", problem.message);
    json.Key("suggestion");
    problem.suggestion ? json.Text(*problem.suggestion) : json.Null();
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string ToJsonLine(const Explanation& explanation) {
  JsonWriter json;
  json.BeginObject();
  json.Text("resource_name", explanation.resource_name);
  json.Key("kind");
  explanation.kind.empty() ? json.Null() : json.Text(explanation.kind);
  json.Key("plain");
  json.Flag(explanation.is_plain);
  json.Key("members");
  json.BeginArray();
  for (const ExplainedMember& explained : explanation.members) WriteMember(json, explained);
  json.EndArray();
  json.Key("steers");
  json.BeginArray();
  for (const ExplainedSteer& steer : explanation.steers) {
    json.BeginObject();
    json.Text("key", steer.key);
    WriteBytes(json, steer.bytes);
    json.EndObject();
  }
  json.EndArray();
  json.Key("structure");
  json.BeginArray();
  for (const ByteRange& range : explanation.structure) WriteRange(json, range);
  json.EndArray();
  json.Key("ignored");
  json.BeginArray();
  for (const IgnoredBytes& ignored : explanation.ignored) {
    json.BeginObject();
    WriteBytes(json, ignored.bytes);
    json.Text("reason", ignored.reason);
    json.EndObject();
  }
  json.EndArray();
  WriteProblems(json, explanation.problems);
  json.EndObject();
  return json.TakeLine();
}

std::string ToJsonLine(const std::string& resource_name, std::size_t number,
                       const std::vector<Problem>& problems) {
  JsonWriter json;
  json.BeginObject();
  json.Text("resource_name", resource_name);
  json.Key("number");
  json.Integer(static_cast<std::int64_t>(number));
  WriteProblems(json, problems);
  json.EndObject();
  return json.TakeLine();
}

}  // namespace kavrix::inspect
