// Prints how often a run of each case calls malloc, as "case<TAB>number" lines.

#include <cstddef>
#include <iostream>

#include "bench/cases.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// Takes the place of glibc's malloc in the whole process; operator new calls it too.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}

int main() {
  for (const kavrix::bench::Case& one : kavrix::bench::Cases()) {
    if (one.id.find("linear/") == 0) continue;
    const std::function<void()> run = one.make();
    run();
    const std::size_t before = allocations;
    run();
    const std::size_t after = allocations;
    std::cout << one.id << '\t' << after - before << '\n';
  }
  return 0;
}
