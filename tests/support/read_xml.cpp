#include "tests/support/read_xml.h"

#include <expat.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <stdexcept>

namespace kavrix::test {
namespace {

struct Reading {
  std::vector<XmlElement> elements;
  std::vector<std::size_t> open;  // the elements that are not closed yet
};

void OnStart(void* data, const XML_Char* name, const XML_Char** attributes) {
  auto& reading = *static_cast<Reading*>(data);
  XmlElement element;
  element.name = name;
  for (; *attributes != nullptr; attributes += 2) {
    if (std::string(attributes[0]) != "xmlns") element.attributes[attributes[0]] = attributes[1];
  }
  reading.open.push_back(reading.elements.size());
  reading.elements.push_back(std::move(element));
}

void OnEnd(void* data, const XML_Char*) { static_cast<Reading*>(data)->open.pop_back(); }

void OnText(void* data, const XML_Char* text, int size) {
  auto& reading = *static_cast<Reading*>(data);
  for (const std::size_t element : reading.open) {
    reading.elements[element].text.append(text, static_cast<std::size_t>(size));
  }
}

std::vector<XmlElement> ReadWithExpat(const std::string& document) {
  const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate("UTF-8"),
                                                                       XML_ParserFree);
  Reading reading;
  XML_SetUserData(parser.get(), &reading);
  XML_SetElementHandler(parser.get(), OnStart, OnEnd);
  XML_SetCharacterDataHandler(parser.get(), OnText);
  if (XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), 1) != XML_STATUS_OK) {
    throw std::runtime_error("expat, byte " + std::to_string(XML_GetCurrentByteIndex(parser.get())) + ": " +
                             XML_ErrorString(XML_GetErrorCode(parser.get())));
  }
  return reading.elements;
}

std::string ToString(const xmlChar* text) {
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

std::string TakeString(xmlChar* text) {
  std::string string = ToString(text);
  xmlFree(text);
  return string;
}

std::string NameOf(const xmlChar* name, const xmlNs* space) {
  const std::string prefix =
      space == nullptr || space->prefix == nullptr ? "" : ToString(space->prefix) + ':';
  return prefix + ToString(name);
}

void AddElements(xmlNode* node, std::vector<XmlElement>& elements) {
  for (; node != nullptr; node = node->next) {
    if (node->type != XML_ELEMENT_NODE) continue;
    XmlElement element;
    element.name = NameOf(node->name, node->ns);
    element.text = TakeString(xmlNodeGetContent(node));
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
      element.attributes[NameOf(attribute->name, attribute->ns)] =
          TakeString(xmlNodeListGetString(node->doc, attribute->children, 1));
    }
    elements.push_back(std::move(element));
    AddElements(node->children, elements);
  }
}

std::vector<XmlElement> ReadWithLibXml(const std::string& document) {
  constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
  const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> parsed(
      xmlReadMemory(document.data(), static_cast<int>(document.size()), "", "UTF-8", kOptions), xmlFreeDoc);
  if (parsed == nullptr) {
    const xmlError* const error = xmlGetLastError();
    throw std::runtime_error("libxml2, line " + std::to_string(error->line) + ": " + error->message);
  }
  std::vector<XmlElement> elements;
  AddElements(xmlDocGetRootElement(parsed.get()), elements);
  return elements;
}

}  // namespace

bool operator==(const XmlElement& a, const XmlElement& b) {
  return a.name == b.name && a.attributes == b.attributes && a.text == b.text;
}

std::vector<XmlElement> ReadXml(const std::string& document) {
  std::vector<XmlElement> elements = ReadWithExpat(document);
  if (!(elements == ReadWithLibXml(document)))
    throw std::runtime_error("expat and libxml2 see different things");
  return elements;
}

std::vector<XmlElement> Named(const std::vector<XmlElement>& elements, const std::string& name) {
  std::vector<XmlElement> named;
  for (const XmlElement& element : elements) {
    if (element.name == name) named.push_back(element);
  }
  return named;
}

}  // namespace kavrix::test
