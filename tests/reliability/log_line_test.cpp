// Tests that names cannot forge records in a log of lines.

#include "util/log_line.h"

#include <sstream>
#include <thread>

#include "tests/support/decode_test.h"

namespace kavrix::test {
namespace {

using logging::FormatLogLine;
using logging::LogLevel;

std::string LineOf(const std::string& message) {
  return FormatLogLine({LogLevel::kRoutine, "Tag", "Function", "file.cpp", 12, message});
}
std::string Shown(const std::string& message) { return LineOf(message).substr(LineOf("").size()); }

TEST(LogLineTest, HoldsAllOfARecord) {
  EXPECT_EQ(FormatLogLine({LogLevel::kRoutine, "Tag_A", "Parse", "eta.cpp", 7, "[Kavrix][ctx]a b"}),
            "routine Tag_A Parse eta.cpp:7 [Kavrix][ctx]a b");
  EXPECT_EQ(FormatLogLine({LogLevel::kFailure, "", "", "", 0, ""}), "failure   :0 ");
}

TEST(LogLineTest, OrdinaryTextStaysAsItIs) {
  for (const std::string text :
       {"", "a b  c", "前方拥堵", "é\xF0\x9F\x9A\x97", R"({"k":"v"}@1.x)", "\xC2\xA0"}) {
    EXPECT_EQ(Shown(text), text);
  }
}

TEST(LogLineTest, NewlinesAndControlCharactersAreEscaped) {
  EXPECT_EQ(Shown("a\nb\r\nc\td"), R"(a\nb\r\nc\td)");
  EXPECT_EQ(Shown(std::string("\0\x01\x1b[2J\x7f", 7)), R"(\u0000\u0001\u001b[2J\u007f)");
  EXPECT_EQ(Shown("\xC2\x80\xC2\x85\xC2\x9B\xC2\x9F"), R"(\u0080\u0085\u009b\u009f)");
  EXPECT_EQ(Shown("\xE2\x80\xA8\xE2\x80\xA9"), R"(\u2028\u2029)");
  EXPECT_EQ(Shown("\xE2\x80\x8E\xE2\x80\x8F\xE2\x80\xAA\xE2\x80\xAE\xE2\x81\xA6\xE2\x81\xA9"),
            R"(\u200e\u200f\u202a\u202e\u2066\u2069)");
  EXPECT_EQ(Shown("\xD8\x9C"), R"(\u061c)");  // Arabic letter mark
  EXPECT_EQ(Shown("\xE2\x80\x8D\xE2\x80\x90\xE2\x80\xA7\xE2\x80\xAF\xE2\x81\xA5\xE2\x81\xAA"),
            "\xE2\x80\x8D\xE2\x80\x90\xE2\x80\xA7\xE2\x80\xAF\xE2\x81\xA5\xE2\x81\xAA");
}

TEST(LogLineTest, BytesThatAreNotUtf8AreEscapedOneByOne) {
  EXPECT_EQ(Shown("a\xFF\xC3"), R"(a\xff\xc3)");
  EXPECT_EQ(Shown("\xE2\x80z"), R"(\xe2\x80z)");
  EXPECT_EQ(Shown("\xC0\x8A"), R"(\xc0\x8a)");  // a newline in a form that is too long
}

TEST(LogLineTest, AnEscapeInANameIsToldFromOneOfTheFormatter) {
  EXPECT_EQ(Shown(R"(a\nb)"), R"(a\\nb)");
  EXPECT_NE(Shown("a\nb"), Shown(R"(a\nb)"));
}

TEST(LogLineTest, FieldsBeforeTheMessageHoldNoBlank) {
  EXPECT_EQ(FormatLogLine({LogLevel::kFailure, "a b ", " f\n", "x y", 1, "m n"}),
            R"(failure a\x20b\x20 \x20f\n x\x20y:1 m n)");
}

TEST(LogLineTest, TextIsEscapedAsAMessageIsButForItsBackslashes) {
  const std::string text("a \"b\"\0\n\\\xFF前", 12);
  EXPECT_EQ(logging::EscapeLogText(text), R"(a "b"\u0000\n\\xff前)");
  EXPECT_EQ(Shown(text), R"(a "b"\u0000\n\\\xff前)");
  EXPECT_EQ(logging::EscapeLogText("\\"), "\\");
  EXPECT_EQ(logging::EscapeLogText(""), "");
}

TEST(LogLineTest, NoByteOfAMessageEndsTheLine) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; ++second) {
      const std::string line = LineOf({static_cast<char>(first), static_cast<char>(second)});
      for (const char c : line)
        EXPECT_FALSE(static_cast<unsigned char>(c) < 0x20 || c == 0x7F) << first << second;
    }
  }
}

