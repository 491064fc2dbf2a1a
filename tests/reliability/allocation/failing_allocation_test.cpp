// Fails every allocation of a decode once, by itself and together with all later ones, for names of every
// kind, good and broken, with logs on and off. std::bad_alloc leaves the call, or JsonCpp finds the payload
// unreadable. The records written until then are those of an undisturbed decode, the last one possibly cut
// short. Nothing leaks.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <new>
#include <typeinfo>
#include <utility>

#include "map_resource/bubble_kinds.h"
#include "map_resource/map_resource_manager.h"
#include "map_resource/map_resource_transform.h"
#include "tests/reliability/allocation/malloc_control.h"
#include "tests/support/record_collector.h"
#include "tests/support/sample_names.h"
#include "util/tagged_log.h"

namespace kavrix::test {
namespace {

using Records = std::vector<SeenRecord>;

// Keeps the records, even when nothing can be allocated.
class RecordSink : public logging::LogSink {
 public:
  void Write(const logging::LogRecord& record) override {
    const FailingSuspended suspended;
    records_.push_back({static_cast<int>(record.level), record.tag, record.function, record.message});
  }
  Records Take() { return std::exchange(records_, {}); }

 private:
  Records records_;
};

struct Outcome {
  Failing failing;
  bool allocation_failed = false;
  std::string exception;  // its type; empty without one
  std::shared_ptr<BubbleDrawDescriptor> out;
  Records records;
};

// The outcomes of a decode in which no allocation fails.
struct Undisturbed {
  Outcome good;
  Outcome unreadable;  // of the same name, if JsonCpp could not read its payload
};

bool AreEqual(const std::shared_ptr<BubbleDrawDescriptor>& a,
              const std::shared_ptr<BubbleDrawDescriptor>& b) {
  return a == b || (a != nullptr && b != nullptr && *a == *b);
}

bool AreEqual(const Outcome& a, const Outcome& b) {
  return a.exception == b.exception && AreEqual(a.out, b.out) && a.records == b.records;
}

bool IsCutShort(const SeenRecord& record, SeenRecord whole) {
  if (record.message.size() >= whole.message.size()) return false;
  whole.message.resize(record.message.size());
  return record == whole;
}

// Returns whether the records are the first of `whole`, the last of them possibly cut short.
bool AreFirstOf(const Records& records, const Records& whole) {
  if (records.size() > whole.size()) return false;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (records[i] == whole[i]) continue;
    const bool is_last = i + 1 == records.size();
    if (!is_last || !IsCutShort(records[i], whole[i])) return false;
  }
  return true;
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

  // Decodes while allocation number `failing_allocation`, counted from 1, fails; 0 lets none fail.
  Outcome Decode(const SampleName& sample, std::size_t failing_allocation, Failing failing) {
    Outcome outcome;
    outcome.failing = failing;
    outcome.out = earlier_;
    const std::type_info* exception = nullptr;
    if (failing_allocation != 0) FailAllocation(failing_allocation, failing);
    try {
      if (sample.is_marker) {
        transform_.GetMarkerDrawDescriptor(sample.name, outcome.out);
      } else {
        transform_.GetBubbleDrawDescriptor(sample.name, outcome.out);
      }
    } catch (const std::exception& error) {
      exception = &typeid(error);
    }
    outcome.allocation_failed = EndFailing();
    if (exception != nullptr) outcome.exception = exception->name();
    outcome.records = sink_->Take();
    return outcome;
  }

  // Decodes the name with its last brace spoilt, which makes the payload unreadable. A name without a brace
  // decodes as always.
  Outcome DecodeAsUnreadable(const SampleName& sample) {
    constexpr char kUnreadable = '\x01';
    SampleName broken = sample;
    const std::size_t brace = broken.name.rfind('}');
    if (brace != std::string::npos) broken.name[brace] = kUnreadable;
    Outcome outcome = Decode(broken, 0, Failing::kOnce);
    for (SeenRecord& record : outcome.records) {
      const std::size_t changed = record.message.find(kUnreadable);
      if (changed != std::string::npos) record.message[changed] = '}';
    }
    return outcome;
  }

  // Returns whether all members of the descriptor can be read. Keys not read yet may be missing.
  static bool IsWhole(const BubbleDrawDescriptor& descriptor, const std::string& type) {
    return descriptor.TypeName() == type && descriptor == descriptor;
  }

