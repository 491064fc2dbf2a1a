#include "tools/compare_command.h"

#include <fmt/format.h>

#include <fstream>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "inspect/compare.h"
#include "tools/error_line.h"
#include "tools/format_option.h"
#include "tools/hints.h"
#include "tools/name_options.h"
#include "tools/streams.h"
#include "tools/text_output.h"

namespace kavrix::tools {
namespace {

using inspect::Difference;

struct CompareOptions {
  NameOptions names;
  std::vector<std::string> config_paths;
  std::string format;
  bool decoded = false;
  bool summary = false;

  bool AsText() const { return format == "text"; }
};

std::string Shown(const std::optional<FlatMember>& member, const std::string& json) {
  return member ? ShownValue(*member) : Printable(json);
}

std::string ToText(const std::vector<std::string>& names, const std::vector<Difference>& differences) {
  std::string text;
  for (const std::string& name : names) text += Printable(name) + "\n";
  for (const Difference& difference : differences) {
    text += fmt::format("  {}: {} -> {}\n", Printable(difference.member),
                        Shown(difference.old_member, difference.old_value),
                        Shown(difference.new_member, difference.new_value));
  }
  return text;
}

int CompareTwoNames(const CompareOptions& options) {
  const std::string& old_name = options.names.bulk.names[0];
  const std::string& new_name = options.names.bulk.names[1];
  NameOptions names = options.names;
  if (!options.config_paths.empty()) names.config_path = options.config_paths[0];
  inspect::Decoder decoder(names.Apply(), names.Entry());
  const inspect::Decoded old_result = decoder.Decode(old_name);
  const inspect::Decoded new_result = decoder.Decode(new_name);
  const auto differences = inspect::Compare(old_result, new_result);
  Hints hints(options.names);
  for (const inspect::Decoded* const result : {&old_result, &new_result}) {
    const std::string hint = result->failed ? hints.For(result->name) : "";
    if (!hint.empty()) WriteErrorLine(hint);
  }
  Output output(false);
  output.Write(options.AsText() ? ToText({old_name, new_name}, differences)
                                : inspect::DifferencesLine(old_name, new_name, differences));
  output.Flush();
  return differences.empty() ? 0 : 1;
}

int CompareConfigurations(const CompareOptions& options) {
  NameOptions names = options.names;
  names.config_path = options.config_paths[0];
  inspect::Decoder old_decoder(names.Apply(), names.Entry());
  names.config_path = options.config_paths[1];
  inspect::Decoder new_decoder(names.Apply(), names.Entry());
  inspect::DifferenceSummary summary;
  std::mutex mutex;
  const auto compare = [&](const InputName& given) -> NameResult {
    const std::string& name = given.name;
    const inspect::Decoded decoded = old_decoder.Decode(name);
    const auto differences = inspect::Compare(decoded, new_decoder.Decode(name));
    if (differences.empty()) return {};
    if (!options.summary) {
      return {options.AsText() ? ToText({name}, differences) : inspect::DifferencesLine(name, differences),
              true, ""};
    }
    const std::lock_guard<std::mutex> lock(mutex);
    summary.Add(decoded.kind ? MarkerOf(*decoded.kind).substr(1) : "", name, differences);
    return {"", true, ""};
  };
  names.bulk.prints_results = !options.summary;
  const bool differs = WorkInBulk(names.bulk, compare) != 0;
  Output output(false);
  output.Write(summary.Lines());
  output.Flush();
  return differs ? 1 : 0;
}

// One of the two outputs of "decode --format json", line by line.
class DecodedFile {
 public:
  explicit DecodedFile(const std::string& path) : path_(path), file_(path, std::ios::binary) {
    if (!file_) throw StreamError("cannot open " + path);
  }

  // False at the end of the file.
  bool Next() {
    ++number_;
    if (std::getline(file_, line_)) return true;
    if (file_.bad()) throw StreamError("cannot read " + path_);
    return false;
  }

