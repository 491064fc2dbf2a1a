#include "inspect/shortest_real.h"

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "util/json_number.h"

namespace kavrix::inspect {
namespace {

std::string TextOf(double value, std::ios_base::fmtflags notation, int precision) {
  std::ostringstream stream;
  stream.exceptions(std::ios_base::badbit);
  stream.imbue(std::locale::classic());
  stream.setf(notation, std::ios_base::floatfield);
  stream.precision(precision);
  stream << value;
  return stream.str();
}

// One digit before the point, as few after it as read back to the value. Those that are nearest to the value
// do, if any do; below a power of two floats lie closer, so that there the next digits up may be the only
// ones.
std::string ShortestScientific(float value) {
  const float infinity = std::copysign(std::numeric_limits<float>::infinity(), value);
  const double next = std::nextafter(value, infinity);
  const double above = std::isfinite(next) ? value + (next - value) / 4 : value;
  for (int precision = 0;; ++precision) {
    for (const double near : {static_cast<double>(value), above}) {
      std::string text = TextOf(near, std::ios_base::scientific, precision);
      if (JsonUtil::NearestFloat(text) == value) return text;
    }
  }
}

}  // namespace

std::string ShortestText(float value) {
  const std::string scientific = ShortestScientific(value);
  const std::size_t e = scientific.find('e');
  const int exponent = std::stoi(scientific.substr(e + 1));
  const std::size_t point = scientific.find('.');
  const int digits_after_point = point == std::string::npos ? 0 : static_cast<int>(e - point) - 1;
  const int precision = digits_after_point > exponent ? digits_after_point - exponent : 0;
  std::string fixed = TextOf(value, std::ios_base::fixed, precision);
  return fixed.size() <= scientific.size() ? fixed : scientific;
}

}  // namespace kavrix::inspect
