#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <future>
#include <string>
#include <thread>

#include "tests/support/plog_records.h"

namespace kavrix::test {
namespace {

using logging::PlogOptions;
using logging::PlogSink;
using logging::TaggedRecord;
using ::testing::ElementsAre;

PlogOptions Raw() {
  PlogOptions options;
  options.escape = false;
  return options;
}

PlogOptions WithTag() {
  PlogOptions options;
  options.tag_in_message = true;
  return options;
}

// The message as the appender gets it.
std::string Arriving(const std::string& message, PlogOptions options) {
  RecordKeeper keeper;
  PlogSink sink(keeper, options);
  WriteLibraryRecord(sink, "Tag", message);
  return keeper.messages.at(0);
}

TEST(TaggedLogPlogRecordTest, RecordCarriesItsTagAndItsInstanceId) {
  RecordKeeper keeper;
  PlogSink sink(keeper);
  WriteLibraryRecord(sink, "Tag", "m");
  WriteLibraryRecord(sink, "Tag_Other", "m");
  EXPECT_THAT(keeper.tags, ElementsAre("Tag", "Tag_Other"));
  EXPECT_THAT(keeper.instance_ids, ElementsAre(9U, 9U));
}

TEST(TaggedLogPlogRecordTest, RecordOfTheClientIsNoneOfTheLibrary) {
  RecordKeeper keeper;
  PlogSink sink(keeper);
  WriteClientRecord(keeper, plog::info, "before");
  WriteLibraryRecord(sink, "Tag", "m");
  WriteClientRecord(keeper, plog::info, "after");
  EXPECT_THAT(keeper.tags, ElementsAre("none", "Tag", "none"));
}

// Writes a record of the library and one of the client while it has another.
class NestingAppender : public plog::IAppender {
 public:
  explicit NestingAppender(RecordKeeper& keeper) : keeper_(keeper), inner_sink_(keeper) {}

  void write(const plog::Record& record) override {
    WriteLibraryRecord(inner_sink_, "Inner", "m");
    WriteClientRecord(keeper_, plog::info, "m");
    keeper_.write(record);
  }

 private:
  RecordKeeper& keeper_;
  PlogSink inner_sink_;
};

TEST(TaggedLogPlogRecordTest, RecordsWrittenWhileAnotherIsWrittenKeepTheirTags) {
  RecordKeeper keeper;
  NestingAppender appender(keeper);
  PlogSink sink(appender);
  WriteLibraryRecord(sink, "Outer", "m");
  EXPECT_THAT(keeper.tags, ElementsAre("Inner", "none", "Outer"));
}

// Passes the outer record on while the inner one is written.
class LateAppender : public plog::IAppender {
 public:
  explicit LateAppender(RecordKeeper& keeper) : keeper_(keeper) {}

  void write(const plog::Record& record) override {
    if (outer_ != nullptr) return keeper_.write(*outer_);
    outer_ = &record;
    PlogSink inner_sink(*this);
    WriteLibraryRecord(inner_sink, "Inner", "m");
  }

