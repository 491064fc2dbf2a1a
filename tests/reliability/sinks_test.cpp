// Tests sinks and tag filters that misbehave: a decode returns as usual and delivers the next record.

#include <stdexcept>

#include "tests/support/decode_test.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

using logging::LoggerInstance;
using logging::LogLevel;
using logging::LogRecord;

// Throws at every record for which `fails` returns true, and keeps the others.
class FailingSink : public logging::LogSink {
 public:
  explicit FailingSink(std::function<void(int number)> fails) : fails_(std::move(fails)) {}
  void Write(const LogRecord& record) override {
    fails_(++number_);
    messages.push_back(record.message);
  }
  std::vector<std::string> messages;

 private:
  std::function<void(int)> fails_;
  int number_ = 0;
};

class SinksTest : public DecodeTest {
 protected:
  ~SinksTest() override { Install({}); }

  static void Install(LoggerInstance instance) {
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, std::move(instance));
  }

  std::shared_ptr<BubbleDrawDescriptor> DecodeSample(const SampleName& sample) {
    std::shared_ptr<BubbleDrawDescriptor> out;
    if (sample.is_marker) {
      transform_.GetMarkerDrawDescriptor(sample.name, out);
    } else {
      transform_.GetBubbleDrawDescriptor(sample.name, out);
    }
    return out;
  }

  const std::string good_ =
      MapResourceManager::kavrix_resource_prefix + std::string(R"({"content":"c"}.trafficBubble)");
};

TEST_F(SinksTest, AThrowingSinkCostsOnlyItsRecord) {
  const auto sink = std::make_shared<FailingSink>([](int number) {
    if (number == 1) throw std::runtime_error("disk full");
  });
  Install({sink, LogLevel::kRoutine, {}});
  EXPECT_NO_THROW(DecodeWhole(good_));
  EXPECT_EQ(Base().content, "c");
  ASSERT_EQ(sink->messages.size(), 1U);
  EXPECT_EQ(sink->messages[0].find("[Kavrix][ctx]BubbleDrawDescriptor{"), 0U);
}

TEST_F(SinksTest, WhateverASinkThrowsStaysInside) {
  const std::vector<std::function<void(int)>> throws = {
      [](int) { throw std::runtime_error("an error"); }, [](int) { throw std::bad_alloc(); },
      [](int) { throw 5; }, [](int) { throw "text"; }, [](int) { throw nullptr; }};
  for (const auto& thrower : throws) {
    const auto sink = std::make_shared<FailingSink>(thrower);
    Install({sink, LogLevel::kRoutine, {}});
    for (const SampleName& sample : SampleNames()) EXPECT_NE(DecodeSample(sample), nullptr);
    EXPECT_EQ(sink->messages.size(), 0U);
  }
}

TEST_F(SinksTest, AThrowingSinkLeavesTheDescriptorsAsTheyAre) {
  for (const SampleName& sample : SampleNames()) {
    Install({});
    const auto expected = DecodeSample(sample);
    Install({std::make_shared<FailingSink>([](int) { throw 5; }), LogLevel::kRoutine, {}});
    EXPECT_EQ(*DecodeSample(sample), *expected) << sample.name;
  }
}

TEST_F(SinksTest, AnExceptionOfTheDecodeItselfPassesAThrowingSink) {
  Install({std::make_shared<FailingSink>([](int) { throw 5; }), LogLevel::kRoutine, {}});
  EXPECT_THROW(DecodeWhole(".trafficBubble"), std::out_of_range);
}

TEST_F(SinksTest, AThrowingTagFilterCostsOnlyItsRecord) {
  const auto sink = std::make_shared<FailingSink>([](int) {});
  int asked = 0;
  Install({sink, LogLevel::kRoutine, [&asked](const std::string&) -> bool {
             if (++asked == 1) throw std::runtime_error("no such tag");
             return true;
           }});
  EXPECT_NO_THROW(DecodeWhole(good_));
  EXPECT_EQ(Base().content, "c");
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(sink->messages.size(), 1U);
}

// Decodes one more name for each record, to a depth of `levels`.
class DecodingSink : public logging::LogSink {
 public:
  DecodingSink(MapResourceTransform& transform, std::string name, int levels)
      : transform_(transform), name_(std::move(name)), levels_(levels) {}

  void Write(const LogRecord& record) override {
    messages.push_back(record.message);
    if (levels_ == 0) return;
    --levels_;
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetBubbleDrawDescriptor(name_, out);
    decoded.push_back(out);
    ++levels_;
  }
  std::vector<std::string> messages;
  std::vector<std::shared_ptr<BubbleDrawDescriptor>> decoded;

 private:
  MapResourceTransform& transform_;
  const std::string name_;
  int levels_;
};

TEST_F(SinksTest, ASinkThatDecodesGetsAllRecords) {
  const auto sink = std::make_shared<DecodingSink>(transform_, good_, 3);
  Install({sink, LogLevel::kRoutine, {}});
  DecodeWhole(good_);
  EXPECT_EQ(sink->messages.size(), 2U + 4 + 8 + 16);
  ASSERT_EQ(sink->decoded.size(), 2U + 4 + 8);
  for (const auto& descriptor : sink->decoded) EXPECT_EQ(*descriptor, Base());
}

// Removes itself while it writes.
class LeavingSink : public logging::LogSink {
 public:
  void Write(const LogRecord&) override {
    ++records;
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {});
    text.assign(1'000, 'x');  // still there to be written to
  }
  int records = 0;
  std::string text;
};

TEST_F(SinksTest, ASinkMayRemoveItself) {
  const auto sink = std::make_shared<LeavingSink>();
  Install({sink, LogLevel::kRoutine, {}});
  DecodeWhole(good_);
  EXPECT_EQ(sink->records, 1);
  EXPECT_EQ(Base().content, "c");
}

TEST_F(SinksTest, AContextThatTheClientLetsGoOfLivesAsLongAsItsTransform) {
  auto context = std::make_shared<KavrixContext>("ctx");
  context->SetBubbleLayerConfig(MakeConfig());
  const std::weak_ptr<KavrixContext> watched = context;
  auto transform = std::make_unique<MapResourceTransform>(context);
  Install({std::make_shared<FailingSink>([&](int) { context.reset(); }), LogLevel::kRoutine, {}});
  transform->GetBubbleDrawDescriptor(good_, out_);
  EXPECT_EQ(Base().style_name, "traffic_style");
  EXPECT_FALSE(watched.expired());
  transform.reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(SinksTest, ATagFilterMayDecodeAndInstallAnother) {
  const auto second = std::make_shared<FailingSink>([](int) {});
  Install({std::make_shared<FailingSink>([](int) {}), LogLevel::kRoutine, [&](const std::string&) {
             Install({second, LogLevel::kRoutine, {}});
             std::shared_ptr<BubbleDrawDescriptor> out;
             transform_.GetBubbleDrawDescriptor(good_, out);
             return true;
           }});
  DecodeWhole(good_);
  EXPECT_EQ(second->messages.size(), 4U);
}

}  // namespace
}  // namespace kavrix::test
