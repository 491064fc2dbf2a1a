#include "tools/schema_command.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tools/schemas.h"
#include "tools/streams.h"
#include "tools/suggestion.h"
#include "util/json_value.h"
#include "util/strict_json.h"
#include "util/utf8.h"

namespace kavrix::tools {
namespace {

using Definitions = std::map<std::string, std::string_view>;  // texts by name

Definitions ReadDefinitions() {
  Definitions definitions;
  for (const char* const text : DefinitionFiles()) {
    const Json::Value file = JsonUtil::ReadStrictly(text);
    for (const std::string& name : file.getMemberNames()) {
      if (!definitions.emplace(name, JsonUtil::SourceOf(file[name], text)).second) {
        throw std::logic_error("two definitions are called \"" + name + "\"");
      }
    }
  }
  return definitions;
}

// Adds the definitions that a schema refers to and that are not among the names yet.
void AddReferences(std::string_view schema, std::vector<std::string>& names) {
  constexpr std::string_view kReference = "\"#/$defs/";
  std::size_t at = schema.find(kReference);
  while (at != std::string_view::npos) {
    at += kReference.size();
    const std::string name(schema.substr(at, schema.find('"', at) - at));
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    at = schema.find(kReference, at);
  }
}

std::string Indented(std::string_view text) {
  std::string indented;
  for (const char c : text) {
    indented += c;
    if (c == '\n') indented += "  ";
  }
  return indented;
}

// Returns the schema with the definitions that it needs, so that it stands alone.
std::string WithDefinitions(const std::string& schema) {
  const Definitions definitions = ReadDefinitions();
  std::vector<std::string> names;
  AddReferences(schema, names);
  std::string text = schema.substr(0, schema.rfind("\n}")) + ",\n  \"$defs\": {";
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string_view definition = definitions.at(names[i]);
    AddReferences(definition, names);
    text += std::string(i == 0 ? "" : ",") + "\n    \"" + names[i] + "\": " + Indented(definition);
  }
  return text + "\n  }\n}\n";
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const SchemaFile& schema : SchemaFiles()) names.emplace_back(schema.name);
  return names;
}

std::string SchemaCalled(const std::string& name) {
  for (const SchemaFile& schema : SchemaFiles()) {
    if (schema.name == name) return WithDefinitions(schema.text);
  }
  std::string hint = DidYouMean(name, Names());
  if (hint.empty()) hint = "; kavrix-resource schema lists them";
  throw UsageError("no schema is called \"" + std::string(Excerpt(name)) + "\"" + hint);
}

std::string List() {
  std::string list;
  for (const std::string& name : Names()) list += name + '\n';
  return list;
}

int Run(const std::vector<std::string>& names) {
  Output output(false);
  output.Write(names.empty() ? List() : SchemaCalled(names[0]));
  output.Flush();
  return 0;
}

}  // namespace

CommandDescription SchemaCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto names = std::make_shared<std::vector<std::string>>();
    command.Arguments("[NAME]", *names, "What the schema is of; without it, list the names", Names());
    command.Details(
        "Prints a JSON Schema (draft 2020-12) that stands alone: \"config\" is of the configuration file,\n"
        "\"encode\" of a line that encode reads, every other of a line that the command prints as JSON.\n"
        "\"compare\" is of two names, \"compare-each\" of two configurations or two outputs of decode,\n"
        "\"compare-summary\" of --summary.");
    command.ExitStatus("0 success; 2 usage or output error, such as an unknown schema.");
    command.Example("kavrix-resource schema config > config.schema.json");
    return [names] { return Run(*names); };
  };
  return {"schema", "Print the JSON Schema of an output or of the configuration file", list_options};
}

}  // namespace kavrix::tools
