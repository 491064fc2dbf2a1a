#include "context/kavrix_context.h"

#include <utility>

namespace kavrix {

KavrixContext::KavrixContext(std::string name) : context_name(std::move(name)) {}

BubbleLayerConfigContainer KavrixContext::GetBubbleLayerConfigInLock() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return config_;
}

void KavrixContext::SetBubbleLayerConfig(BubbleLayerConfigContainer config) {
  const std::lock_guard<std::mutex> lock(mutex_);
  std::swap(config_, config);  // the parameter destroys the old one, after the lock
}

}  // namespace kavrix
