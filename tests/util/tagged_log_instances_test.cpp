#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "map_resource/map_resource_transform.h"
#include "util/tagged_log.h"

// Tests several log instances, installed, exchanged and removed while other threads log.
namespace kavrix::test {
namespace {

using logging::LogLevel;
using logging::LogRecord;
using logging::SetLoggerInstance;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t kFirst = 7;
constexpr std::uint32_t kSecond = 8;

class FunctionSink : public logging::LogSink {
 public:
  explicit FunctionSink(std::function<void(const std::string&)> write) : write_(std::move(write)) {}
  void Write(const LogRecord& record) override { write_(record.message); }

 private:
  std::function<void(const std::string&)> write_;
};

// Counts in its destructor whether another thread can install an instance meanwhile.
class InstallsWhenDestroyed {
 public:
  explicit InstallsWhenDestroyed(int& installed) : installed_(installed) {}
  InstallsWhenDestroyed(const InstallsWhenDestroyed&) = delete;
  InstallsWhenDestroyed& operator=(const InstallsWhenDestroyed&) = delete;
  ~InstallsWhenDestroyed() {
    std::packaged_task<void()> install([] { SetLoggerInstance(kSecond, {}); });
    const std::future<void> done = install.get_future();
    std::thread(std::move(install)).detach();  // a lock that is held here must not hold the test for ever
    if (done.wait_for(std::chrono::seconds(5)) == std::future_status::ready) ++installed_;
  }

 private:
  int& installed_;
};

std::function<bool(const std::string&)> FilterThatInstallsWhenDestroyed(int& installed) {
  return [object = std::make_shared<InstallsWhenDestroyed>(installed)](const std::string&) { return true; };
}

class SinkThatInstallsWhenDestroyed : public logging::LogSink {
 public:
  explicit SinkThatInstallsWhenDestroyed(int& installed) : object_(installed) {}
  void Write(const LogRecord&) override {}

 private:
  InstallsWhenDestroyed object_;
};

class TaggedLogInstancesTest : public ::testing::Test {
 protected:
  TaggedLogInstancesTest() { logging::kavrix_log_instance_id_ = kFirst; }
  ~TaggedLogInstancesTest() override {
    SetLoggerInstance(kFirst, {});
    SetLoggerInstance(kSecond, {});
    logging::kavrix_log_instance_id_ = 0;
  }
  static std::shared_ptr<logging::LogSink> SinkInto(std::vector<std::string>& messages) {
    return std::make_shared<FunctionSink>([&](const std::string& message) { messages.push_back(message); });
  }
  void Say(const std::string& text) { KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, text); }

  std::vector<std::string> first_;
  std::vector<std::string> second_;
  std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>("ctx");
};

TEST_F(TaggedLogInstancesTest, RecordsGoOnlyToTheCurrentInstance) {
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, {}});
  SetLoggerInstance(kSecond, {SinkInto(second_), LogLevel::kRoutine, {}});
  Say("a");
  logging::kavrix_log_instance_id_ = kSecond;
  Say("b");
  logging::kavrix_log_instance_id_ = 9;
  Say("c");
  EXPECT_THAT(first_, ElementsAre("[Kavrix][ctx]a"));
  EXPECT_THAT(second_, ElementsAre("[Kavrix][ctx]b"));
}

TEST_F(TaggedLogInstancesTest, InstanceChangedBetweenFilterAndRecordIsTakenUpAtOnce) {
  const auto switch_over = [](const std::string&) {
    logging::kavrix_log_instance_id_ = kSecond;
    return true;
  };
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, switch_over});
  SetLoggerInstance(kSecond, {SinkInto(second_), LogLevel::kRoutine, {}});
  Say("a");
  EXPECT_THAT(first_, IsEmpty());
  EXPECT_THAT(second_, ElementsAre("[Kavrix][ctx]a"));
}

TEST_F(TaggedLogInstancesTest, InstanceChangedToOneThatDoesNotExistLosesTheRecord) {
  const auto switch_over = [](const std::string&) {
    logging::kavrix_log_instance_id_ = kSecond;
    return true;
  };
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, switch_over});
  Say("a");
  EXPECT_THAT(first_, IsEmpty());
}

