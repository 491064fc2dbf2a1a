#include "inspect/picture_parts.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "inspect/kind_model.h"
#include "inspect/members.h"

namespace kavrix::inspect {
namespace {

enum class Place { kLine, kChip };

// Where a member stands as a text. Of a flag only the words before it are shown.
struct TextRole {
  std::string_view path;
  bool is_text;  // the member's own type: some names are a text in one descriptor and a number in another
  Place place;
  std::string_view before = {};
};

// In the order of the picture: the first of the lines that a descriptor has is its title.
constexpr std::array<TextRole, 39> kTexts = {{
    {"name", true, Place::kLine},
    {"explain_content", true, Place::kLine},
    {"content", true, Place::kLine},
    {"time", true, Place::kLine},
    {"text", true, Place::kLine},
    {"sub_text", true, Place::kLine},
    {"second_content[]", true, Place::kLine},
    {"light_text", true, Place::kLine},
    {"snap_text", true, Place::kLine},
    {"entries_text", true, Place::kLine},
    {"distance", true, Place::kLine, "distance "},
    {"fee", true, Place::kLine, "fee "},
    {"light", true, Place::kLine, "lights "},
    {"index", false, Place::kLine, "stop "},
    {"distance", false, Place::kLine, "distance "},
    {"label", true, Place::kChip},
    {"marker_type", false, Place::kChip},
    {"entries_value", false, Place::kChip, "entries "},
    {"severity", false, Place::kChip, "severity "},
    {"category", false, Place::kChip, "category "},
    {"reason", false, Place::kChip, "reason "},
    {"selected", false, Place::kChip, "selected"},
    {"is_selected", false, Place::kChip, "selected"},
    {"is_reached", false, Place::kChip, "reached"},
    {"better", false, Place::kChip, "better"},
    {"is_force", false, Place::kChip, "forced"},
    {"is_main_map", false, Place::kChip, "main map"},
    {"is_animation", false, Place::kChip, "animated"},
    {"type", false, Place::kChip, "type "},
    {"style", false, Place::kChip, "style "},
    {"extra_type", false, Place::kChip, "extra type "},
    {"second_type", false, Place::kChip, "second type "},
    {"scene_type", false, Place::kChip, "scene type "},
    {"bubble_type", false, Place::kChip, "bubble type "},
    {"scene", false, Place::kChip, "scene "},
    {"own.scene", false, Place::kChip, "own scene "},
    {"lan", true, Place::kChip, "language "},
    {"icon", true, Place::kChip, "icon "},
    {"resource_id", false, Place::kChip, "icon "},
}};

template <class Part>
struct NumberRole {
  std::string_view path;
  std::int64_t Part::*number;
};

constexpr std::array<NumberRole<PictureLight>, 7> kLightNumbers = {{
    {"light_type", &PictureLight::phase},
    {"turn_arrow_type", &PictureLight::arrow},
    {"time", &PictureLight::seconds},
    {"light_descriptors[].light_type", &PictureLight::phase},
    {"light_descriptors[].turn_arrow_type", &PictureLight::arrow},
    {"light_descriptors[].remain_time", &PictureLight::seconds},
    {"light_descriptors[].total_time", &PictureLight::total_seconds},
}};

constexpr std::array<NumberRole<PictureCamera>, 2> kCameraNumbers = {{
    {"cameras[].type", &PictureCamera::type},
    {"cameras[].speed", &PictureCamera::speed},
}};

constexpr std::array<NumberRole<PictureParts>, 2> kNumbers = {{
    {"target_lane", &PictureParts::lane},
    {"direction", &PictureParts::direction},
}};

// The number in "cameras[2].type"; 0 where there is none.
std::size_t IndexIn(const std::string& path) {
  std::size_t index = 0;
  const std::size_t bracket = path.find('[');
  if (bracket != std::string::npos) {
    std::from_chars(path.data() + bracket + 1, path.data() + path.size(), index);
  }
  return index;
}

template <class Part>
Part& At(std::vector<Part>& parts, std::size_t index) {
  if (index >= parts.size()) parts.resize(index + 1);
  return parts[index];
}

// A word whose alpha is not 0 looks like a colour, unless it is as well a float that a size would be: from
// 1/4 to 128, with at most five significant bits, such as 14 (0x41600000). A colour that is such a float,
// black at a quarter (0x40000000) for one, is not shown.
bool LooksLikeColour(std::uint32_t word) {
  const bool looks_like_size = word >= 0x3E800000 && word <= 0x43000000 && word % 0x80000 == 0;
  return word >> 24 != 0 && !looks_like_size;
}

bool IsBlank(const FlatMember& member) {
  const auto* const text = std::get_if<std::string>(&member.value);
  return text != nullptr && text->find_first_not_of(' ') == std::string::npos;
}

struct ShownText {
  std::string operator()(std::int64_t number) const { return std::to_string(number); }
  std::string operator()(std::uint32_t word) const { return std::to_string(word); }
  std::string operator()(MarkerType type) const { return MarkerTypeName(type); }
  std::string operator()(bool) const { return ""; }
  std::string operator()(float) const { return ""; }
  std::string operator()(const std::string& text) const { return text; }
};

class Sorter {
 public:
  void Add(const FlatMember& member) {
    if (const auto* const word = std::get_if<std::uint32_t>(&member.value)) {
      if (LooksLikeColour(*word)) parts_.colours.Add(*word);
      return;
    }
    const std::string path = WithoutIndexes(member.path);
    const std::size_t index = IndexIn(member.path);
    if (const auto* const number = std::get_if<std::int64_t>(&member.value)) {
      if (AddNumber(path, index, *number)) return;
    }
    if (path == "mode_flag") parts_.is_day = std::get<bool>(member.value);
    if (path == "style_name") parts_.style_name = std::get<std::string>(member.value);
    if (path == "light_descriptors[].text") {
      PictureLight& light = At(lights_, index);
      light.text = std::get<std::string>(member.value);
      light.path_of_text = member.path;
    }
    if (path == "icon" || path == "resource_id") parts_.has_icon |= !IsDefault(member);
    AddText(path, member);
  }

