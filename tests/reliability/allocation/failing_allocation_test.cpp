// Every allocation of a decode fails once, alone and with all that follow, for names of every kind, good and
// broken, with logs on and off. A standard exception may leave the call, or the payload may count as
// unreadable; nothing else may come of it, and nothing may leak.

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <map>
#include <new>
#include <utility>

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reliability/allocation/malloc_control.h"
#include "tests/support/sample_names.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

using Messages =
    std::map<std::pair<std::string, unsigned long>, std::string>;  // by file and line of the statement

// Keeps what each log statement wrote. Works when nothing can be allocated.
class StatementSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override {
    const FailingSuspended suspended;
    ++records;
    if (!messages_.insert({{record.file, record.line}, record.message}).second) ++doubled;
  }
  Messages Take() { return std::exchange(messages_, {}); }

  int records = 0;
  int doubled = 0;

 private:
  Messages messages_;
};

struct Outcome {
  bool allocation_failed = false;
  bool threw = false;
  std::shared_ptr<BubbleDrawDescriptor> out;
  Messages messages;
};

bool AreEqual(const std::shared_ptr<BubbleDrawDescriptor>& a,
              const std::shared_ptr<BubbleDrawDescriptor>& b) {
  return a == b || (a != nullptr && b != nullptr && *a == *b);
}

class FailingAllocationTest : public ::testing::TestWithParam<bool> {
 protected:
  FailingAllocationTest() {
    BubbleLayerConfigContainer config;
    ForEachStyleRecord(config, [](const char* name, auto& record) {
      record.name = std::string(name) + ", a name that needs memory of its own";
      record.items = {1, 2, 3};
    });
    context_->SetBubbleLayerConfig(std::move(config));
    if (GetParam()) logging::SetLoggerInstance(0, {sink_, logging::LogLevel::kRoutine, {}});
  }
  ~FailingAllocationTest() override { logging::SetLoggerInstance(0, {}); }

  // Counts from 1; 0 lets none fail.
  Outcome Decode(const SampleName& sample, std::size_t failing_allocation, Failing failing) {
    Outcome outcome;
    outcome.out = earlier_;
    if (failing_allocation != 0) FailAllocation(failing_allocation, failing);
    try {
      if (sample.is_marker) {
        transform_.GetMarkerDrawDescriptor(sample.name, outcome.out);
      } else {
        transform_.GetBubbleDrawDescriptor(sample.name, outcome.out);
      }
    } catch (const std::exception&) {
      outcome.threw = true;
    }
    outcome.allocation_failed = EndFailing();
    outcome.messages = sink_->Take();
    return outcome;
  }

  // The descriptor may lack what was not read yet, but it is one: all its members can be read.
  static bool IsWhole(const BubbleDrawDescriptor& descriptor, const std::string& type) {
    return descriptor.TypeName() == type && descriptor == descriptor;
  }

  std::string TypeOf(const SampleName& sample) const {
    if (sample.is_marker) return kMarkerNameInfo.descriptor_type;
    const auto kind = FindBubbleKind(sample.name);
    return kind ? InfoOf(*kind).descriptor_type : "";
  }

  // A stream that gets no more memory keeps what it has, so a message may be cut short; it is never another
  // one.
  void ExpectBeginnings(const Outcome& outcome, const Outcome& good, const Outcome& unreadable) {
    for (const auto& [statement, message] : outcome.messages) {
      const std::string if_good = MessageOf(good, statement);
      const std::string if_unreadable = MessageOf(unreadable, statement);
      EXPECT_TRUE(if_good.find(message) == 0 || if_unreadable.find(message) == 0 ||
                  message.find("parse json failed: ") != std::string::npos)
          << message;
      if (message.size() < if_good.size() && if_good.find(message) == 0) ++cut_short_;
    }
  }
  static std::string MessageOf(const Outcome& outcome, const Messages::key_type& statement) {
    const auto found = outcome.messages.find(statement);
    return found == outcome.messages.end() ? "" : found->second;
  }

  // Lets each allocation of the decode fail. Returns how many there are.
  std::size_t FailEach(const SampleName& sample, Failing failing) {
    const Outcome good = Decode(sample, 0, failing);
    SampleName broken =
        sample;  // what an unreadable JSON payload gives; nothing changes in names without one
    if (const std::size_t brace = broken.name.rfind('}'); brace != std::string::npos)
      broken.name[brace] = ' ';
    const Outcome unreadable = Decode(broken, 0, failing);
    for (std::size_t n = 1;; ++n) {
      const std::size_t live = LiveAllocations();
      {
        const Outcome outcome = Decode(sample, n, failing);
        if (!outcome.allocation_failed) {
          EXPECT_TRUE(AreEqual(outcome.out, good.out) && outcome.threw == good.threw) << sample.name;
          return n - 1;
        }
        ExpectBeginnings(outcome, good, unreadable);
        if (outcome.threw) {
          EXPECT_TRUE(outcome.out == earlier_ || IsWhole(*outcome.out, TypeOf(sample))) << sample.name << n;
        } else {
          EXPECT_TRUE(AreEqual(outcome.out, good.out) || AreEqual(outcome.out, unreadable.out))
              << sample.name << n;
        }
      }
      EXPECT_EQ(LiveAllocations(), live) << sample.name << " allocation " << n;
      if (HasFailure()) return n;
    }
  }

