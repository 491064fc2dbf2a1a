// Runs one case a number of times, for callgrind to count: two runs differ by the cost of the additional
// repetitions. Without arguments it lists the cases.
//
//   kavrix-run-case [CASE REPETITIONS]

#include <cstdlib>
#include <iostream>

#include "bench/cases.h"

int main(int argc, char** argv) {
  for (const kavrix::bench::Case& one : kavrix::bench::Cases()) {
    if (argc == 1) std::cout << one.id << '\n';
    if (argc != 3 || one.id != argv[1]) continue;
    const std::function<void()> run = one.make();
    for (int i = std::atoi(argv[2]); i > 0; --i) run();
    return 0;
  }
  return argc == 1 ? 0 : 2;
}
