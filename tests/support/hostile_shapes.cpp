#include "tests/support/hostile_shapes.h"

#include "map_resource/map_resource_manager.h"

namespace kavrix::test {

const std::vector<HostileShape>& HostileShapes() {
  static const std::vector<HostileShape> shapes = {
      {"one long text", R"({"content":")", "x", R"("}.trafficBubble)"},
      {"escapes in a text", R"({"content":")", R"(\u4e2d)", R"("}.trafficBubble)"},
      {"a text that never ends", R"({"content":")", "x", ".trafficBubble"},
      {"numbers", R"({"k":[0)", ",0", "]}.trafficBubble"},
      {"numbers that never end", R"({"k":[0)", ",0", ".trafficBubble"},
      {"empty texts", R"({"k":[0)", R"(,"")", "]}.trafficBubble"},
      {"empty arrays", R"({"k":[0)", ",[]", "]}.trafficBubble"},
      {"empty objects", R"({"k":[0)", ",{}", "]}.trafficBubble"},
      {"arrays in arrays", R"({"k":[0)", ",[[[[[[[[[[[[[[[[]]]]]]]]]]]]]]]]", "]}.trafficBubble"},
      {"objects of one key", R"({"k":[0)", R"(,{"":0})", "]}.trafficBubble"},
      {"comments", R"({"k":0)", "/**/", "}.trafficBubble"},
      {"errors", R"({"k":)", "#", "}.trafficBubble"},
      {"brackets", R"({"k":)", "[", "}.trafficBubble"},
      {"cameras", R"({"cameras":[0)", ",0", "]}.cameraBubble"},
      {"lights", R"({"light_descriptors":[0)", ",0", "]}@1.multiLightCountdownBubble"},
      {"lines", R"({"second_content":[0)", R"(,"")", "]}.routeExplainBubble"},
      {"separators", "", "_", "@1.hdLongSolidBubble"},
      {"a long field", "", "x", "_0_x_0@1.etaBubble"},
      {"no marker", "", ".x", ""},
      {"almost markers", "", ".trafficBubbl", ""},
      {"reals", R"({"k":[0)", ",1.5", "]}.trafficBubble"},
      {"surrogate pairs", R"({"content":")", R"(\ud83d\ude00)", R"("}.trafficBubble)"},
      {"one key many times", R"({"mode":0)", R"(,"scene":1)", "}.trafficBubble"},
      {"keys with escapes", R"({"mode":0)", R"(,"\u0061":1)", "}.trafficBubble"},
      {"reals for JsonCpp", R"({/**/"k":[0)", ",1.5", "]}.trafficBubble"},
      {"integers for JsonCpp", R"({/**/"k":[0)", ",9999999999999999999", "]}.trafficBubble"},
      {"empty texts for JsonCpp", R"({/**/"k":[0)", R"(,"")", "]}.trafficBubble"},
      {"objects for JsonCpp", R"({/**/"k":[0)", R"(,{"":0})", "]}.trafficBubble"},
      {"closed brackets", R"({"k":0)", "]", "}.trafficBubble"},
      {"closed brackets for JsonCpp", R"({/**/"k":0)", "]", "}.trafficBubble"},
      {"closed braces", R"({"k":0)", "}", "}.trafficBubble"},
      {"slashes", R"({"k":0)", "/", "}.trafficBubble"},
      {"objects in a name with fields", "", "{}", "_0_x_0@1.etaBubble"},
      {"directions", "", "@1", ".companionBubble"},
  };
  return shapes;
}

std::string NameOf(const HostileShape& shape, std::size_t length) {
  std::string name = MapResourceManager::kavrix_resource_prefix + shape.head;
  name.reserve(length + 100);
  while (name.size() < length) name += shape.piece;
  return name + shape.tail;
}

}  // namespace kavrix::test
