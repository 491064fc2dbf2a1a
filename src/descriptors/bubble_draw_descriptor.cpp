#include "descriptors/bubble_draw_descriptor.h"

#include <charconv>
#include <locale>
#include <sstream>

#include "descriptors/flat_members.h"
#include "util/escape.h"
#include "util/text_buffer.h"

namespace kavrix {
namespace {

// Appends a float as a stream of the classic locale prints it. Of `format` only the notation and the
// precision count.
void AppendReal(TextBuffer& text, float value, const std::ios_base& format) {
  const std::ios_base::fmtflags notation = format.flags() & std::ios_base::floatfield;
#ifdef __cpp_lib_to_chars  // gives the same text for a tenth of the time
  if (notation != std::ios_base::floatfield) {
    const std::chars_format chars_format = notation == std::ios_base::fixed ? std::chars_format::fixed
                                           : notation == std::ios_base::scientific
                                               ? std::chars_format::scientific
                                               : std::chars_format::general;
    constexpr std::size_t kUsualRoom = 64;
    char* const begin = text.Reserve(kUsualRoom);
    const auto [end, error] =
        std::to_chars(begin, begin + kUsualRoom, value, chars_format, static_cast<int>(format.precision()));
    if (error == std::errc()) return text.Advance(static_cast<std::size_t>(end - begin));
  }
#endif
  std::ostringstream stream;
  stream.exceptions(std::ios_base::badbit);  // when memory runs out, throws instead of printing less
  stream.imbue(std::locale::classic());
  stream.setf(notation, std::ios_base::floatfield);
  stream.precision(format.precision());
  stream << value;
  text += stream.str();
}

// Writes name:value pairs, strings in double quotes, lists in [] and objects in {}.
class TextWriter : public MemberVisitor {
 public:
  TextWriter(const char* type_name, const std::ios_base& format) : format_(format) {
    text_ += type_name;
    text_ += '{';
  }

  void Integer(const char* name, std::int64_t value) override { Begin(name).AppendNumber(value); }
  void Code(const char* name, MarkerType value) override { Begin(name) += MarkerTypeName(value); }
  void Flag(const char* name, bool value) override { Begin(name) += value ? "true" : "false"; }
  void Real(const char* name, float value) override { AppendReal(Begin(name), value, format_); }
  void Text(const char* name, const std::string& value) override { AppendQuoted(Begin(name), value); }
  void BeginList(const char* name) override { Open(name, '['); }
  void EndList() override { Close(']'); }
  void BeginObject() override { Open("", '{'); }
  void EndObject() override { Close('}'); }

  // Writes one unformatted piece, which ignores the stream's state but uses up its width, as other values do.
  std::ostream& WriteTo(std::ostream& stream) {
    text_ += '}';
    stream.width(0);
    const std::string_view text = text_.View();
    return stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  }

 private:
  static constexpr std::size_t kUsualSize = 512;  // spares most descriptors the growing

  TextBuffer& Begin(const char* name) {
    if (!is_first_) text_ += ", ";
    is_first_ = false;
    if (*name != '\0') {
      text_ += name;
      text_ += ':';
    }
    return text_;
  }
  void Open(const char* name, char bracket) {
    Begin(name) += bracket;
    is_first_ = true;
  }
  void Close(char bracket) {
    text_ += bracket;
    is_first_ = false;
  }

  const std::ios_base& format_;
  TextBuffer text_{kUsualSize};
  bool is_first_ = true;
};

}  // namespace

// Here, so that the library has the only vtable of the class.
MemberVisitor::~MemberVisitor() = default;

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
  visitor.Word("style_word", style_word);
  visitor.BeginList("style_scale");
  for (const float scale : style_scale) visitor.Real("", scale);
  visitor.EndList();
  visitor.Flag("selected", selected);
  visitor.Flag("is_force", is_force);
}

std::ostream& operator<<(std::ostream& stream, const BubbleDrawDescriptor& descriptor) {
  TextWriter writer("BubbleDrawDescriptor", stream);
  descriptor.VisitBaseMembers(writer);
  return writer.WriteTo(stream);
}

std::ostream& WriteAllMembers(std::ostream& stream, const BubbleDrawDescriptor& descriptor) {
  TextWriter writer(descriptor.TypeName(), stream);
  descriptor.VisitBaseMembers(writer);
  descriptor.VisitOwnMembers(writer);
  return writer.WriteTo(stream);
}

bool operator==(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b) {
  return std::string_view(a.TypeName()) == b.TypeName() && FlatMembers(a) == FlatMembers(b);
}

bool operator!=(const BubbleDrawDescriptor& a, const BubbleDrawDescriptor& b) { return !(a == b); }

}  // namespace kavrix
