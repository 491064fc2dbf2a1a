# For CMAKE_PROJECT_INCLUDE: the library of a project that is built over and over, with what its sources include most
# compiled once. Not for other builds, where it would hide an include that a source forgot.
cmake_language(
  DEFER
  CALL
  target_precompile_headers
  kavrix_map_resource
  PRIVATE
  <json/json.h>
  <array>
  <functional>
  <map>
  <memory>
  <optional>
  <sstream>
  <string>
  <string_view>
  <variant>
  <vector>)
