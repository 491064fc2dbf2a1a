#ifndef KAVRIX_TESTS_SUPPORT_REFERENCE_TEST_H_
#define KAVRIX_TESTS_SUPPORT_REFERENCE_TEST_H_

#include <stdexcept>

#include "tests/reference/reference_decoder.h"
#include "tests/support/decode_test.h"

namespace kavrix::test {

// Decodes names by the library and by the reference decoder. Both must leave the same descriptor with the
// same members, or `out` alone; write the same log records; take as many snapshots of the configuration; and
// throw for the same names.
class ReferenceTest : public DecodeTest {
 protected:
  ReferenceTest() {
    context_->multi_light_type = 70000;
    MarkerBubbleConfig marker_bubble;
    marker_bubble.name = "marker_bubble";
    marker_bubble.SetWord(2, 0xff00ff00);
    marker_bubble.SetFloat(3, 1.25F);
    transform_.SetMarkerBubbleConfig(marker_bubble);
    reference_.SetMarkerBubbleConfig(marker_bubble);
  }

  // By both entry points, whatever the name was made for.
  void ExpectSameByBoth(const std::string& name) {
    ExpectSame(name, false);
    ExpectSame(name, true);
  }

  void ExpectSame(const std::string& name, bool is_marker = false) {
    if (HasFatalFailure()) return;  // one is enough
    const auto before = std::make_shared<BubbleDrawDescriptor>();
    const Outcome expected = See(before, [&](Outcome& seen) {
      if (is_marker) {
        reference_.GetMarkerDrawDescriptor(name, seen.out, &seen.records);
      } else {
        reference_.GetBubbleDrawDescriptor(name, seen.out, &seen.records);
      }
    });
    collector_.Clear();
    const Outcome actual = See(before, [&](Outcome& seen) {
      if (is_marker) {
        transform_.GetMarkerDrawDescriptor(name, seen.out);
      } else {
        transform_.GetBubbleDrawDescriptor(name, seen.out);
      }
    });
    ASSERT_EQ(actual.is_out_of_range, expected.is_out_of_range) << name;
    ASSERT_EQ(actual.out == before, expected.out == before) << name;
    ASSERT_EQ(*before, BubbleDrawDescriptor()) << name;
    ASSERT_STREQ(actual.out->TypeName(), expected.out->TypeName()) << name;
    ASSERT_TRUE(*actual.out == *expected.out)
        << name << "\nreference: " << All(*expected.out) << "\nlibrary:   " << All(*actual.out);
    ASSERT_EQ(records(), expected.records) << name;
    ASSERT_EQ(actual.snapshots, expected.snapshots) << name;
    if (expected.out != before) ++decoded_;
  }

  int decoded_ = 0;  // how many decodes gave a descriptor

 private:
  struct Outcome {
    std::shared_ptr<BubbleDrawDescriptor> out;
    std::vector<SeenRecord> records;
    bool is_out_of_range = false;
    int snapshots = 0;
  };

  template <class Decode>
  Outcome See(const std::shared_ptr<BubbleDrawDescriptor>& before, Decode decode) {
    Outcome seen;
    seen.out = before;
    context_->snapshots = 0;
    try {
      decode(seen);
    } catch (const std::out_of_range&) {
      seen.is_out_of_range = true;
    }
    seen.snapshots = snapshots();
    return seen;
  }

  static std::string All(const BubbleDrawDescriptor& descriptor) {
    std::ostringstream stream;
    WriteAllMembers(stream, descriptor);
    return stream.str();
  }

  reference::ReferenceDecoder reference_{context_};
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_REFERENCE_TEST_H_
