# For CMAKE_PROJECT_INCLUDE in builds that are repeated often: precompiles the headers that the library's sources
# include most. Not for other builds: it would hide a missing include.
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
