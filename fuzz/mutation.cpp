#include "fuzz/mutation.h"

#include <algorithm>
#include <random>

#include "fuzz/vocabulary.h"

namespace kavrix::fuzz {
namespace {

class Mutation {
 public:
  Mutation(const std::string& text, unsigned seed) : text_(text), random_(seed) {}

  const std::string& text() const { return text_; }

  void Mutate() {
    switch (Below(8)) {
      case 0:
        return InsertMember();
      case 1:
        return ReplaceValue();
      case 2:
        return ReplaceKey();
      case 3:
        return ReplaceMarker();
      case 4:
        return Insert(Place(), OneOf(Words().markers));
      case 5:
        return Insert(Place(), OneOf(Words().separators));
      case 6:
        return ReplaceField();
      default:
        return CopyPiece();
    }
  }

 private:
  std::size_t Below(std::size_t end) {
    return end == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, end - 1)(random_);
  }
  const std::string& OneOf(const std::vector<std::string>& words) { return words[Below(words.size())]; }
  std::size_t Place() { return Below(text_.size() + 1); }
  void Insert(std::size_t place, const std::string& piece) { text_.insert(place, piece); }

  // Where one of the characters stands, searched from a random place on and from the front; npos: nowhere.
  std::size_t PlaceOf(const char* characters) {
    const std::size_t place = text_.find_first_of(characters, Place());
    return place != std::string::npos ? place : text_.find_first_of(characters);
  }

  void InsertMember() {
    const std::string member = '"' + OneOf(Words().keys) + "\":" + OneOf(Words().values);
    const std::size_t place = PlaceOf("{,");
    if (place == std::string::npos) return Insert(Place(), "{" + member + "}");
    const bool is_last = text_[place] == '{' && place + 1 < text_.size() && text_[place + 1] == '}';
    Insert(place + 1, is_last ? member : member + ",");
  }

  void ReplaceValue() {
    const std::size_t colon = PlaceOf(":");
    if (colon == std::string::npos) return ReplaceField();
    const std::size_t end = std::min(text_.find_first_of(",}]", colon), text_.size());
    text_.replace(colon + 1, end - colon - 1, OneOf(Words().values));
  }

  void ReplaceKey() {
    const std::size_t colon = PlaceOf(":");
    if (colon == std::string::npos || colon < 2 || text_[colon - 1] != '"') return InsertMember();
    const std::size_t quote = text_.rfind('"', colon - 2);
    if (quote == std::string::npos) return InsertMember();
    text_.replace(quote + 1, colon - quote - 2, OneOf(Words().keys));
  }

  void ReplaceMarker() {
    const std::size_t dot = text_.rfind('.');
    if (dot != std::string::npos) text_.resize(dot);
    text_ += OneOf(Words().markers);
  }

  // What stands between two separators of fields.
  void ReplaceField() {
    const std::size_t begin = PlaceOf("@_.|");
    if (begin == std::string::npos) return Insert(Place(), "_" + OneOf(Words().values));
    const std::size_t end = std::min(text_.find_first_of("@_.|", begin + 1), text_.size());
    text_.replace(begin + 1, end - begin - 1, OneOf(Words().values));
  }

  // Arrays grow and keys come twice when a piece is put in again.
  void CopyPiece() {
    const std::size_t begin = Place();
    const std::string piece = text_.substr(begin, 1 + Below(64));
    const std::size_t comma = PlaceOf(",");
    Insert(comma != std::string::npos && Below(2) == 0 ? comma : Place(), piece);
  }

  std::string text_;
  std::minstd_rand random_;
};

}  // namespace

std::string Mutated(const std::string& text, unsigned seed) {
  Mutation mutation(text, seed);
  mutation.Mutate();
  return mutation.text();
}

}  // namespace kavrix::fuzz
