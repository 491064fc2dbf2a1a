#ifndef KAVRIX_BENCH_PLAIN_PLAIN_TRANSFORM_H_
#define KAVRIX_BENCH_PLAIN_PLAIN_TRANSFORM_H_

#include <memory>
#include <string>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"
#include "descriptors/descriptors.h"

namespace kavrix::plain {

// The decoder written down step by step, without any care for its cost: a search for each marker, a copy for
// each piece of a name, a look-up or two for each key. It shares no code with the library's decoder but the
// descriptors, the context, the prefix and the limit of nesting. It leaves in `out`, and throws, what
// MapResourceTransform does; it writes no records.
class PlainTransform {
 public:
  explicit PlainTransform(std::shared_ptr<KavrixContext> context);

  void GetBubbleDrawDescriptor(const std::string& resource_name,
                               std::shared_ptr<BubbleDrawDescriptor>& out) const;
  void GetMarkerDrawDescriptor(const std::string& resource_name,
                               std::shared_ptr<BubbleDrawDescriptor>& out) const;

 private:
  std::shared_ptr<KavrixContext> context_;
  MarkerBubbleConfig marker_bubble_config_;
};

}  // namespace kavrix::plain

#endif  // KAVRIX_BENCH_PLAIN_PLAIN_TRANSFORM_H_
