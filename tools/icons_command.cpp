#include "tools/icons_command.h"

#include <fmt/format.h>

#include <charconv>
#include <memory>
#include <optional>

#include "inspect/json_writer.h"
#include "map_resource/resource_catalogue.h"
#include "tools/error_line.h"
#include "tools/format_option.h"
#include "tools/streams.h"

namespace kavrix::tools {
namespace {

struct Icon {
  std::uint32_t day_id;
  std::uint32_t night_id;
  std::string day_description;
  std::string night_description;
};

std::vector<Icon> AllIcons() {
  std::vector<Icon> icons;
  icons.reserve(R::DayNightResourceMap.size());
  for (const auto& [day_id, night_id] : R::DayNightResourceMap) {
    icons.push_back({day_id, night_id, R::ResourceID2DescriptionMap.at(day_id),
                     R::ResourceID2DescriptionMap.at(night_id)});
  }
  return icons;
}

// Reads the whole text as a decimal number or, after "0x", a hexadecimal one.
std::optional<std::uint32_t> ToId(std::string_view text) {
  const bool is_hex = text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
  if (is_hex) text.remove_prefix(2);
  std::uint32_t id = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, id, is_hex ? 16 : 10);
  if (error != std::errc() || stop != end) return std::nullopt;
  return id;
}

bool Matches(const Icon& icon, const std::string& query) {
  if (const auto id = ToId(query)) return icon.day_id == *id || icon.night_id == *id;
  return icon.day_description.find(query) != std::string::npos ||
         icon.night_description.find(query) != std::string::npos;
}

std::string ToText(const Icon& icon) {
  return fmt::format("{:#9x}  {:#9x}  {}  {}\n", icon.day_id, icon.night_id, icon.day_description,
                     icon.night_description);
}

std::string ToJson(const Icon& icon) {
  inspect::JsonWriter json;
  json.BeginObject();
  json.Key("day_id");
  json.Integer(icon.day_id);
  json.Key("night_id");
  json.Integer(icon.night_id);
  json.Text("day_description", icon.day_description);
  json.Text("night_description", icon.night_description);
  json.EndObject();
  return json.TakeLine();
}

struct IconsOptions {
  std::vector<std::string> queries;
  std::string format;
};

int Run(const IconsOptions& options) {
  const std::vector<Icon> icons = AllIcons();
  Output output(false);
  int status = 0;
  const auto show = [&](const Icon& icon) {
    output.Write(options.format == "json" ? ToJson(icon) : ToText(icon));
  };
  if (options.queries.empty()) {
    for (const Icon& icon : icons) show(icon);
  }
  for (const std::string& query : options.queries) {
    bool found = false;
    for (const Icon& icon : icons) {
      if (!Matches(icon, query)) continue;
      found = true;
      show(icon);
    }
    if (!found) {
      status = 1;
      WriteErrorLine("no icon has the id or the text \"" + query + "\"");
    }
  }
  output.Flush();
  return status;
}

}  // namespace

CommandDescription IconsCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<IconsOptions>();
    command.Arguments("[QUERY]...", options->queries,
                      "Ids (65537, 0x10001) or parts of descriptions; without any, show all icons");
    AddFormatOption(command, options->format, {"text", "json"});
    command.ExitStatus("0 success; 1 a query finds no icon; 2 usage or output error.");
    command.Example("kavrix-resource icons --format text 0x1010b");
    return [options] { return Run(*options); };
  };
  return {"icons", "Show the built-in icons, each by day and by night", list_options};
}

}  // namespace kavrix::tools
