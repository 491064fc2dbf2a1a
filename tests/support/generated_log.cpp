#include "tests/support/generated_log.h"

#include <algorithm>
#include <memory>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "tests/support/sample_names.h"
#include "util/log_line.h"

namespace kavrix::test {
namespace {

using std::string_view_literals::operator""sv;

// Writes the messages after a time, as a client does that logs neither tags nor functions.
class MessageSink : public logging::LogSink {
 public:
  explicit MessageSink(std::ostream& stream) : stream_(stream) {}
  void Write(const logging::LogRecord& record) override {
    stream_ << "12:00:01.5 I " << record.message << '\n';
  }

 private:
  std::ostream& stream_;
};

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {
    for (const SampleName& sample : SampleNames()) {
      (sample.is_marker ? marker_names_ : names_).push_back(sample.name);
    }
  }

  GeneratedLog Generate(std::size_t lines) {
    while (line_ <= lines) AddSomething();
    return std::move(log_);
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  const std::string& AnyName() { return names_[Below(names_.size())]; }

  void Text(const std::string& text) {
    log_.text += text;
    byte_ += text.size();
  }
  void Name(const std::string& name) {
    log_.names.push_back({name, line_, byte_});
    Text(name);
  }
  void EndLine() {
    log_.text += Below(4) == 0 ? "\r\n" : "\n";
    ++line_;
    byte_ = 0;
  }

  void AddSomething() {
    switch (Below(12)) {
      case 0:
        return AddLine(
            "no name here: http://resource/{\"mode\":0}.trafficBubble, kavrix:/resource/1.turnBubble");
      case 1:
        return AddLine(std::string("binary \0 \xFF\xFE } @1.etaBubble"sv));
      case 2:
        Text("marker ");
        Name(marker_names_[Below(marker_names_.size())]);
        Text(" drawn");
        return EndLine();
      case 3:
        Name(AnyName());
        Text("\",\"");
        Name(AnyName());
        Text("\"]");
        return EndLine();
      case 4:
        return AddNameInAText();
      case 5:
        return AddCutName();
      case 6:
      case 7:
        return AddOwnLog();
      default:
        Text("tile 7 asks for (");
        Name(AnyName());
        Text(") in 3 ms.");
        return EndLine();
    }
  }

  void AddLine(const std::string& text) {
    Text(text);
    EndLine();
  }

  // A name whose text holds another one, quoted in a line with a third.
  void AddNameInAText() {
    const nlohmann::json fields = {{"content", "see " + AnyName() + " and }.etaBubble"}, {"mode", 1}};
    Text("<");
    Name(MapResourceManager::kavrix_resource_prefix + fields.dump() + ".trafficBubble");
    Text("> ");
    Name(AnyName());
    EndLine();
  }

  // Cut before its marker, by the end of the line or by the next name.
  void AddCutName() {
    const std::string& name = AnyName();
    const std::size_t prefix = std::string(MapResourceManager::kavrix_resource_prefix).size();
    const std::size_t most = name.rfind('.') - prefix;
    Text("cut ");
    Name(name.substr(0, prefix + Below(most)));
    if (Below(2) == 0) Name(AnyName());
    EndLine();
  }

  // The records of some decodes, of which each name is one.
  void AddOwnLog() {
    std::ostringstream stream;
    const bool has_functions = Below(2) == 0;
    std::shared_ptr<logging::LogSink> sink;
    if (has_functions) {
      sink = std::make_shared<logging::StreamSink>(stream);
    } else {
      sink = std::make_shared<MessageSink>(stream);
    }
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {sink, {}, {}});
    MapResourceTransform transform(std::make_shared<KavrixContext>(Below(2) == 0 ? "main-map" : "main]map"));
    std::vector<std::string> names;
    for (std::size_t i = Below(4); i < 4; ++i) {
      names.push_back(Below(8) == 0 ? MapResourceManager::kavrix_resource_prefix +
                                          std::string(Below(2) == 0 ? "no marker" : "a.markerx")
                                    : AnyName());
      if (Below(4) == 0) names.push_back(names.back());
    }
    for (const std::string& name : names) {
      std::shared_ptr<BubbleDrawDescriptor> out;
      transform.GetBubbleDrawDescriptor(name, out);
    }
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {});
    AddRecords(stream.str(), names);
  }

  // Each name is where its request is: the first record of its decode.
  void AddRecords(const std::string& records, const std::vector<std::string>& names) {
    auto next_name = names.begin();
    std::istringstream lines(records);
    bool expects_rejection = false;
    bool expects_repeat = false;
    for (std::string line; std::getline(lines, line);) {
      const std::string head = "]resource_name:";
      const std::size_t place = line.find(head);
      if (place != std::string::npos && !expects_rejection && !expects_repeat) {
        const std::string marker_end = "a.marker";  // the name is read as a marker name that text follows
        const bool is_cut = next_name->find(marker_end + "x") != std::string::npos;
        log_.names.push_back(
            {next_name->substr(0, next_name->size() - (is_cut ? 1 : 0)), line_, place + head.size()});
        expects_rejection = next_name->find("Bubble") == std::string::npos;
        expects_repeat = next_name->find(".etaBubble") != std::string::npos;
        ++next_name;
      } else {
        expects_rejection = expects_repeat = false;
      }
      log_.text += line + '\n';
      ++line_;
    }
    if (next_name != names.end()) throw std::logic_error("a decode that writes no request");
  }

  std::mt19937 random_;
  std::vector<std::string> names_;
  std::vector<std::string> marker_names_;
  GeneratedLog log_;
  std::size_t line_ = 1;
  std::size_t byte_ = 0;
};

}  // namespace

GeneratedLog GenerateLog(unsigned seed, std::size_t lines) { return Generator(seed).Generate(lines); }

GeneratedLog AsJsonLines(const GeneratedLog& log) {
  const auto quoted = [](const std::string& text) {
    return nlohmann::json(text).dump(-1, ' ', true, nlohmann::json::error_handler_t::replace);
  };
  GeneratedLog json;
  std::istringstream lines(log.text);
  auto name = log.names.begin();
  std::size_t number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const std::string before = "{\"time\":1700000000000000000,\"message\":";
    for (; name != log.names.end() && name->line == number; ++name) {
      const std::size_t byte = before.size() + quoted(line.substr(0, name->byte)).size() - 1;
      json.names.push_back({nlohmann::json::parse(quoted(name->name)), number, byte});
    }
    json.text += before + quoted(line) + "}\n";
  }
  return json;
}

}  // namespace kavrix::test
