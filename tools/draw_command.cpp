#include "tools/draw_command.h"

#include <memory>
#include <string>

#include "inspect/decoder.h"
#include "inspect/drawn_name.h"
#include "inspect/problems.h"
#include "tools/error_line.h"
#include "tools/hints.h"
#include "tools/name_options.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

std::string OnlyName(const BulkOptions& options) {
  std::vector<std::string> names = options.names;
  if (names.empty() || options.input) {
    TextNames input = InputNames(options);
    for (std::vector<InputName> next; names.size() < 2 && input.Take(1, next); next.clear()) {
      names.push_back(next[0].name);
    }
    if (input.HadTrouble()) throw ToldTrouble();
  }
  if (names.size() != 1)
    throw UsageError("expected one name, as an argument, in the file or on standard input");
  return names[0];
}

int Run(const NameOptions& options) {
  const inspect::TransformSetup setup = options.Apply();
  inspect::Decoder decoder(setup, options.Entry());
  const inspect::Decoded decoded = decoder.Decode(OnlyName(options.bulk));
  const std::string problem = inspect::WhyFailed(decoded, inspect::ProblemsOf(decoded.name, options.Entry()));
  Output output(false);
  output.Write(inspect::PictureOf(decoded, options.Entry(), problem) + '\n');
  output.Flush();
  if (!decoded.failed) return 0;
  WriteErrorLine(problem);
  const std::string hint = Hints(options).For(decoded.name);
  if (!hint.empty()) WriteErrorLine(hint);
  return 1;
}

}  // namespace

CommandDescription DrawCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<NameOptions>();
    AddDrawnNameOptions(command, *options, "[NAME]",
                        "One resource name; without it, read from standard input");
    command.Details(
        "Prints one SVG. The picture is schematic: it shows what a descriptor says, not how a client draws "
        "it.");
    command.ExitStatus(
        "0 the name decodes; 1 it fails, and the picture says why; 2 usage, input or output error.");
    command.Example("kavrix-resource draw 'kavrix://resource/Main St_0@12.labelBubble' > bubble.svg");
    return [options] { return Run(*options); };
  };
  return {"draw", "Draw the bubble of a resource name, as SVG", list_options};
}

}  // namespace kavrix::tools
