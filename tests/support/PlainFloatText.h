// The text of a float made another way, to check FloatText with: digits by std::to_chars, the layout by the
// decimal exponent.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>

namespace vantorel::testing {

/// As JSON. For finite values.
template <typename Float>
std::string plainFloatJson(Float value) {
  char buffer[64];
  const auto end =
      std::to_chars(buffer, std::end(buffer), std::abs(value), std::chars_format::scientific).ptr;
  const std::string_view scientific(buffer, end);
  const auto e = scientific.find('e');
  int exponent = 0;
  std::from_chars(buffer + e + (buffer[e + 1] == '+' ? 2 : 1), end, exponent);

  std::string text(std::signbit(value) ? "-" : "");
  if (value == 0) return text += '0';
  if (exponent < -4 || std::abs(value) > std::ldexp(Float{1}, std::numeric_limits<Float>::digits))
    return text += scientific;

  const auto point = text.size() + static_cast<std::size_t>(std::max(exponent, 0)) + 1;
  if (exponent < 0) text.append(static_cast<std::size_t>(-exponent), '0');
  text += scientific[0];
  if (e > 1) text += scientific.substr(2, e - 2);
  if (text.size() < point) text.append(point - text.size(), '0');
  if (text.size() > point) text.insert(point, 1, '.');
  return text;
}

}  // namespace vantorel::testing