  inspect::DecodedLine Read() const {
    try {
      return inspect::ReadDecodedLine(line_);
    } catch (const inspect::CompareError& error) {
      throw inspect::CompareError(Place() + ": not a line of \"decode --format json\": " + error.what());
    }
  }

  std::string Place() const { return path_ + ":" + std::to_string(number_); }

 private:
  const std::string path_;
  std::ifstream file_;
  std::string line_;
  std::size_t number_ = 0;
};

// Without its quotes; empty for null.
std::string KindOf(const inspect::DecodedLine& line) {
  return line.kind.size() < 2 || line.kind[0] != '"' ? "" : line.kind.substr(1, line.kind.size() - 2);
}

int CompareDecoded(const CompareOptions& options) {
  DecodedFile old_file(options.names.bulk.names[0]);
  DecodedFile new_file(options.names.bulk.names[1]);
  inspect::DifferenceSummary summary;
  Output output(false);
  bool differs = false;
  for (;;) {
    const bool has_old = old_file.Next();
    const bool has_new = new_file.Next();
    if (has_old != has_new) {
      throw inspect::CompareError((has_old ? new_file : old_file).Place() +
                                  ": the file ends, the other goes on");
    }
    if (!has_old) break;
    const inspect::DecodedLine old_line = old_file.Read();
    const inspect::DecodedLine new_line = new_file.Read();
    if (old_line.resource_name != new_line.resource_name) {
      throw inspect::CompareError(new_file.Place() + ": another name than at " + old_file.Place());
    }
    const auto differences = inspect::Compare(old_line, new_line);
    if (differences.empty()) continue;
    differs = true;
    const std::string& name = old_line.resource_name;
    if (options.summary) {
      summary.Add(KindOf(old_line), name, differences);
    } else {
      output.Write(options.AsText() ? ToText({name}, differences)
                                    : inspect::DifferencesLine(name, differences));
    }
  }
  output.Write(summary.Lines());
  output.Flush();
  return differs ? 1 : 0;
}

int Run(const CompareOptions& options) {
  const std::size_t names = options.names.bulk.names.size();
  const std::size_t configs = options.config_paths.size();
  if (options.decoded) {
    if (names != 2 || configs != 0 || options.names.IsAnyGivenBesidesNames()) {
      throw UsageError("--decoded takes two files, and no option for names or configurations");
    }
    return CompareDecoded(options);
  }
  if (configs > 2) throw UsageError("--config is given " + std::to_string(configs) + " times; at most twice");
  if (configs == 2) return CompareConfigurations(options);
  if (names != 2) throw UsageError("expected two names, or --config twice, or --decoded with two files");
  if (options.summary) throw UsageError("--summary is for --config twice or --decoded");
  if (options.names.bulk.input) throw UsageError("--input is for --config twice");
  return CompareTwoNames(options);
}

}  // namespace

CommandDescription CompareCommand() {
  const auto list_options = [](Command& command) -> std::function<int()> {
    const auto options = std::make_shared<CompareOptions>();
    AddNameOptionsBesidesConfig(
        command, options->names,
        "Two resource names, or those to compare under two configurations, or two files");
    command.Texts("--config FILE", options->config_paths,
                  "Configuration file; given twice, names are compared under both, the old one first");
    AddFormatOption(command, options->format, {"text", "json"});
    command.Flag(
        "--decoded", options->decoded,
        "The two arguments are files with the output of \"decode --format json\", the old one first");
    command.Flag("--summary", options->summary,
                 "Print one line for each kind, member, old and new value, with the number of names");
    command.Details(
        "Shows what differs between two names, between the same names under two configurations (then they "
        "may\n"
        "come from --input or standard input), or between two files. Log records are not compared, and\n"
        "bytes that are not UTF-8 are alike in files. --summary prints JSON in either format.");
    command.ExitStatus("0 nothing differs; 1 something does; 2 usage, input or output error.");
    command.Example("kavrix-resource compare --config old.json --config new.json --summary < names.txt");
    return [options] { return Run(*options); };
  };
  return {"compare", "Compare two names, two configurations or two outputs of decode", list_options};
}

}  // namespace kavrix::tools
