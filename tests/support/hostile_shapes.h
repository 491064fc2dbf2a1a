#ifndef KAVRIX_TESTS_SUPPORT_HOSTILE_SHAPES_H_
#define KAVRIX_TESTS_SUPPORT_HOSTILE_SHAPES_H_

#include <string>
#include <vector>

namespace kavrix::test {

// What the cost of the others is compared with.
inline constexpr char kTypicalName[] =
    R"(kavrix://resource/{"content":"Slow traffic ahead, 5 min","direction":2,"mode":1,"light_text":"3 lights",)"
    R"("scene":0,"extra_type":2,"nav_mode":1}.trafficBubble)";

// A name made to cost much, of any length: `head`, many copies of `piece`, `tail`.
struct HostileShape {
  const char* what;
  std::string head;
  std::string piece;
  std::string tail;
};

const std::vector<HostileShape>& HostileShapes();

// A name of at least `length` bytes.
std::string NameOf(const HostileShape& shape, std::size_t length);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_HOSTILE_SHAPES_H_
