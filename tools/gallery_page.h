#ifndef KAVRIX_TOOLS_GALLERY_PAGE_H_
#define KAVRIX_TOOLS_GALLERY_PAGE_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "inspect/decoder.h"
#include "inspect/explanation.h"

namespace kavrix::tools {

struct GalleryPicture {
  std::string svg;
  std::string caption;
};

// What the page shows of one name.
struct GalleryName {
  inspect::Decoded decoded;
  std::string kind;  // "marker" for marker names; empty: none
  std::vector<GalleryPicture> pictures;
  std::vector<inspect::Problem> problems;
};

// A name as a part of the page. Long names and long lists are cut: it has a bounded size.
std::string ToHtml(const GalleryName& name);

// The names of one kind, as parts of the page.
struct GalleryGroup {
  std::string kind;  // empty: none
  std::vector<std::string> names;
  std::size_t failed = 0;
};

// One page that is HTML and well-formed XML, has no script and fetches nothing. Empty groups are left out.
// `left_out` names are said to be missing.
std::string ToPage(const std::string& title, const std::vector<GalleryGroup>& groups, std::size_t left_out);

}  // namespace kavrix::tools

#endif  // KAVRIX_TOOLS_GALLERY_PAGE_H_
