#ifndef KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_
#define KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_

#include <cstddef>
#include <functional>

namespace kavrix::test {

// Runs `work` on a new thread with a stack of `size` bytes and a guard page below. Returns how many bytes of
// the stack were used, including the thread's own start.
std::size_t StackUsedOnThread(std::size_t size, const std::function<void()>& work);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_THREAD_STACK_H_
