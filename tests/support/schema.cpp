#include "tests/support/schema.h"

#include <stdexcept>

#include "tests/support/tool.h"

namespace kavrix::test {

std::vector<std::string> SchemaNames() { return RunTool({"schema"}).Lines(); }

nlohmann::ordered_json SchemaCalled(const std::string& name) {
  return nlohmann::ordered_json::parse(RunTool({"schema", name}).output);
}

std::vector<std::string> Refusals(const std::string& schema_name, const std::vector<std::string>& documents) {
  std::string input = RunTool({"schema", schema_name}).output;
  for (const std::string& document : documents) input += '\0' + document;
  const ToolResult result =
      RunProgram({"/usr/bin/python3", KAVRIX_SOURCE_DIR "/tests/support/validate.py"}, input);
  std::vector<std::string> refusals;
  for (const nlohmann::json& refusal : result.JsonLines()) refusals.push_back(refusal);
  if (result.status != 0 || refusals.size() != documents.size()) {
    throw std::runtime_error("schema " + schema_name + ": " + result.errors);
  }
  return refusals;
}

}  // namespace kavrix::test
