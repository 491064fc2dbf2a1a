// Decodes every truncation and every one-byte change of every sample name. Tries a sample of them on every
// run, all of them with KAVRIX_TEST_COMPLETE=1.

#include <random>

#include "map_resource/bubble_kinds.h"
#include "tests/support/decode_test.h"
#include "tests/support/effort.h"
#include "tests/support/sample_names.h"

namespace kavrix::test {
namespace {

// The effects of one decode that a caller sees.
struct Seen {
  bool too_short = false;  // the call threw std::out_of_range
  std::shared_ptr<BubbleDrawDescriptor> out;
  std::vector<SeenRecord> records;
};

std::shared_ptr<BubbleDrawDescriptor> Untouched() {
  static const auto untouched = std::make_shared<BubbleDrawDescriptor>();
  return untouched;
}

class HarmlessNamesTest : public DecodeTest {
 protected:
  Seen See(const std::string& name, bool is_marker) {
    Seen seen;
    seen.out = Untouched();
    collector_.Clear();
    try {
      if (is_marker) {
        transform_.GetMarkerDrawDescriptor(name, seen.out);
      } else {
        transform_.GetBubbleDrawDescriptor(name, seen.out);
      }
    } catch (const std::out_of_range&) {
      seen.too_short = true;
    }
    seen.records = records();
    return seen;
  }

  // Expects that the call throws nothing but out_of_range, and that only for short names; that `out` is
  // unchanged or of the kind's type; and that a second decode gives the same.
  void ExpectHarmless(const std::string& name, bool is_marker) {
    const std::size_t prefix_length = std::string(MapResourceManager::kavrix_resource_prefix).size();
    const Seen seen = See(name, is_marker);
    EXPECT_TRUE(!seen.too_short || name.size() < prefix_length) << name;
    if (is_marker) {
      EXPECT_TRUE(seen.out == Untouched() || IsOfType(*seen.out, kMarkerNameInfo)) << name;
    } else {
      ExpectHarmlessBubble(name, seen);
    }

    const Seen again = See(name, is_marker);
    EXPECT_EQ(seen.too_short, again.too_short) << name;
    EXPECT_EQ(seen.out == Untouched(), again.out == Untouched()) << name;
    EXPECT_EQ(*seen.out, *again.out) << name;
    EXPECT_EQ(seen.records, again.records) << name;
  }

 private:
  static bool IsOfType(const BubbleDrawDescriptor& descriptor, const BubbleKindInfo& info) {
    return std::string(descriptor.TypeName()) == info.descriptor_type;
  }

  static void ExpectHarmlessBubble(const std::string& name, const Seen& seen) {
    ASSERT_FALSE(seen.records.empty()) << name;
    EXPECT_EQ(seen.records[0].message, "[Kavrix][ctx]resource_name:" + name);
    const auto kind = FindBubbleKind(name);
    if (kind && seen.out != Untouched()) {
      EXPECT_TRUE(IsOfType(*seen.out, InfoOf(*kind))) << name;
    } else if (kind) {
      EXPECT_TRUE(*kind == BubbleKind::kSafeWarning || seen.too_short) << name;
    } else {
      EXPECT_EQ(seen.out, Untouched()) << name;
      ASSERT_EQ(seen.records.size(), 2U) << name;
      EXPECT_EQ(seen.records[1].level, 1) << name;
    }
  }
};

// Makes the n-th change of a name: first the truncations, shortest first, then every value of each byte.
std::string Changed(std::string name, std::size_t n) {
  if (n <= name.size()) return name.substr(0, n);
  n -= name.size() + 1;
  name[n / 256] = static_cast<char>(n % 256);
  return name;
}
std::size_t ChangesOf(const std::string& name) { return name.size() + 1 + 256 * name.size(); }

TEST_F(HarmlessNamesTest, EveryChangeOfEverySampleName) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  std::mt19937 random(seed);
  const auto samples = SampleNames();
  ASSERT_GE(samples.size(), 3 * (kBubbleMarkers.size() + 1));
  std::size_t decoded = 0;
  for (const SampleName& sample : samples) {
    const std::size_t changes = ChangesOf(sample.name);
    const std::size_t count = IsComplete() ? changes : 100;
    for (std::size_t i = 0; i < count && !HasFailure(); ++i, ++decoded) {
      ExpectHarmless(Changed(sample.name, IsComplete() ? i : random() % changes), sample.is_marker);
    }
  }
  RecordProperty("names", std::to_string(decoded));
  std::cout << decoded << " changed names, each decoded twice\n";
}

TEST_F(HarmlessNamesTest, EveryTruncation) {
  for (const SampleName& sample : SampleNames()) {
    for (std::size_t n = 0; n <= sample.name.size() && !HasFailure(); ++n) {
      ExpectHarmless(Changed(sample.name, n), sample.is_marker);
    }
  }
}

}  // namespace
}  // namespace kavrix::test
