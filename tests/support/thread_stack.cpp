#include "tests/support/thread_stack.h"

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace kavrix::test {
namespace {

constexpr unsigned char kUntouched = 0xA5;

void* Run(void* work) {
  (*static_cast<const std::function<void()>*>(work))();
  return nullptr;
}

// Memory below which a guard page traps.
class Stack {
 public:
  explicit Stack(std::size_t size) : page_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))), size_(size) {
    memory_ = mmap(nullptr, page_ + size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory_ == MAP_FAILED) throw std::runtime_error("cannot map a stack");
    if (mprotect(memory_, page_, PROT_NONE) != 0) throw std::runtime_error("cannot guard a stack");
    std::memset(bottom(), kUntouched, size_);
  }
  Stack(const Stack&) = delete;
  Stack& operator=(const Stack&) = delete;
  ~Stack() { munmap(memory_, page_ + size_); }

  unsigned char* bottom() const { return static_cast<unsigned char*>(memory_) + page_; }
  std::size_t Used() const {
    const auto touched = [](unsigned char byte) { return byte != kUntouched; };
    return static_cast<std::size_t>(bottom() + size_ - std::find_if(bottom(), bottom() + size_, touched));
  }

 private:
  std::size_t page_;
  std::size_t size_;
  void* memory_ = nullptr;
};

}  // namespace

std::size_t StackUsedOnThread(std::size_t size, const std::function<void()>& work) {
  const Stack stack(size);
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  if (pthread_attr_setstack(&attributes, stack.bottom(), size) != 0)
    throw std::runtime_error("stack refused");
  pthread_t thread{};
  const int error = pthread_create(&thread, &attributes, Run, const_cast<std::function<void()>*>(&work));
  pthread_attr_destroy(&attributes);
  if (error != 0) throw std::runtime_error("cannot start a thread");
  pthread_join(thread, nullptr);
  return stack.Used();
}

}  // namespace kavrix::test
