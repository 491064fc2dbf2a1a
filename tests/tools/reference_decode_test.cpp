// The tool's JSON lines against the reference decoder, under configurations, prefixes and context names drawn
// from a seed.

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <locale>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

#include "fuzz/vocabulary.h"
#include "map_resource/map_resource_manager.h"
#include "tests/reference/reference_decoder.h"
#include "tests/support/effort.h"
#include "tests/support/mixed_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

using nlohmann::json;

// Text as JSON can carry it: U+FFFD for what is not UTF-8.
json Text(const std::string& text) {
  return json::parse(json(text).dump(-1, ' ', false, json::error_handler_t::replace));
}

// Members as JSON, lists as arrays of values or objects.
class MemberJson : public MemberVisitor {
 public:
  void Integer(const char* name, std::int64_t value) override { Put(name, value); }
  void Flag(const char* name, bool value) override { Put(name, value); }
  void Real(const char* name, float value) override { Put(name, value); }
  void Text(const char* name, const std::string& value) override { Put(name, test::Text(value)); }
  void BeginList(const char* name) override { list_ = &(members_[name] = json::array()); }
  void EndList() override { list_ = nullptr; }
  void BeginObject() override { list_->push_back(json::object()); }
  void EndObject() override {}

  const json& members() const { return members_; }

 private:
  void Put(const std::string& name, const json& value) {
    if (list_ == nullptr) {
      members_[name] = value;
    } else if (name.empty()) {
      list_->push_back(value);
    } else {
      list_->back()[name] = value;
    }
  }

  json members_ = json::object();
  json* list_ = nullptr;
};

json ToJson(const BubbleDrawDescriptor& descriptor) {
  MemberJson base;
  descriptor.VisitBaseMembers(base);
  MemberJson own;
  descriptor.VisitOwnMembers(own);
  return {{"type", descriptor.TypeName()}, {"base", base.members()}, {"own", own.members()}};
}

// The line with each real as the float that it was printed from.
json WithFloats(json line) {
  if (line.is_number_float()) return static_cast<float>(line.get<double>());
  if (line.is_structured()) {
    for (json& item : line) item = WithFloats(item);
  }
  return line;
}

class ReferenceDecodeTest : public ::testing::Test {
 protected:
  ~ReferenceDecodeTest() override {
    MapResourceManager::kavrix_resource_prefix = "kavrix://resource/";
    std::remove(config_path_.c_str());
  }

  template <class Value>
  Value OneOf(std::initializer_list<Value> values) {
    return values.begin()[random_() % values.size()];
  }

