#include "util/tagged_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ios>
#include <limits>
#include <locale>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kavrix::test {
namespace {

using logging::LoggerInstance;
using logging::LogLevel;
using logging::LogRecord;
using logging::SetLoggerInstance;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CollectingSink : public logging::LogSink {
 public:
  void Write(const LogRecord& record) override {
    levels.push_back(static_cast<int>(record.level));
    tags.push_back(record.tag);
    functions.emplace_back(record.function);
    files.emplace_back(record.file);
    lines.push_back(record.line);
    messages.push_back(record.message);
    instance_ids.push_back(record.instance_id);
  }
  std::vector<int> levels;
  std::vector<std::string> tags, functions, files, messages;
  std::vector<unsigned long> lines;
  std::vector<std::uint32_t> instance_ids;
};

struct Context {
  std::string context_name = "ctx";
};

// As long as a stream can count, or as a string can be: appending it throws before reading it.
const std::string_view kTooLong("x", std::min(std::string().max_size(),
                                              std::size_t{std::numeric_limits<std::streamsize>::max()}));
#ifdef __GLIBCXX__
using TooLongError = std::length_error;
#else
using TooLongError = std::bad_alloc;  // a string of libc++ may be longer than a stream can count
#endif

// A client's inserter that saves and restores the stream's format in the usual way.
struct ClientType {};
std::ostream& operator<<(std::ostream& stream, const ClientType&) {
  std::ios saved(nullptr);
  saved.copyfmt(stream);
  stream << std::hex << 255;
  stream.copyfmt(saved);
  return stream << ' ' << 255;
}

// Logs as the transform does, through its `context_`.
class Speaker {
 public:
  explicit Speaker(std::string context_name = "ctx") { context_->context_name = std::move(context_name); }

  void SayRoutine(const std::string& text) { KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "said:" << text); }
  void SayFailure(const std::string& text) { KAVRIX_LOG(LogTagSpeaker, LogLevel::kFailure, text); }
  void SayUnderAnotherTag() { KAVRIX_LOG(LogTagSpeaker_Other, LogLevel::kRoutine, "other"); }
  void SayNumbers() {
    KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, 1.5 << ' ' << 1234567 << ' ' << 0.1F << ' ' << 1e9);
  }
  void SayEvaluated() { KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, Evaluate()); }
  void SayThrowing() { KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "begun" << Throw()); }
  void SayTooLong() {
    KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "begun" << kTooLong << "ended" << Evaluate());
  }
  void SayClientType() { KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, ClientType() << ' ' << 0.5); }
  void SayTextThatIsNotThere() {
    const char* const text = nullptr;
    KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "begun" << text << "not reached");
  }
  unsigned long SayOnLine() {
    const unsigned long line = __LINE__ + 1;
    KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "here");
    return line;
  }
  void SayInABranch(bool condition) {
    if (condition)
      KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "then");
    else
      KAVRIX_LOG(LogTagSpeaker, LogLevel::kRoutine, "else");
  }

  int evaluations = 0;

 private:
  int Evaluate() { return ++evaluations; }
  static int Throw() { throw std::bad_alloc(); }

  std::shared_ptr<Context> context_ = std::make_shared<Context>();
};

constexpr std::uint32_t kFirst = 7;
constexpr std::uint32_t kSecond = 8;

class TaggedLogTest : public ::testing::Test {
 protected:
  TaggedLogTest() { logging::kavrix_log_instance_id_ = kFirst; }
  ~TaggedLogTest() override {
    SetLoggerInstance(kFirst, {});
    SetLoggerInstance(kSecond, {});
    logging::kavrix_log_instance_id_ = 0;
  }
  void Install(LogLevel least_level = LogLevel::kRoutine,
               std::function<bool(const std::string&)> filter = {}) {
    SetLoggerInstance(kFirst, {sink_, least_level, std::move(filter)});
  }

