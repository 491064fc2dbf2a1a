#include "tools/shrink_command.h"

#include <memory>
#include <optional>
#include <string>

#include "inspect/decoded_json.h"
#include "inspect/decoder.h"
#include "inspect/json_writer.h"
#include "inspect/problems.h"
#include "inspect/shrink.h"
#include "tools/format_option.h"
#include "tools/name_options.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

struct ShrinkOptions {
  NameOptions names;
  std::string format;
};

int Run(const ShrinkOptions& options) {
  const EntryPoint entry_point = options.names.Entry();
  inspect::Decoder decoder(options.names.Apply(), entry_point);
  const auto shrink = [&](const InputName& given) -> NameResult {
    const std::optional<std::string> shrunk = inspect::Shrink(given.name, entry_point);
    if (!shrunk) return {"", false, "it does not fail: there is nothing to shrink"};
    if (options.format == "text") return {*shrunk + '\n', true, ""};
    const auto problems = inspect::ProblemsOf(*shrunk, entry_point);
    return {inspect::ToJsonLine(decoder.Decode(*shrunk), problems), true, ""};
  };
  return WorkInBulk(options.names.bulk, shrink) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription ShrinkCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<ShrinkOptions>();
    AddNameOptions(command, options->names);
    AddContextName(command, options->names);
    AddFormatOption(command, options->format, {"text", "json"});
    command.Details(
        "Prints the smallest name found that fails in the same way: it is of the same kind, its first error\n"
        "has the same code, and it has no problem of another code than the name. --format json prints what\n"
        "decode does, with the codes of its problems: a line for a collection of tests.");
    command.ExitStatus(
        "as of decode: 0 no name fails; 1 a name does, and was shrunk; 2 usage, input or output\n"
        "error.");
    command.Example(R"(kavrix-resource shrink 'kavrix://resource/{"content":"Jam","scene":}.trafficBubble')");
    return [options] { return Run(*options); };
  };
  return {"shrink", "Find the smallest name that fails as a name does", list_options};
}

}  // namespace kavrix::tools
