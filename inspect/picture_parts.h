#ifndef KAVRIX_INSPECT_PICTURE_PARTS_H_
#define KAVRIX_INSPECT_PICTURE_PARTS_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "descriptors/flat_members.h"

namespace kavrix::inspect {

// The first of many, and how many more there are.
template <class Part, std::size_t kMost>
struct FewOf {
  void Add(Part part) {
    if (shown.size() < kMost) {
      shown.push_back(std::move(part));
    } else {
      ++left_out;
    }
  }

  template <std::size_t kMostOfOthers>
  void AddAll(FewOf<Part, kMostOfOthers>& others) {
    for (Part& part : others.shown) Add(std::move(part));
    left_out += others.left_out;
  }

  std::vector<Part> shown;
  std::size_t left_out = 0;
};

// A member's value after the words that the picture adds.
struct PictureText {
  std::string path;  // empty: the picture's own
  std::string before;
  std::string value;
};

struct PictureLight {
  std::int64_t phase = 0;
  std::int64_t arrow = 0;
  std::int64_t seconds = 0;
  std::int64_t total_seconds = 0;
  std::string path_of_text;
  std::string text;
};

struct PictureCamera {
  std::int64_t type = 0;
  std::int64_t speed = 0;
};

// What a picture shows of a descriptor, by the places where it stands.
struct PictureParts {
  std::optional<PictureText> title;
  FewOf<PictureText, 4> lines;
  FewOf<PictureText, 10> chips;
  FewOf<PictureLight, 4> lights;
  FewOf<PictureCamera, 5> cameras;
  FewOf<std::uint32_t, 6> colours;  // 0xAARRGGBB
  std::int64_t lane = 0;            // from the left, from 1; 0: none
  bool has_icon = false;
  bool is_day = false;
  std::int64_t direction = 0;
  std::string style_name;
};

// Sorts members by a table of their paths, which no kind has to itself. Texts of members that hold
// their defaults are left out, as are style words that do not look like a colour and what is not in the
// table.
PictureParts PartsOf(const std::vector<FlatMember>& members);

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_PICTURE_PARTS_H_
