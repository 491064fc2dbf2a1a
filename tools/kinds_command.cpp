#include "tools/kinds_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "inspect/decoder.h"
#include "inspect/kind_json.h"
#include "map_resource/bubble_kinds.h"
#include "tools/context.h"
#include "tools/format_option.h"
#include "tools/samples.h"
#include "tools/streams.h"
#include "tools/suggestion.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

// One kind with everything that the command shows of it.
struct Kind {
  const BubbleKindInfo& info;
  std::vector<KeyInfo> keys;
  std::string sample;

  bool IsCalled(std::string_view name) const { return info.Name() == name || info.marker == name; }
};

std::string FirstSampleOf(const BubbleKindInfo& info) {
  std::string_view names = info.entry_point == EntryPoint::kMarker ? kSampleMarkerNames : kSampleNames;
  while (!names.empty()) {
    const std::string_view name = names.substr(0, names.find('\n'));
    const std::optional<BubbleKind> kind = FindBubbleKind(name);
    if ((kind ? &InfoOf(*kind) : &kMarkerNameInfo) == &info) return std::string(name);
    names.remove_prefix(std::min(name.size() + 1, names.size()));
  }
  return "";
}

std::vector<Kind> AllKinds() {
  std::vector<Kind> kinds;
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    kinds.push_back({*info, inspect::KeysOf(*info), FirstSampleOf(*info)});
  }
  return kinds;
}

const char* WayText(PayloadWay way) {
  switch (way) {
    case PayloadWay::kPrefixAndMarkerStripped:
      return "prefix and marker are stripped by length";
    case PayloadWay::kPrefixStripped:
      return "the prefix is stripped by length, the rest is split, the marker ends up in the last field";
    case PayloadWay::kWholeName:
      return "the descriptor finds its JSON object in the whole name";
  }
  return "";
}

std::string KindCodeText(const BubbleKindInfo& info) {
  return info.kind_code ? std::to_string(*info.kind_code) : "not written";
}

std::string KeyText(const KeyInfo& key) { return key.rule.empty() ? key.type : key.type + ", " + key.rule; }

std::string ToText(const Kind& kind) {
  std::string text = std::string(kind.info.marker) + "\n";
  const auto line = [&](std::string_view label, std::string_view value) {
    text += fmt::format("  {:<10}  {}\n", label, value);
  };
  line("kind code", KindCodeText(kind.info));
  line("descriptor", kind.info.descriptor_type);
  line("way", fmt::format("{}: {}", static_cast<int>(kind.info.way), WayText(kind.info.way)));
  line("grammar", kind.info.grammar);
  std::size_t width = 0;
  for (const KeyInfo& key : kind.keys) width = std::max(width, key.key.size());
  const char* label = "keys";
  for (const KeyInfo& key : kind.keys) {
    line(std::exchange(label, ""), fmt::format("{:<{}}  {}", key.key, width, KeyText(key)));
  }
  line("sample", kind.sample);
  return text;
}

std::string ToMarkdown(const Kind& kind) {
  std::string text =
      fmt::format("## `{0}`\n\nname = prefix {1} `{0}`\n\n", kind.info.marker, kind.info.grammar);
  text += fmt::format("- descriptor: `{}`, kind code: {}\n- payload: {}\n\n", kind.info.descriptor_type,
                      KindCodeText(kind.info), WayText(kind.info.way));
  text += "| carries | type |\n| --- | --- |\n";
  for (const KeyInfo& key : kind.keys) text += fmt::format("| `{}` | {} |\n", key.key, KeyText(key));
  inspect::Decoder decoder(LoadDefaultConfig(), kind.info.entry_point);
  const std::string fields = kind.info.codec.read_fields(kind.sample).value_or("{}");
  text +=
      fmt::format("\nPlacing, for `kavrix-resource encode`:\n\n```\n{{\"kind\":\"{}\",\"fields\":{}}}\n```\n",
                  kind.info.Name(), fields);
  text += fmt::format("\nDecoding:\n\n```\n{}```\n\n", tools::ToText(decoder.Decode(kind.sample), {}));
  return text;
}

struct KindsOptions {
  std::vector<std::string> names;
  std::string format;
};

int Run(const KindsOptions& options) {
  Output output(false);
  const std::vector<Kind> kinds = AllKinds();
  for (const std::string& name : options.names) {
    const auto is_called_so = [&](const Kind& kind) { return kind.IsCalled(name); };
    if (std::none_of(kinds.begin(), kinds.end(), is_called_so)) KindCalled(name);
  }
  for (const Kind& kind : kinds) {
    const auto names_it = [&](const std::string& name) { return kind.IsCalled(name); };
    if (!options.names.empty() && std::none_of(options.names.begin(), options.names.end(), names_it))
      continue;
    if (options.format == "json") output.Write(inspect::ToJsonLine(kind.info, kind.sample));
    if (options.format == "text") output.Write(ToText(kind) + "\n");
    if (options.format == "markdown") output.Write(ToMarkdown(kind));
  }
  output.Flush();
  return 0;
}

}  // namespace

CommandDescription KindsCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<KindsOptions>();
    command.Arguments("[KIND]...", options->names,
                      "Kinds, such as etaBubble, or \"marker\" for marker names; without any, show all",
                      KindNames());
    AddFormatOption(command, options->format, {"text", "json", "markdown"});
    command.ExitStatus("0 success; 2 usage or output error, such as an unknown kind.");
    command.Example("kavrix-resource kinds --format text lightWaitBubble");
    return [options] { return Run(*options); };
  };
  return {"kinds", "Show the grammar, the keys and a sample of each kind", list_options};
}

}  // namespace kavrix::tools
