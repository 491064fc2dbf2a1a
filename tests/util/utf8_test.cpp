#include "util/utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kavrix::test {
namespace {

#define FFFD "\xEF\xBF\xBD"

void ExpectCharacter(std::string_view text, std::size_t length, char32_t code_point) {
  const Utf8Piece piece = NextUtf8(text);
  EXPECT_TRUE(piece.is_valid) << text;
  EXPECT_EQ(piece.length, length) << text;
  EXPECT_EQ(piece.code_point, code_point) << text;
}

TEST(NextUtf8Test, ReadsTheFirstAndLastCharacterOfEachLength) {
  ExpectCharacter(std::string_view("\0x", 2), 1, 0);
  ExpectCharacter("\x7Fx", 1, 0x7F);
  ExpectCharacter("\xC2\x80x", 2, 0x80);
  ExpectCharacter("\xDF\xBFx", 2, 0x7FF);
  ExpectCharacter("\xE0\xA0\x80x", 3, 0x800);
  ExpectCharacter("\xED\x9F\xBFx", 3, 0xD7FF);
  ExpectCharacter("\xEE\x80\x80x", 3, 0xE000);
  ExpectCharacter("\xEF\xBF\xBFx", 3, 0xFFFF);
  ExpectCharacter("\xF0\x90\x80\x80x", 4, 0x10000);
  ExpectCharacter("\xF4\x8F\xBF\xBFx", 4, 0x10FFFF);
}

void ExpectNoCharacter(std::string_view text, std::size_t length) {
  const Utf8Piece piece = NextUtf8(text);
  EXPECT_FALSE(piece.is_valid) << text;
  EXPECT_EQ(piece.length, length) << text;
  EXPECT_EQ(piece.code_point, 0U) << text;
}

TEST(NextUtf8Test, EndOfTheTextIsAPieceOfNoBytes) {
  const Utf8Piece piece = NextUtf8("");
  EXPECT_TRUE(piece.is_valid);
  EXPECT_EQ(piece.length, 0U);
  EXPECT_EQ(piece.code_point, 0U);
}

TEST(NextUtf8Test, BytesThatBeginNoCharacterArePiecesOfOneByte) {
  for (const char* const text :
       {"\x80", "\xBF", "\xC0\x80", "\xC1\xBF", "\xF5\x80\x80\x80", "\xFE", "\xFF"}) {
    ExpectNoCharacter(text, 1);
  }
}

TEST(NextUtf8Test, CutCharacterIsOnePiece) {
  for (const std::string_view text : {"\xC2", "\xE4\xBD", "\xF0\x9F\x98", "\xF4\x8F"}) {
    ExpectNoCharacter(text, text.size());
  }
}

TEST(NextUtf8Test, CharacterThatGoesOnWronglyEndsBeforeTheWrongByte) {
  ExpectNoCharacter("\xE4\xBDx", 2);
  ExpectNoCharacter("\xE4x", 1);
  ExpectNoCharacter("\xF0\x9F\xC2\x80", 2);
}

TEST(ToValidUtf8Test, ValidTextIsUnchanged) {
  for (const std::string text : {"", "abc", "前方拥堵", "é", "\U0001F697", "\xEF\xBB\xBF"}) {
    EXPECT_EQ(ToValidUtf8(text), text);
  }
  EXPECT_EQ(ToValidUtf8(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(ToValidUtf8Test, EachPieceThatIsNoCharacterBecomesOneReplacement) {
  EXPECT_EQ(ToValidUtf8("a\xFF"
                        "b"),
            "a" FFFD "b");
  EXPECT_EQ(ToValidUtf8("\xFF\xFE"), FFFD FFFD);
  EXPECT_EQ(ToValidUtf8("a\xE4\xBD"), "a" FFFD);
  EXPECT_EQ(ToValidUtf8("\xE4\xBD"
                        "前"),
            FFFD "前");
}

TEST(ToValidUtf8Test, SurrogatesOverlongFormsAndTooLargeNumbersAreReplacedByteByByte) {
  EXPECT_EQ(ToValidUtf8("\xED\xA0\x80"), FFFD FFFD FFFD);
  EXPECT_EQ(ToValidUtf8("\xC0\xAF"), FFFD FFFD);
  EXPECT_EQ(ToValidUtf8("\xE0\x9F\xBF"), FFFD FFFD FFFD);
  EXPECT_EQ(ToValidUtf8("\xF0\x8F\xBF\xBF"), FFFD FFFD FFFD FFFD);
  EXPECT_EQ(ToValidUtf8("\xF4\x90\x80\x80"), FFFD FFFD FFFD FFFD);
}

// The Unicode Standard's example of replacement by maximal subparts.
TEST(ToValidUtf8Test, MixedSequenceIsReplacedByMaximalSubparts) {
  EXPECT_EQ(ToValidUtf8("\x61\xF1\x80\x80\xE1\x80\xC2\x62\x80\x63\x80\xBF\x64"),
            "a" FFFD FFFD FFFD "b" FFFD "c" FFFD FFFD "d");
}

#undef FFFD

}  // namespace
}  // namespace kavrix::test