 private:
  RecordKeeper& keeper_;
  const plog::Record* outer_ = nullptr;
};

TEST(TaggedLogPlogRecordTest, OuterRecordIsFoundWhileTheInnerIsWritten) {
  RecordKeeper keeper;
  LateAppender appender(keeper);
  PlogSink sink(appender);
  WriteLibraryRecord(sink, "Outer", "m");
  EXPECT_THAT(keeper.tags, ElementsAre("Outer"));
}

TEST(TaggedLogPlogRecordTest, AppenderThatThrowsLeavesNoRecordBehind) {
  struct Throwing : plog::IAppender {
    void write(const plog::Record& record) override {
      place = &record;
      throw std::runtime_error("disk full");
    }
    const plog::Record* place = nullptr;
  } appender;
  PlogSink sink(appender);
  EXPECT_THROW(WriteLibraryRecord(sink, "Tag", "m"), std::runtime_error);
  EXPECT_EQ(TaggedRecord::Of(*appender.place), nullptr);  // compares only the address
}

TEST(TaggedLogPlogRecordTest, TagStandsInTheMessageWhenAskedFor) {
  EXPECT_EQ(Arriving("[Kavrix][ctx]m", {}), "[Kavrix][ctx]m");
  EXPECT_EQ(Arriving("[Kavrix][ctx]m", WithTag()), "[Tag] [Kavrix][ctx]m");
}

TEST(TaggedLogPlogRecordTest, MessageIsEscapedUnlessAskedOtherwise) {
  const std::string message = "a\nb\x1b\\\xFF前";
  EXPECT_EQ(Arriving(message, {}), R"(a\nb\u001b\\xff前)");
  EXPECT_EQ(Arriving(message, {}), logging::EscapeLogText(message));
  EXPECT_EQ(Arriving(message, Raw()), message);
}

TEST(TaggedLogPlogRecordTest, NulDoesNotCutTheMessage) {
  const std::string message("\0a\0\0b\0", 6);
  const std::string shown = R"(\u0000a\u0000\u0000b\u0000)";
  EXPECT_EQ(Arriving(message, {}), shown);
  EXPECT_EQ(Arriving(message, Raw()), shown);
  PlogOptions raw_with_tag = Raw();
  raw_with_tag.tag_in_message = true;
  EXPECT_EQ(Arriving(message, raw_with_tag), "[Tag] " + shown);
}

TEST(TaggedLogPlogRecordTest, SinkKeepsAnAppenderAlive) {
  auto keeper = std::make_shared<RecordKeeper>();
  const std::weak_ptr<RecordKeeper> watched = keeper;
  {
    PlogSink sink(std::move(keeper), WithTag());
    WriteLibraryRecord(sink, "Tag", "m");
    ASSERT_FALSE(watched.expired());
    EXPECT_THAT(watched.lock()->messages, ElementsAre("[Tag] m"));
  }
  EXPECT_TRUE(watched.expired());
}

// Has the first record until the second has begun, and passes the second on when the thread of the first
// ended.
class OverlappingAppender : public plog::IAppender {
 public:
  explicit OverlappingAppender(RecordKeeper& keeper) : keeper_(keeper) {}

  void write(const plog::Record& record) override {
    if (std::this_thread::get_id() == first.get_id()) {
      first_began.set_value();
      second_began.get_future().wait();
    } else {
      second_began.set_value();
      first.join();
    }
    keeper_.write(record);
  }

  std::thread first;
  std::promise<void> may_begin, first_began, second_began;

 private:
  RecordKeeper& keeper_;
};

TEST(TaggedLogPlogRecordTest, RecordIsFoundAfterOneOfAnotherThreadEnded) {
  RecordKeeper keeper;
  OverlappingAppender appender(keeper);
  PlogSink sink(appender);
  appender.first = std::thread([&] {
    appender.may_begin.get_future().wait();  // `first` is set
    WriteLibraryRecord(sink, "First", "m");
  });
  appender.may_begin.set_value();
  appender.first_began.get_future().wait();
  WriteLibraryRecord(sink, "Second", "m");
  EXPECT_THAT(keeper.tags, ElementsAre("First", "Second"));
}

TEST(TaggedLogPlogRecordTest, ThreadsKeepTheirTagsApart) {
  constexpr std::size_t kRounds = 500;
  RecordKeeper keeper;
  PlogSink sink(keeper);
  const auto write = [&](const std::string& tag) {
    for (std::size_t i = 0; i < kRounds; ++i) WriteLibraryRecord(sink, tag, "of " + tag);
  };
  std::thread one(write, "One");
  std::thread other(write, "Other");
  for (std::size_t i = 0; i < kRounds; ++i) WriteClientRecord(keeper, plog::info, "of none");
  one.join();
  other.join();
  ASSERT_EQ(keeper.tags.size(), 3 * kRounds);
  for (std::size_t i = 0; i < keeper.tags.size(); ++i)
    EXPECT_EQ(keeper.messages[i], "of " + keeper.tags[i]) << i;
}

}  // namespace
}  // namespace kavrix::test
