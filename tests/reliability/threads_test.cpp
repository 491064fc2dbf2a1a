// Eight threads decode names of all kinds while one replaces the configuration and one swaps the log sinks
// and the instance that records go to. Every descriptor holds values of only one configuration.
// scripts/test-threads runs this under ThreadSanitizer.

#include <array>
#include <atomic>
#include <iostream>
#include <map>
#include <thread>

#include "tests/support/decode_test.h"
#include "tests/support/effort.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

constexpr int kDecodingThreads = 8;

// Makes configurations that differ in every name and every value. The names are too long to be stored inside
// the string objects, which makes a torn copy visible.
BubbleLayerConfigContainer ConfigNumber(std::uint32_t number) {
  BubbleLayerConfigContainer config;
  ForEachStyleRecord(config, [number](const char* name, auto& record) {
    record.name = std::string(name) + " of configuration number " + std::to_string(number);
    for (std::uint32_t n = 1; n <= record.kValueCount; ++n) record.SetWord(n, 0x3F800000 + 100 * number + n);
    record.items.assign(number + 1, number);
  });
  return config;
}

// Counts the records and those that are cut short.
class CountingSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override {
    ++written;
    const bool is_whole = record.message.compare(0, 13, "[Kavrix][ctx]") == 0 && record.message.size() > 13 &&
                          record.tag.find("MapLayerMgr") != std::string::npos;
    if (!is_whole) ++broken;
  }
  std::atomic<int> written{0};
  std::atomic<int> broken{0};
};

class ThreadsTest : public ::testing::Test {
 protected:
  static constexpr std::uint32_t kConfigs = 4;
  using Expected = std::map<std::string, std::shared_ptr<BubbleDrawDescriptor>>;  // by style name

  ThreadsTest() {
    for (std::uint32_t i = 0; i < kConfigs; ++i) configs_.push_back(ConfigNumber(i));
    for (std::size_t i = 0; i < samples_.size(); ++i) {
      for (const auto& config : configs_) {
        context_->SetBubbleLayerConfig(config);
        const auto out = Decode(samples_[i]);
        expected_[i][out->style_name] = out;
      }
    }
  }
  ~ThreadsTest() override {
    for (const std::uint32_t id : {0U, 1U, 2U}) logging::SetLoggerInstance(id, {});
    logging::kavrix_log_instance_id_ = 0;
  }

  std::shared_ptr<BubbleDrawDescriptor> Decode(const SampleName& sample) {
    std::shared_ptr<BubbleDrawDescriptor> out;
    if (sample.is_marker) {
      transform_.GetMarkerDrawDescriptor(sample.name, out);
    } else {
      transform_.GetBubbleDrawDescriptor(sample.name, out);
    }
    return out;
  }

  void DecodeAll(std::size_t first, int count) {
    for (std::size_t i = first; count > 0; ++i, --count) {
      const std::size_t sample = i % samples_.size();
      const auto out = Decode(samples_[sample]);
      const auto expected = expected_.at(sample).find(out->style_name);
      if (expected == expected_.at(sample).end() || *expected->second != *out) ++torn_;
    }
  }

  void SwapConfigs() {
    for (std::size_t i = 0; !done_ || config_swaps_ < swaps_wanted_; ++i, ++config_swaps_) {
      context_->SetBubbleLayerConfig(configs_[i % configs_.size()]);
    }
  }

  // Two of three instances have a sink at any time, in turn.
  void SwapSinks() {
    for (std::uint32_t i = 0; !done_ || sink_swaps_ < swaps_wanted_; ++i, ++sink_swaps_) {
      logging::SetLoggerInstance(i % 3, {sinks_[i % 2], logging::LogLevel::kRoutine, {}});
      logging::kavrix_log_instance_id_ = i % 5 % 3;
      logging::SetLoggerInstance((i + 1) % 3, {});
    }
  }

  const std::vector<SampleName> samples_ = SampleNames();
  std::vector<BubbleLayerConfigContainer> configs_;
  std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>("ctx");
  MapResourceTransform transform_{context_};
  std::map<std::size_t, Expected> expected_;  // by sample; not written to while the threads run
  std::array<std::shared_ptr<CountingSink>, 2> sinks_ = {std::make_shared<CountingSink>(),
                                                         std::make_shared<CountingSink>()};
  std::atomic<int> torn_{0};
  std::atomic<bool> done_{false};
  int swaps_wanted_ = 0;
  int config_swaps_ = 0;  // each is written only by its thread
  int sink_swaps_ = 0;
};

TEST_F(ThreadsTest, DecodeWhileConfigurationAndSinksAreSwapped) {
  const int decodes = IsComplete() ? 1'000'000 : 20'000;
  swaps_wanted_ = decodes / 10;
  std::thread config_thread([this] { SwapConfigs(); });
  std::thread sink_thread([this] { SwapSinks(); });
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < kDecodingThreads; ++i) {
    threads.emplace_back([this, i, decodes] { DecodeAll(i * 9, decodes / kDecodingThreads); });
  }
  for (std::thread& thread : threads) thread.join();
  done_ = true;
  config_thread.join();
  sink_thread.join();

  const int written = sinks_[0]->written + sinks_[1]->written;
  EXPECT_EQ(torn_, 0);
  EXPECT_EQ(sinks_[0]->broken + sinks_[1]->broken, 0);
  EXPECT_GT(written, 0);
  EXPECT_GE(config_swaps_, swaps_wanted_);
  EXPECT_GE(sink_swaps_, swaps_wanted_);
  std::cout << decodes << " decodes on " << kDecodingThreads << " threads, " << config_swaps_
            << " configurations swapped, " << sink_swaps_ << " sinks swapped, " << written
            << " records written\n";
}

}  // namespace
}  // namespace kavrix::test
