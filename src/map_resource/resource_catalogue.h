#ifndef KAVRIX_MAP_RESOURCE_RESOURCE_CATALOGUE_H_
#define KAVRIX_MAP_RESOURCE_RESOURCE_CATALOGUE_H_

#include <cstdint>
#include <map>
#include <string>

/// The built-in icons of the map. An icon's id has its category in bits 16 and up, 0 for day or 1 for night
/// in bits 8 to 15, and its number within the category in bits 0 to 7. Categories: 0x0 car icon, compass and
/// overview map; 0x1 route points, walking, indoor and traffic lights; 0x2 point traffic events; 0x3 road
/// warning signs.
///
/// The maps have internal linkage: every source file that includes this header has its own. They are never
/// changed, and are built and destroyed with that file's static objects. Static constructors and destructors
/// of the same file may use them; those of another file that call into this one may run too early or too
/// late.
namespace kavrix::R {

/// An icon of the catalogue.
struct Icon {
  std::uint32_t day_id;              ///< The id by day.
  const char* name;                  ///< The description less its "白天-" or "夜间-".
  const char* night_name = nullptr;  ///< The same where the night description is spelled differently.
};

/// The night id of an icon less its day id.
constexpr std::uint32_t kNightIdOffset = 0x100;

/// All icons, in the order of the catalogue.
// clang-format off
inline constexpr Icon kIcons[] = {
    {0x1, "鹰眼图车标罗盘"},
    {0x2, "鹰眼图车标箭头"},
    {0x4, "车标箭头"},
    {0x6, "车标罗盘东"},
    {0x7, "车标罗盘南"},
    {0x8, "车标罗盘西"},
    {0x9, "车标罗盘北"},
    {0xa, "车标罗盘环"},
    {0xb, "车标罗盘东"},
    {0xe, "车标箭头背景"},
    {0x10001, "鹰眼图起点"},
    {0x10002, "鹰眼图终点"},
    {0x10003, "鹰眼图途径点"},
    {0x10004, "路线起点"},
    {0x10008, "路线途径点"},
    {0x10009, "路线途径点一"},
    {0x1000a, "路线途径点二"},
    {0x10005, "路线终点"},
    {0x10006, "路线起点气泡"},
    {0x10007, "路线终点气泡"},
    {0x1002d, "楼层切换点"},
    {0x1002e, "质量差道路"},
    {0x1002f, "轮渡"},
    {0x10030, "天桥"},
    {0x10031, "内部道路"},
    {0x10032, "逆行"},
    {0x10033, "台阶"},
    {0x10034, "地下通道"},
    {0x10035, "人行横道"},
    {0x10036, "步行默认资源"},
    {0x1000b, "红绿灯"},
    {0x20000, "交通点事件-默认"},
    {0x20001, "交通点事件-事故"},
    {0x20002, "交通点事件-恶劣天气"},
    {0x20003, "交通点事件-检查"},
    {0x20004, "交通点事件-拥堵"},
    {0x20005, "交通点事件-施工"},
    {0x20006, "交通点事件-管制"},
    {0x20007, "交通点事件-灾害"},
    {0x20008, "交通点事件-障碍"},
    {0x20009, "交通点事件-封路"},
    {0x2000a, "交通点事件-山路"},
    {0x2000b, "交通点事件-窄路"},
    {0x2000c, "交通点事件-活动"},
    {0x2000d, "交通点事件-积水"},
    {0x2000e, "交通点事件-公告"},
    {0x30000, "警示牌-默认资源"},
    {0x30001, "警示牌-傍山险路"},
    {0x30002, "警示牌-傍山险路"},
    {0x30003, "警示牌-上陡坡"},
    {0x30004, "警示牌-事故易发路段"},
    {0x30005, "警示牌-注意危险"},
    {0x30006, "警示牌-连续下坡"},
    {0x30007, "警示牌-左右绕行"},
    {0x30008, "警示牌-左侧绕行"},
    {0x30009, "警示牌-右侧绕行"},
    {0x3000a, "警示牌-注意横风"},
    {0x3000b, "警示牌-注意左侧合流"},
    {0x3000c, "警示牌-注意右侧合流"},
    {0x3000d, "警示牌-窄桥"},
    {0x3000e, "警示牌-两侧变窄"},
    {0x3000f, "警示牌-左侧变窄"},
    {0x30010, "警示牌-右侧变窄"},
    {0x30011, "警示牌-禁止超车"},
    {0x30012, "警示牌-有人看守铁路道口"},
    {0x30013, "警示牌-反向弯路(左)"},
    {0x30014, "警示牌-反向弯路(右)"},
    {0x30015, "警示牌-注意落石"},
    {0x30016, "警示牌-注意落石"},
    {0x30017, "警示牌-路面不平"},
    {0x30018, "警示牌-注意儿童"},
    {0x30019, "警示牌-向左急弯路"},
    {0x3001a, "警示牌-向右急弯路"},
    {0x3001b, "警示牌-易滑"},
    {0x3001c, "警示牌-下陡坡"},
    {0x3001d, "警示牌-文字性警示标牌"},
    {0x3001e, "警示牌-无人看守铁路道口"},
    {0x3001f, "警示牌-隧道开灯", "警示牌- 隧道开灯"},
    {0x30020, "警示牌-村庄"},
    {0x30021, "警示牌-过水路面"},
    {0x30022, "警示牌-连续弯路", "警示牌- 连续弯路"},
    {0x30023, "警示牌-滑坡"},
    {0x30024, "警示牌-泥石路"},
    {0x30025, "警示牌-地面塌陷"},
    {0x30026, "警示牌-塌方"},
    {0x30027, "警示牌-双向交通"},
    {0x30028, "警示牌-注意牲畜"},
    {0x30029, "警示牌-堤坝路"},
    {0x3002a, "警示牌-堤坝路"},
    {0x3002b, "警示牌-驼峰桥"},
    {0x3002c, "警示牌-解除禁止超车"},
    {0x3002d, "警示牌-鸣喇叭"},
    {0x3002e, "警示牌-停车让行"},
    {0x3002f, "警示牌-会车让行"},
    {0x30030, "警示牌-减速让行"},
    {0x30031, "警示牌-潮汐车道"},
    {0x30032, "警示牌-路面高凸"},
    {0x30033, "警示牌-路面低洼"},
    {0x30034, "警示牌-事故多发"},
    {0x30035, "警示牌-检疫站"},
    {0x30036, "警示牌-斑马线"},
};
// clang-format on

/// Returns what DayNightResourceMap holds.
inline std::map<std::uint32_t, std::uint32_t> MakeDayNightResourceMap() {
  std::map<std::uint32_t, std::uint32_t> night_ids;
  for (const Icon& icon : kIcons) night_ids.emplace(icon.day_id, icon.day_id + kNightIdOffset);
  return night_ids;
}

/// Returns what ResourceID2DescriptionMap holds.
inline std::map<std::uint32_t, std::string> MakeResourceID2DescriptionMap() {
  std::map<std::uint32_t, std::string> descriptions;
  for (const Icon& icon : kIcons) {
    const char* const night_name = icon.night_name != nullptr ? icon.night_name : icon.name;
    descriptions.emplace(icon.day_id, std::string("白天-") + icon.name);
    descriptions.emplace(icon.day_id + kNightIdOffset, std::string("夜间-") + night_name);
  }
  return descriptions;
}

/// The night id of every day id.
static const std::map<std::uint32_t, std::uint32_t> DayNightResourceMap = MakeDayNightResourceMap();

/// The description of every id, day and night, in UTF-8. A few icons share a description.
static const std::map<std::uint32_t, std::string> ResourceID2DescriptionMap = MakeResourceID2DescriptionMap();

}  // namespace kavrix::R

/// Style constants of the bubble layer.
namespace kavrix::Layer::Style {

/// The default font of bubbles: empty, which names none.
static const std::string FONT_NAME;

}  // namespace kavrix::Layer::Style

#endif  // KAVRIX_MAP_RESOURCE_RESOURCE_CATALOGUE_H_