  // A configuration file, and a context that holds the same.
  void DrawConfiguration() {
    const std::string file_context = OneOf<std::string>({"main-map", "", "副图", "map \"2\""});
    const bool is_overridden = random_() % 3 == 0;
    context_name_ = is_overridden ? OneOf<std::string>({"other", ""}) : file_context;
    context_ = std::make_shared<KavrixContext>(context_name_);
    context_->multi_light_type =
        OneOf({0, 3, -1, 40000, 70000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
    json layer = json::object();
    BubbleLayerConfigContainer config;
    ForEachStyleRecord(config, [&](const char* name, auto& record) {
      if (random_() % 20 != 0) layer[name] = DrawRecord(name, record);
    });
    context_->SetBubbleLayerConfig(config);
    marker_bubble_ = {};
    std::ofstream(config_path_) << json{{"context_name", file_context},
                                        {"multi_light_type", context_->multi_light_type.load()},
                                        {"bubble_layer", layer},
                                        {"marker_bubble", DrawRecord("marker_bubble", marker_bubble_)}};
    options_ = {"decode", "--format", "json", "--null", "--config", config_path_};
    if (is_overridden) options_.insert(options_.end(), {"--context-name", context_name_});
  }

  void DrawEntryAndPrefix() {
    is_marker_ = random_() % 6 == 0;
    if (is_marker_) options_.emplace_back("--marker");
    prefix_ =
        OneOf<std::string>({usual_prefix_, usual_prefix_, "", "p", "app_with@a.long/prefix/://", "图层://"});
    MapResourceManager::kavrix_resource_prefix = prefix_.c_str();
    if (prefix_ != usual_prefix_) options_.insert(options_.end(), {"--prefix", prefix_});
  }

  std::string DrawName(MixedNames& names) {
    const std::vector<std::string>& markers = fuzz::Words().markers;
    if (random_() % 10 == 0) return markers[random_() % markers.size()];  // shorter than some prefixes
    std::string name = names.Next();
    if (name.rfind(usual_prefix_, 0) == 0) name.replace(0, usual_prefix_.size(), prefix_);
    name.erase(std::remove(name.begin(), name.end(), '\0'), name.end());
    return name;
  }

  void ExpectSame(const std::vector<std::string>& names) {
    std::string input;
    for (const std::string& name : names) input += name + '\0';
    const ToolResult result = RunTool(options_, input);
    const std::vector<json> lines = result.JsonLines();
    ASSERT_EQ(result.errors, "");
    ASSERT_EQ(lines.size(), names.size());
    bool some_failed = false;
    for (std::size_t i = 0; i < names.size(); ++i) {
      json line = WithFloats(lines[i]);
      line["exception"] = line.at("exception").is_string();
      ASSERT_EQ(line, Expected(names[i])) << json(options_);
      if (Failed(line)) some_failed = true;
    }
    ASSERT_EQ(result.status, some_failed ? 1 : 0) << json(options_) << names.back();
  }

  std::mt19937 random_;

 private:
  template <class Record>
  json DrawRecord(const std::string& name, Record& record) {
    record.name = OneOf<std::string>({name, "样式 " + name, ""});
    json values = json::array();
    const std::size_t count = random_() % 8 == 0 ? random_() % record.kValueCount : record.kValueCount;
    for (std::size_t number = 1; number <= count; ++number) {
      if (IsFloatValue(name, number)) {
        record.SetFloat(number, DrawFloat());
        values.push_back(record.Float(number));
      } else {
        record.SetWord(number, random_() % 4 == 0 ? 0xFFFFFFFFU : static_cast<std::uint32_t>(random_()));
        values.push_back(WordText(record.Word(number)));
      }
    }
    return {{"name", record.name}, {"values", values}};
  }

  float DrawFloat() {
    const float number = static_cast<float>(random_() % 100000) / 7;
    return OneOf({number, -number, number * 1e-6F, number * 1e30F, number * 1e-20F * 1e-25F,
                  16777217.0F + number, 0.1F});
  }

  json WordText(std::uint32_t word) {
    if (random_() % 2 == 0) return word;
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "0x" << std::hex << word;
    return text.str();
  }

  json Expected(const std::string& name) const {
    reference::ReferenceDecoder decoder(context_);
    decoder.SetMarkerBubbleConfig(marker_bubble_);
    std::shared_ptr<BubbleDrawDescriptor> out;
    std::vector<SeenRecord> records;
    bool is_out_of_range = false;
    try {
      if (is_marker_) {
        decoder.GetMarkerDrawDescriptor(name, out, &records);
      } else {
        decoder.GetBubbleDrawDescriptor(name, out, &records);
      }
    } catch (const std::out_of_range&) {
      is_out_of_range = true;
    }
    json lines = json::array();
    for (const SeenRecord& record : records) {
      lines.push_back({{"level", record.level},
                       {"tag", record.tag},
                       {"function", record.function},
                       {"message", Text(record.message)}});
    }
    return {{"resource_name", Text(name)},
            {"kind", KindOf(name)},
            {"descriptor", out != nullptr ? ToJson(*out) : json()},
            {"records", lines},
            {"exception", is_out_of_range}};
  }

  json KindOf(const std::string& name) const {
    if (is_marker_) return nullptr;
    for (const std::string& marker : fuzz::Words().markers) {
      if (marker != ".marker" && name.find(marker) != std::string::npos) return marker.substr(1);
    }
    return nullptr;
  }

  bool Failed(const json& line) const {
    if (line.at("exception") || (!is_marker_ && line.at("kind").is_null())) return true;
    const std::string failure = "[Kavrix][" + context_name_ + "]parse ";
    for (const json& record : line.at("records")) {
      if (record.at("level") == 1 && record.at("message").get<std::string>().rfind(failure, 0) == 0)
        return true;
    }
    return false;
  }

  const std::string usual_prefix_ = MapResourceManager::kavrix_resource_prefix;
  const std::string config_path_ =
      ::testing::TempDir() + "reference_decode_test_" + std::to_string(::getpid());
  std::string prefix_;
  std::string context_name_;
  std::shared_ptr<KavrixContext> context_;
  MarkerBubbleConfig marker_bubble_;
  std::vector<std::string> options_;
  bool is_marker_ = false;
};

TEST_F(ReferenceDecodeTest, EveryLineAndTheStatus) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  random_.seed(seed);
  MixedNames mixed(seed);
  const int runs = IsComplete() ? 2000 : 40;
  for (int run = 0; run < runs && !HasFailure(); ++run) {
    DrawConfiguration();
    DrawEntryAndPrefix();
    std::vector<std::string> names;
    while (names.size() < (run % 2 == 0 ? 1U : 100U)) names.push_back(DrawName(mixed));
    ExpectSame(names);
  }
}

}  // namespace
}  // namespace kavrix::test