  std::shared_ptr<CollectingSink> sink_ = std::make_shared<CollectingSink>();
  std::shared_ptr<CollectingSink> second_sink_ = std::make_shared<CollectingSink>();
  Speaker speaker_;
};

TEST_F(TaggedLogTest, TagIsTheTextOfTheIdentifierLessItsLogTagHead) {
  Install();
  speaker_.SayRoutine("a");
  speaker_.SayUnderAnotherTag();
  EXPECT_THAT(sink_->tags, ElementsAre("Speaker", "Speaker_Other"));
}

TEST_F(TaggedLogTest, LevelsAreZeroAndOne) {
  Install();
  speaker_.SayRoutine("a");
  speaker_.SayFailure("b");
  EXPECT_THAT(sink_->levels, ElementsAre(0, 1));
}

TEST_F(TaggedLogTest, MessageFollowsTheContextNameInBracketsWithoutABlank) {
  Install();
  speaker_.SayRoutine("a");
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]said:a"));
}

TEST_F(TaggedLogTest, EmptyContextNameGivesEmptyBrackets) {
  Install();
  Speaker("").SayRoutine("a");
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][]said:a"));
}

TEST_F(TaggedLogTest, FloatsPrintWithSixDecimalsAndIntegersWithNone) {
  Install();
  speaker_.SayNumbers();
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]1.500000 1234567 0.100000 1000000000.000000"));
}

TEST_F(TaggedLogTest, NumbersPrintAsInTheCLocaleEvenUnderAGlobalLocaleThatGroupsDigits) {
  struct Grouping : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  const std::locale earlier = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  Install();
  speaker_.SayNumbers();
  std::locale::global(earlier);
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]1.500000 1234567 0.100000 1000000000.000000"));
}

TEST_F(TaggedLogTest, FunctionAndFileNamesAreBare) {
  Install();
  speaker_.SayRoutine("a");
  EXPECT_THAT(sink_->functions, ElementsAre("SayRoutine"));
  EXPECT_THAT(sink_->files, ElementsAre("tagged_log_test.cpp"));
  EXPECT_STREQ(logging::BaseName("/a/b/c.cpp"), "c.cpp");
  EXPECT_STREQ(logging::BaseName("c.cpp"), "c.cpp");
  EXPECT_STREQ(logging::BaseName("a\\c.cpp"), "c.cpp");
}

TEST_F(TaggedLogTest, LineIsThatOfTheStatement) {
  Install();
  const unsigned long line = speaker_.SayOnLine();
  EXPECT_THAT(sink_->lines, ElementsAre(line));
}

TEST_F(TaggedLogTest, StatementIsOneStatementToABranch) {
  Install();
  speaker_.SayInABranch(true);
  speaker_.SayInABranch(false);
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]then", "[Kavrix][ctx]else"));
}

TEST_F(TaggedLogTest, MessageIsEvaluatedOnceWhereItIsWrittenAndNeverWhereItIsNot) {
  speaker_.SayEvaluated();
  EXPECT_EQ(speaker_.evaluations, 0) << "no instance";
  Install(LogLevel::kFailure);
  speaker_.SayEvaluated();
  EXPECT_EQ(speaker_.evaluations, 0) << "level left out";
  Install(LogLevel::kRoutine, [](const std::string&) { return false; });
  speaker_.SayEvaluated();
  EXPECT_EQ(speaker_.evaluations, 0) << "tag left out";
  EXPECT_THAT(sink_->messages, IsEmpty());
  Install();
  speaker_.SayEvaluated();
  EXPECT_EQ(speaker_.evaluations, 1);
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]1"));
}

TEST_F(TaggedLogTest, LeastLevelFailureLeavesRoutineRecordsOut) {
  Install(LogLevel::kFailure);
  speaker_.SayRoutine("a");
  speaker_.SayFailure("b");
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]b"));
}

