#ifndef KAVRIX_BENCH_PEER_KEY_READER_H_
#define KAVRIX_BENCH_PEER_KEY_READER_H_

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace kavrix::bench {

// The verbs of JsonKeyReader over another JSON reader: applies the rules that all share, so that all do the
// same job. `Object` finds the value of a key:
//
//   int IntOr(key, current)             the value when it is an integer that fits an int, else `current`
//   void Text(key, text)                sets `text` when the value is a string
//   void ForEach(key, visit)            calls visit(Object) for each element of an array
template <class Object>
class PeerKeyReader {
 public:
  explicit PeerKeyReader(Object object) : object_(std::move(object)) {}

  void Text(const char* key, std::string& text) { object_.Text(key, text); }
  template <class Int>
  void Integer(const char* key, Int& number) {
    number = static_cast<Int>(object_.IntOr(key, number));
  }
  void TrueWhenZero(const char* key, bool& flag) { flag = object_.IntOr(key, flag ? 1 : 0) == 0; }
  void TrueWhenOne(const char* key, bool& flag) { flag = object_.IntOr(key, flag ? 1 : 0) == 1; }

  template <class Item, class ItemKeys>
  void Objects(const char* key, std::vector<Item>& items, ItemKeys item_keys) {
    object_.ForEach(key, [&](Object element) {
      Item item;
      PeerKeyReader keys(std::move(element));
      item_keys(keys, item);
      items.push_back(std::move(item));
    });
  }

 private:
  Object object_;
};

inline bool FitsInt(std::int64_t number) {
  return number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max();
}

}  // namespace kavrix::bench

#endif  // KAVRIX_BENCH_PEER_KEY_READER_H_
