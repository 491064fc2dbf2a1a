#include "key_list/key_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

namespace kavrix::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Item {
  int number = -1;
};

bool operator==(const Item& a, const Item& b) { return a.number == b.number; }

void ItemKeys(JsonKeyReader& keys, Item& item) { keys.Integer("n", item.number); }

// Reads one member of each type from a JSON object.
class JsonKeyReaderTest : public ::testing::Test {
 protected:
  JsonKeyReader Reader(const std::string& text) {
    text_ = text;
    payload_ = std::make_unique<PayloadNodes>();
    EXPECT_TRUE(payload_->Read(text_)) << text;
    return JsonKeyReader(payload_->nodes());
  }
  std::string ReadText(const std::string& value) {
    std::string text = "current";
    Reader(R"({"k":)" + value + "}").Text("k", text);
    return text;
  }
  template <class Int>
  Int ReadInteger(const std::string& value) {
    Int number = 7;
    Reader(R"({"k":)" + value + "}").Integer("k", number);
    return number;
  }
  using Rule = void (JsonKeyReader::*)(const char (&)[2], bool&);
  bool ReadFlag(Rule rule, bool current, const std::string& object) {
    JsonKeyReader reader = Reader(object);
    (reader.*rule)("k", current);
    return current;
  }

 private:
  std::string text_;  // which the nodes point into
  std::unique_ptr<PayloadNodes> payload_;
};

TEST_F(JsonKeyReaderTest, TextIsTakenOnlyFromAString) {
  EXPECT_EQ(ReadText(R"("v")"), "v");
  EXPECT_EQ(ReadText(R"("")"), "");
  for (const char* const value : {"5", "null", "true", "[\"v\"]", "{}"})
    EXPECT_EQ(ReadText(value), "current");
}

TEST_F(JsonKeyReaderTest, AnObjectOfAnyNumberOfMembersIsReadTheSame) {
  std::string members = R"("k":5)";
  for (int count = 1; count <= 60; ++count) {
    JsonKeyReader reader = Reader("{" + members + "}");
    int number = 0;
    reader.Integer("k", number);
    EXPECT_EQ(number, 5) << count;
    reader.Integer("absent", number);
    EXPECT_EQ(number, 5) << count;
    members += ",\"a" + std::to_string(count) + "\":" + std::to_string(count);
  }
}

TEST_F(JsonKeyReaderTest, IntegerIsTakenOnlyFromAnInteger) {
  EXPECT_EQ(ReadInteger<std::int32_t>("-5"), -5);
  for (const char* const value : {"\"5\"", "5.0", "3000000000", "true", "null", "[5]"}) {
    EXPECT_EQ(ReadInteger<std::int32_t>(value), 7) << value;
    EXPECT_EQ(ReadInteger<std::int16_t>(value), 7) << value;
  }
}

TEST_F(JsonKeyReaderTest, IntegerIsNarrowedToItsLowBits) {
  EXPECT_EQ(ReadInteger<std::int16_t>("70000"), 4464);
  EXPECT_EQ(ReadInteger<std::int16_t>("32768"), -32768);
  EXPECT_EQ(ReadInteger<std::int16_t>("-32769"), 32767);
  EXPECT_EQ(ReadInteger<std::int16_t>("2147483647"), -1);
}

TEST_F(JsonKeyReaderTest, AbsentKeysKeepTheCurrentValues) {
  JsonKeyReader reader = Reader(R"({"K":1,"k ":"v"})");
  std::string text = "current";
  std::int16_t number = -3;
  reader.Text("k", text);
  reader.Integer("k", number);
  EXPECT_EQ(text, "current");
  EXPECT_EQ(number, -3);
}

TEST_F(JsonKeyReaderTest, EachFlagRuleReadsItsOwnNumbersAsTrue) {
  for (const bool current : {false, true}) {
    EXPECT_TRUE(ReadFlag(&JsonKeyReader::TrueWhenZero, current, R"({"k":0})"));
    EXPECT_FALSE(ReadFlag(&JsonKeyReader::TrueWhenZero, current, R"({"k":1})"));
    EXPECT_FALSE(ReadFlag(&JsonKeyReader::TrueWhenZero, current, R"({"k":-2})"));
    EXPECT_FALSE(ReadFlag(&JsonKeyReader::TrueWhenOne, current, R"({"k":0})"));
    EXPECT_TRUE(ReadFlag(&JsonKeyReader::TrueWhenOne, current, R"({"k":1})"));
    EXPECT_FALSE(ReadFlag(&JsonKeyReader::TrueWhenOne, current, R"({"k":2})"));
    EXPECT_FALSE(ReadFlag(&JsonKeyReader::TrueWhenNonZero, current, R"({"k":0})"));
    EXPECT_TRUE(ReadFlag(&JsonKeyReader::TrueWhenNonZero, current, R"({"k":1})"));
    EXPECT_TRUE(ReadFlag(&JsonKeyReader::TrueWhenNonZero, current, R"({"k":-2})"));
  }
}

