#ifndef KAVRIX_TESTS_SUPPORT_RANDOM_PAYLOADS_H_
#define KAVRIX_TESTS_SUPPORT_RANDOM_PAYLOADS_H_

#include <cstdint>
#include <random>
#include <string>

namespace kavrix::test {

// Makes payloads that are JSON objects or nearly so: odd numbers, escapes, comments and blanks, keys that
// come twice, and changes of a few bytes.
class RandomPayloads {
 public:
  explicit RandomPayloads(std::uint64_t seed) : random_(seed) {}

  std::string Next();

 private:
  void Object(int depth);
  void Array(int depth);
  void Value(int depth);
  void Text();
  void Number();
  void Between();  // blanks, seldom a comment
  void Change();

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }
  bool OneIn(std::size_t n) { return Below(n) == 0; }
  template <std::size_t N>
  void OneOf(const char* const (&pieces)[N]) {
    text_ += pieces[Below(N)];
  }

  std::mt19937_64 random_;
  std::string text_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_RANDOM_PAYLOADS_H_
