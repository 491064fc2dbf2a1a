#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

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
  }
  int count = 0;
  plog::Severity severity = plog::none;
  std::size_t line = 0;
  std::string function, file, message;
  const void* object = this;
  int instance_id = 0;
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

}  // namespace
}  // namespace kavrix::test
