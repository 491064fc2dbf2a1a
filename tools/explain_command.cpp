#include "tools/explain_command.h"

#include <memory>
#include <string>

#include "inspect/explain_name.h"
#include "inspect/explained_json.h"
#include "map_resource/encode_error.h"
#include "tools/explained_text.h"
#include "tools/format_option.h"
#include "tools/hints.h"
#include "tools/name_options.h"

namespace kavrix::tools {
namespace {

struct ExplainOptions {
  NameOptions names;
  std::string format;
  bool all_members = false;
};

int Run(const ExplainOptions& options) {
  const inspect::TransformSetup setup = options.names.Apply();
  const bool as_text = options.format == "text";
  const ExplainedTextOptions text_options = {options.all_members, ShowsColour(), TerminalWidth()};
  Hints hints(options.names);
  const auto explain = [&](const InputName& given) -> NameResult {
    const std::string& name = given.name;
    try {
      const auto explanation = inspect::ExplainName(name, options.names.Entry(), setup);
      return {as_text ? ToText(explanation, text_options) : inspect::ToJsonLine(explanation),
              explanation.has_failed, explanation.has_failed ? hints.For(name) : ""};
    } catch (const EncodeError& error) {
      return {"", true, std::string("cannot be explained: ") + error.what()};
    }
  };
  return WorkInBulk(options.names.bulk, explain) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription ExplainCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<ExplainOptions>();
    AddNameOptions(command, options->names);
    AddFormatOption(command, options->format, {"text", "json"});
    command.Flag("--all", options->all_members, "In text format, also show members that hold their defaults");
    command.Details(
        "Shows where each member of the descriptor came from: bytes of the name, a value of the "
        "configuration,\n"
        "the context, the kind, other keys, or nothing. Bytes are counted from 0, the last is not included.\n"
        "Under the name: ~ bytes of a member, - of a key that only steers, x ignored.");
    command.ExitStatus("0 every name decodes; 1 a name fails; 2 usage, input or output error.");
    command.Example(R"(kavrix-resource explain 'kavrix://resource/{"contnt":"Jam","mode":0}.trafficBubble')");
    return [options] { return Run(*options); };
  };
  return {"explain", "Explain where every member of a descriptor came from, and what is wrong", list_options};
}

}  // namespace kavrix::tools
