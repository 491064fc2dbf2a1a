#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

#include "tests/support/plog_records.h"
#include "util/tagged_log_plog.h"

// Compiled once for each form that plog's record has had.
namespace kavrix::test {
namespace {

struct LastRecord : plog::IAppender {
  void write(const plog::Record& record) override {
    ++count;
    severity = record.getSeverity();
    line = record.getLine();
    function = record.getFunc();
    file = record.getFile();
    message = record.getMessage();
    object = record.getObject();
#ifdef KAVRIX_PLOG_HAS_INSTANCE_ID
    instance_id = record.getInstanceId();
#endif
    const logging::TaggedRecord* const ours = logging::TaggedRecord::Of(record);
    ASSERT_NE(ours, nullptr);
    own_instance_id = ours->instance_id();
  }
  int count = 0;
  plog::Severity severity = plog::none;
  std::size_t line = 0;
  std::string function, file, message;
  const void* object = this;
  int instance_id = 0;
  std::uint32_t own_instance_id = 0;
};

TEST(PlogVersionTest, EveryPartOfARecordArrives) {
  LastRecord last;
  logging::PlogSink sink(last);
  const std::string tag = "T";
  const std::string message = "[Kavrix][ctx]resource_name:前";
  sink.Write({logging::LogLevel::kFailure, tag, "GetBubbleDrawDescriptor", "file.cpp", 123, message});
  EXPECT_EQ(last.count, 1);
  EXPECT_EQ(last.severity, plog::error);
  EXPECT_EQ(last.line, 123U);
  EXPECT_EQ(last.function, "GetBubbleDrawDescriptor");
  EXPECT_EQ(last.file, "file.cpp");
  EXPECT_EQ(last.message, message);
  EXPECT_EQ(last.object, nullptr);
  EXPECT_EQ(last.instance_id, 0);
}

TEST(PlogVersionTest, RoutineArrivesAsInfo) {
  LastRecord last;
  logging::PlogSink sink(last);
  const std::string text = "t";
  sink.Write({logging::LogLevel::kRoutine, text, "F", "f.cpp", 1, text});
  EXPECT_EQ(last.severity, plog::info);
}

TEST(PlogVersionTest, InstanceIdArrives) {
  LastRecord last;
  logging::PlogSink sink(last);
  const std::string text = "t";
  sink.Write({logging::LogLevel::kRoutine, text, "F", "f.cpp", 1, text, 5});
#ifdef KAVRIX_PLOG_HAS_INSTANCE_ID
  EXPECT_EQ(last.instance_id, 5);
#endif
  EXPECT_EQ(last.own_instance_id, 5U);
}

TEST(PlogVersionTest, LinesAreExact) {
  ASSERT_EQ(setenv("TZ", "UTC0", 1), 0);
  tzset();
  RecordKeeper keeper;
  logging::PlogSink sink(keeper);
  WriteLibraryRecord(sink, "Tag", "m");
  WriteClientRecord(keeper, plog::warning, "m");
  EXPECT_EQ(keeper.lines.at(0), "2001-09-09 01:46:40.007 INFO  [4711] [Parse@12] [Tag] m\n");
  EXPECT_EQ(keeper.lines.at(1), "2001-09-09 01:46:40.007 WARN  [4711] [main@7] m\n");
}

}  // namespace
}  // namespace kavrix::test
