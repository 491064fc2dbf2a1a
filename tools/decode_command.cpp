#include "tools/decode_command.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "inspect/decoded_json.h"
#include "inspect/decoder.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_manager.h"
#include "tools/bulk.h"
#include "tools/context.h"
#include "tools/format_option.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

struct DecodeOptions {
  BulkOptions bulk;
  std::string format;
  std::optional<std::string> config_path;
  std::optional<std::string> prefix;
  std::optional<std::string> context_name;
  bool marker = false;
  bool all_members = false;
  bool fields = false;
};

// Returns {"kind": ..., "fields": ...}, as "encode" reads it. Throws for a name that has no such form.
std::string FieldsLine(const std::string& name, EntryPoint entry_point) {
  const std::optional<BubbleKind> kind = FindBubbleKind(name);
  const bool is_marker_name = entry_point == EntryPoint::kMarker;
  if (!is_marker_name && !kind) throw std::runtime_error("the name holds no marker");
  const BubbleKindInfo& info = is_marker_name ? kMarkerNameInfo : InfoOf(*kind);
  const std::string kind_name(info.Name());
  std::optional<std::string> fields;
  try {
    fields = info.codec.read_fields(name);
  } catch (const std::out_of_range&) {
    throw std::runtime_error("the name is shorter than the prefix");
  }
  if (!fields) throw std::runtime_error(kind_name + ": the payload does not parse");
  return "{\"kind\":\"" + kind_name + "\",\"fields\":" + *fields + "}\n";
}

int Run(const DecodeOptions& options) {
  if (options.prefix) MapResourceManager::kavrix_resource_prefix = options.prefix->c_str();
  const inspect::TransformSetup setup = options.config_path
                                            ? LoadConfig(*options.config_path, options.context_name)
                                            : LoadDefaultConfig(options.context_name);
  const EntryPoint entry_point = options.marker ? EntryPoint::kMarker : EntryPoint::kBubble;
  inspect::Decoder decoder(setup, entry_point);

  const bool as_text = options.format == "text";
  const char* const no_colour = std::getenv("NO_COLOR");
  const bool colour = ToTerminal() && (no_colour == nullptr || *no_colour == '\0');
  const TextOptions text_options = {options.all_members, colour};

  const auto decode = [&](std::string name) -> NameResult {
    if (options.fields) return ResultOf([&] { return FieldsLine(name, entry_point); });
    const inspect::Decoded decoded = decoder.Decode(std::move(name));
    return {as_text ? ToText(decoded, text_options) : inspect::ToJsonLine(decoded), decoded.failed, ""};
  };
  return WorkInBulk(options.bulk, decode) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription DecodeCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<DecodeOptions>();
    command.Arguments("NAME", options->bulk.names,
                      "Resource names; without any, read one a line from standard input");
    AddFormatOption(command, options->format, {"text", "json"});
    command.Text("--config", options->config_path, "Configuration file instead of the built-in one");
    command.Text("--prefix", options->prefix, "Prefix of the names instead of kavrix://resource/");
    command.Text("--context-name", options->context_name, "Context name in the log records");
    command.Flag("--marker", options->marker, "The names are marker names, not bubble names");
    AddBulkOptions(command, options->bulk);
    command.Flag("--null", options->bulk.null_delimited, "Names on standard input end in NUL, not newline");
    command.Flag("--fields", options->fields, "Print the fields of each name as JSON that encode reads");
    command.Flag("--all", options->all_members, "In text format, also show members that hold their defaults");
    command.Footer(
        "Exit status: 0 every name decoded; 1 a name failed (no marker, a payload that does not parse,\n"
        "an exception); 2 usage, input or output error. A failed name does not stop the others.\n"
        "Put \"--\" before a name that begins with a dash.");
    return [options] { return Run(*options); };
  };
  return {"decode", "Decode resource names; show descriptors, styles and log records", list_options};
}

}  // namespace kavrix::tools
