#ifndef KAVRIX_MAP_RESOURCE_ENCODE_ERROR_H_
#define KAVRIX_MAP_RESOURCE_ENCODE_ERROR_H_

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>

#include "../util/export.h"

namespace kavrix {

/// A character that a name cannot carry in one of its strings.
struct BadCharacter {
  std::string bytes;        ///< The character, or the piece that is not UTF-8.
  std::size_t byte_offset;  ///< Place in the string, in bytes, from 0.
  std::size_t column;       ///< Place in code points, from 1; a piece that is not UTF-8 counts as one.
};

/// A value that no name of the kind can carry. The message names the kind, the field and, if one character is
/// to blame, that character and its place. Most say what the reader would have decoded instead.
class KAVRIX_EXPORT EncodeError : public std::runtime_error {
 public:
  /// Makes the message of the kind, the field and the problem.
  EncodeError(const std::string& kind, const std::string& field, const std::string& problem,
              std::optional<BadCharacter> character = {});

  /// Returns the kind's name, such as "etaBubble", or "marker" for marker names.
  const std::string& kind() const { return kind_; }
  /// Returns the path of the field: "content", "cameras[1].speed"; or "prefix".
  const std::string& field() const { return field_; }
  /// Returns the character that is to blame, if one is.
  const std::optional<BadCharacter>& character() const { return character_; }

 private:
  std::string kind_;
  std::string field_;
  std::optional<BadCharacter> character_;
};

}  // namespace kavrix

#endif  // KAVRIX_MAP_RESOURCE_ENCODE_ERROR_H_
