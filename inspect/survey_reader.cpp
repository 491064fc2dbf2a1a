// Reads the reports of surveys, strictly: a report that was cut, edited or written by another version would
// spoil every report that it is merged into.

#include <algorithm>
#include <optional>

#include "inspect/survey.h"
#include "util/strict_json.h"

namespace kavrix::inspect {
namespace {

std::string Quoted(const std::string& key) { return '"' + key + '"'; }

// One object of a report, and where it stands: "kinds.trafficBubble".
class ReportObject {
 public:
  ReportObject(const Json::Value& value, std::string place) : value_(value), place_(std::move(place)) {
    if (!value.isObject()) Fail("expected an object");
  }

  // Fails unless these are its keys.
  void RequireKeys(const std::vector<std::string>& keys) const {
    for (const std::string& key : value_.getMemberNames()) {
      if (std::find(keys.begin(), keys.end(), key) == keys.end()) Fail("unknown key " + Quoted(key));
    }
    for (const std::string& key : keys) {
      if (!value_.isMember(key)) Fail("expected a key " + Quoted(key));
    }
  }

  std::vector<std::string> Keys() const { return value_.getMemberNames(); }

  ReportObject Object(const std::string& key) const { return {value_[key], PlaceOf(key)}; }

  std::uint64_t Count(const std::string& key, std::uint64_t least, std::uint64_t most) const {
    const Json::Value& count = value_[key];
    if (!count.isUInt64() || count.type() == Json::realValue || count.asUInt64() < least ||
        count.asUInt64() > most) {
      FailAt(PlaceOf(key), "expected a count from " + std::to_string(least) + " to " + std::to_string(most));
    }
    return count.asUInt64();
  }

  std::string Text(const std::string& key) const {
    if (!value_[key].isString()) FailAt(PlaceOf(key), "expected a text");
    return value_[key].asString();
  }

  [[noreturn]] void Fail(const std::string& message) const { FailAt(place_, message); }

 private:
  [[noreturn]] static void FailAt(const std::string& place, const std::string& message) {
    throw ReportError(place.empty() ? message : place + ": " + message);
  }
  std::string PlaceOf(const std::string& key) const { return place_.empty() ? key : place_ + '.' + key; }

  const Json::Value& value_;
  const std::string place_;
};

std::map<std::string, std::uint64_t> ReadCounts(const ReportObject& object, std::uint64_t most) {
  std::map<std::string, std::uint64_t> counts;
  for (const std::string& key : object.Keys()) counts[key] = object.Count(key, 1, most);
  return counts;
}

SurveyReport::Kind ReadKind(const ReportObject& object) {
  object.RequireKeys({"names", "failed", "problems", "styles", "examples"});
  SurveyReport::Kind kind;
  kind.names = object.Count("names", 1, SurveyReport::kMostNames);
  kind.failed = object.Count("failed", 0, kind.names);
  kind.problems = ReadCounts(object.Object("problems"), kind.names);
  kind.styles = ReadCounts(object.Object("styles"), kind.names);
  const ReportObject examples = object.Object("examples");
  for (const std::string& code : examples.Keys()) {
    if (kind.problems.count(code) == 0) examples.Fail("no problem is called " + Quoted(code));
    kind.examples[code] = examples.Text(code);
  }
  return kind;
}

std::size_t PlaceOfKind(const std::string& name, const ReportObject& kinds) {
  for (std::size_t place = 0; place < SurveyReport::kKinds; ++place) {
    if (SurveyReport::KindName(place) == name) return place;
  }
  kinds.Fail("no kind is called " + Quoted(name));
}

void RequireVersion(const Json::Value& root) {
  const Json::Value& version = root["report"];
  if (version.isNull()) throw ReportError("not the report of a survey: expected a key \"report\"");
  if (version != 1) throw ReportError("report: expected version 1, which is all that this tool reads");
}

}  // namespace

SurveyReport SurveyReport::Read(std::string_view json) {
  Json::Value value;
  try {
    value = JsonUtil::ReadStrictly(json);
  } catch (const JsonUtil::JsonError& error) {
    throw ReportError(error.what());
  }
  const ReportObject root(value, "");
  RequireVersion(value);
  root.RequireKeys({"report", "names", "kinds"});
  SurveyReport report;
  const ReportObject kinds = root.Object("kinds");
  for (const std::string& name : kinds.Keys()) {
    report.kinds_[PlaceOfKind(name, kinds)] = ReadKind(kinds.Object(name));
  }
  if (report.Names() != root.Count("names", 0, kMostNames)) {
    root.Fail("names: expected the sum of the kinds, " + std::to_string(report.Names()));
  }
  return report;
}

}  // namespace kavrix::inspect
