#include "tools/decode_command.h"

#include <memory>
#include <optional>
#include <utility>

#include "inspect/decoded_json.h"
#include "inspect/decoder.h"
#include "map_resource/bubble_kinds.h"
#include "tools/format_option.h"
#include "tools/hints.h"
#include "tools/name_options.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

struct DecodeOptions {
  NameOptions names;
  std::string format;
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
  const EntryPoint entry_point = options.names.Entry();
  inspect::Decoder decoder(options.names.Apply(), entry_point);

  const bool as_text = options.format == "text";
  const TextOptions text_options = {options.all_members, ShowsColour()};

  Hints hints(options.names);
  const auto decode = [&](InputName name) -> NameResult {
    if (options.fields) return ResultOf([&] { return FieldsLine(name.name, entry_point); });
    const inspect::Decoded decoded = decoder.Decode(std::move(name.name));
    const std::string hint = decoded.failed ? hints.For(decoded.name) : "";
    return {as_text ? ToText(decoded, text_options) : inspect::ToJsonLine(decoded), decoded.failed, hint};
  };
  return WorkInBulk(options.names.bulk, decode) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription DecodeCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<DecodeOptions>();
    AddNameOptions(command, options->names);
    AddContextName(command, options->names);
    AddFormatOption(command, options->format, {"text", "json"});
    command.Flag("--fields", options->fields, "Print the fields of each name as JSON that encode reads");
    command.Flag("--all", options->all_members, "In text format, also show members that hold their defaults");
    command.Details("Put \"--\" before a name that begins with a dash.");
    command.ExitStatus(
        "0 every name decoded; 1 a name failed (no marker, a payload reported as broken,\n"
        "an exception); 2 usage, input or output error. A failed name does not stop the others.");
    command.Example("kavrix-resource decode 'kavrix://resource/Main St_0@12.labelBubble'");
    command.Example("kavrix-resource decode --input names.txt > descriptors.jsonl");
    return [options] { return Run(*options); };
  };
  return {"decode", "Decode resource names; show descriptors, styles and log records", list_options};
}

}  // namespace kavrix::tools
