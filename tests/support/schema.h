#ifndef KAVRIX_TESTS_SUPPORT_SCHEMA_H_
#define KAVRIX_TESTS_SUPPORT_SCHEMA_H_

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// The schemas that the tool prints, and an independent reader of such schemas.
namespace kavrix::test {

// Returns the names of all schemas.
std::vector<std::string> SchemaNames();

// Returns a schema, its members in the order in which it has them.
nlohmann::ordered_json SchemaCalled(const std::string& name);

// Returns, for each of the documents, what the schema refuses in it; empty when it takes it. Throws when the
// schema itself is not sound.
std::vector<std::string> Refusals(const std::string& schema_name, const std::vector<std::string>& documents);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_SCHEMA_H_