  std::string TypeOf(const SampleName& sample) const {
    if (sample.is_marker) return kMarkerNameInfo.descriptor_type;
    const auto kind = FindBubbleKind(sample.name);
    return kind ? InfoOf(*kind).descriptor_type : "";
  }

  // Checks the outcome of a decode in which an allocation failed.
  void Check(const Outcome& outcome, const SampleName& sample, const Undisturbed& undisturbed) {
    if (outcome.exception != typeid(std::bad_alloc).name())
      return CheckUnnoticed(outcome, sample, undisturbed);
    const bool is_good = AreFirstOf(outcome.records, undisturbed.good.records);
    const Records& expected = is_good ? undisturbed.good.records : undisturbed.unreadable.records;
    EXPECT_TRUE(is_good ||
                (outcome.failing == Failing::kFromThenOn && AreFirstOf(outcome.records, expected)));
    EXPECT_TRUE(outcome.out == earlier_ || IsWhole(*outcome.out, TypeOf(sample)));
    const std::size_t count = outcome.records.size();
    records_ += count;
    if (count > 0 && count <= expected.size() && !(outcome.records.back() == expected[count - 1]))
      ++cut_short_;
  }

  // Checks the outcome of a decode that std::bad_alloc did not leave. Only JsonCpp may hide a failed
  // allocation: it takes the payload for unreadable. An exception already on its way needs no memory.
  void CheckUnnoticed(const Outcome& outcome, const SampleName& sample, const Undisturbed& undisturbed) {
    ++unnoticed_;
    EXPECT_TRUE(AreEqual(outcome, undisturbed.unreadable));
    EXPECT_TRUE(sample.name.find('{') != std::string::npos || !undisturbed.good.exception.empty());
  }

  // Lets each allocation of the decode fail. Returns how many there are.
  std::size_t FailEach(const SampleName& sample, Failing failing) {
    const Undisturbed undisturbed = {Decode(sample, 0, failing), DecodeAsUnreadable(sample)};
    for (std::size_t n = 1;; ++n) {
      SCOPED_TRACE(sample.name + ", allocation " + std::to_string(n));
      const std::size_t live = LiveAllocations();
      {
        const Outcome outcome = Decode(sample, n, failing);
        if (!outcome.allocation_failed) {
          EXPECT_TRUE(AreEqual(outcome, undisturbed.good));
          return n - 1;
        }
        Check(outcome, sample, undisturbed);
      }
      EXPECT_EQ(LiveAllocations(), live);
      if (HasFailure()) return n;
    }
  }

  const std::shared_ptr<BubbleDrawDescriptor> earlier_ = std::make_shared<BubbleDrawDescriptor>();
  // Its long name makes every message longer than the initial buffer of a record.
  const std::shared_ptr<KavrixContext> context_ = std::make_shared<KavrixContext>(std::string(500, 'c'));
  MapResourceTransform transform_{context_};
  const std::shared_ptr<RecordSink> sink_ = std::make_shared<RecordSink>();
  std::size_t records_ = 0;
  std::size_t cut_short_ = 0;
  std::size_t unnoticed_ = 0;  // failures that JsonCpp took for an unreadable payload
};

// Tests malloc_control itself: both ways to allocate fail when they should, and what is not freed is counted.
// The pointers are volatile so that no compiler drops the calls.
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

// Returns the samples, each also without its last brace, and names that fail for other reasons.
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
    Decode(name, 0, Failing::kOnce);  // lets the libraries allocate what they keep
  std::size_t failures = 0;
  for (const SampleName& name : names) {
    for (const Failing failing : {Failing::kOnce, Failing::kFromThenOn}) {
      failures += FailEach(name, failing);
      ASSERT_FALSE(HasFailure()) << name.stem;
    }
  }
  EXPECT_EQ(records_ > 0, GetParam());
  EXPECT_EQ(cut_short_ > 0, GetParam());
  EXPECT_GT(failures, names.size());
  std::cout << names.size() << " names, " << failures << " failed allocations, " << unnoticed_
            << " of them taken for an unreadable payload; " << records_ << " records, " << cut_short_
            << " of them cut short\n";
}

INSTANTIATE_TEST_SUITE_P(Logs, FailingAllocationTest, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "On" : "Off"; });

}  // namespace
}  // namespace kavrix::test