TEST_F(TaggedLogTest, TagFilterLetsOnlyItsTagsPass) {
  Install(LogLevel::kRoutine, [](const std::string& tag) { return tag == "Speaker_Other"; });
  speaker_.SayRoutine("a");
  speaker_.SayUnderAnotherTag();
  speaker_.SayFailure("b");
  EXPECT_THAT(sink_->tags, ElementsAre("Speaker_Other"));
}

TEST_F(TaggedLogTest, TestAnswersForTheInstanceLevelAndTagAskedFor) {
  using logging::Logger;
  SetLoggerInstance(kSecond,
                    {second_sink_, LogLevel::kFailure, [](const std::string& tag) { return tag == "A"; }});
  EXPECT_TRUE(Logger::TestLogLevelAndTag(kSecond, LogLevel::kFailure, "A"));
  EXPECT_FALSE(Logger::TestLogLevelAndTag(kSecond, LogLevel::kRoutine, "A"));
  EXPECT_FALSE(Logger::TestLogLevelAndTag(kSecond, LogLevel::kFailure, "B"));
  EXPECT_FALSE(Logger::TestLogLevelAndTag(kFirst, LogLevel::kFailure, "A"));
}

TEST_F(TaggedLogTest, RecordIsDeliveredByItsDestructorAndNotBefore) {
  Install();
  const std::string tag = "T";
  {
    logging::Record record(LogLevel::kFailure, "Function", 12, "file.cpp", kFirst, tag);
    record.Stream() << "one" << 2;
    EXPECT_THAT(sink_->messages, IsEmpty());
  }
  EXPECT_THAT(sink_->messages, ElementsAre("one2"));
  EXPECT_THAT(sink_->tags, ElementsAre("T"));
  EXPECT_THAT(sink_->functions, ElementsAre("Function"));
  EXPECT_THAT(sink_->files, ElementsAre("file.cpp"));
  EXPECT_THAT(sink_->lines, ElementsAre(12U));
}

TEST_F(TaggedLogTest, RecordTellsTheInstanceThatItWasWrittenTo) {
  SetLoggerInstance(kFirst, {sink_, LogLevel::kRoutine, {}});
  SetLoggerInstance(kSecond, {sink_, LogLevel::kRoutine, {}});
  speaker_.SayRoutine("a");
  logging::kavrix_log_instance_id_ = kSecond;
  speaker_.SayFailure("b");
  EXPECT_THAT(sink_->instance_ids, ElementsAre(kFirst, kSecond));
}

TEST_F(TaggedLogTest, ExceptionFromTheMessageReachesTheCaller) {
  Install();
  EXPECT_THROW(speaker_.SayThrowing(), std::bad_alloc);
  speaker_.SayRoutine("afterwards");
  EXPECT_EQ(sink_->messages.back(), "[Kavrix][ctx]said:afterwards");
}

TEST_F(TaggedLogTest, ExceptionFromTheMessagesStorageReachesTheCallerAndTheRecordHoldsWhatWasWritten) {
  Install();
  EXPECT_THROW(speaker_.SayTooLong(), TooLongError);
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]begun"));
  EXPECT_EQ(speaker_.evaluations, 0);
}

TEST_F(TaggedLogTest, StreamOfAnOrdinaryRecordIsAsAnyOther) {
  Install();
  speaker_.SayClientType();
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]ff 255 0.500000"));
#ifdef __GLIBCXX__  // libc++ reads what a null pointer points to
  speaker_.SayTextThatIsNotThere();
  EXPECT_THAT(sink_->messages, ElementsAre("[Kavrix][ctx]ff 255 0.500000", "[Kavrix][ctx]begun"));
#endif
}

TEST_F(TaggedLogTest, NulBytesStayInTheMessage) {
  Install();
  speaker_.SayFailure(std::string("a\0b", 3));
  EXPECT_THAT(sink_->messages, ElementsAre(std::string("[Kavrix][ctx]a\0b", 16)));
}

}  // namespace
}  // namespace kavrix::test
