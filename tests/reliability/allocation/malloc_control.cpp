#include "tests/reliability/allocation/malloc_control.h"

#include <malloc.h>

#include <cerrno>

// The C library's own names of its allocation functions.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}

namespace kavrix::test {
namespace {

struct State {
  bool armed = false;
  bool failed = false;
  Failing failing = Failing::kOnce;
  std::size_t calls_left = 0;  // until the one that fails

  std::size_t live = 0;
  std::size_t live_bytes = 0;
  std::size_t peak_bytes = 0;
};
State state;

bool MustFail() {
  if (!state.armed) return false;
  if (state.calls_left > 0) --state.calls_left;
  if (state.calls_left > 0) return false;
  if (state.failed && state.failing == Failing::kOnce) return false;
  state.failed = true;
  errno = ENOMEM;
  return true;
}

void* Allocated(void* memory) {
  if (memory == nullptr) return memory;
  ++state.live;
  state.live_bytes += malloc_usable_size(memory);
  if (state.live_bytes > state.peak_bytes) state.peak_bytes = state.live_bytes;
  return memory;
}

void Freed(void* memory) {
  if (memory == nullptr) return;
  --state.live;
  state.live_bytes -= malloc_usable_size(memory);
}

}  // namespace

void FailAllocation(std::size_t nth, Failing failing) {
  state.calls_left = nth;
  state.failing = failing;
  state.failed = false;
  state.armed = true;
}

bool EndFailing() {
  state.armed = false;
  return state.failed;
}

FailingSuspended::FailingSuspended() : was_armed_(state.armed) { state.armed = false; }
FailingSuspended::~FailingSuspended() { state.armed = was_armed_; }

std::size_t LiveAllocations() { return state.live; }
std::size_t LiveBytes() { return state.live_bytes; }
std::size_t PeakBytes() { return state.peak_bytes; }
void RestartPeak() { state.peak_bytes = state.live_bytes; }

}  // namespace kavrix::test

using kavrix::test::Allocated;
using kavrix::test::Freed;
using kavrix::test::MustFail;

extern "C" {

void* malloc(std::size_t size) noexcept { return MustFail() ? nullptr : Allocated(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) noexcept {
  return MustFail() ? nullptr : Allocated(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size) noexcept {
  if (MustFail()) return nullptr;
  Freed(memory);
  return Allocated(__libc_realloc(memory, size));
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
  return MustFail() ? nullptr : Allocated(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
  void* const allocated = memalign(alignment, size);
  if (allocated == nullptr) return ENOMEM;
  *memory = allocated;
  return 0;
}

void free(void* memory) noexcept {
  Freed(memory);
  __libc_free(memory);
}

}  // extern "C"
