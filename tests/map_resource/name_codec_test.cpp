#include "map_resource/name_codec.h"

#include <gtest/gtest.h>

#include "descriptors/bubble_draw_descriptor.h"
#include "map_resource/encode_error.h"

namespace kavrix::test {
namespace {

constexpr int kComesBack = 3;
constexpr int kComesBackAsAnother = 4;
constexpr int kIsNotRead = 5;

// A format whose reader and writer disagree.
struct DriftedFormat : JsonFormat<DriftedFormat, BubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = ".turnBubble";
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    keys.Integer("scene", bubble.scene);
  }
  static bool ReadName(const std::string& name, BubbleDrawDescriptor& bubble) {
    Read(PayloadOf(name), bubble);
    if (bubble.scene == kComesBackAsAnother) bubble.scene = kComesBack;
    return bubble.scene != kIsNotRead;
  }
};

std::string NameOrError(int scene) {
  BubbleDrawDescriptor bubble;
  bubble.scene = scene;
  try {
    return EncodeName<DriftedFormat>(bubble);
  } catch (const EncodeError& error) {
    EXPECT_EQ(error.field(), "name");
    return error.what();
  }
}

TEST(NameCodecTest, NameThatComesBackIsGiven) {
  EXPECT_EQ(NameOrError(kComesBack), "kavrix://resource/{\"scene\":3}.turnBubble");
}

TEST(NameCodecTest, ValueThatWouldComeBackAsAnotherIsRefused) {
  EXPECT_EQ(NameOrError(kComesBackAsAnother),
            "turnBubble: name: the reader would have decoded turnBubble {\"mode\":0,\"scene\":4}");
}

TEST(NameCodecTest, NameThatWouldNotBeReadAtAllIsRefused) {
  EXPECT_EQ(NameOrError(kIsNotRead),
            "turnBubble: name: the reader would have decoded turnBubble {\"mode\":0,\"scene\":5}");
}

// Counts how often its key list runs.
struct CountedFormat : JsonFormat<CountedFormat, BubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = ".turnBubble";
  static inline int runs = 0;
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    ++runs;
    keys.Integer("scene", bubble.scene);
  }
};

TEST(NameCodecTest, KeyListRunsOnceToWriteOnceToReadBackAndOnceToCompare) {
  EncodeName<CountedFormat>(BubbleDrawDescriptor());
  EXPECT_EQ(CountedFormat::runs, 3);
}

}  // namespace
}  // namespace kavrix::test
