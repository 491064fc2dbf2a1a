#include "inspect/survey.h"

#include <utility>

#include "inspect/example.h"
#include "inspect/json_writer.h"
#include "inspect/name_reading.h"
#include "inspect/problems.h"
#include "inspect/style_origins.h"
#include "util/utf8.h"

namespace kavrix::inspect {
namespace {

constexpr std::size_t kMarkerNames = kBubbleKinds.size();
constexpr std::size_t kNoKind = kMarkerNames + 1;

std::size_t PlaceOf(const NameReading& reading) {
  if (reading.entry_point() == EntryPoint::kMarker) return kMarkerNames;
  const std::optional<BubbleKind> kind = FindBubbleKind(reading.name());
  return kind ? static_cast<std::size_t>(*kind) : kNoKind;
}

void KeepLeast(std::map<std::string, std::string>& examples, const std::string& code,
               const std::string& name) {
  const auto [example, is_new] = examples.emplace(code, name);
  if (!is_new && IsBetterExample(name, example->second)) example->second = name;
}

void WriteCounts(JsonWriter& json, const char* key, const std::map<std::string, std::uint64_t>& counts) {
  json.Key(key);
  json.BeginObject();
  for (const auto& [name, count] : counts) {
    json.Key(name);
    json.Integer(static_cast<std::int64_t>(count));
  }
  json.EndObject();
}

void WriteKind(JsonWriter& json, const SurveyReport::Kind& kind) {
  json.BeginObject();
  json.Key("names");
  json.Integer(static_cast<std::int64_t>(kind.names));
  json.Key("failed");
  json.Integer(static_cast<std::int64_t>(kind.failed));
  WriteCounts(json, "problems", kind.problems);
  WriteCounts(json, "styles", kind.styles);
  json.Key("examples");
  json.BeginObject();
  for (const auto& [code, name] : kind.examples) json.Text(code, name);
  json.EndObject();
  json.EndObject();
}

}  // namespace

SurveyedName SurveyName(const std::string& resource_name, EntryPoint entry_point) {
  const NameReading reading(resource_name, entry_point);
  SurveyedName surveyed;
  surveyed.kind = PlaceOf(reading);
  surveyed.failed = reading.HasFailed();
  for (const Problem& problem : FindProblems(reading)) surveyed.codes.insert(problem.code);
  surveyed.style_records = FindStyleRecords(resource_name, entry_point);
  return surveyed;
}

std::string_view SurveyReport::KindName(std::size_t place) {
  if (place == kMarkerNames) return "marker";
  return place == kNoKind ? "none" : kBubbleMarkers[place].substr(1);
}

void SurveyReport::Add(const std::string& resource_name, const SurveyedName& surveyed) {
  Kind& kind = kinds_[surveyed.kind];
  ++kind.names;
  kind.failed += surveyed.failed ? 1 : 0;
  for (const std::string& record : surveyed.style_records) ++kind.styles[record];
  if (surveyed.codes.empty()) return;
  const std::string printed = ToValidUtf8(resource_name);
  for (const std::string& code : surveyed.codes) {
    ++kind.problems[code];
    KeepLeast(kind.examples, code, printed);
  }
}

void SurveyReport::Merge(const SurveyReport& other) {
  if (other.Names() > kMostNames - Names()) {
    throw ReportError("more than " + std::to_string(kMostNames) + " names in all");
  }
  for (std::size_t i = 0; i < kKinds; ++i) {
    Kind& kind = kinds_[i];
    const Kind& added = other.kinds_[i];
    kind.names += added.names;
    kind.failed += added.failed;
    for (const auto& [code, count] : added.problems) kind.problems[code] += count;
    for (const auto& [record, count] : added.styles) kind.styles[record] += count;
    for (const auto& [code, name] : added.examples) KeepLeast(kind.examples, code, name);
  }
}

void SurveyReport::DropExamples() {
  for (Kind& kind : kinds_) kind.examples.clear();
}

std::uint64_t SurveyReport::Names() const {
  std::uint64_t names = 0;
  for (const Kind& kind : kinds_) names += kind.names;
  return names;
}

std::uint64_t SurveyReport::Failed() const {
  std::uint64_t failed = 0;
  for (const Kind& kind : kinds_) failed += kind.failed;
  return failed;
}

std::string SurveyReport::ToJsonLine() const {
  JsonWriter json;
  json.BeginObject();
  json.Key("report");
  json.Integer(1);
  json.Key("names");
  json.Integer(static_cast<std::int64_t>(Names()));
  json.Key("kinds");
  json.BeginObject();
  for (std::size_t i = 0; i < kKinds; ++i) {
    if (kinds_[i].names == 0) continue;
    json.Key(KindName(i));
    WriteKind(json, kinds_[i]);
  }
  json.EndObject();
  json.EndObject();
  return json.TakeLine();
}

}  // namespace kavrix::inspect
