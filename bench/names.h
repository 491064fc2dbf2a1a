#ifndef KAVRIX_BENCH_NAMES_H_
#define KAVRIX_BENCH_NAMES_H_

#include <memory>
#include <string>

#include "config/bubble_layer_config_container.h"
#include "context/kavrix_context.h"
#include "map_resource/map_resource_manager.h"

// The names that the measurements decode.
namespace kavrix::bench {

struct Name {
  const char* id;
  std::string payload;  // what a JSON reader gets; empty for names without JSON
  std::string name;     // the whole resource name
};

inline Name MakeName(const char* id, const std::string& payload, const std::string& rest) {
  return {id, payload, MapResourceManager::kavrix_resource_prefix + payload + rest};
}

// P1, whose last value is `nav_mode`. `payload_end` is all that follows it.
inline Name MakeP1(const char* id, const std::string& nav_mode, const std::string& payload_end) {
  return MakeName(
      id,
      R"({"content":"前方拥堵约2公里","direction":1,"mode":0,"light_text":"3个红灯","scene":1,"extra_type":2,"nav_mode":)" +
          nav_mode + payload_end,
      ".trafficBubble");
}

inline const Name& P1() {
  static const Name name = MakeP1("P1", "1", "}");
  return name;
}

// Three that are not plain JSON, which only their last bytes tell: the scanner leaves them to JsonCpp late.
inline const Name& P1WithComment() {
  static const Name name = MakeP1("P1 with a comment", "1", "/**/}");
  return name;
}
inline const Name& P1WithLongNumber() {
  static const Name name = MakeP1("P1 with 19 digits", "1000000000000000000", "}");
  return name;
}
inline const Name& P1Broken() {
  static const Name name = MakeP1("P1 with a broken end", "1", "]}");
  return name;
}

inline const Name& P2() {
  static const Name name = MakeName(
      "P2",
      R"({"cameras":[{"type":1,"speed":60},{"type":2,"speed":80}],"scene":0,"is_selected_":1,"is_force_":0,)"
      R"("snap_text":"限速60","lan":"zh","mode":0,"distance":350,"direction":90})",
      ".cameraBubble");
  return name;
}

inline const Name& P3() {
  static const std::string light =
      R"({"light_type":1,"turn_arrow_type":2,"remain_time":30,"text":"30","total_time":60})";
  static const Name name =
      MakeName("P3",
               R"({"is_force_":0,"scene":1,"mode":0,"style":2,"id":"m1","is_animation":1,)"
               R"("light_descriptors":[)" +
                   light + "," + light + "," + light + "]}",
               "@2.multiLightCountdownBubble");
  return name;
}

inline const Name& P4() {
  static const Name name = MakeName("P4", "", "Home|12 min_0_x_0@3.etaBubble");
  return name;
}

// A configuration whose style names have 8 characters.
inline std::shared_ptr<KavrixContext> MakeContext() {
  BubbleLayerConfigContainer config;
  ForEachStyleRecord(config, [](const char*, auto& record) { record.name = "style_08"; });
  auto context = std::make_shared<KavrixContext>("bench");
  context->SetBubbleLayerConfig(config);
  return context;
}

}  // namespace kavrix::bench

#endif  // KAVRIX_BENCH_NAMES_H_
