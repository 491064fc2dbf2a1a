#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <ctime>
#include <locale>
#include <string>

#include "tests/support/plog_records.h"

namespace kavrix::test {
namespace {

using logging::LogLevel;
using logging::PlogSink;

#ifdef KAVRIX_PLOG_HAS_THREAD_ID
constexpr char kThread[] = "[4711] ";
#else
constexpr char kThread[] = "";
#endif

// The local time as the formatter prints it, found another way.
std::string Printed(const plog::util::Time& time) {
  char seconds[32];
  std::strftime(seconds, sizeof seconds, "%F %T", std::localtime(&time.time));
  char milliseconds[8];
  std::snprintf(milliseconds, sizeof milliseconds, ".%03u", static_cast<unsigned>(time.millitm));
  return std::string(seconds) + milliseconds;
}

class TaggedLogPlogFormatterTest : public ::testing::Test {
 protected:
  // The line of a record after its time.
  std::string Rest(std::size_t record) const {
    const std::string time = Printed(keeper_.times.at(record));
    EXPECT_EQ(keeper_.lines.at(record).substr(0, time.size()), time);
    return keeper_.lines.at(record).substr(time.size());
  }

  RecordKeeper keeper_;
  PlogSink sink_{keeper_};
};

TEST_F(TaggedLogPlogFormatterTest, LineOfTheLibraryHasTheTagBeforeTheMessage) {
  WriteLibraryRecord(sink_, "Tag_A", "[Kavrix][ctx]m", LogLevel::kRoutine);
  WriteLibraryRecord(sink_, "Tag_B", "[Kavrix][ctx]m", LogLevel::kFailure);
  EXPECT_EQ(Rest(0), std::string(" INFO  ") + kThread + "[Parse@12] [Tag_A] [Kavrix][ctx]m\n");
  EXPECT_EQ(Rest(1), std::string(" ERROR ") + kThread + "[Parse@12] [Tag_B] [Kavrix][ctx]m\n");
}

TEST_F(TaggedLogPlogFormatterTest, LineOfTheClientIsAsItWouldBeWithoutTags) {
  WriteClientRecord(keeper_, plog::warning, "hello");
  WriteClientRecord(keeper_, plog::verbose, "[x] hello");
  EXPECT_EQ(Rest(0), std::string(" WARN  ") + kThread + "[main@7] hello\n");
  EXPECT_EQ(Rest(1), std::string(" VERB  ") + kThread + "[main@7] [x] hello\n");
}

TEST_F(TaggedLogPlogFormatterTest, TimeIsThatOfTheRecord) {
  WriteClientRecord(keeper_, plog::info, "m");
  const std::string line = keeper_.lines.at(0);
  EXPECT_THAT(line,
              ::testing::MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}[.][0-9]{3} "
                                      "INFO  .*"
                                      "\n"));
  EXPECT_EQ(line.substr(0, 23), Printed(keeper_.times.at(0)));
}

TEST_F(TaggedLogPlogFormatterTest, NumbersAreAsInTheClassicLocale) {
  struct Grouping : std::numpunct<char> {
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
  };
  const std::locale earlier = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  WriteLibraryRecord(sink_, "Tag", "m");
  std::locale::global(earlier);
  EXPECT_EQ(Rest(0), std::string(" INFO  ") + kThread + "[Parse@12] [Tag] m\n");
}

TEST_F(TaggedLogPlogFormatterTest, NameWithANewlineForgesNoLineUnlessItIsLeftRaw) {
  const std::string forged = "a\n2026-01-01 00:00:00.000 ERROR [main@1] forged";
  WriteLibraryRecord(sink_, "Tag", forged);
  logging::PlogOptions raw;
  raw.escape = false;
  PlogSink raw_sink(keeper_, raw);
  WriteLibraryRecord(raw_sink, "Tag", forged);
  const std::string head = std::string(" INFO  ") + kThread + "[Parse@12] [Tag] ";
  EXPECT_EQ(Rest(0), head + R"(a\n2026-01-01 00:00:00.000 ERROR [main@1] forged)" + '\n');
  EXPECT_EQ(Rest(1), head + forged + '\n');
}

TEST_F(TaggedLogPlogFormatterTest, FileHasNoHead) { EXPECT_EQ(logging::TaggedTxtFormatter::header(), ""); }

}  // namespace
}  // namespace kavrix::test
