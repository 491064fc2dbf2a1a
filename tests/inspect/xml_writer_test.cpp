#include "inspect/xml_writer.h"

#include <gtest/gtest.h>

#include "tests/support/read_xml.h"

namespace kavrix::test {
namespace {

using inspect::XmlText;
using inspect::XmlWriter;

constexpr char kReplaced[] = "\xEF\xBF\xBD";

TEST(XmlTextTest, EscapesWhatXmlReads) {
  EXPECT_EQ(XmlText(R"(</svg><a b="c" d='e'>&amp;]]>)"),
            "&lt;/svg&gt;&lt;a b=&quot;c&quot; d=&#39;e&#39;&gt;&amp;amp;]]&gt;");
  EXPECT_EQ(XmlText("前方 100 %"), "前方 100 %");
}

TEST(XmlTextTest, ReplacesWhatXmlForbidsAndWhatCouldRearrangeText) {
  const std::vector<std::string> forbidden = {
      std::string(1, '\0'),
      "\x01",
      "\x08",
      "\t",
      "\n",
      "\r",
      "\x1F",
      "\x7F",
      "\xC2\x85",
      "\xEF\xBF\xBE",      // U+FFFE
      "\xEF\xBF\xBF",      // U+FFFF
      "\xEF\xB7\x90",      // U+FDD0, no character
      "\xF0\x9F\xBF\xBE",  // U+1FFFE, no character
      "\xE2\x80\xAE",      // right-to-left override
      "\xE2\x81\xA6",      // left-to-right isolate
      "\xD8\x9C",          // Arabic letter mark, which sets a direction too
      "\xE2\x80\xA8",      // line separator
      "\xFF",
      "\xE4\xB8",
  };
  for (const std::string& text : forbidden)
    EXPECT_EQ(XmlText('a' + text + 'b'), 'a' + std::string(kReplaced) + 'b');
  EXPECT_EQ(XmlText("\xED\xA0\x80"), std::string(kReplaced) + kReplaced + kReplaced);  // a surrogate
}

// No code point makes XML that the readers refuse, or that they see as another one.
TEST(XmlTextTest, AnyCodePointIsReadBackOrReplaced) {
  std::size_t replaced = 0;
  for (unsigned c = 0; c < 0x110000; c += c < 0x3000 || c > 0xFF00 ? 1 : 37) {
    if (c >= 0x11000 && c < 0x10FF00) c += 4099;
    std::string text;
    if (c < 0x80) {
      text = {static_cast<char>(c)};
    } else if (c < 0x800) {
      text = {static_cast<char>(0xC0 | c >> 6), static_cast<char>(0x80 | (c & 0x3F))};
    } else if (c < 0x10000) {
      text = {static_cast<char>(0xE0 | c >> 12), static_cast<char>(0x80 | (c >> 6 & 0x3F)),
              static_cast<char>(0x80 | (c & 0x3F))};
    } else {
      text = {static_cast<char>(0xF0 | c >> 18), static_cast<char>(0x80 | (c >> 12 & 0x3F)),
              static_cast<char>(0x80 | (c >> 6 & 0x3F)), static_cast<char>(0x80 | (c & 0x3F))};
    }
    const std::string document = XmlWriter().Begin("a").With("b", text).Text(text).End().Take();
    const std::vector<XmlElement> read = ReadXml(document);
    if (read[0].text != text) {
      ++replaced;
      EXPECT_EQ(read[0].text.substr(0, 3), kReplaced) << c;
    }
    EXPECT_EQ(read[0].text, read[0].attributes.at("b")) << c;
  }
  EXPECT_GT(replaced, 80U);
  EXPECT_LT(replaced, 300U);
}

TEST(XmlWriterTest, WritesElementsInsideEachOther) {
  XmlWriter xml;
  xml.Begin("a")
      .With("n", 7)
      .With("t", "\"")
      .Element("b", "<")
      .Begin("c")
      .EndEmpty()
      .Text("&")
      .Markup("<d/>")
      .End();
  EXPECT_EQ(xml.Take(), "<a n=\"7\" t=\"&quot;\"><b>&lt;</b><c/>&amp;<d/></a>");
}

}  // namespace
}  // namespace kavrix::test
