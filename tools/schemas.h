#ifndef KAVRIX_TOOLS_SCHEMAS_H_
#define KAVRIX_TOOLS_SCHEMAS_H_

#include <vector>

// The files of schemas/ as they were when the tool was built.
namespace kavrix::tools {

struct SchemaFile {
  const char* name;  // such as "decode"
  const char* text;
};

// Every schema, ordered by name. It refers to definitions and does not hold them.
std::vector<SchemaFile> SchemaFiles();

// Files with one JSON object each: definitions by name. Names are unique in all of them.
std::vector<const char*> DefinitionFiles();

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_SCHEMAS_H_
