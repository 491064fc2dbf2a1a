// Compares the nesting scanner with JsonCpp's legacy reader on texts of random tokens: the scanner misses no
// value that the reader enters, and refuses no text that the reader accepts.

#include <json/reader.h>

#include <algorithm>
#include <optional>
#include <random>

#include "payload/json_nesting.h"
#include "tests/support/decode_test.h"
#include "tests/support/effort.h"

#if defined(__GNUC__)
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#endif

namespace kavrix::test {
namespace {

struct ReaderResult {
  bool accepted = false;
  bool too_deep = false;
  Json::Value root;
};

ReaderResult Read(const std::string& text) {
  ReaderResult result;
  try {
    Json::Reader reader;
    result.accepted = reader.parse(text.data(), text.data() + text.size(), result.root, false);
  } catch (const Json::Exception&) {
    result.too_deep = true;
  }
  return result;
}

// Returns the depth of the deepest value; the root has depth 1.
std::size_t DepthOf(const Json::Value& value) {
  std::size_t deepest = 0;
  if (!value.isArray() && !value.isObject()) return 1;
  for (const Json::Value& child : value) deepest = std::max(deepest, DepthOf(child));
  return deepest + 1;
}

// Returns the depth of the deepest value that the installed reader enters without throwing.
std::size_t ReaderLimit() {
  std::size_t depth = 1;
  while (!Read(std::string(depth, '[') + std::string(depth, ']')).too_deep) ++depth;
  return depth - 1;
}

class Soup {
 public:
  explicit Soup(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t count) { return random_() % count; }

  std::string OneOf(const std::vector<std::string>& pieces) { return pieces[Below(pieces.size())]; }

  std::string Blank() {
    return OneOf({"", "", "", " ", "\n", "/**/", "/*[{\"*/", "//]}\"\n", "//[\r", "/*/[*/", "/*\\*/"});
  }

  // Makes every key of a text different, which keeps every value in the tree.
  std::string Key() {
    return "\"" + OneOf({"", "[", "{", "}", "\\\"", "\\\\", "/*", "//"}) +
           std::to_string(10'000'000 + ++keys_) + "\"";
  }

  std::string Scalar() {
    return OneOf(
        {"1", "-2.5e3", "true", "null", R"("")", R"("[{")", R"("]}\"")", R"("\\")", R"("/*")", R"("é//")"});
  }

  // After a value and a comment in an object the reader takes anything for the separator.
  std::string Separator() {
    if (Below(4) != 0) return Blank() + "," + Blank();
    return "/**/" + Blank() +
           OneOf({"[", "{", "]", ":", "#", R"("[")", R"("]")", "5", "/[", "/]", "/{", "/\"", "\\"}) + Blank();
  }

  std::string Value(std::size_t levels) {
    const std::size_t choice = levels == 0 ? 0 : Below(5);
    if (choice == 0) return Scalar();
    if (choice == 1) return OneOf({"[]", "{}", "[ ]", "{/*]*/}"});
    const std::size_t count = 1 + Below(3);
    std::string text = choice == 2 ? "[" : "{";
    for (std::size_t i = 0; i < count; ++i) {
      if (i != 0) text += choice == 2 ? Blank() + "," : Separator();
      text += Blank() + (choice == 2 ? "" : Key() + ":" + Blank()) + Value(levels - 1) + Blank();
    }
    return text + (choice == 2 ? "]" : "}");
  }

  // Returns the text with a byte dropped or a token inserted.
  std::string Broken(std::string text) {
    const std::size_t at = Below(text.size() + 1);
    if (Below(3) == 0) return text.erase(at, 1);
    return text.insert(
        at, OneOf({"[", "{", "]", "}", ",", ":", "\"", "/", "*", "/*", "*/", "//", "\\", "\n", "1", " "}));
  }

 private:
  std::mt19937 random_;
  int keys_ = 0;
};

TEST(NestingSoupTest, TakesTextsApartAsTheReaderDoes) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  Soup soup(seed);
  int accepted = 0;
  for (int i = IsComplete() ? 2'000'000 : 20'000; i > 0; --i) {
    std::string text = soup.Blank() + soup.Value(1 + soup.Below(8)) + soup.OneOf({"", " [[", "]", "//{"});
    while (soup.Below(3) == 0) text = soup.Broken(text);
    const ReaderResult result = Read(text);
    if (!result.accepted) continue;
    ++accepted;
    const std::size_t depth = DepthOf(result.root);
    EXPECT_FALSE(kavrix::IsNestedDeeperThan(text, depth)) << text;
    EXPECT_TRUE(depth == 1 || kavrix::IsNestedDeeperThan(text, depth - 1)) << text;
    if (HasFailure()) break;
  }
  EXPECT_GT(accepted, 1'000);
}

TEST(NestingSoupTest, MissesNothingThatTheReaderGoesDownInto) {
  const unsigned seed = Seed();
  SCOPED_TRACE(HowToRepeat(seed));
  Soup soup(seed);
  const std::size_t limit = ReaderLimit();
  int too_deep = 0;
  for (int i = IsComplete() ? 20'000 : 500; i > 0; --i) {
    std::string text;
    for (std::size_t depth = 0; depth < limit + 2; ++depth) {
      text += soup.Blank();
      if (soup.Below(2) == 0) {
        text += "[" + soup.Blank() + soup.OneOf({"", "", "1,", "[],", "{},"});
      } else {
        text +=
            "{" +
            soup.OneOf({"", soup.Key() + ":1" + soup.Separator(), soup.Key() + ":{}" + soup.Separator()}) +
            soup.Key() + ":";
      }
    }
    if (soup.Below(2) == 0) text = soup.Broken(text);
    const ReaderResult result = Read(text);
    if (!result.too_deep) continue;
    ++too_deep;
    // The reader throws before it knows whether a value follows. The added end gives it one, inside a comment
    // or not.
    EXPECT_TRUE(kavrix::IsNestedDeeperThan(text + "\n*/1", limit)) << text;
    if (HasFailure()) break;
  }
  EXPECT_GT(too_deep, 100);
}

}  // namespace
}  // namespace kavrix::test
