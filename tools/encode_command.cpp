#include "tools/encode_command.h"

#include <memory>
#include <optional>
#include <stdexcept>

#include "map_resource/bubble_kinds.h"
#include "tools/bulk.h"
#include "tools/context.h"
#include "tools/suggestion.h"
#include "util/json_value.h"
#include "util/strict_json.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

struct EncodeOptions {
  BulkOptions bulk;  // its names are the FIELDS arguments
  std::optional<std::string> kind;
  std::optional<std::string> prefix;
  bool null_delimited = false;
};

Json::Value ParseJson(const std::string& text) {
  Json::Value value;
  std::string error;
  if (!JsonUtil::ParseStrictly(text, value, error)) throw std::runtime_error("not valid JSON: " + error);
  return value;
}

// Encodes a line such as {"kind": "etaBubble", "fields": {...}}.
std::string EncodeLine(const std::string& line) {
  const Json::Value bubble = ParseJson(line);
  const Json::Value* const kind = JsonUtil::Find(bubble, "kind");
  const Json::Value* const fields = JsonUtil::Find(bubble, "fields");
  const auto kind_name = kind != nullptr ? JsonUtil::AsText(*kind) : std::nullopt;
  if (!kind_name || fields == nullptr || bubble.size() != 2) {
    throw std::runtime_error("expected {\"kind\": text, \"fields\": object} and nothing else, found " +
                             Excerpt(JsonUtil::SourceOf(bubble, line)));
  }
  return KindCalled(std::string(*kind_name)).codec.encode_fields(*fields);
}

// Returns the name with `end` after it.
std::string Ended(const std::string& name, char end) {
  if (name.find(end) != std::string::npos) {
    throw std::runtime_error("the name holds a newline, which would end it here; --null ends names in NUL");
  }
  return name + end;
}

int Run(const EncodeOptions& options) {
  SetPrefix(options.prefix);
  if (!options.bulk.names.empty() && !options.kind) {
    throw UsageError("FIELDS on the command line need --kind");
  }
  const BubbleKindInfo* const kind = options.kind ? &KindCalled(*options.kind) : nullptr;
  const char end = options.null_delimited ? '\0' : '\n';
  const auto encode = [&](const InputName& given) {
    return ResultOf([&] {
      const std::string& text = given.name;
      return Ended(kind != nullptr ? kind->codec.encode_fields(ParseJson(text)) : EncodeLine(text), end);
    });
  };
  BulkOptions bulk = options.bulk;
  bulk.what = bulk.names.empty() ? "line" : "fields";
  return WorkInBulk(bulk, encode) == 0 ? 0 : 1;
}

}  // namespace

CommandDescription EncodeCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<EncodeOptions>();
    command.Arguments("[FIELDS]...", options->bulk.names,
                      "JSON objects of fields, with --kind; without any, read lines "
                      "{\"kind\": ..., \"fields\": ...} from standard input");
    command.Text("--kind KIND", options->kind,
                 "The kind of all bubbles; each line of input is then only its fields", KindNames());
    AddInputOption(command, options->bulk, "bubbles from, one a line");
    command.Text("--prefix TEXT", options->prefix, "Prefix of the names instead of kavrix://resource/");
    command.Flag("--null", options->null_delimited, "End names in NUL, not newline");
    AddBulkOptions(command, options->bulk);
    command.Details(
        "\"kavrix-resource kinds\" shows the fields of each kind. A value that would not decode unchanged is "
        "an\n"
        "error that names the line, the field and the character; the other lines are still encoded.");
    command.ExitStatus("0 every bubble encoded; 1 a bubble failed; 2 usage, input or output error.");
    command.Example(
        R"(kavrix-resource encode --kind labelBubble '{"content":"Main St","mode":0,"direction":12}')");
    return [options] { return Run(*options); };
  };
  return {"encode", "Build resource names from JSON fields", list_options};
}

}  // namespace kavrix::tools
