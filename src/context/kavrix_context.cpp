#include "context/kavrix_context.h"

#include <utility>

namespace kavrix {

KavrixContext::KavrixContext(std::string name)
    : context_name(std::move(name)), config_(std::make_unique<BubbleLayerConfigContainer>()) {}

BubbleLayerConfigContainer KavrixContext::GetBubbleLayerConfigInLock() const {
  const std::lock_guard<std::mutex> lock(mutex_);
  return *config_;
}

void KavrixContext::SetBubbleLayerConfig(BubbleLayerConfigContainer config) {
  auto replaced = std::make_unique<BubbleLayerConfigContainer>(std::move(config));
  const std::lock_guard<std::mutex> lock(mutex_);
  config_.swap(replaced);  // the old configuration is destroyed after the lock
}

}  // namespace kavrix
