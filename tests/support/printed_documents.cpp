#include "tests/support/printed_documents.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tests/support/golden.h"
#include "tests/support/read_file.h"
#include "tests/support/sample_names.h"
#include "tests/support/tool.h"

namespace kavrix::test {
namespace {

// What JsonCpp reads, a name without a marker, one shorter than the prefix, bytes that are not UTF-8.
const std::vector<std::string> kOddNames = {
    R"(kavrix://resource/{/* day */"mode":0,"scene":3000000000}.trafficBubble)",
    R"(kavrix://resource/{"cameras":[{"type":1,"speed":2.5},{}],"mode":1e0}.cameraBubble)",
    "nothing",
    "x.turnBubble",
    "",
    "kavrix://resource/\xFF_0_0@1.nameBubble"};

class Documents {
 public:
  Documents() {
    for (const SampleName& sample : SampleNames()) Names(sample.is_marker) += sample.name + '\0';
    for (const std::string& name : BubbleGoldenNames()) bubble_names_ += name + '\0';
    for (const std::string& name : GoldenNames(kMarkerNameInfo)) marker_names_ += name + '\0';
    for (const std::string& name : kOddNames) {
      bubble_names_ += name + '\0';
      marker_names_ += name + '\0';
    }
    std::string config = ReadFile(kConfigPath);
    config.replace(config.find("\"traffic\""), 9, "\"x\"");
    std::ofstream(other_config_, std::ios::binary) << config;
  }
  Documents(const Documents&) = delete;
  Documents& operator=(const Documents&) = delete;
  ~Documents() {
    for (const std::string& path : {other_config_, decoded_, other_decoded_}) std::filesystem::remove(path);
  }

  std::map<std::string, std::vector<std::string>> Collect() {
    for (const std::string command : {"decode", "explain", "check", "shrink", "survey"}) {
      Add(command, {command, "--format", "json"});
    }
    Add("encode", {"decode", "--fields"});
    AddComparisons();
    const std::string log = "at <" + bubble_names_ + ">\n";
    AddLines("extract", RunTool({"extract", "--format", "json"}, log));
    AddLines("kinds", RunTool({"kinds"}));
    AddLines("icons", RunTool({"icons"}));
    documents_["config"] = {RunTool({"config", "--default"}).output, "{}"};
    return std::move(documents_);
  }

 private:
  static constexpr const char* kConfigPath = KAVRIX_SOURCE_DIR "/samples/default_config.json";

  std::string& Names(bool are_markers) { return are_markers ? marker_names_ : bubble_names_; }

  // Runs a command over all names.
  void Add(const std::string& schema, std::vector<std::string> arguments) {
    arguments.emplace_back("--null");
    AddLines(schema, RunTool(arguments, bubble_names_));
    arguments.emplace_back("--marker");
    AddLines(schema, RunTool(arguments, marker_names_));
  }

  void AddLines(const std::string& schema, const ToolResult& result) {
    for (const std::string& line : result.Lines()) documents_[schema].push_back(line);
  }

  void AddComparisons() {
    const std::string& first = kOddNames[1];
    for (const std::string& second : kOddNames) {
      if (!second.empty()) AddLines("compare", RunTool({"compare", first, second}));
    }
    for (const std::string schema : {"compare-each", "compare-summary"}) {
      std::vector<std::string> options;
      if (schema == "compare-summary") options.emplace_back("--summary");
      std::vector<std::string> configs = {"compare", "--config", kConfigPath, "--config", other_config_};
      configs.insert(configs.end(), options.begin(), options.end());
      Add(schema, configs);
      WriteDecoded();
      std::vector<std::string> files = {"compare", "--decoded", decoded_, other_decoded_};
      files.insert(files.end(), options.begin(), options.end());
      AddLines(schema, RunTool(files));
    }
  }

  // The second file has no kinds, exceptions of its own, and no descriptor in every other line.
  void WriteDecoded() const {
    std::ofstream file(decoded_);
    std::ofstream other(other_decoded_);
    std::size_t number = 0;
    for (nlohmann::json line : RunTool({"decode", "--null"}, bubble_names_).JsonLines()) {
      file << line << '\n';
      if (number++ % 2 == 0) line["descriptor"] = nullptr;
      line["kind"] = nullptr;
      line["exception"] = "none of the library's";
      other << line << '\n';
    }
  }

  const std::string stem_ = "/tmp/kavrix_test_" + std::to_string(::getpid());
  const std::string other_config_ = stem_ + "_config.json";
  const std::string decoded_ = stem_ + "_old.jsonl";
  const std::string other_decoded_ = stem_ + "_new.jsonl";
  std::string bubble_names_;  // each with a NUL after it
  std::string marker_names_;
  std::map<std::string, std::vector<std::string>> documents_;
};

}  // namespace

std::map<std::string, std::vector<std::string>> PrintedDocuments() { return Documents().Collect(); }

}  // namespace kavrix::test
