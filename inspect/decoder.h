#ifndef KAVRIX_INSPECT_DECODER_H_
#define KAVRIX_INSPECT_DECODER_H_

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/transform_setup.h"
#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_transform.h"

namespace kavrix::inspect {

struct CapturedRecord {
  int level;
  std::string tag;
  std::string_view function;  // of a __func__, which is never destroyed
  std::string message;
};

// All that came of one name.
struct Decoded {
  std::string name;
  std::optional<BubbleKind> kind;                    // none: no marker, or a marker name
  std::shared_ptr<BubbleDrawDescriptor> descriptor;  // null: `out` was left untouched
  std::vector<CapturedRecord> records;
  std::optional<std::string> exception;
  bool failed = false;  // no marker, a record of a failed parse, or an exception
};

// Decodes names as a client would, with every log record captured, on any number of threads. Installs itself
// as the process's log sink.
class Decoder {
 public:
  Decoder(const TransformSetup& setup, EntryPoint entry_point);

  Decoded Decode(std::string name);

 private:
  // Threads that decode under one context wait for each other at its lock; there are more of these than most
  // machines have threads.
  static constexpr std::size_t kTransforms = 16;

  MapResourceTransform& TransformOfThread();

  std::vector<MapResourceTransform> transforms_;
  std::string record_head_;
  EntryPoint entry_point_;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_DECODER_H_
