#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "config/bubble_layer_config_file.h"
#include "descriptors/descriptors.h"
#include "map_resource/bubble_kinds.h"
#include "tests/support/read_file.h"
#include "tests/support/schema.h"
#include "tests/support/tool.h"

// Tests that the schemas name what the library's own lists hold: a kind, a member, a key or a record that is
// forgotten there fails here by its name.
namespace kavrix::test {
namespace {

using nlohmann::ordered_json;

const BubbleLayerConfigContainer kLayer;

// The names of the members and, as a schema would say it, their types.
class MemberTypes : public MemberVisitor {
 public:
  void Integer(const char* name, std::int64_t) override { Add(name, "integer"); }
  void Flag(const char* name, bool) override { Add(name, "boolean"); }
  void Real(const char* name, float) override { Add(name, "number"); }
  void Text(const char* name, const std::string&) override { Add(name, "string"); }
  void BeginList(const char* name) override {
    Add(name, "array");
    is_inside_ = true;
  }
  void EndList() override { is_inside_ = false; }
  void BeginObject() override {}
  void EndObject() override {}

  std::vector<std::pair<std::string, std::string>> types;

 private:
  void Add(const char* name, const char* type) {
    if (!is_inside_) types.emplace_back(name, type);
  }

  bool is_inside_ = false;
};

class SchemaListsTest : public ::testing::Test {
 protected:
  static const ordered_json& Decode() {
    static const ordered_json schema = SchemaCalled("decode");
    return schema;
  }
  static const ordered_json& Definition(const std::string& name) {
    static const ordered_json none = ordered_json::object();
    const ordered_json& definitions = Decode().at("$defs");
    return definitions.count(name) == 0 ? none : definitions.at(name);
  }