TEST_F(JsonKeyReaderTest, AbsentOrMistypedFlagKeyInvertsTrueWhenZeroAndKeepsTheOtherTwo) {
  for (const char* const object : {"{}", R"({"k":"0"})", R"({"k":1.0})", R"({"k":true})", R"({"k":null})"}) {
    for (const bool current : {false, true}) {
      EXPECT_EQ(ReadFlag(&JsonKeyReader::TrueWhenZero, current, object), !current) << object;
      EXPECT_EQ(ReadFlag(&JsonKeyReader::TrueWhenOne, current, object), current) << object;
      EXPECT_EQ(ReadFlag(&JsonKeyReader::TrueWhenNonZero, current, object), current) << object;
    }
  }
}

TEST_F(JsonKeyReaderTest, ObjectsAppendsOneItemForEachElementWhateverItsType) {
  JsonKeyReader reader = Reader(R"({"k":[{"n":5},null,"n",[],{"n":"6"},{}]})");
  std::vector<Item> items = {{9}};
  reader.Objects("k", items, ItemKeys);
  EXPECT_THAT(items, ElementsAre(Item{9}, Item{5}, Item{}, Item{}, Item{}, Item{}, Item{}));
}

TEST_F(JsonKeyReaderTest, TextsAppendsTheTextsAndIgnoresTheRest) {
  JsonKeyReader reader = Reader(R"({"k":["a",5,"",null,["b"],"a\u0000b"]})");
  std::vector<std::string> texts = {"earlier"};
  reader.Texts("k", texts);
  EXPECT_THAT(texts, ElementsAre("earlier", "a", "", std::string("a\0b", 3)));
}

TEST_F(JsonKeyReaderTest, ListKeysThatHoldNoArrayAppendNothing) {
  for (const char* const object :
       {"{}", R"({"k":"a"})", R"({"k":{"n":1}})", R"({"k":null})", R"({"k":5})", R"({"k":[]})"}) {
    JsonKeyReader reader = Reader(object);
    std::vector<std::string> texts;
    std::vector<Item> items;
    reader.Texts("k", texts);
    reader.Objects("k", items, ItemKeys);
    EXPECT_THAT(texts, IsEmpty()) << object;
    EXPECT_THAT(items, IsEmpty()) << object;
  }
}

TEST(FieldReaderTest, TextIsTakenAsItStands) {
  const std::string_view fields[] = {" a ", ""};
  FieldReader reader(fields, std::size(fields));
  std::string text = "current";
  reader.Text(0, "text", text);
  EXPECT_EQ(text, " a ");
  reader.Text(1, "text", text);
  EXPECT_EQ(text, "");
}

TEST(FieldReaderTest, IntegerIsNarrowedAndKeptWhereTheFieldDoesNotConvert) {
  const std::string_view fields[] = {"70000", "12a", "", "-1"};
  FieldReader reader(fields, std::size(fields));
  std::int16_t number = 7;
  reader.Integer(1, "number", number);
  reader.Integer(2, "number", number);
  EXPECT_EQ(number, 7);
  reader.Integer(0, "number", number);
  EXPECT_EQ(number, 4464);
  reader.Integer(3, "number", number);
  EXPECT_EQ(number, -1);
}

TEST(FieldReaderTest, LeadingIntegerStoresZeroWhereThereAreNoDigits) {
  const std::string_view fields[] = {"12a", "a", "65537"};
  FieldReader reader(fields, std::size(fields));
  std::int16_t number = 7;
  reader.LeadingInteger(0, "number", number);
  EXPECT_EQ(number, 12);
  reader.LeadingInteger(1, "number", number);
  EXPECT_EQ(number, 0);
  reader.LeadingInteger(2, "number", number);
  EXPECT_EQ(number, 1);
}

TEST(FieldReaderTest, FlagIsKeptWhereTheFieldDoesNotConvert) {
  const std::string_view fields[] = {"0", "1", "", "0a", "00"};
  FieldReader reader(fields, std::size(fields));
  for (const bool current : {false, true}) {
    bool flag = current;
    reader.TrueWhenZero(2, "flag", flag);
    reader.TrueWhenZero(3, "flag", flag);
    EXPECT_EQ(flag, current);
    reader.TrueWhenZero(0, "flag", flag);
    EXPECT_TRUE(flag);
    reader.TrueWhenZero(1, "flag", flag);
    EXPECT_FALSE(flag);
    reader.TrueWhenZero(4, "flag", flag);
    EXPECT_TRUE(flag);
  }
}

}  // namespace
}  // namespace kavrix::test
