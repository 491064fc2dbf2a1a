#ifndef KAVRIX_TESTS_SUPPORT_DECODE_TEST_H_
#define KAVRIX_TESTS_SUPPORT_DECODE_TEST_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "descriptors/descriptors.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "tests/support/print_descriptor.h"
#include "tests/support/record_collector.h"

namespace kavrix::test {

// Counts the configuration snapshots that parsers take.
class CountingContext : public KavrixContext {
 public:
  using KavrixContext::KavrixContext;
  BubbleLayerConfigContainer GetBubbleLayerConfigInLock() const override {
    ++snapshots;
    return KavrixContext::GetBubbleLayerConfigInLock();
  }
  mutable int snapshots = 0;
};

// Returns the word of value `number` of record `record` (1 to 21) in a DecodeTest. No two are the same.
constexpr std::uint32_t WordOf(std::uint32_t record, std::uint32_t number) { return record * 1000 + number; }

// Returns the float of a cell that a kind reads as a float.
constexpr float FloatOf(std::uint32_t record, std::uint32_t number) {
  return static_cast<float>(record) * 100 + static_cast<float>(number) + 0.5F;
}

// Decodes names on a context named "ctx" whose style records are named after themselves ("traffic_style") and
// hold WordOf, or FloatOf where floats are read.
class DecodeTest : public ::testing::Test {
 protected:
  DecodeTest() { context_->SetBubbleLayerConfig(MakeConfig()); }

  // Decodes prefix + `rest`; the records of the dispatcher and of the parser are in records().
  void Decode(const std::string& rest) { DecodeWhole(MapResourceManager::kavrix_resource_prefix + rest); }
  void DecodeWhole(const std::string& name) {
    name_ = name;
    collector_.Clear();
    context_->snapshots = 0;
    transform_.GetBubbleDrawDescriptor(name, out_);
  }

  // Decodes prefix + `rest` and returns the level of every record, with the direction of `out` when it was
  // written.
  std::vector<std::pair<int, int>> DirectionsAtRecords(const std::string& rest) {
    struct Sink : logging::LogSink {
      explicit Sink(const std::shared_ptr<BubbleDrawDescriptor>& descriptor) : out(descriptor) {}
      void Write(const logging::LogRecord& record) override {
        seen.emplace_back(static_cast<int>(record.level), out->direction);
      }
      const std::shared_ptr<BubbleDrawDescriptor>& out;
      std::vector<std::pair<int, int>> seen;
    };
    out_ = std::make_shared<BubbleDrawDescriptor>();
    const auto sink = std::make_shared<Sink>(out_);
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {sink, logging::LogLevel::kRoutine, {}});
    Decode(rest);
    collector_.Install();
    return sink->seen;
  }

  // Returns `out` as the type that it must have.
  template <class Descriptor>
  const Descriptor& Out() const {
    const auto* const descriptor = dynamic_cast<const Descriptor*>(out_.get());
    if (descriptor == nullptr) throw std::logic_error("out does not hold the expected type");
    return *descriptor;
  }
  const BubbleDrawDescriptor& Base() const { return Out<BubbleDrawDescriptor>(); }

  // Returns the record that the dispatcher writes first for every name.
  SeenRecord Request() const {
    return Routine("KavrixMapLayerMgr", "GetBubbleDrawDescriptor", "resource_name:" + name_);
  }
  static SeenRecord Routine(const std::string& tag, const std::string& function, const std::string& message) {
    return {0, tag, function, "[Kavrix][ctx]" + message};
  }
  static SeenRecord Failure(const std::string& tag, const std::string& function, const std::string& message) {
    return {1, tag, function, "[Kavrix][ctx]" + message};
  }

  // Returns the descriptor as it is printed in a record.
  template <class Descriptor>
  static std::string Printed(const Descriptor& descriptor) {
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(6) << descriptor;
    return stream.str();
  }

  const std::vector<SeenRecord>& records() const { return collector_.records(); }
  int snapshots() const { return context_->snapshots; }

  static BubbleLayerConfigContainer MakeConfig() {
    BubbleLayerConfigContainer config;
    std::uint32_t record_number = 0;
    ForEachStyleRecord(config, [&](const char* name, auto& record) {
      ++record_number;
      record.name = name;
      for (std::uint32_t number = 1; number <= record.kValueCount; ++number) {
        if (IsFloatValue(name, number)) {
          record.SetFloat(number, FloatOf(record_number, number));
        } else {
          record.SetWord(number, WordOf(record_number, number));
        }
      }
    });
    return config;
  }

  std::shared_ptr<CountingContext> context_ = std::make_shared<CountingContext>("ctx");
  MapResourceTransform transform_{context_};
  std::shared_ptr<BubbleDrawDescriptor> out_;
  std::string name_;
  RecordCollector collector_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_DECODE_TEST_H_
