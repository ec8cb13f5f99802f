#include "rooms/NumberText.h"

#include "base/Digits.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>

#ifndef __cpp_lib_to_chars
#include <clocale>
#include <cstdlib>
#ifdef __APPLE__
#include <xlocale.h>
#else
#include <locale.h>
#endif
#endif

namespace vantorel {
namespace {

/// A number text taken apart: significand * 10^exponent, unless more than 19 digits made the former wrap.
struct Decimal {
  std::uint64_t significand = 0;
  std::int64_t digits = 0;  ///< of the significand, leading zeros not counted
  std::int64_t exponent = 0;
  bool negative = false;
};

constexpr std::int64_t kHuge = std::int64_t{1} << 60;  // stands for any exponent beyond 64 bits

/// Whether all 8 characters are digits: the upper halves of the bytes are 3, also after adding 6.
bool areDigits(std::uint64_t eight) {
  return ((eight & (eight + 0x0606060606060606)) & 0xF0F0F0F0F0F0F0F0) == 0x3030303030303030;
}

/// The number that 8 digits make, the first of them in the lowest byte: pairs, then fours, then all.
std::uint64_t numberOf(std::uint64_t eight) {
  eight -= 0x3030303030303030;
  eight = (eight * 10 + (eight >> 8)) & 0x00FF00FF00FF00FF;
  eight = (eight * 100 + (eight >> 16)) & 0x0000FFFF0000FFFF;
  return (eight * 10000 + (eight >> 32)) & 0xFFFFFFFF;
}

Decimal decimalOf(std::string_view text) {
  Decimal decimal;
  const char *c = text.data(), *end = c + text.size();
  if (*c == '-') {
    decimal.negative = true;
    ++c;
  }
  auto takeDigits = [&] {
    while (decimal.digits == 0 && c != end && *c == '0') ++c;
    for (std::uint64_t eight; end - c >= 8; c += 8, decimal.digits += 8) {
      std::memcpy(&eight, c, 8);
      if (!areDigits(eight)) break;
      decimal.significand = decimal.significand * 100'000'000 + numberOf(eight);
    }
    for (; c != end && isDigit(*c); ++c, ++decimal.digits)
      decimal.significand = decimal.significand * 10 + static_cast<std::uint64_t>(*c - '0');
  };
  takeDigits();
  if (c != end && *c == '.') {
    const char *fraction = ++c;
    takeDigits();
    decimal.exponent = fraction - c;
  }
  if (c == end) return decimal;
  c += c[1] == '+' ? 2 : 1;
  std::int64_t written = 0;
  if (std::from_chars(c, end, written).ec != std::errc()) written = *c == '-' ? -kHuge : kHuge;
  decimal.exponent += written;
  return decimal;
}

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// The float by way of a double, where that is provably the same as rounding once. Making the double takes
/// two roundings of half a unit each at most (the power of ten is exact), so the true value lies within two
/// units of it. The float can differ only if a midpoint of two floats is as near: its lower 29 bits are 2^28.
std::optional<float> floatByDouble(const Decimal &decimal) {
  if (decimal.digits > 18 || std::abs(decimal.exponent) > 22) return std::nullopt;
  auto value = static_cast<double>(static_cast<std::int64_t>(decimal.significand));
  double power = kPowersOfTen[std::abs(decimal.exponent)];
  value = decimal.exponent < 0 ? value / power : value * power;
  if (value != 0 && (value < 1e-30 || value > 1e30)) return std::nullopt;
  constexpr std::int64_t kMidpoint = 1 << 28, kMargin = 4;
  auto lower = static_cast<std::int64_t>(std::bit_cast<std::uint64_t>(value) & ((1u << 29) - 1));
  if (std::abs(lower - kMidpoint) <= kMargin) return std::nullopt;
  return static_cast<float>(decimal.negative ? -value : value);
}

#ifdef __cpp_lib_to_chars
template <typename T>
T roundedOnce(std::string_view text) {
  T value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}
#else
locale_t plainLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return locale;
}

template <typename T>
T roundedOnce(std::string_view text) {
  std::string ended(text);
  if constexpr (sizeof(T) == sizeof(float))
    return strtof_l(ended.c_str(), nullptr, plainLocale());
  else
    return strtod_l(ended.c_str(), nullptr, plainLocale());
}
#endif

template <typename T>
std::optional<T> exactly(std::string_view text, const Decimal &decimal) {
  if (decimal.digits == 0) return decimal.negative ? -T(0) : T(0);
  T value = roundedOnce<T>(text);
  if (value == 0 || !std::isfinite(value)) return std::nullopt;
  return value;
}

}  // namespace

std::optional<float> floatOf(std::string_view text) {
  if (text.size() == 1) return static_cast<float>(text[0] - '0');
  Decimal decimal = decimalOf(text);
  if (auto value = floatByDouble(decimal)) return value;
  return exactly<float>(text, decimal);
}

std::optional<double> doubleOf(std::string_view text) { return exactly<double>(text, decimalOf(text)); }

std::optional<std::int64_t> integerOf(std::string_view text) {
  std::int64_t value = 0;
  const char *end = text.data() + text.size();
  auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc() && stop == end) return value;

  std::int64_t exponent = decimalOf(text).exponent;
  std::string digits(text.substr(0, text.find_first_of("eE")));
  std::erase(digits, '.');
  for (; exponent < 0 && digits.back() == '0' && digits.size() > 1; ++exponent) digits.pop_back();
  if (digits.find_first_not_of("-0") == std::string::npos) return 0;
  if (exponent < 0 || exponent > 18) return std::nullopt;
  digits.append(static_cast<std::size_t>(exponent), '0');
  end = digits.data() + digits.size();
  if (std::from_chars(digits.data(), end, value).ec != std::errc()) return std::nullopt;
  return value;
}

}  // namespace vantorel
