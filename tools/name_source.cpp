#include "tools/name_source.h"

namespace kavrix::tools {

bool GivenNames::Take(std::size_t most, std::vector<InputName>& names) {
  for (; names.size() < most && taken_ < names_.size(); ++taken_) {
    names.push_back({names_[taken_], taken_ + 1, "argument"});
    bytes_taken_ += names_[taken_].size() + 1;
  }
  return !names.empty();
}

std::optional<std::uint64_t> GivenNames::Bytes() const {
  std::uint64_t bytes = 0;
  for (const std::string& name : names_) bytes += name.size() + 1;
  return bytes;
}

}  // namespace kavrix::tools
