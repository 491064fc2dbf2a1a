#ifndef KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_
#define KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_

#include <cstddef>
#include <functional>

namespace kavrix::test {

// Runs `work` on a thread of its own with a stack of `size` bytes, behind which nothing can be written, and
// returns how much of it was used, the thread's own start included.
std::size_t StackUsedOnThread(std::size_t size, const std::function<void()>& work);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_
