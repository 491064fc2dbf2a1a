#include "tools/check_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "inspect/explained_json.h"
#include "inspect/problems.h"
#include "tools/hints.h"
#include "tools/name_options.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

struct CheckOptions {
  NameOptions names;
  std::string format = "text";
};

// INPUT:NUMBER:BYTE: severity: message [code]
std::string ToLines(const std::string& input, std::size_t number,
                    const std::vector<inspect::Problem>& problems) {
  std::string lines;
  for (const inspect::Problem& problem : problems) {
    const std::string byte = problem.bytes ? std::to_string(problem.bytes->begin) : "?";
    const std::string hint =
        problem.suggestion ? fmt::format("; did you mean \"{}\"?", Printable(*problem.suggestion)) : "";
    lines +=
        fmt::format("{}:{}:{}: {}: {}{} [{}]\n", Printable(input), number, byte,
                    inspect::SeverityName(problem.severity), Printable(problem.message), hint, problem.code);
  }
  return lines;
}

int Run(const CheckOptions& options) {
  options.names.Apply();
  Hints hints(options.names);
  const auto check = [&](const InputName& given) -> NameResult {
    const std::string& name = given.name;
    const std::vector<inspect::Problem> problems = inspect::ProblemsOf(name, options.names.Entry());
    if (problems.empty()) return {};
    const auto is_error = [](const inspect::Problem& problem) {
      return problem.severity == inspect::Severity::kError;
    };
    const bool fails = std::any_of(problems.begin(), problems.end(), is_error);
    const bool as_json = options.format == "json";
    return {as_json ? inspect::ToJsonLine(name, given.number, problems)
                    : ToLines(given.file, given.number, problems),
            true, fails ? hints.For(name) : ""};
  };
  return WorkInBulk(options.names.bulk, check) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription CheckCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<CheckOptions>();
    AddNameOptions(command, options->names);
    command.Choice("--format", options->format, {"text", "json"},
                   "Output format: text, one problem a line, or json, one name with problems a line");
    command.Details(
        "A problem is INPUT:NUMBER:BYTE: severity: message [code]. INPUT is the file, \"-\" for standard "
        "input,\n"
        "or \"argument\"; NUMBER the name's, from 1; BYTE its first byte, from 0, ? where JsonCpp had to\n"
        "read the payload and the place is not known.");
    command.ExitStatus("0 no problem; 1 a name has problems; 2 usage, input or output error.");
    command.Example("kavrix-resource check --input names.txt");
    return [options] { return Run(*options); };
  };
  return {"check", "Show what is wrong with resource names; silent when nothing is", list_options};
}

}  // namespace kavrix::tools
