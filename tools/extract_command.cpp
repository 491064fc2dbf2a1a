#include "tools/extract_command.h"

#include <memory>
#include <string>

#include "inspect/json_writer.h"
#include "tools/log_options.h"

namespace kavrix::tools {
namespace {

struct ExtractOptions {
  LogOptions logs;
  std::string format = "text";
  bool unique = false;

  inspect::LogLines Lines() const {
    if (logs.json) return inspect::LogLines::kJson;
    return format == "json" ? inspect::LogLines::kCountedText : inspect::LogLines::kText;
  }
};

std::string ToJsonLine(const InputName& name) {
  inspect::JsonWriter json;
  json.BeginObject();
  json.Text("resource_name", name.name);
  json.Text("file", name.file);
  json.Key("line");
  json.Integer(static_cast<std::int64_t>(name.line));
  json.Key("byte");
  json.Integer(static_cast<std::int64_t>(name.byte));
  json.EndObject();
  return json.TakeLine();
}

int Run(const ExtractOptions& options) {
  options.logs.Apply(true);
  TextNames::Options text_options;
  text_options.are_logs = true;
  text_options.tells_of_hidden_names = true;
  text_options.log_lines = options.Lines();
  text_options.unique = options.unique;
  TextNames names(options.logs.Paths(), text_options);
  const bool as_json = options.format == "json";
  const auto print = [&](InputName name) -> NameResult {
    if (as_json) return {ToJsonLine(name), false, ""};
    if (name.name.find('\n') == std::string::npos) return {std::move(name.name) + '\n', false, ""};
    return {"", true,
            "in " + name.file + ": it holds a newline, which would end it; --format json prints it"};
  };
  const bool lacks_any = WorkInBulk(names, options.logs.bulk, print) > 0;
  return lacks_any || names.HadTrouble() ? 2 : 0;
}

}  // namespace

CommandDescription ExtractCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<ExtractOptions>();
    AddLogOptions(command, options->logs,
                  "Files with any text, \"-\" for standard input; without any, standard input",
                  "Every line is JSON; names are sought in its texts, decoded");
    AddBulkOptions(command, options->logs.bulk);
    command.Choice("--format", options->format, {"text", "json"},
                   "Output format: text, one name a line, or json, with file, line and byte");
    command.Flag("--unique", options->unique, "Print each name once, where it is first; keeps all in memory");
    command.Details(
        "A name begins with the prefix. It ends with the marker after its object, which is read as the "
        "decoder\n"
        "reads it; without an object, with the first marker after \"@\" and a number, else with the last "
        "marker\n"
        "before the next name, else with the line. In the library's own log (\"[Kavrix][...]\") each "
        "request\n"
        "counts once, although several records hold its name.\n"
        "Lines count from 1, bytes in the line from 0.");
    command.ExitStatus(
        "0, also when there is no name; 2 usage, input or output error. A file that cannot be\n"
        "read does not stop the others.");
    command.Example("kavrix-resource extract --unique client.log");
    return [options] { return Run(*options); };
  };
  return {"extract", "Find the resource names in logs and other texts", list_options};
}

}  // namespace kavrix::tools
