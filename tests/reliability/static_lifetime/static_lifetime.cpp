// Decodes, encodes and loads a configuration before, in and after main, each time with the log sink that was
// installed first. The part after main runs once every static object that the library made is destroyed.

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "config/bubble_layer_config_file.h"
#include "map_resource/map_resource_transform.h"
#include "map_resource/resource_name_encoder.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

class KeepingSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override { messages.push_back(record.message); }
  std::vector<std::string> messages;
};

// Uses the library and ends the process on a wrong result.
class Use {
 public:
  Use(const char* when, KeepingSink& sink) : when_(when), sink_(sink) {}

  void All() {
    LoadConfig();
    RefuseConfig();
    Decode();
    DecodeBroken();
    DecodeMarker();
    Encode();
    RefuseToEncode();
  }

 private:
  void Require(bool holds, const char* what) const {
    if (holds) return;
    std::fprintf(stderr, "static_lifetime: %s: expected %s\n", when_, what);
    std::_Exit(EXIT_FAILURE);
  }

  void LoadConfig() {
    BubbleLayerConfigFile file = ParseBubbleLayerConfig(
        R"({"bubble_layer":{"traffic_style":{"name":"traffic","values":[0,"0xff00ff00",0.5,1.5]}}})");
    Require(file.bubble_layer.traffic_style.Word(2) == 0xff00ff00, "the word of a configuration");
    Require(file.bubble_layer.traffic_style.Float(4) == 1.5F, "the float of a configuration");
    context_->SetBubbleLayerConfig(std::move(file.bubble_layer));
  }

  static std::string ErrorOf(const char* config) {
    try {
      ParseBubbleLayerConfig(config);
      return "";
    } catch (const ConfigError& refusal) {
      return refusal.what();
    }
  }

  void RefuseConfig() const {
    Require(ErrorOf(R"({"bubble_layer":{"turn_style":{"values":[0.5]}}})").find("turn_style value 1") == 0,
            "the refusal of a real in a word's place");
    Require(ErrorOf(R"({"x":1})").find("the configuration: unknown key") == 0,
            "the refusal of an unknown key");
    Require(ErrorOf("{").find("not valid JSON") == 0, "the refusal of half a file");
  }

  void DecodeBroken() {
    std::shared_ptr<BubbleDrawDescriptor> out;
    sink_.messages.clear();
    transform_.GetBubbleDrawDescriptor("kavrix://resource/{\"a\":.trafficBubble", out);
    Require(out != nullptr && sink_.messages.size() == 2, "a descriptor and two records of a broken name");
    Require(sink_.messages[1] == "[Kavrix][ctx]parse json failed: {\"a\":", "the record of its failure");
  }

  void Decode() {
    const std::string name = R"(kavrix://resource/{"content":"Jam","mode":0}.trafficBubble)";
    std::shared_ptr<BubbleDrawDescriptor> out;
    sink_.messages.clear();
    transform_.GetBubbleDrawDescriptor(name, out);
    const auto* const traffic = dynamic_cast<const TrafficDrawDescriptor*>(out.get());
    Require(traffic != nullptr && traffic->content == "Jam", "the content of the name");
    Require(traffic->style_name == "traffic" && traffic->style_word == 0xff00ff00,
            "the configuration's style");
    Require(traffic->style_scale[1] == 0.5F && traffic->style_float_1 == 1.5F, "the configuration's floats");
    Require(sink_.messages.size() == 2, "two records");
    Require(sink_.messages[0] == "[Kavrix][ctx]resource_name:" + name, "the record of the name");
    Require(sink_.messages[1].find("[Kavrix][ctx]BubbleDrawDescriptor{") == 0,
            "the record of the descriptor");
  }

  void DecodeMarker() {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetMarkerDrawDescriptor(R"(kavrix://resource/{"name":"n","marker_type":1}.marker)", out);
    Require(out != nullptr && out->content == "kavrix://resource/start_n", "the image key of a marker");
  }

  void Encode() const {
    EtaDescriptor eta;
    eta.content = "Home";
    eta.sub_text = "12 min";
    eta.direction = 3;
    Require(EncodeEtaBubbleResourceName(eta) == "kavrix://resource/Home|12 min_1__0@3.etaBubble",
            "the ETA's name");
  }

  void RefuseToEncode() const {
    EtaDescriptor eta;
    eta.content = "a_b";
    std::string field;
    try {
      EncodeEtaBubbleResourceName(eta);
    } catch (const EncodeError& refusal) {
      field = refusal.field();
    }
    Require(field == "content", "the refusal of a separator in a text");
  }

  using EtaDescriptor = DestNameEtaDrawDescriptor;

  const char* const when_;
  KeepingSink& sink_;
  const std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>("ctx");
  MapResourceTransform transform_{context_};
};

// Constructed before the library is used, and therefore destroyed after all that it makes on first use.
class OutlastsTheLibrary {
 public:
  OutlastsTheLibrary() = default;
  OutlastsTheLibrary(const OutlastsTheLibrary&) = delete;
  OutlastsTheLibrary& operator=(const OutlastsTheLibrary&) = delete;
  ~OutlastsTheLibrary() { Use("after main", *sink).All(); }

  const std::shared_ptr<KeepingSink> sink = std::make_shared<KeepingSink>();
};
const OutlastsTheLibrary outlasting;

bool UseBeforeMain() {
  logging::SetLoggerInstance(0, {outlasting.sink, logging::LogLevel::kRoutine, {}});
  Use("before main", *outlasting.sink).All();
  return true;
}
const bool was_used_before_main = UseBeforeMain();

}  // namespace
}  // namespace kavrix::test

int main() {
  if (!kavrix::test::was_used_before_main) return EXIT_FAILURE;
  kavrix::test::Use("in main", *kavrix::test::outlasting.sink).All();
  return EXIT_SUCCESS;
}