  // The type of a schema that may refer to a definition; of several types the first.
  static std::string TypeOf(const ordered_json& schema) {
    if (schema.count("$ref") != 0) {
      const std::string reference = schema.at("$ref");
      return TypeOf(Definition(reference.substr(reference.rfind('/') + 1)));
    }
    const ordered_json& type = schema.at("type");
    return type.is_array() ? type[0] : type;
  }
  static std::vector<std::pair<std::string, std::string>> TypesIn(const std::string& definition) {
    std::vector<std::pair<std::string, std::string>> types;
    const ordered_json& object = Definition(definition);
    if (object.empty()) return {{definition, "is not defined"}};
    for (const auto& [name, schema] : object.at("properties").items())
      types.emplace_back(name, TypeOf(schema));
    return types;
  }
  template <class Descriptor>
  static void ExpectOwnMembers(const std::string& kind) {
    MemberTypes members;
    const Descriptor descriptor;
    descriptor.VisitOwnMembers(members);
    EXPECT_EQ(TypesIn(descriptor.TypeName()), members.types)
        << kind << ": schemas/definitions/descriptors.json differs from " << descriptor.TypeName();
  }
};

TEST_F(SchemaListsTest, MembersOfEveryKindsDescriptorAreNamed) {
#define KAVRIX_BUBBLE_KIND(Kind, stem, marker, Descriptor, Parse, Encode) ExpectOwnMembers<Descriptor>(#stem);
#include "map_resource/bubble_kinds.def"
  ExpectOwnMembers<MarkerDrawDescriptor>("marker_name");
  MemberTypes base;
  BubbleDrawDescriptor().VisitBaseMembers(base);
  EXPECT_EQ(TypesIn("base_members"), base.types);
}

TEST_F(SchemaListsTest, KindsAndTheTypesThatTheyDecodeToAreNamed) {
  std::map<std::string, std::string> types;
  for (const ordered_json& rule : Definition("descriptor_of_kind").at("allOf")) {
    const std::string kind = rule.at("/if/properties/kind"_json_pointer).value("const", "marker");
    types[kind] = rule.at("/then/properties/descriptor/properties/type/const"_json_pointer);
  }
  std::vector<std::string> kinds;
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    const std::string kind(info->Name());
    EXPECT_EQ(types[kind], info->descriptor_type) << kind << ": wrong in schemas/definitions/kinds.json";
    if (info->entry_point == EntryPoint::kBubble) kinds.push_back(kind);
  }
  EXPECT_EQ(types.size(), AllKindInfos().size());
  EXPECT_EQ(Definition("bubble_kind").at("enum").get<std::vector<std::string>>(), kinds);
}

TEST_F(SchemaListsTest, EveryDescriptorTypeHasItsMembers) {
  std::vector<std::string> types;
  for (const ordered_json& rule : Definition("descriptor").at("allOf")) {
    const std::string type = rule.at("/if/properties/type/const"_json_pointer);
    EXPECT_EQ(rule.at("/then/properties/own/$ref"_json_pointer), "#/$defs/" + type);
    types.push_back(type);
  }
  EXPECT_EQ(Definition("descriptor_type").at("enum"), ordered_json(types));
}

// The types of a kind's fields by their paths, as "kinds" names them.
void CollectKeys(const ordered_json& fields, const std::string& path,
                 std::map<std::string, std::string>& keys) {
  const std::map<std::string, std::string> types = {
      {"#/$defs/int32", "integer"}, {"#/$defs/int16", "integer, low 16 bits"}, {"#/$defs/flag", "flag"}};
  for (const auto& [key, schema] : fields.at("properties").items()) {
    std::string& type = keys[path + key];
    if (schema.count("$ref") != 0) {
      type = types.at(schema.at("$ref"));
    } else if (schema.at("type") == "string") {
      type = "text";
    } else if (schema.at("items").at("type") == "string") {
      type = "array of texts";
    } else {
      type = "array of objects";
      CollectKeys(schema.at("items"), path + key + "[].", keys);
    }
  }
}

TEST_F(SchemaListsTest, KeysOfEveryKindAreNamed) {
  const ordered_json encode = SchemaCalled("encode");
  std::map<std::string, std::string> rules;
  for (const ordered_json& rule : encode.at("allOf")) {
    rules[rule.at("/if/properties/kind/const"_json_pointer)] =
        rule.at("/then/properties/fields/$ref"_json_pointer);
  }
  for (const BubbleKindInfo* const info : AllKindInfos()) {
    const std::string kind(info->Name());
    const std::string definition = "fields_of_" + kind;
    EXPECT_EQ(rules[kind], "#/$defs/" + definition) << kind << ": schemas/encode.schema.json lacks it";
    ASSERT_EQ(encode.at("$defs").count(definition), 1U) << kind;
    std::map<std::string, std::string> named;
    CollectKeys(encode.at("$defs").at(definition), "", named);
    KeyLister lister;
    info->codec.list_keys(lister);
    std::map<std::string, std::string> keys;
    for (const KeyInfo& key : lister.keys()) keys[key.key] = key.type;
    EXPECT_EQ(named, keys) << kind << ": schemas/definitions/fields.json differs from its key list";
  }
  EXPECT_EQ(rules.size(), AllKindInfos().size());
}

TEST_F(SchemaListsTest, StyleRecordsAndTheirValuesAreNamed) {
  const ordered_json config = SchemaCalled("config");
  std::vector<std::string> names;
  const auto expect_values = [&](const std::string& name, std::size_t count, const ordered_json& record) {
    names.push_back(name);
    const std::string definition = "values_of_" + name;
    EXPECT_EQ(record.at("/properties/values/$ref"_json_pointer), "#/$defs/" + definition);
    ordered_json values = ordered_json::array();
    for (std::size_t number = 1; number <= count; ++number) {
      values.push_back({{"$ref", IsFloatValue(name, number) ? "#/$defs/real" : "#/$defs/word"}});
    }
    EXPECT_EQ(config.at("$defs").at(definition).at("prefixItems"), values) << name;
    EXPECT_EQ(config.at("$defs").at(definition).at("items"), false) << name;
  };
  const ordered_json& layer = config.at("/properties/bubble_layer/properties"_json_pointer);
  ForEachStyleRecord(kLayer, [&](const char* name, const auto& record) {
    ASSERT_EQ(layer.count(name), 1U) << name << ": schemas/config.schema.json lacks it";
    expect_values(name, record.values.size(), layer.at(name));
  });
  EXPECT_EQ(layer.size(), names.size());
  expect_values("marker_bubble", MarkerBubbleConfig::kValueCount,
                config.at("/properties/marker_bubble"_json_pointer));
  EXPECT_EQ(SchemaCalled("survey").at("/$defs/style_record/enum"_json_pointer), ordered_json(names));
}

TEST_F(SchemaListsTest, ProblemCodesAreThoseOfTheDocument) {
  const std::string document = ReadFile(KAVRIX_SOURCE_DIR "/docs/explain.md");
  const std::regex row("\n\\| `([a-z0-9-]+)` \\|");
  std::vector<std::string> codes;
  for (std::sregex_iterator match(document.begin(), document.end(), row), end; match != end; ++match) {
    codes.push_back((*match)[1]);
  }
  EXPECT_EQ(SchemaCalled("check").at("/$defs/problem_code/enum"_json_pointer), ordered_json(codes));
}

// Whether the loader takes a configuration.
bool IsLoaded(const std::string& text) {
  try {
    ParseBubbleLayerConfig(text);
    return true;
  } catch (const ConfigError&) {
    return false;
  }
}

// Not compared: keys that stand twice, which readers of JSON do not tell, and 1.0 as an integer, which JSON
// Schema takes and the loader refuses.
TEST_F(SchemaListsTest, ConfigurationsAreTakenAsTheLoaderTakesThem) {
  std::vector<std::string> texts = {"{}",
                                    "[1]",
                                    R"({"bubble_layers":{}})",
                                    R"({"context_name":"主图","multi_light_type":-2147483648})",
                                    R"({"context_name":5})",
                                    R"({"context_name":null})",
                                    R"({"multi_light_type":"1"})",
                                    R"({"multi_light_type":1.5})",
                                    R"({"multi_light_type":2147483648})",
                                    R"({"bubble_layer":[]})",
                                    R"({"bubble_layer":{}})",
                                    R"({"bubble_layer":{"trafic_style":{}}})",
                                    R"({"bubble_layer":{"marker_bubble":{}}})",
                                    R"({"bubble_layer":{"traffic_style":[1,2]}})",
                                    R"({"bubble_layer":{"traffic_style":{"value":[]}}})",
                                    R"({"bubble_layer":{"traffic_style":{"name":7}}})",
                                    R"({"bubble_layer":{"traffic_style":{"values":5}}})",
                                    R"({"marker_bubble":{"style":1}})",
                                    R"({"marker_bubble":{"values":[0,0,"1"]}})",
                                    R"({"marker_bubble":{"values":[0,0,0,0,0]}})",
                                    R"({"marker_bubble":{"name":"m","values":[0,"0xFF000000",-0.0,0]}})"};
  for (const std::string value : {"null",
                                  "true",
                                  "[]",
                                  "{}",
                                  R"("")",
                                  R"("0x")",
                                  R"("ff")",
                                  R"("255")",
                                  R"("0XFF")",
                                  R"("0xfg")",
                                  R"("0x100000000")",
                                  R"("0x00000000ffffffff")",
                                  R"("0xFfffFfff")",
                                  R"(" 0xff")",
                                  R"("0xff ")",
                                  R"("0x-1")",
                                  R"("-0x1")",
                                  R"("#ff0000")",
                                  "0",
                                  "-1",
                                  "4294967295",
                                  "4294967296",
                                  "18446744073709551615",
                                  "1.5",
                                  "1e400",
                                  "3.4028235e38",
                                  "3.5e38",
                                  "-3.5e38",
                                  "340282356779733661637539395458142568447",
                                  "340282356779733661637539395458142568448"}) {
    texts.push_back(R"({"bubble_layer":{"camera_style":{"values":[)" + value + "]}}}");
    texts.push_back(R"({"bubble_layer":{"route_label_style":{"values":[0,0,0,)" + value + "]}}}");
  }
  ForEachStyleRecord(kLayer, [&](const std::string& name, const auto& record) {
    std::string values = "0";
    for (std::size_t i = 1; i < record.values.size(); ++i) values += ",0";
    texts.push_back(R"({"bubble_layer":{")" + name + R"(":{"values":[)" + values + "]}}}");
    texts.push_back(R"({"bubble_layer":{")" + name + R"(":{"values":[)" + values + ",0]}}}");
  });
  const std::vector<std::string> refusals = Refusals("config", texts);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(refusals[i].empty(), IsLoaded(texts[i])) << texts[i] << "\n" << refusals[i];
  }
}

}  // namespace
}  // namespace kavrix::test
