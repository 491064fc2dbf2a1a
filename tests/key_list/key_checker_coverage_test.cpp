#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

#include "key_list/key_checker.h"
#include "payload/json_tree.h"

namespace kavrix::test {
namespace {

class KeyCheckerTest : public ::testing::Test {
 protected:
  // Returns the checker's message about the member "k" of `object`; empty when it accepts it.
  template <class Read>
  std::string ErrorOf(const std::string& object, Read read) {
    EXPECT_TRUE(ParseTree(object, object_)) << object;
    KeyChecker keys(object_);
    try {
      read(keys);
      return "";
    } catch (const KeyError& error) {
      EXPECT_EQ(error.key(), "k");
      return error.what();
    }
  }

 private:
  Json::Value object_;
};

TEST_F(KeyCheckerTest, IntegerBelowAndAboveTheRangeOfItsMember) {
  std::int16_t number = 7;
  const auto read = [&](KeyChecker& keys) { keys.Integer("k", number); };
  EXPECT_EQ(ErrorOf(R"({"k":-32768})", read), "");
  EXPECT_EQ(number, -32768);
  EXPECT_EQ(ErrorOf(R"({"k":32767})", read), "");
  EXPECT_EQ(number, 32767);
  EXPECT_EQ(ErrorOf(R"({"k":-32769})", read),
            "expected an integer from -32768 to 32767, found -32769; the reader would have decoded 32767");
  EXPECT_EQ(ErrorOf(R"({"k":32768})", read),
            "expected an integer from -32768 to 32767, found 32768; the reader would have decoded -32768");
  EXPECT_EQ(number, 32767);
}

TEST_F(KeyCheckerTest, FlagThatIsNoInteger) {
  bool flag = false;
  EXPECT_EQ(ErrorOf(R"({"k":"1"})", [&](KeyChecker& keys) { keys.TrueWhenOne("k", flag); }),
            "expected 0 or 1, found \"1\"; the reader would have decoded false");
  EXPECT_EQ(ErrorOf(R"({"k":"1"})", [&](KeyChecker& keys) { keys.TrueWhenZero("k", flag); }),
            "expected 0 or 1, found \"1\"; the reader would have decoded true");
}

TEST_F(KeyCheckerTest, AnAbsentFlagCountsAsItsCurrentValue) {
  for (const bool current : {false, true}) {
    bool when_zero = current;
    bool when_one = current;
    bool when_not_zero = current;
    EXPECT_EQ(ErrorOf("{}",
                      [&](KeyChecker& keys) {
                        keys.TrueWhenZero("k", when_zero);
                        keys.TrueWhenOne("k", when_one);
                        keys.TrueWhenNonZero("k", when_not_zero);
                      }),
              "");
    EXPECT_EQ(when_zero, !current);
    EXPECT_EQ(when_one, current);
    EXPECT_EQ(when_not_zero, current);
  }
}

}  // namespace
}  // namespace kavrix::test
