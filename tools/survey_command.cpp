#include "tools/survey_command.h"

#include <fmt/format.h>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "inspect/survey.h"
#include "tools/error_line.h"
#include "tools/format_option.h"
#include "tools/log_options.h"
#include "tools/streams.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

using inspect::SurveyReport;

struct SurveyOptions {
  LogOptions logs;
  std::string format;
  bool extract = false;
  bool merge = false;
  bool no_examples = false;
  bool marker = false;
  bool null_delimited = false;
};

// A report, and whether all of the input is in it.
struct Result {
  SurveyReport report;
  bool had_trouble = false;
};

Result SurveyNames(const SurveyOptions& options) {
  options.logs.Apply(options.extract);
  TextNames::Options text_options;
  text_options.null_delimited = options.null_delimited;
  text_options.are_logs = options.extract;
  text_options.tells_of_hidden_names = true;
  if (options.logs.json) text_options.log_lines = inspect::LogLines::kJson;
  TextNames names(options.logs.Paths(), text_options);
  const EntryPoint entry_point = options.marker ? EntryPoint::kMarker : EntryPoint::kBubble;
  Result result;
  std::mutex mutex;
  const auto survey = [&](const InputName& name) -> NameResult {
    const inspect::SurveyedName surveyed = inspect::SurveyName(name.name, entry_point);
    const std::lock_guard<std::mutex> lock(mutex);
    result.report.Add(name.name, surveyed);
    return {"", surveyed.failed, ""};
  };
  WorkInBulk(names, options.logs.bulk, survey);
  result.had_trouble = names.HadTrouble();
  return result;
}

Result MergeReports(const SurveyOptions& options) {
  TextNames lines(options.logs.Paths(), {});
  Result result;
  for (std::vector<InputName> line; lines.Take(1, line); line.clear()) {
    const std::string& text = line[0].name;
    if (text.empty()) continue;
    try {
      result.report.Merge(SurveyReport::Read(text));
    } catch (const inspect::ReportError& error) {
      result.had_trouble = true;
      WriteErrorLine(line[0].file + ":" + std::to_string(line[0].line) + ": " + error.what() +
                     "; this report is left out");
    }
  }
  result.had_trouble |= lines.HadTrouble();
  return result;
}

std::string Joined(const std::map<std::string, std::uint64_t>& counts) {
  std::string text;
  for (const auto& [name, count] : counts) {
    text += fmt::format("{}{} {}", text.empty() ? "" : ", ", Printable(name), count);
  }
  return text;
}

// The last column may be empty.
std::string Row(std::string row) { return row.erase(row.find_last_not_of(' ') + 1) + '\n'; }

// A table of kinds, then the problems of each, for a person to read.
std::string ToText(const SurveyReport& report) {
  std::string text = fmt::format("{} names, {} failed\n", report.Names(), report.Failed());
  if (report.Names() == 0) return text;
  constexpr const char* kKindRow = "{:<25} {:>12} {:>12}  {}";
  constexpr const char* kProblemRow = "{:<25} {:<14} {:>10}  {}";
  text += '\n' + Row(fmt::format(kKindRow, "kind", "names", "failed", "style records"));
  std::string problems;
  for (std::size_t i = 0; i < SurveyReport::kKinds; ++i) {
    const SurveyReport::Kind& kind = report.kinds()[i];
    if (kind.names == 0) continue;
    const std::string_view name = SurveyReport::KindName(i);
    text += Row(fmt::format(kKindRow, name, kind.names, kind.failed, Joined(kind.styles)));
    for (const auto& [code, count] : kind.problems) {
      const auto example = kind.examples.find(code);
      const std::string shown = example == kind.examples.end() ? "" : Printable(example->second);
      problems += Row(fmt::format(kProblemRow, name, Printable(code), count, shown));
    }
  }
  if (problems.empty()) return text;
  return text + '\n' + Row(fmt::format(kProblemRow, "kind", "problem", "names", "least example")) + problems;
}

void RequireMeaning(const SurveyOptions& options) {
  const LogOptions& logs = options.logs;
  if (options.merge && (options.extract || options.marker || options.null_delimited || logs.prefix ||
                        logs.bulk.jobs != 1 || logs.json)) {
    throw UsageError("--merge takes reports, and no option for names");
  }
  if (logs.json && !options.extract) throw UsageError("--json is for --extract");
  if (options.extract && options.null_delimited) {
    throw UsageError("--null is for names one after the other, not for --extract");
  }
}

int Run(const SurveyOptions& options) {
  RequireMeaning(options);
  Result result = options.merge ? MergeReports(options) : SurveyNames(options);
  if (options.no_examples) result.report.DropExamples();
  Output output(false);
  output.Write(options.format == "text" ? ToText(result.report) : result.report.ToJsonLine());
  output.Flush();
  return result.had_trouble ? 2 : 0;
}

}  // namespace

CommandDescription SurveyCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<SurveyOptions>();
    AddLogOptions(command, options->logs,
                  "Files with names one a line, with logs, or with reports; without any, standard input",
                  "With --extract: every line of the logs is JSON");
    AddJobs(command, options->logs.bulk);
    options->logs.bulk.prints_results = false;
    command.Flag("--extract", options->extract, "The files are logs; survey the names that extract finds");
    command.Flag("--merge", options->merge, "The files hold reports, one a line; make one of them");
    command.Flag("--no-examples", options->no_examples, "Leave out the examples: names hold destinations");
    command.Flag("--marker", options->marker, "The names are marker names, not bubble names");
    command.Flag("--null", options->null_delimited, "Names end in NUL, not newline");
    AddFormatOption(command, options->format, {"text", "json"});
    command.Details(
        "Counts the names of each kind, those that fail, those with problems by code, and those that use a\n"
        "style record. An example is the shortest name with the problem, the first by its bytes of those.\n"
        "Reports merge in any order and grouping to the report of all their names.");
    command.ExitStatus(
        "0, whatever failed; 2 usage, input or output error. A file or report that cannot be\n"
        "read does not stop the others; a report that is not sound is left out.");
    command.Example("kavrix-resource survey --extract --format text client.log");
    return [options] { return Run(*options); };
  };
  return {"survey", "Count kinds, failures, problems and style records of many names", list_options};
}

}  // namespace kavrix::tools
