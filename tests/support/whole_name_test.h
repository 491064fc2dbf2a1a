#ifndef KAVRIX_TESTS_SUPPORT_WHOLE_NAME_TEST_H_
#define KAVRIX_TESTS_SUPPORT_WHOLE_NAME_TEST_H_

#include "tests/support/decode_test.h"

namespace kavrix::test {

// Tests every kind whose descriptor finds its JSON object in the whole name. `Kind` has the marker as kMarker
// and the descriptor's type as Descriptor.
template <class Kind>
class WholeNameBubbleTest : public DecodeTest {
 protected:
  const typename Kind::Descriptor& DecodeOne(const std::string& payload) {
    Decode(payload + Kind::kMarker);
    return Out<typename Kind::Descriptor>();
  }
};

// Names the tests of a kind after its marker.
struct MarkerWord {
  template <class Kind>
  static std::string GetName(int) {
    return Kind::kMarker + 1;
  }
};

TYPED_TEST_SUITE_P(WholeNameBubbleTest);

TYPED_TEST_P(WholeNameBubbleTest, KindCodeStaysZeroAndNoStyleIsRead) {
  this->DecodeOne(R"({"bubble_kind":9,"style_name":"s","mode":1})");
  EXPECT_EQ(this->Base(), typename TypeParam::Descriptor());
  EXPECT_EQ(this->snapshots(), 0);
}

TYPED_TEST_P(WholeNameBubbleTest, NothingIsLoggedBesideTheRequest) {
  this->DecodeOne("{}");
  EXPECT_THAT(this->records(), ::testing::ElementsAre(this->Request()));
  this->DecodeOne("broken");
  EXPECT_THAT(this->records(), ::testing::ElementsAre(this->Request()));
}

TYPED_TEST_P(WholeNameBubbleTest, NameWithoutAReadableObjectGivesANewDescriptorAsConstructed) {
  for (const std::string payload : {"", "broken", "{", "}", "}{", "[1]", "5", "null", R"({"scene":3,})"}) {
    const auto earlier = std::make_shared<typename TypeParam::Descriptor>();
    this->out_ = earlier;
    this->DecodeOne(payload);
    EXPECT_NE(this->out_, earlier);
    EXPECT_EQ(this->Base(), typename TypeParam::Descriptor()) << payload;
    EXPECT_THAT(this->records(), ::testing::ElementsAre(this->Request()));
  }
}

TYPED_TEST_P(WholeNameBubbleTest, OnlyModeZeroSetsTheFlagAndAnAbsentOrMistypedOneInvertsIt) {
  EXPECT_TRUE(this->DecodeOne(R"({"mode":0})").mode_flag);
  EXPECT_FALSE(this->DecodeOne(R"({"mode":1})").mode_flag);
  EXPECT_FALSE(this->DecodeOne(R"({"mode":-1})").mode_flag);
  EXPECT_TRUE(this->DecodeOne("{}").mode_flag);
  EXPECT_TRUE(this->DecodeOne(R"({"mode":"1"})").mode_flag);
}

TYPED_TEST_P(WholeNameBubbleTest, ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore) {
  EXPECT_TRUE(this->DecodeOne(R"({"is_force_":1})").is_force);
  EXPECT_FALSE(this->DecodeOne(R"({"is_force_":2})").is_force);
  EXPECT_FALSE(this->DecodeOne(R"({"is_force":1})").is_force);
}

TYPED_TEST_P(WholeNameBubbleTest, TypeAndDirectionAreNarrowedTo16Bits) {
  const auto& bubble = this->DecodeOne(R"({"type":70000,"direction":-1})");
  EXPECT_EQ(bubble.type, 4464);
  EXPECT_EQ(bubble.direction, -1);
}

TYPED_TEST_P(WholeNameBubbleTest, BracesInsideTextsBelongToTheText) {
  EXPECT_EQ(this->DecodeOne(R"({"content":"}{ a } {"})").content, "}{ a } {");
}

TYPED_TEST_P(WholeNameBubbleTest, NameWithoutThePrefixIsReadAsWell) {
  this->DecodeWhole(R"({"scene":3})" + std::string(TypeParam::kMarker));
  EXPECT_EQ(this->Base().scene, 3);
}

TYPED_TEST_P(WholeNameBubbleTest, TextAroundTheObjectIsIgnored) {
  EXPECT_EQ(this->DecodeOne(R"(12@{"scene":3}@7)").scene, 3);
}

TYPED_TEST_P(WholeNameBubbleTest, InitWithJsonTellsWhetherItFoundAnObject) {
  typename TypeParam::Descriptor bubble;
  EXPECT_FALSE(bubble.InitWithJson(std::string("kavrix://resource/broken") + TypeParam::kMarker));
  EXPECT_EQ(bubble, typename TypeParam::Descriptor());
  EXPECT_TRUE(bubble.InitWithJson(std::string("kavrix://resource/{\"scene\":3}") + TypeParam::kMarker));
  EXPECT_EQ(bubble.scene, 3);
}

TYPED_TEST_P(WholeNameBubbleTest, InitWithJsonReadsFromATextOfTheBubbleItself) {
  typename TypeParam::Descriptor bubble;
  bubble.content = R"({"content":"a text of more than fifteen bytes","lan":"zh","scene":3})";
  EXPECT_TRUE(bubble.InitWithJson(bubble.content));
  EXPECT_EQ(bubble.content, "a text of more than fifteen bytes");
  EXPECT_EQ(bubble.lan, "zh");
  EXPECT_EQ(bubble.scene, 3);
}

REGISTER_TYPED_TEST_SUITE_P(WholeNameBubbleTest, KindCodeStaysZeroAndNoStyleIsRead,
                            NothingIsLoggedBesideTheRequest,
                            NameWithoutAReadableObjectGivesANewDescriptorAsConstructed,
                            OnlyModeZeroSetsTheFlagAndAnAbsentOrMistypedOneInvertsIt,
                            ForceCountsOnlyWhenOneAndUnderItsKeyWithTheUnderscore,
                            TypeAndDirectionAreNarrowedTo16Bits, BracesInsideTextsBelongToTheText,
                            NameWithoutThePrefixIsReadAsWell, TextAroundTheObjectIsIgnored,
                            InitWithJsonTellsWhetherItFoundAnObject,
                            InitWithJsonReadsFromATextOfTheBubbleItself);

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_WHOLE_NAME_TEST_H_
