#include "map_resource/name_codec.h"

#include <gtest/gtest.h>

#include "descriptors/bubble_draw_descriptor.h"
#include "map_resource/encode_error.h"

// A kind whose reader and writer drift apart is refused at the first name that would not come back.
namespace kavrix::test {
namespace {

BubbleDrawDescriptor WithScene(int scene) {
  BubbleDrawDescriptor bubble;
  bubble.scene = scene;
  return bubble;
}

template <class Names>
std::string ErrorOf(const BubbleDrawDescriptor& bubble) {
  try {
    return "not refused: " + EncodeName<Names>(bubble);
  } catch (const EncodeError& error) {
    EXPECT_EQ(error.field(), "name");
    return error.what();
  }
}

struct SceneNames : JsonNames<SceneNames, BubbleDrawDescriptor> {
  static constexpr std::string_view kMarker = ".turnBubble";
  template <class Keys, class Descriptor>
  static void List(Keys& keys, Descriptor& bubble) {
    keys.Integer("scene", bubble.scene);
  }
};

struct AnotherValueIsRead : SceneNames {
  static bool Read(const std::string& name, BubbleDrawDescriptor& bubble) {
    const bool parsed = SceneNames::Read(name, bubble);
    ++bubble.scene;
    return parsed;
  }
};

struct NothingIsRead : SceneNames {
  static bool Read(const std::string&, BubbleDrawDescriptor&) { return false; }
};

TEST(NameCodecTest, NameThatComesBackIsGiven) {
  EXPECT_EQ(EncodeName<SceneNames>(WithScene(3)), "kavrix://resource/{\"scene\":3}.turnBubble");
}

TEST(NameCodecTest, ValueThatWouldComeBackAsAnotherIsRefused) {
  EXPECT_EQ(ErrorOf<AnotherValueIsRead>(WithScene(3)),
            "turnBubble: name: the reader would have decoded turnBubble {\"mode\":0,\"scene\":3}");
}

TEST(NameCodecTest, NameThatWouldNotBeReadAtAllIsRefused) {
  // Every value is the default's, so that nothing but the reader's answer tells.
  EXPECT_EQ(ErrorOf<NothingIsRead>(WithScene(0)),
            "turnBubble: name: the reader would have decoded turnBubble {\"mode\":0}");
}

}  // namespace
}  // namespace kavrix::test