  const std::shared_ptr<BubbleDrawDescriptor> earlier_ = std::make_shared<BubbleDrawDescriptor>();
  const std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>("ctx");
  MapResourceTransform transform_{context_};
  const std::shared_ptr<StatementSink> sink_ = std::make_shared<StatementSink>();
  int cut_short_ = 0;
};

// The instrument itself (the pointers are volatile so that no compiler leaves the calls out): both ways to
// allocate fail when they should, and what is not freed is seen.
TEST(MallocControlTest, FailsTheAllocationAskedFor) {
  for (const Failing failing : {Failing::kOnce, Failing::kFromThenOn}) {
    FailAllocation(2, failing);
    void* volatile first = std::malloc(1);
    void* volatile second = ::operator new(1, std::nothrow);
    void* volatile third = std::malloc(1);
    EXPECT_TRUE(EndFailing());
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(third == nullptr, failing == Failing::kFromThenOn);
    std::free(first);
    std::free(third);
  }
  FailAllocation(1, Failing::kOnce);
  EXPECT_FALSE(EndFailing());
}

TEST(MallocControlTest, CountsWhatIsNotFreed) {
  const std::size_t live = LiveAllocations();
  const std::size_t bytes = LiveBytes();
  RestartPeak();
  void* volatile kept = ::operator new(100'000);
  EXPECT_EQ(LiveAllocations(), live + 1);
  EXPECT_GE(LiveBytes(), bytes + 100'000);
  ::operator delete(kept);
  EXPECT_EQ(LiveAllocations(), live);
  EXPECT_EQ(LiveBytes(), bytes);
  EXPECT_GE(PeakBytes(), bytes + 100'000);
}

std::string Repeated(const std::string& text, int times) {
  std::string repeated;
  for (int i = 0; i < times; ++i) repeated += text;
  return repeated;
}

// The samples, each also cut short by its last brace, and names that fail for other reasons.
std::vector<SampleName> Names() {
  std::vector<SampleName> names = SampleNames();
  for (std::size_t i = names.size(); i-- > 0;) {
    SampleName broken = names[i];
    const std::size_t brace = broken.name.rfind('}');
    if (brace == std::string::npos) continue;
    broken.name.erase(brace, 1);
    names.push_back(broken);
  }
  const std::string prefix = MapResourceManager::kavrix_resource_prefix;
  names.push_back({"no marker", false, prefix + "a name without any marker"});
  names.push_back({"too short", false, ".trafficBubble"});
  names.push_back({"empty", false, ""});
  names.push_back({"not two pieces", false, prefix + "{}.SafeWarningBubble"});
  names.push_back(
      {"many brackets", false, prefix + R"({"content":[)" + Repeated("[],", 300) + "1]}.trafficBubble"});
  names.push_back({"too deep", false, prefix + R"({"content":)" + Repeated("[", 300) + "}.trafficBubble"});
  const std::string cameras = Repeated(R"({"type":1,"speed":60},)", 20);
  names.push_back({"cameras", false, prefix + R"({"cameras":[)" + cameras + "{}]}.cameraBubble"});
  std::string many_keys = "{";
  for (int i = 0; i < 30; ++i) many_keys += "\"key number " + std::to_string(i) + "\":\"text\",";
  names.push_back({"many keys", false, prefix + many_keys + "\"content\":\"c\"}.trafficBubble"});
  return names;
}

TEST_P(FailingAllocationTest, HarmsNothing) {
  const std::vector<SampleName> names = Names();
  for (const SampleName& name : names)
    Decode(name, 0, Failing::kOnce);  // what the libraries make on first use
  std::size_t failures = 0;
  for (const SampleName& name : names) {
    for (const Failing failing : {Failing::kOnce, Failing::kFromThenOn}) {
      failures += FailEach(name, failing);
      ASSERT_FALSE(HasFailure()) << name.stem;
    }
  }
  EXPECT_EQ(sink_->doubled, 0);
  EXPECT_EQ(sink_->records > 0, GetParam());
  EXPECT_GT(failures, names.size());
  std::cout << names.size() << " names, " << failures << " failed allocations, " << sink_->records
            << " records, " << cut_short_ << " of them cut short\n";
}

INSTANTIATE_TEST_SUITE_P(Logs, FailingAllocationTest, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "On" : "Off"; });

}  // namespace
}  // namespace kavrix::test