TEST_F(TaggedLogInstancesTest, NullSinkRemovesTheInstanceAndReleasesIt) {
  auto sink = SinkInto(first_);
  const std::weak_ptr<logging::LogSink> watched = sink;
  SetLoggerInstance(kFirst, {std::move(sink), LogLevel::kRoutine, {}});
  Say("a");
  SetLoggerInstance(kFirst, {});
  EXPECT_TRUE(watched.expired());
  Say("b");
  EXPECT_THAT(first_, ElementsAre("[Kavrix][ctx]a"));
  EXPECT_FALSE(logging::Logger::TestLogLevelAndTag(kFirst, LogLevel::kFailure, "Speaker"));
  SetLoggerInstance(kFirst, {});
}

TEST_F(TaggedLogInstancesTest, RecordBegunBeforeRemovalStillReachesItsSink) {
  const std::string tag = "T";
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, {}});
  {
    logging::Record record(LogLevel::kRoutine, "F", 1, "f.cpp", kFirst, tag);
    SetLoggerInstance(kFirst, {});
    record.Stream() << "late";
  }
  EXPECT_THAT(first_, ElementsAre("late"));
}

TEST_F(TaggedLogInstancesTest, RecordBegunBeforeAReplacementReachesTheOldSink) {
  const std::string tag = "T";
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, {}});
  {
    logging::Record record(LogLevel::kRoutine, "F", 1, "f.cpp", kFirst, tag);
    SetLoggerInstance(kFirst, {SinkInto(second_), LogLevel::kRoutine, {}});
    record.Stream() << "late";
  }
  EXPECT_THAT(first_, ElementsAre("late"));
  EXPECT_THAT(second_, IsEmpty());
}

TEST_F(TaggedLogInstancesTest, SinkThatThrowsCostsOnlyItsRecord) {
  int writes = 0;
  SetLoggerInstance(kFirst, {std::make_shared<FunctionSink>([&](const std::string&) {
                               ++writes;
                               throw std::runtime_error("disk full");
                             }),
                             LogLevel::kRoutine,
                             {}});
  EXPECT_NO_THROW(Say("a"));
  EXPECT_NO_THROW(Say("b"));
  EXPECT_EQ(writes, 2);
}

TEST_F(TaggedLogInstancesTest, FilterThatThrowsSaysNo) {
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine,
                             [](const std::string&) -> bool { throw std::runtime_error("no policy"); }});
  EXPECT_NO_THROW(Say("a"));
  EXPECT_THAT(first_, IsEmpty());
}

TEST_F(TaggedLogInstancesTest, SinkMayDecodeNamesOfItsOwn) {
  MapResourceTransform transform(context_);
  bool is_nested = false;
  const auto decode_again = [&](const std::string& message) {
    first_.push_back(message);
    if (is_nested) return;
    is_nested = true;
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform.GetBubbleDrawDescriptor("inner", out);
    is_nested = false;
  };
  SetLoggerInstance(kFirst, {std::make_shared<FunctionSink>(decode_again), LogLevel::kRoutine, {}});
  Say("outer");
  EXPECT_THAT(first_, ElementsAre("[Kavrix][ctx]outer", "[Kavrix][ctx]resource_name:inner",
                                  "[Kavrix][ctx]resource_name:inner, it is a not valid bubble."));
}

TEST_F(TaggedLogInstancesTest, SinkMayRemoveItself) {
  SetLoggerInstance(kFirst, {std::make_shared<FunctionSink>([&](const std::string& message) {
                               SetLoggerInstance(kFirst, {});
                               first_.push_back(message);
                             }),
                             LogLevel::kRoutine,
                             {}});
  Say("a");
  Say("b");
  EXPECT_THAT(first_, ElementsAre("[Kavrix][ctx]a"));
}

