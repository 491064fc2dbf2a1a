// Fails every allocation of a log statement once, by itself and together with all later ones, for each way to
// write a message: the exception leaves the statement, and the record holds what was written before.

#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <new>
#include <sstream>
#include <vector>

#include "descriptors/descriptors.h"
#include "tests/reliability/allocation/malloc_control.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

using logging::LogLevel;

// Keeps the messages, even when nothing can be allocated.
class MessageSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override {
    const FailingSuspended suspended;
    messages.push_back(record.message);
  }
  std::vector<std::string> messages;
};

// A client's type with an operator<<.
struct ClientType {
  std::string text;
  double number;
};
std::ostream& operator<<(std::ostream& stream, const ClientType& value) {
  const auto flags = stream.flags();
  stream << '<' << value.text << ", " << std::hex << 255 << ", " << value.number << '>';
  stream.flags(flags);
  return stream;
}

struct Way {
  const char* name;
  std::function<void(std::ostream&)> write;  // does not allocate itself
};

void PrintTo(const Way& way, std::ostream* stream) { *stream << way.name; }

std::vector<Way> Ways() {
  static const std::string text(700, 't');
  static const TrafficDrawDescriptor traffic = [] {
    TrafficDrawDescriptor descriptor;
    descriptor.content = text;
    descriptor.style_float_1 = 3.4e38F;
    return descriptor;
  }();
  static const ClientType client_type = {text, -0.5};
  static std::stringbuf buffer(text);
  return {
      {"String", [](std::ostream& stream) { stream << text; }},
      {"StringView", [](std::ostream& stream) { stream << std::string_view(text); }},
      {"CharacterPointer", [](std::ostream& stream) { stream << text.c_str(); }},
      {"Character", [](std::ostream& stream) { stream << 'c'; }},
      {"Integer", [](std::ostream& stream) { stream << 1234567 << -5L << std::uint64_t{8}; }},
      {"Real", [](std::ostream& stream) { stream << 1.5 << 3.4e38F << 0.1L; }},
      {"Flag", [](std::ostream& stream) { stream << std::boolalpha << true; }},
      {"Pointer", [](std::ostream& stream) { stream << static_cast<const void*>(&text); }},
      {"Padded", [](std::ostream& stream) { stream << std::setw(300) << 'c'; }},
      {"LineEnd", [](std::ostream& stream) { stream << std::endl; }},
      {"Unformatted", [](std::ostream& stream) { stream.put('c').write("text", 4).flush(); }},
      {"StreamBuffer",
       [](std::ostream& stream) {
         buffer.pubseekpos(0);
         stream << &buffer;
       }},
      {"BaseDescriptor",
       [](std::ostream& stream) { stream << static_cast<const BubbleDrawDescriptor&>(traffic); }},
      {"Descriptor", [](std::ostream& stream) { stream << traffic; }},
      {"ClientType", [](std::ostream& stream) { stream << client_type; }},
  };
}

struct Context {
  std::string context_name = "ctx";
};

class FailingMessageTest : public ::testing::TestWithParam<Way> {
 protected:
  FailingMessageTest() { logging::SetLoggerInstance(0, {sink_, LogLevel::kRoutine, {}}); }
  ~FailingMessageTest() override { logging::SetLoggerInstance(0, {}); }

  // Writes often enough for the message to grow.
  struct Repeated {
    const Way& way;
    friend std::ostream& operator<<(std::ostream& stream, const Repeated& repeated) {
      for (int i = 0; i < 600; ++i) repeated.way.write(stream);
      return stream;
    }
  };
  void Say() { KAVRIX_LOG(LogTagATagThatNeedsMemory, LogLevel::kRoutine, Repeated{GetParam()} << "end"); }

  // Logs while the n-th allocation fails. Returns whether an allocation failed at all.
  bool SayWhileAllocationFails(std::size_t nth, Failing failing) {
    bool is_out_of_memory = false;
    FailAllocation(nth, failing);
    try {
      Say();
    } catch (const std::bad_alloc&) {
      is_out_of_memory = true;
    }
    const bool failed = EndFailing();
    EXPECT_EQ(is_out_of_memory, failed) << "allocation " << nth;
    return failed;
  }

  const std::shared_ptr<MessageSink> sink_ = std::make_shared<MessageSink>();
  const std::shared_ptr<Context> context_ = std::make_shared<Context>();
};

TEST_P(FailingMessageTest, ExceptionLeavesAndTheRecordHoldsWhatWasWritten) {
  Say();
  ASSERT_EQ(sink_->messages.size(), 1U);
  const std::string whole = sink_->messages[0];
  for (const Failing failing : {Failing::kOnce, Failing::kFromThenOn}) {
    std::size_t cut = 0;
    for (std::size_t nth = 1;; ++nth) {
      sink_->messages.clear();
      if (!SayWhileAllocationFails(nth, failing)) break;
      ASSERT_LE(sink_->messages.size(), 1U);
      if (sink_->messages.empty()) continue;
      EXPECT_LT(sink_->messages[0].size(), whole.size());
      EXPECT_EQ(whole.find(sink_->messages[0]), 0U);
      if (sink_->messages[0].size() > std::string("[Kavrix][ctx]").size()) ++cut;
    }
    EXPECT_EQ(sink_->messages, std::vector<std::string>{whole});
    EXPECT_GT(cut, 0U) << "no allocation failed in the midst of the message";
  }
}

INSTANTIATE_TEST_SUITE_P(Ways, FailingMessageTest, ::testing::ValuesIn(Ways()),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace kavrix::test
