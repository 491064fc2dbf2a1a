#include "util/tagged_log_plog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map_resource/map_resource_transform.h"

namespace kavrix::test {
namespace {

using logging::LogLevel;
using logging::PlogSink;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CollectingAppender : public plog::IAppender {
 public:
  void write(const plog::Record& record) override {
    severities.push_back(record.getSeverity());
    functions.emplace_back(record.getFunc());
    lines.push_back(record.getLine());
    messages.emplace_back(record.getMessage());
  }
  std::vector<plog::Severity> severities;
  std::vector<std::string> functions;
  std::vector<std::size_t> lines;
  std::vector<std::string> messages;
};

class TaggedLogPlogTest : public ::testing::Test {
 protected:
  TaggedLogPlogTest() { logging::kavrix_log_instance_id_ = kInstance; }
  ~TaggedLogPlogTest() override {
    logging::SetLoggerInstance(kInstance, {});
    logging::kavrix_log_instance_id_ = 0;
  }
  void SendTo(plog::IAppender& appender) {
    logging::SetLoggerInstance(kInstance, {std::make_shared<PlogSink>(appender), LogLevel::kRoutine, {}});
  }
  void Reject(const std::string& name) {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetBubbleDrawDescriptor(name, out);
  }

  static constexpr std::uint32_t kInstance = 5;
  CollectingAppender appender_;
  MapResourceTransform transform_{std::make_shared<KavrixContext>("ctx")};
};

TEST_F(TaggedLogPlogTest, RoutineArrivesAsInfoAndFailureAsError) {
  SendTo(appender_);
  Reject("n");
  EXPECT_THAT(appender_.severities, ElementsAre(plog::info, plog::error));
}

TEST_F(TaggedLogPlogTest, MessageArrivesAsItWasWritten) {
  SendTo(appender_);
  Reject("前");
  EXPECT_THAT(appender_.messages, ElementsAre("[Kavrix][ctx]resource_name:前",
                                              "[Kavrix][ctx]resource_name:前, it is a not valid bubble."));
}

TEST_F(TaggedLogPlogTest, FunctionNameArrivesBare) {
  SendTo(appender_);
  Reject("n");
  EXPECT_THAT(appender_.functions, ElementsAre("GetBubbleDrawDescriptor", "GetBubbleDrawDescriptor"));
}

TEST_F(TaggedLogPlogTest, LineArrives) {
  PlogSink sink(appender_);
  const std::string tag = "T";
  const std::string message = "m";
  sink.Write({LogLevel::kRoutine, tag, "Function", "file.cpp", 123, message});
  EXPECT_THAT(appender_.lines, ElementsAre(123U));
  EXPECT_THAT(appender_.functions, ElementsAre("Function"));
  EXPECT_THAT(appender_.messages, ElementsAre("m"));
}

TEST_F(TaggedLogPlogTest, PlogLoggerFiltersByItsOwnSeverity) {
  plog::Logger<41> logger;
  logger.addAppender(&appender_);
  logger.setMaxSeverity(plog::error);
  SendTo(logger);
  Reject("n");
  EXPECT_THAT(appender_.severities, ElementsAre(plog::error));
  logger.setMaxSeverity(plog::info);
  Reject("n");
  EXPECT_THAT(appender_.severities, ElementsAre(plog::error, plog::info, plog::error));
}

TEST_F(TaggedLogPlogTest, PlogLoggerWithoutASeverityPassesNothingOn) {
  plog::Logger<42> logger;
  logger.addAppender(&appender_);
  logger.setMaxSeverity(plog::none);
  SendTo(logger);
  Reject("n");
  EXPECT_THAT(appender_.messages, IsEmpty());
}

TEST_F(TaggedLogPlogTest, AppenderThatThrowsCostsOnlyItsRecord) {
  struct Throwing : plog::IAppender {
    void write(const plog::Record&) override { throw std::runtime_error("disk full"); }
  } appender;
  SendTo(appender);
  EXPECT_NO_THROW(Reject("n"));
}

}  // namespace
}  // namespace kavrix::test