  PictureParts Take() {
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
      FewOf<PictureText, kMostOfARole>& texts = texts_[i];
      if (kTexts[i].place == Place::kChip) {
        parts_.chips.AddAll(texts);
        continue;
      }
      auto first = texts.shown.begin();
      if (!parts_.title && first != texts.shown.end()) parts_.title = std::move(*first++);
      texts.shown.erase(texts.shown.begin(), first);
      parts_.lines.AddAll(texts);
    }
    for (PictureLight& light : lights_) parts_.lights.Add(std::move(light));
    for (const PictureCamera& camera : cameras_) parts_.cameras.Add(camera);
    return std::move(parts_);
  }

 private:
  bool AddNumber(const std::string& path, std::size_t index, std::int64_t number) {
    for (const auto& role : kLightNumbers) {
      if (role.path != path) continue;
      At(lights_, index).*role.number = number;
      return true;
    }
    for (const auto& role : kCameraNumbers) {
      if (role.path != path) continue;
      At(cameras_, index).*role.number = number;
      return true;
    }
    for (const auto& role : kNumbers) {
      if (role.path != path) continue;
      parts_.*role.number = number;
      return true;
    }
    return false;
  }

  void AddText(const std::string& path, const FlatMember& member) {
    if (!SaysSomething(member) || IsBlank(member)) return;
    const bool is_text = std::holds_alternative<std::string>(member.value);
    const auto is_it = [&](const TextRole& role) { return role.is_text == is_text && role.path == path; };
    const auto* const role = std::find_if(kTexts.begin(), kTexts.end(), is_it);
    if (role == kTexts.end()) return;
    FewOf<PictureText, kMostOfARole>& texts = texts_[static_cast<std::size_t>(role - kTexts.begin())];
    const bool is_flag = std::holds_alternative<bool>(member.value);
    const std::string words(role->before);
    texts.Add(is_flag ? PictureText{member.path, "", words}
                      : PictureText{member.path, words, std::visit(ShownText(), member.value)});
  }

  // More of them are only counted.
  static constexpr std::size_t kMostOfARole = 10;

  PictureParts parts_;
  std::array<FewOf<PictureText, kMostOfARole>, kTexts.size()> texts_;
  std::vector<PictureLight> lights_;
  std::vector<PictureCamera> cameras_;
};

}  // namespace

PictureParts PartsOf(const std::vector<FlatMember>& members) {
  Sorter sorter;
  for (const FlatMember& member : members) sorter.Add(member);
  return sorter.Take();
}

}  // namespace kavrix::inspect
