#include "key_list/key_reader.h"

namespace kavrix {

std::size_t JsonKeyReader::CountElements(const Node& array) const {
  std::size_t count = 0;
  for (std::uint32_t element = array.last; element != 0; element = nodes_[element].previous) ++count;
  return count;
}

void JsonKeyReader::AppendTexts(const Node& array, std::vector<std::string>& texts) const {
  const auto is_text = [this](std::uint32_t element) { return nodes_[element].type == NodeType::kText; };
  std::size_t place = texts.size();
  for (std::uint32_t element = array.last; element != 0; element = nodes_[element].previous) {
    if (is_text(element)) ++place;
  }
  texts.resize(place);
  for (std::uint32_t element = array.last; element != 0; element = nodes_[element].previous) {
    if (is_text(element)) AssignText(nodes_[element], texts[--place]);
  }
}

}  // namespace kavrix
