#ifndef KAVRIX_TESTS_REFERENCE_REFERENCE_DECODER_H_
#define KAVRIX_TESTS_REFERENCE_REFERENCE_DECODER_H_

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "config/marker_bubble_config.h"
#include "context/kavrix_context.h"
#include "descriptors/descriptors.h"
#include "tests/support/record_collector.h"

namespace kavrix::reference {

// The decoder written down step by step, without any care for its cost: a search for each marker, a copy of
// each piece of a name, a look-up or two for each key. It judges MapResourceTransform: both must leave the
// same in `out`, throw for the same names and write the same log records. It shares nothing with the library
// but the descriptors, the context and the prefix, and reads names with JsonCpp and the standard library
// only.
class ReferenceDecoder {
 public:
  explicit ReferenceDecoder(std::shared_ptr<KavrixContext> context);
  void SetMarkerBubbleConfig(MarkerBubbleConfig config) { marker_bubble_config_ = std::move(config); }

  // Log records are appended to `records`; without one nothing is logged.
  void GetBubbleDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out,
                               std::vector<test::SeenRecord>* records = nullptr) const;
  void GetMarkerDrawDescriptor(const std::string& resource_name, std::shared_ptr<BubbleDrawDescriptor>& out,
                               std::vector<test::SeenRecord>* records = nullptr) const;

 private:
  std::shared_ptr<KavrixContext> context_;
  MarkerBubbleConfig marker_bubble_config_;
};

}  // namespace kavrix::reference

#endif  // KAVRIX_TESTS_REFERENCE_REFERENCE_DECODER_H_