class StreamSinkTest : public DecodeTest {
 protected:
  StreamSinkTest() { Install(std::make_shared<logging::StreamSink>(stream_)); }
  ~StreamSinkTest() override { Install(nullptr); }

  static void Install(std::shared_ptr<logging::LogSink> sink) {
    logging::SetLoggerInstance(logging::kavrix_log_instance_id_, {std::move(sink), LogLevel::kRoutine, {}});
  }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream text(stream_.str());
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

  std::ostringstream stream_;
};

const char kForged[] =
    "a\nfailure KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:1 forged";

TEST_F(StreamSinkTest, ANameCannotForgeARecord) {
  const std::string name = MapResourceManager::kavrix_resource_prefix + std::string(kForged);
  DecodeWhole(name);
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 2U);  // the request and its failure
  EXPECT_EQ(lines[0].find("routine KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:"),
            0U);
  EXPECT_EQ(lines[1].find("failure KavrixMapLayerMgr GetBubbleDrawDescriptor map_resource_transform.cpp:"),
            0U);
  EXPECT_NE(lines[0].find(R"(a\nfailure Kavrix)"), std::string::npos);
}

TEST_F(StreamSinkTest, ATextOfAPayloadCannotForgeARecord) {
  Decode(R"({"content":"a\nroutine \u2028 forged","mode":0}.trafficBubble)");
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 2U);
  // The printed descriptor escapes it, and the formatter escapes that backslash again.
  EXPECT_NE(lines[1].find(R"(content:"a\\nroutine \\u2028 forged")"), std::string::npos);
}

TEST_F(DecodeTest, TheFacadeItselfHandsOverTheExactText) {
  const std::string name = MapResourceManager::kavrix_resource_prefix + std::string(kForged) + '\0' + "\xFF";
  DecodeWhole(name);
  ASSERT_EQ(records().size(), 2U);
  EXPECT_EQ(records()[0].message, "[Kavrix][ctx]resource_name:" + name);
}

TEST_F(StreamSinkTest, LinesOfSeveralThreadsDoNotMix) {
  const std::string rest(2'000, 'x');
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([this, &rest] {
      for (int j = 0; j < 50; ++j) {
        std::shared_ptr<BubbleDrawDescriptor> out;
        transform_.GetBubbleDrawDescriptor("name" + rest + "\n", out);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  const auto lines = Lines();
  ASSERT_EQ(lines.size(), 4U * 50 * 2);
  for (const std::string& line : lines) {
    const bool is_routine =
        line.find("routine ") == 0 && line.find("name" + rest + R"(\n)") == line.size() - 2'006;
    const bool is_failure =
        line.find("failure ") == 0 && line.find(", it is a not valid bubble.") != std::string::npos;
    EXPECT_TRUE(is_routine || is_failure) << line;
  }
}

TEST_F(StreamSinkTest, AStreamThatFailsDoesNotStopTheDecode) {
  stream_.setstate(std::ios::badbit);
  Decode(R"({"content":"c"}.trafficBubble)");
  EXPECT_EQ(Base().content, "c");
  stream_.clear();
  Decode(R"({"content":"c"}.trafficBubble)");
  EXPECT_EQ(Lines().size(), 2U);
}

}  // namespace
}  // namespace kavrix::test
