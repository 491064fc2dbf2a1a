#ifndef KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_
#define KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>

#include "config/bubble_layer_config_container.h"

namespace kavrix {

// What the transform needs of one map: its name and its bubble-layer configuration. All members may be used
// from several threads at once, and each transform keeps it alive. A client whose configuration lives
// elsewhere overrides the accessor.
class KavrixContext {
 public:
  explicit KavrixContext(std::string context_name);
  KavrixContext(const KavrixContext&) = delete;
  KavrixContext& operator=(const KavrixContext&) = delete;
  virtual ~KavrixContext() = default;

  // A full copy, taken under the context's lock. One call gives values of one configuration, never of two.
  virtual BubbleLayerConfigContainer GetBubbleLayerConfigInLock() const;

  // Replaces the whole configuration; copies taken before stay as they are.
  void SetBubbleLayerConfig(BubbleLayerConfigContainer config);

  const std::string context_name;  // printed in every log record

  // Stored in the `type` of every multi-light countdown bubble, low 16 bits. Read without the lock.
  std::atomic<std::int32_t> multi_light_type{0};

 private:
  mutable std::mutex mutex_;
  BubbleLayerConfigContainer config_;  // guarded by mutex_
};

}  // namespace kavrix

#endif  // KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_
