// Decodes P1 to P4 on one thread and on two, logs off, while another thread replaces the configuration every
// millisecond. Prints the decodes a second of each round as "one<TAB>two" lines.
//
//   kavrix-threads ROUNDS MILLISECONDS

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "bench/names.h"
#include "map_resource/map_resource_transform.h"

namespace kavrix::bench {
namespace {

using Clock = std::chrono::steady_clock;

std::uint64_t DecodeUntil(MapResourceTransform& transform, const std::atomic<bool>& stop) {
  std::uint64_t decodes = 0;
  while (!stop) {
    for (const Name* const name : {&P1(), &P2(), &P3(), &P4()}) {
      std::shared_ptr<BubbleDrawDescriptor> out;
      transform.GetBubbleDrawDescriptor(name->name, out);
      ++decodes;
    }
  }
  return decodes;
}

void ReplaceUntil(KavrixContext& context, const std::atomic<bool>& stop) {
  const BubbleLayerConfigContainer config = context.GetBubbleLayerConfigInLock();
  while (!stop) {
    context.SetBubbleLayerConfig(config);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

double DecodesASecond(int thread_count, std::chrono::milliseconds duration) {
  const auto context = MakeContext();
  MapResourceTransform transform(context);
  std::atomic<bool> stop{false};
  std::atomic<std::uint64_t> decodes{0};
  const Clock::time_point begin = Clock::now();
  std::thread replacing([&] { ReplaceUntil(*context, stop); });
  std::vector<std::thread> decoding;
  for (int i = 0; i < thread_count; ++i) {
    decoding.emplace_back([&] { decodes += DecodeUntil(transform, stop); });
  }
  std::this_thread::sleep_for(duration);
  stop = true;
  for (std::thread& thread : decoding) thread.join();
  const std::chrono::duration<double> seconds = Clock::now() - begin;
  replacing.join();
  return static_cast<double>(decodes.load()) / seconds.count();
}

}  // namespace
}  // namespace kavrix::bench

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::chrono::milliseconds duration(std::atoi(argv[2]));
  for (int round = std::atoi(argv[1]); round > 0; --round) {
    const double one = kavrix::bench::DecodesASecond(1, duration);
    const double two = kavrix::bench::DecodesASecond(2, duration);
    std::cout << static_cast<std::int64_t>(one) << '\t' << static_cast<std::int64_t>(two) << std::endl;
  }
  return 0;
}
