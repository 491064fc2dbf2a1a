#include "descriptors/bubble_draw_descriptor.h"

#include "descriptors/flat_members.h"

namespace kavrix {
namespace {

// name:value pairs with texts in double quotes, lists in [] and records in {}.
class TextWriter : public MemberVisitor {
 public:
  explicit TextWriter(std::ostream& stream) : stream_(stream) {}

  void Integer(const char* name, std::int64_t value) override { Begin(name) << value; }
  void Flag(const char* name, bool value) override { Begin(name) << (value ? "true" : "false"); }
  void Real(const char* name, float value) override { Begin(name) << value; }
  void Text(const char* name, const std::string& value) override { Begin(name) << '"' << value << '"'; }
  void BeginList(const char* name) override { Open(name, '['); }
  void EndList() override { Close(']'); }
  void BeginRecord() override { Open("", '{'); }
  void EndRecord() override { Close('}'); }

 private:
  std::ostream& Begin(const char* name) {
    if (!is_first_) stream_ << ", ";
    is_first_ = false;
    if (*name != '\0') stream_ << name << ':';
    return stream_;
  }
  void Open(const char* name, char bracket) {
    Begin(name) << bracket;
    is_first_ = true;
  }
  void Close(char bracket) {
    stream_ << bracket;
    is_first_ = false;
  }

  std::ostream& stream_;
  bool is_first_ = true;
};

}  // namespace

void BubbleDrawDescriptor::VisitBaseMembers(MemberVisitor& visitor) const {
  visitor.Integer("scene", scene);
  visitor.Text("content", content);
  visitor.Text("lan", lan);
  visitor.Integer("bubble_kind", bubble_kind);
  visitor.Integer("type", type);
  visitor.Integer("direction", direction);
  visitor.Flag("mode_flag", mode_flag);
  visitor.Text("style_name", style_name);
  visitor.Text("icon", icon);
  visitor.Integer("style_word", style_word);
  visitor.BeginList("style_scale");
  for (const float scale : style_scale) visitor.Real("", scale);
  visitor.EndList();
  visitor.Flag("selected", selected);
  visitor.Flag("is_force", is_force);
}

std::ostream& operator<<(std::ostream& stream, const BubbleDrawDescriptor& descriptor) {
  stream << "BubbleDrawDescriptor{";
  TextWriter writer(stream);
  descriptor.VisitBaseMembers(writer);
  return stream << '}';
}

std::ostream& WriteAllMembers(std::ostream& stream, const BubbleDrawDescriptor& descriptor) {
  stream << descriptor.TypeName() << '{';
  TextWriter writer(stream);
  descriptor.VisitBaseMembers(writer);
  descriptor.VisitOwnMembers(writer);
  return stream << '}';
}

bool operator==(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b) {
  return std::string_view(a.TypeName()) == b.TypeName() && FlatMembers(a) == FlatMembers(b);
}

bool operator!=(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b) { return !(a == b); }

}  // namespace kavrix
