#ifndef KAVRIX_TESTS_SUPPORT_RANDOM_CONFIG_H_
#define KAVRIX_TESTS_SUPPORT_RANDOM_CONFIG_H_

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace kavrix::test {

// Makes configuration files that a loader mostly takes, with odd numbers, texts and blanks, and changes files
// so that it often still does.
class RandomConfig {
 public:
  explicit RandomConfig(std::uint64_t seed) : random_(seed) {}

  std::string Valid();
  // The text with one change: of a value, a member or a byte.
  std::string Changed(std::string text);

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  bool Flag() { return Below(2) == 0; }
  std::string OneOf(const std::vector<std::string>& pieces) { return pieces[Below(pieces.size())]; }

  std::string Blank();
  std::string Text();
  std::string Digits(std::size_t most);
  std::string Decimal();
  std::string NearMiddle();
  std::string FloatNumber();
  std::string Word();
  std::string Member(const std::string& key, const std::string& value);
  std::string Joined(char opening, const std::vector<std::string>& pieces, char closing);
  std::string Record(const std::string& name, std::size_t value_count);
  std::string AnyRecord();
  std::string BubbleLayer();
  void ReplaceValue(std::string& text, const std::string& value);

  std::mt19937_64 random_;
};

}  // namespace kavrix::test

#endif  // KAVRIX_TESTS_SUPPORT_RANDOM_CONFIG_H_
