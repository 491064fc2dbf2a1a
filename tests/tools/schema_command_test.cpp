#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <set>

#include "tests/support/printed_documents.h"
#include "tests/support/schema.h"
#include "tests/support/tool.h"

// Tests the schemas against what the tool prints and reads, with a reader of schemas that is not ours.
namespace kavrix::test {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(SchemaCommandTest, WithoutANameListsTheNames) {
  EXPECT_THAT(SchemaNames(),
              ElementsAre("check", "compare", "compare-each", "compare-summary", "config", "decode", "encode",
                          "explain", "extract", "icons", "kinds", "shrink", "survey"));
}

TEST(SchemaCommandTest, UnknownNamesAreUsageErrorsWithTheNearest) {
  const ToolResult near = RunTool({"schema", "confg"});
  EXPECT_EQ(near.status, 2);
  EXPECT_EQ(near.output, "");
  EXPECT_THAT(near.errors, HasSubstr("no schema is called \"confg\"; did you mean \"config\"?\n"));
  EXPECT_THAT(RunTool({"schema", "gallery"}).errors, HasSubstr("; kavrix-resource schema lists them\n"));
  EXPECT_EQ(RunTool({"schema", "decode", "explain"}).status, 2);
}

void CollectReferences(const json& schema, std::set<std::string>& references) {
  for (const auto& [key, value] : schema.items()) {
    if (key == "$ref") references.insert(value);
    if (value.is_structured()) CollectReferences(value, references);
  }
}

TEST(SchemaCommandTest, EverySchemaHoldsTheDefinitionsThatItRefersToAndNoOthers) {
  for (const std::string& name : SchemaNames()) {
    const json schema = SchemaCalled(name);
    std::set<std::string> references;
    CollectReferences(schema, references);
    std::set<std::string> definitions;
    for (const auto& definition : schema.at("$defs").items())
      definitions.insert("#/$defs/" + definition.key());
    EXPECT_EQ(references, definitions) << name;
    EXPECT_EQ(schema.at("$schema"), "https://json-schema.org/draft/2020-12/schema") << name;
  }
}

TEST(SchemaCommandTest, EveryDefinitionIsUsedAsItStandsInItsFile) {
  json used;
  for (const std::string& name : SchemaNames()) {
    const json schema = SchemaCalled(name);
    for (const auto& [definition, text] : schema.at("$defs").items()) used[definition] = text;
  }
  json written;
  for (const auto& entry : std::filesystem::directory_iterator(KAVRIX_SOURCE_DIR "/schemas/definitions")) {
    std::ifstream file(entry.path());
    written.update(json::parse(file));
  }
  EXPECT_EQ(used, written) << json::diff(used, written).dump(2);
}

TEST(SchemaCommandTest, EveryLineThatIsPrintedIsTaken) {
  const auto documents = PrintedDocuments();
  for (const std::string& name : SchemaNames()) {
    ASSERT_EQ(documents.count(name), 1U) << name << ": no document of this schema is tested";
    const std::vector<std::string>& lines = documents.at(name);
    const std::vector<std::string> refusals = Refusals(name, lines);
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(refusals[i], "") << name << ": " << lines[i];
  }
}

// Whether the object may lack each of its members.
bool HasOptionalMembers(const std::string& schema, const std::string& path) {
  if (schema == "config") return true;
  if (schema == "encode") return path != "";
  const bool is_map = path == "/kinds" || path.find("/problems") != std::string::npos ||
                      path.find("/styles") != std::string::npos ||
                      path.find("/examples") != std::string::npos;
  return schema == "survey" && is_map;
}

// A document with one fault or, where nothing is wrong, one optional member less.
struct Changed {
  std::string document;
  std::string change;
  bool is_sound = false;
};

class Changer {
 public:
  Changer(std::string schema, json document) : schema_(std::move(schema)), document_(std::move(document)) {}

  std::vector<Changed> Changes() {
    ChangeAll(json::json_pointer());
    return std::move(changes_);
  }

 private:
  void Add(const json& document, const std::string& change, bool is_sound = false) {
    changes_.push_back({document.dump(), schema_ + ": " + change, is_sound});
  }

  void ChangeAll(const json::json_pointer& place) {
    const json value = document_.at(place);
    const std::string path = place.to_string();
    json changed = document_;
    changed[place] = json::parse("[[]]");
    Add(changed, path + " has another type");
    if (value.is_object()) {
      changed[place] = value;
      changed[place]["unexpected"] = 1;
      Add(changed, path + " has a member more");
      for (const auto& member : value.items()) {
        changed[place] = value;
        changed[place].erase(member.key());
        const bool is_rule = schema_ == "explain" && member.key() == "rule";
        Add(changed, path + " lacks " + member.key(), is_rule || HasOptionalMembers(schema_, path));
      }
    }
    if (!value.is_structured()) return;
    for (const auto& item : value.items()) {
      ChangeAll(value.is_array() ? place / std::stoul(item.key()) : place / item.key());
    }
  }

