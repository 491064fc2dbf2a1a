#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "map_resource/map_resource_transform.h"
#include "tests/support/plog_records.h"

namespace kavrix::test {
namespace {

using logging::JoinPlog;
using logging::LogLevel;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A logger of the client's own, which writes to a keeper.
template <int id>
class ClientLogger : public plog::Logger<id> {
 public:
  explicit ClientLogger(RecordKeeper& keeper, plog::Severity severity = plog::info) {
    this->setMaxSeverity(severity);
    this->addAppender(&keeper);
  }
};

class TaggedLogPlogJoinTest : public ::testing::Test {
 protected:
  ~TaggedLogPlogJoinTest() override {
    logging::SetLoggerInstance(0, {});
    logging::SetLoggerInstance(2, {});
    logging::SetLoggerInstance(4, {});
    logging::kavrix_log_instance_id_ = 0;
  }

  // Decodes a name that no kind has: a routine log record and a failure.
  void Reject(const std::string& name = "n") {
    std::shared_ptr<BubbleDrawDescriptor> out;
    transform_.GetBubbleDrawDescriptor(name, out);
  }

  RecordKeeper keeper_;
  MapResourceTransform transform_{std::make_shared<KavrixContext>("ctx")};
};

TEST_F(TaggedLogPlogJoinTest, LogRecordsReachTheLoggerOfTheClient) {
  ClientLogger<0> logger(keeper_);
  ASSERT_TRUE(JoinPlog());
  Reject();
  EXPECT_THAT(keeper_.messages, ElementsAre("[Kavrix][ctx]resource_name:n",
                                            "[Kavrix][ctx]resource_name:n, it is a not valid bubble."));
  EXPECT_THAT(keeper_.tags, ElementsAre("KavrixMapLayerMgr", "KavrixMapLayerMgr"));
  EXPECT_THAT(keeper_.instance_ids, ElementsAre(0U, 0U));
}

TEST_F(TaggedLogPlogJoinTest, WithoutThatLoggerNothingChanges) {
  ClientLogger<0> logger(keeper_);
  ASSERT_TRUE(JoinPlog());
  EXPECT_FALSE(JoinPlog<2>());
  EXPECT_EQ(logging::kavrix_log_instance_id_, 0U);
  EXPECT_FALSE(logging::Logger::TestLogLevelAndTag(2, LogLevel::kFailure, "Tag"));
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 2U);
}

TEST_F(TaggedLogPlogJoinTest, AnotherLoggerIsJoinedBesideTheFirst) {
  ClientLogger<0> first(keeper_);
  RecordKeeper second_keeper;
  ClientLogger<2> second(second_keeper);
  ASSERT_TRUE(JoinPlog<0>());
  ASSERT_TRUE(JoinPlog<2>());
  EXPECT_EQ(logging::kavrix_log_instance_id_, 2U);
  Reject();
  EXPECT_THAT(keeper_.messages, IsEmpty());
  EXPECT_THAT(second_keeper.instance_ids, ElementsAre(2U, 2U));
  logging::kavrix_log_instance_id_ = 0;
  Reject();
  EXPECT_THAT(keeper_.instance_ids, ElementsAre(0U, 0U));
  EXPECT_EQ(second_keeper.messages.size(), 2U);
}

TEST_F(TaggedLogPlogJoinTest, LoggerFiltersByItsSeverityAtThatTime) {
  ClientLogger<0> logger(keeper_, plog::error);
  ASSERT_TRUE(JoinPlog());
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 1U);
  logger.setMaxSeverity(plog::verbose);
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 3U);
  logger.setMaxSeverity(plog::none);
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 3U);
}

TEST_F(TaggedLogPlogJoinTest, OptionsAreThoseOfTheSink) {
  ClientLogger<0> logger(keeper_, plog::error);
  logging::PlogOptions options;
  options.tag_in_message = true;
  ASSERT_TRUE(JoinPlog(options));
  Reject("a\nb");
  options.escape = false;
  ASSERT_TRUE(JoinPlog(options));
  Reject("a\nb");
  const std::string head = "[KavrixMapLayerMgr] [Kavrix][ctx]resource_name:";
  const std::string tail = ", it is a not valid bubble.";
  EXPECT_THAT(keeper_.messages, ElementsAre(head + R"(a\nb)" + tail, head + "a\nb" + tail));
}

TEST_F(TaggedLogPlogJoinTest, RemovingTheInstanceLeavesPlog) {
  ClientLogger<0> logger(keeper_);
  ASSERT_TRUE(JoinPlog());
  logging::SetLoggerInstance(0, {});
  Reject();
  EXPECT_THAT(keeper_.messages, IsEmpty());
}

TEST_F(TaggedLogPlogJoinTest, LogRecordsAfterTheEndOfTheLoggerAreDropped) {
  auto logger = std::make_unique<ClientLogger<4>>(keeper_);
  ASSERT_TRUE(JoinPlog<4>());
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 2U);
  logger.reset();
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 2U);
  ClientLogger<4> next(keeper_);
  Reject();
  EXPECT_EQ(keeper_.messages.size(), 4U);
}

}  // namespace
}  // namespace kavrix::test
