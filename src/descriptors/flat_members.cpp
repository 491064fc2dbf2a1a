#include "descriptors/flat_members.h"

#include <utility>

namespace kavrix {
namespace {

class Flattener : public MemberVisitor {
 public:
  Flattener(std::vector<FlatMember>& members, ListLengths lengths) : members_(members), lengths_(lengths) {}

  void Integer(const char* name, std::int64_t value) override { Add(name, value); }
  void Word(const char* name, std::uint32_t value) override { Add(name, value); }
  void Code(const char* name, MarkerType value) override { Add(name, value); }
  void Flag(const char* name, bool value) override { Add(name, value); }
  void Real(const char* name, float value) override { Add(name, value); }
  void Text(const char* name, const std::string& value) override { Add(name, value); }

  void BeginList(const char* name) override {
    place_of_length_ = members_.size();
    if (lengths_ == ListLengths::kIncluded) Add(name, std::int64_t{0});
    list_ = name;
    next_index_ = 0;
  }
  void EndList() override {
    if (lengths_ == ListLengths::kIncluded)
      members_[place_of_length_].value = static_cast<std::int64_t>(next_index_);
    list_.clear();
  }
  void BeginObject() override { object_ = ItemPath() + "."; }
  void EndObject() override { object_.clear(); }

 private:
  template <class Value>
  void Add(const char* name, const Value& value) {
    std::string path = list_.empty() ? name : object_.empty() ? ItemPath() : object_ + name;
    members_.push_back({std::move(path), value});
  }

  std::string ItemPath() { return list_ + "[" + std::to_string(next_index_++) + "]"; }

  std::vector<FlatMember>& members_;
  const ListLengths lengths_;
  std::string list_;    // the list being visited, if any
  std::string object_;  // the path of the object being visited, if any
  std::size_t next_index_ = 0;
  std::size_t place_of_length_ = 0;
};

}  // namespace

std::vector<FlatMember> FlatMembers(const BubbleDrawDescriptor& descriptor, ListLengths lengths) {
  std::vector<FlatMember> members;
  Flattener flattener(members, lengths);
  descriptor.VisitBaseMembers(flattener);
  descriptor.VisitOwnMembers(flattener);
  return members;
}

bool IsDefault(const FlatMember& member) {
  const auto is_default = [](const auto& value) { return value == std::decay_t<decltype(value)>{}; };
  return std::visit(is_default, member.value);
}

}  // namespace kavrix