  const std::string schema_;
  const json document_;
  std::vector<Changed> changes_;
};

// What makes two documents of a schema differ in their members.
std::string ShapeOf(const std::string& schema, const std::string& document) {
  if (schema == "decode" || schema == "encode") return json::parse(document).at("kind").dump();
  for (const std::string origin : {R"("from":"context")", R"("from":"computed")"}) {
    if (document.find(origin) != std::string::npos) return origin;
  }
  return "";
}

// The longest document of each shape, which has all that others have.
std::vector<std::string> Longest(const std::string& schema, const std::vector<std::string>& documents) {
  std::map<std::string, std::string> longest;
  for (const std::string& text : documents) {
    std::string& known = longest[ShapeOf(schema, text)];
    if (known.size() < text.size()) known = text;
  }
  std::vector<std::string> texts;
  for (const auto& [shape, text] : longest) texts.push_back(text);
  return texts;
}

TEST(SchemaCommandTest, NoMemberMayBeMissingAddedOrOfAnotherType) {
  for (const auto& [name, documents] : PrintedDocuments()) {
    std::vector<Changed> changes;
    for (const std::string& document : Longest(name, documents)) {
      for (Changed& change : Changer(name, json::parse(document)).Changes())
        changes.push_back(std::move(change));
    }
    std::vector<std::string> changed;
    for (const Changed& change : changes) changed.push_back(change.document);
    const std::vector<std::string> refusals = Refusals(name, changed);
    for (std::size_t i = 0; i < changes.size(); ++i) {
      EXPECT_EQ(refusals[i].empty(), changes[i].is_sound) << changes[i].change << "\n" << changes[i].document;
    }
  }
}

// Replaces one text of a document by another.
struct Replacement {
  const char* schema;
  const char* found;
  const char* put;
};

TEST(SchemaCommandTest, RangesAndWordsAreKept) {
  const Replacement replacements[] = {
      {"decode", R"("direction":3)", R"("direction":32768)"},
      {"decode", R"("bubble_kind":0)", R"("bubble_kind":-1)"},
      {"decode", R"("style_word":4)", R"("style_word":44)"},
      {"decode", R"("scene":0)", R"("scene":2147483648)"},
      {"decode", R"("level":0)", R"("level":2)"},
      {"decode", R"("style_scale":[1,)", R"("style_scale":[)"},
      {"decode", R"("kind":"etaBubble")", R"("kind":"ETABubble")"},
      {"decode", R"("kind":"etaBubble")", R"("kind":"turnBubble")"},
      {"decode", R"("type":"DestNameEtaDrawDescriptor")", R"("type":"TurnArrowBubbleDrawDescriptor")"},
      {"shrink", R"("codes":[)", R"("codes":["odd",)"},
      {"check", R"("severity":"error")", R"("severity":"fatal")"},
      {"check", R"("number":)", R"("number":-)"},
      {"check", R"("bytes":[0,)", R"("bytes":[-1,)"},
      {"check", R"("code":"no-marker")", R"("code":"nomarker")"},
      {"explain", R"("from":"name")", R"("from":"names")"},
      {"explain", R"("from":"kind")", R"("from":"default","key":"mode")"},
      {"explain", R"("record":"traffic_style")", R"("record":"traffic_styles")"},
      {"survey", R"("report":1)", R"("report":2)"},
      {"survey", R"("trafficBubble":)", R"("TrafficBubble":)"},
      {"survey", R"("failed":)", R"("failed":-1)"},
      {"survey", R"("traffic_style":)", R"("traffic-style":)"},
      {"extract", R"("line":1)", R"("line":0)"},
      {"kinds", R"("way":1)", R"("way":4)"},
      {"encode", R"("mode":0)", R"("mode":2)"},
      {"encode", R"("mode":0)", R"("mode":true)"},
      {"encode", R"("mode":0)", R"("mod":0)"},
      {"icons", R"("day_id":)", R"("day_id":-)"},
      {"compare", R"("differs":)", R"("differ":)"},
      {"compare-each", R"("member":"style_name")", R"("member":"")"},
      {"compare-summary", R"("names":)", R"("names":0.)"},
  };
  const auto documents = PrintedDocuments();
  for (const Replacement& replacement : replacements) {
    const std::string what = std::string(replacement.schema) + ": " + replacement.put;
    std::string changed;
    for (const std::string& document : documents.at(replacement.schema)) {
      const std::size_t at = document.find(replacement.found);
      if (at == std::string::npos) continue;
      changed = document;
      changed.replace(at, std::string(replacement.found).size(), replacement.put);
      break;
    }
    ASSERT_NE(changed, "") << what << ": no document has " << replacement.found;
    EXPECT_NE(Refusals(replacement.schema, {changed})[0], "") << what << "\n" << changed;
  }
}

}  // namespace
}  // namespace kavrix::test
