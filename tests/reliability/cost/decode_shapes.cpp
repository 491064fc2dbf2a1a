// Decodes a typical name, then names made to cost much, one after the other. Run under callgrind, it dumps
// the instructions of each decode as "BYTES WHAT", where BYTES is the length of the name.

#include <valgrind/callgrind.h>

#include <iostream>
#include <memory>
#include <string>

#include "map_resource/map_resource_transform.h"
#include "tests/support/hostile_shapes.h"

namespace kavrix::test {
namespace {

constexpr std::size_t kLength = 50'000;

class Decoder {
 public:
  void Count(const std::string& what, const std::string& name) {
    const std::string description = std::to_string(name.size()) + ' ' + what;
    Decode(name);  // what a first decode prepares is not counted
    CALLGRIND_ZERO_STATS;
    Decode(name);
    CALLGRIND_DUMP_STATS_AT(description.c_str());
  }

 private:
  void Decode(const std::string& name) {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetBubbleDrawDescriptor(name, out);
  }

  MapResourceTransform transform_{std::make_shared<KavrixContext>("ctx")};
};

}  // namespace
}  // namespace kavrix::test

int main() {
  using namespace kavrix::test;
  Decoder decoder;
  decoder.Count("typical", kTypicalName);
  const auto& shapes = HostileShapes();
  for (const HostileShape& shape : shapes) decoder.Count(shape.what, NameOf(shape, kLength));
  std::cout << "shapes: " << shapes.size() << '\n';
}
