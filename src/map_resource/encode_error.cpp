#include "map_resource/encode_error.h"

#include <utility>

#include "util/utf8.h"

namespace kavrix {

EncodeError::EncodeError(const std::string& kind, const std::string& field, const std::string& problem,
                         std::optional<BadCharacter> character)
    : runtime_error(kind + ": " + Excerpt(field) + ": " + problem),
      kind_(kind),
      field_(field),
      character_(std::move(character)) {}

}  // namespace kavrix
