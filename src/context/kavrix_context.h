#ifndef KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_
#define KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "../config/bubble_layer_config_container.h"
#include "../util/export.h"

namespace kavrix {

/// One map, as the transform needs it: its name and its bubble-layer configuration. Several threads may use
/// all members at once, and each transform keeps its context alive. A client that keeps its configuration
/// elsewhere overrides GetBubbleLayerConfigInLock.
class KAVRIX_EXPORT KavrixContext {
 public:
  /// Makes a context whose configuration has empty names and zeros.
  explicit KavrixContext(std::string context_name);
  KavrixContext(const KavrixContext&) = delete;
  KavrixContext& operator=(const KavrixContext&) = delete;
  /// Virtual, because a client may derive from the class.
  virtual ~KavrixContext() = default;

  /// Returns a full copy of the configuration, taken under the context's lock, so its values never come from
  /// two configurations.
  virtual BubbleLayerConfigContainer GetBubbleLayerConfigInLock() const;

  /// Replaces the whole configuration; earlier copies do not change.
  void SetBubbleLayerConfig(BubbleLayerConfigContainer config);

  const std::string context_name;  ///< Part of the head of every log record's message.

  /// Stored in the `type` of every multi-light countdown bubble, low 16 bits. Read without the lock.
  std::atomic<std::int32_t> multi_light_type{0};

 private:
  mutable std::mutex mutex_;
  std::unique_ptr<BubbleLayerConfigContainer> config_;  // guarded by mutex_
};

}  // namespace kavrix

#endif  // KAVRIX_CONTEXT_KAVRIX_CONTEXT_H_
