#ifndef KAVRIX_INSPECT_XML_WRITER_H_
#define KAVRIX_INSPECT_XML_WRITER_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kavrix::inspect {

// Returns a text as XML and HTML can hold it, in an element or in a quoted attribute, whatever bytes it has.
// No text leaves its place or rearranges what is around it: what is not UTF-8, control characters (those of
// lines and of direction too) and code points that are no characters become U+FFFD, `&<>"'` references.
std::string XmlText(std::string_view text);

// XML, written as it comes: SVG, and HTML that is XML too.
class XmlWriter {
 public:
  // Opens an element; its attributes follow, then what is in it. Neither element nor attribute is escaped.
  XmlWriter& Begin(const char* element);
  XmlWriter& With(const char* attribute, std::string_view value);
  XmlWriter& With(const char* attribute, std::int64_t value);
  XmlWriter& Text(std::string_view text);
  // Closes the element that was opened last.
  XmlWriter& End();
  // The same for an element with nothing in it, such as HTML's <meta/>.
  XmlWriter& EndEmpty();
  // Adds what is XML already.
  XmlWriter& Markup(std::string_view markup);

  XmlWriter& Element(const char* element, std::string_view text) { return Begin(element).Text(text).End(); }

  // What was written; the object is then of no use.
  std::string Take() { return std::move(text_); }

 private:
  void EndStartTag();

  std::string text_;
  std::vector<const char*> open_;
  bool in_start_tag_ = false;
};

}  // namespace kavrix::inspect

#endif  // KAVRIX_INSPECT_XML_WRITER_H_
