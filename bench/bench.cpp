// Times the cases with Google Benchmark, whose options it takes.

#include <benchmark/benchmark.h>

#include "bench/cases.h"

int main(int argc, char** argv) {
  for (const kavrix::bench::Case& one : kavrix::bench::Cases()) {
    benchmark::RegisterBenchmark(one.id.c_str(), [&one](benchmark::State& state) {
      const std::function<void()> run = one.make();
      for (auto _ : state) run();
    });
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
