#include <gtest/gtest.h>

#include "util/utf8.h"

namespace kavrix::test {
namespace {

// Computes the expected length piece by piece.
std::size_t ValidLengthByPieces(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && NextUtf8(text.substr(length)).is_valid) {
    length += NextUtf8(text.substr(length)).length;
  }
  return length;
}

TEST(ValidUtf8LengthTest, ValidTextsAreValidAsAWhole) {
  for (const std::string& text :
       std::vector<std::string>{"", "a", "exactly8", "more than eight", "前方拥堵约2公里", "x\U0001F6A6y"}) {
    EXPECT_EQ(ValidUtf8Length(text), text.size()) << text;
    EXPECT_EQ(ToValidUtf8(text), text);
  }
}

TEST(ValidUtf8LengthTest, EndsAtTheFirstByteThatIsPartOfNoCharacterWhereverItStands) {
  const std::string valid = "before 8 bytes and 前方 after";
  for (std::size_t at = 0; at <= valid.size(); ++at) {
    for (const char* const bad : {"\xFF", "\x80", "\xE4\xBD", "\xC0\x80", "\xED\xA0\x80"}) {
      const std::string text = valid.substr(0, at) + bad + valid.substr(at);
      EXPECT_EQ(ValidUtf8Length(text), ValidLengthByPieces(text)) << text;
      EXPECT_LT(ValidUtf8Length(text), text.size());
      EXPECT_EQ(ValidUtf8Length(ToValidUtf8(text)), ToValidUtf8(text).size());
    }
  }
}

TEST(ToValidUtf8Test, EachPieceThatIsNotValidIsReplacedOnce) {
  EXPECT_EQ(ToValidUtf8("\xFF"), "\xEF\xBF\xBD");
  EXPECT_EQ(ToValidUtf8("12345678\xE4\xBD\xFFz前\x80"), "12345678\xEF\xBF\xBD\xEF\xBF\xBDz前\xEF\xBF\xBD");
}

}  // namespace
}  // namespace kavrix::test