TEST_F(TaggedLogInstancesTest, RemovedSinkAndFilterMayInstallWhileTheyAreDestroyed) {
  int installed = 0;
  SetLoggerInstance(kFirst, {std::make_shared<SinkThatInstallsWhenDestroyed>(installed), LogLevel::kRoutine,
                             FilterThatInstallsWhenDestroyed(installed)});
  SetLoggerInstance(kFirst, {});
  EXPECT_EQ(installed, 2);
}

TEST_F(TaggedLogInstancesTest, ReplacedSinkAndFilterMayInstallWhileTheyAreDestroyed) {
  int installed = 0;
  SetLoggerInstance(kFirst, {std::make_shared<SinkThatInstallsWhenDestroyed>(installed), LogLevel::kRoutine,
                             FilterThatInstallsWhenDestroyed(installed)});
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, {}});
  EXPECT_EQ(installed, 2);
}

TEST_F(TaggedLogInstancesTest, FilterThatCameWithANullSinkMayInstallWhileItIsDestroyed) {
  int installed = 0;
  SetLoggerInstance(kFirst, {SinkInto(first_), LogLevel::kRoutine, {}});
  SetLoggerInstance(kFirst, {nullptr, LogLevel::kRoutine, FilterThatInstallsWhenDestroyed(installed)});
  EXPECT_EQ(installed, 1);
}

TEST_F(TaggedLogInstancesTest, RemovalDoesNotWaitForARecordAndTheSinkLivesUntilItIsWritten) {
  std::promise<void> begun;
  std::promise<void> may_end;
  auto sink = std::make_shared<FunctionSink>([&](const std::string& message) {
    begun.set_value();
    may_end.get_future().wait();
    first_.push_back(message);
  });
  const std::weak_ptr<logging::LogSink> watched = sink;
  SetLoggerInstance(kFirst, {std::move(sink), LogLevel::kRoutine, {}});
  std::thread speaker([this] {
    Say("a");
    Say("b");
  });
  begun.get_future().wait();
  SetLoggerInstance(kFirst, {});
  EXPECT_FALSE(watched.expired());
  may_end.set_value();
  speaker.join();
  EXPECT_TRUE(watched.expired());
  EXPECT_THAT(first_, ElementsAre("[Kavrix][ctx]a"));
}

TEST_F(TaggedLogInstancesTest, ThreadsMayExchangeSinksWhileAnotherLogs) {
  constexpr int kRounds = 2000;
  std::atomic<int> delivered{0};
  std::atomic<int> garbled{0};
  const auto make_sink = [&] {
    return std::make_shared<FunctionSink>([&](const std::string& message) {
      ++delivered;
      if (message != "[Kavrix][ctx]a") ++garbled;
    });
  };
  SetLoggerInstance(kFirst, {make_sink(), LogLevel::kRoutine, {}});
  const auto exchange = [&] {
    for (int i = 0; i < kRounds; ++i) SetLoggerInstance(kFirst, {make_sink(), LogLevel::kRoutine, {}});
  };
  std::thread one(exchange);
  std::thread other(exchange);
  for (int i = 0; i < kRounds; ++i) Say("a");
  one.join();
  other.join();
  EXPECT_EQ(delivered, kRounds);
  EXPECT_EQ(garbled, 0);
}

TEST_F(TaggedLogInstancesTest, ThreadsMayChangeTheInstanceWhileAnotherLogs) {
  constexpr int kRounds = 2000;
  std::atomic<int> delivered{0};
  const auto count = std::make_shared<FunctionSink>([&](const std::string&) { ++delivered; });
  SetLoggerInstance(kFirst, {count, LogLevel::kRoutine, {}});
  SetLoggerInstance(kSecond, {count, LogLevel::kRoutine, {}});
  std::thread changer([] {
    for (std::uint32_t i = 0; i < kRounds; ++i)
      logging::kavrix_log_instance_id_ = i % 2 == 0 ? kFirst : kSecond;
  });
  for (int i = 0; i < kRounds; ++i) Say("a");
  changer.join();
  EXPECT_EQ(delivered, kRounds);
}

}  // namespace
}  // namespace kavrix::test
