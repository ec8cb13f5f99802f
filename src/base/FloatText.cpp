// The digits come from the Schubfach method (R. Giulietti, "The Schubfach way to render doubles"): scale the
// value and the two ends of its rounding interval by one power of ten, then look which short integers lie
// inside.
#include "base/FloatText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string_view>
#include <type_traits>

namespace vantorel {
namespace {

__extension__ using UInt128 = unsigned __int128;

/// An exact integer below 2^896, for building the table of powers.
class BigInteger {
 public:
  constexpr explicit BigInteger(std::size_t wordOfTheOne) { words_[wordOfTheOne] = 1; }

  constexpr void multiplyBy5() {
    UInt128 carry = 0;
    for (std::uint64_t &word : words_) {
      carry += UInt128{word} * 5;
      word = static_cast<std::uint64_t>(carry);
      carry >>= 64;
    }
  }

  constexpr void divideBy5() {
    UInt128 rest = 0;
    for (std::size_t i = words_.size(); i-- > 0;) {
      rest = rest << 64 | words_[i];
      words_[i] = static_cast<std::uint64_t>(rest / 5);
      rest %= 5;
    }
  }

  /// Shifted so that the highest bit is set. The value must be at least 2^128.
  constexpr UInt128 leading128Bits() const {
    std::size_t top = words_.size() - 1;
    while (words_[top] == 0) --top;
    const int shift = std::countl_zero(words_[top]);
    const UInt128 bits = UInt128{words_[top]} << 64 | words_[top - 1];
    return shift == 0 ? bits : bits << shift | words_[top - 2] >> (64 - shift);
  }

 private:
  std::array<std::uint64_t, 14> words_{};
};

constexpr int kLeastPower = -292, kGreatestPower = 324;  // all that doubles need; floats need -31 to 45

/// The leading 128 bits of 10^k, cut off and plus one. They are those of 5^k; and since a quotient cut off at
/// every step equals one cut off once, the negative powers are exact too.
constexpr auto kPowersOfTen = [] {
  std::array<UInt128, kGreatestPower - kLeastPower + 1> powers{};
  BigInteger up(2), down(13);
  constexpr std::size_t kZero = -kLeastPower;
  for (std::size_t i = kZero; i < powers.size(); ++i, up.multiplyBy5()) powers[i] = up.leading128Bits() + 1;
  for (std::size_t i = kZero + 1; i-- > 0; down.divideBy5()) powers[i] = down.leading128Bits() + 1;
  return powers;
}();

// floor(log) by fixed point, exact for every exponent of a double.
constexpr int floorLog10OfPowerOf2(int e) { return (e * 1262611) >> 22; }
constexpr int floorLog10OfThreeQuartersOfPowerOf2(int e) { return (e * 1262611 - 524031) >> 22; }
constexpr int floorLog2OfPowerOf10(int e) { return (e * 1741647) >> 19; }

// The whole part of power * scaled / 2^128, with bit 0 also set if a fraction larger than the error of the
// power was cut off: enough to compare the value with any multiple of 1/4 ("round to odd").
std::uint64_t roundToOdd(UInt128 power, std::uint64_t scaled) {
  const UInt128 low = UInt128{static_cast<std::uint64_t>(power)} * scaled;
  const UInt128 product = UInt128{static_cast<std::uint64_t>(power >> 64)} * scaled + (low >> 64);
  return static_cast<std::uint64_t>(product >> 64) | (static_cast<std::uint64_t>(product) > 1);
}
std::uint32_t roundToOdd(UInt128 power, std::uint32_t scaled) {
  const UInt128 product = UInt128{static_cast<std::uint64_t>(power >> 64) + 1} * scaled;
  return static_cast<std::uint32_t>(product >> 64) | (static_cast<std::uint32_t>(product >> 32) > 1);
}

template <typename Bits>
struct Decimal {
  Bits digits;
  int exponent;  // the value is digits * 10^exponent
};

/// The parts of an IEEE 754 value.
template <typename Float>
struct Parts {
  using Bits = std::conditional_t<std::is_same_v<Float, float>, std::uint32_t, std::uint64_t>;
  static constexpr int kFractionBits = std::numeric_limits<Float>::digits - 1;
  static constexpr Bits kHiddenBit = Bits{1} << kFractionBits;
  static constexpr int kExponentOffset = std::numeric_limits<Float>::max_exponent - 1 + kFractionBits;

  explicit Parts(Float value)
      : bits(std::bit_cast<Bits>(value)),
        fraction(bits & (kHiddenBit - 1)),
        biasedExponent(static_cast<int>(bits << 1 >> (kFractionBits + 1))) {}

  Bits significand() const { return biasedExponent == 0 ? fraction : fraction | kHiddenBit; }
  int exponent() const { return std::max(biasedExponent, 1) - kExponentOffset; }
  /// A power of two: the next value below is only half as far as the next above.
  bool isCloserBelow() const { return fraction == 0 && biasedExponent > 1; }

  Bits bits, fraction;
  int biasedExponent;
};

/// The shortest decimal that reads back to the value; of several the closest; of two equally close the even
/// one. May end in zeros.
template <typename Float>
Decimal<typename Parts<Float>::Bits> shortestDecimal(const Parts<Float> &parts) {
  using Bits = typename Parts<Float>::Bits;
  const Bits significand = parts.significand(), odd = significand & 1;
  const bool closerBelow = parts.isCloserBelow();
  const int q = parts.exponent();
  const int k = closerBelow ? floorLog10OfThreeQuartersOfPowerOf2(q) : floorLog10OfPowerOf2(q);
  const UInt128 power = kPowersOfTen[static_cast<std::size_t>(-k - kLeastPower)];
  const int shift = q + floorLog2OfPowerOf10(-k) + 1;

  // Four times the value and the ends of its interval, in units of 10^k; the ends belong to an even
  // significand.
  const Bits value = roundToOdd(power, (4 * significand) << shift);
  const Bits lower = roundToOdd(power, (4 * significand - 2 + closerBelow) << shift) + odd;
  const Bits upper = roundToOdd(power, (4 * significand + 2) << shift) - odd;

  const Bits below = value / 4, tens = below / 10;
  if (tens > 0) {
    const bool belowFits = lower <= 40 * tens, aboveFits = 40 * tens + 40 <= upper;
    if (belowFits != aboveFits) return {tens + aboveFits, k + 1};
  }
  const bool belowFits = lower <= 4 * below, aboveFits = 4 * below + 4 <= upper;
  if (belowFits != aboveFits) return {below + aboveFits, k};
  const Bits half = 4 * below + 2;
  return {below + (value > half || (value == half && below % 2 == 1)), k};
}

template <typename Bits>
void dropTrailingZeros(Decimal<Bits> &decimal) {
  while (decimal.digits % 10 == 0) {
    decimal.digits /= 10;
    ++decimal.exponent;
  }
}

constexpr auto kSmallPowersOfTen = [] {
  std::array<std::uint64_t, 20> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = 10 * powers[i - 1];
  return powers;
}();

int countDigits(std::uint64_t digits) {
  digits |= 1;  // so that 0 has a digit too; no other count changes
  const int atLeast = static_cast<int>(std::bit_width(digits)) * 1233 >> 12;  // 1233 / 4096 is log10(2)
  return atLeast + (digits >= kSmallPowersOfTen[static_cast<std::size_t>(atLeast)]);
}

constexpr auto kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (std::size_t i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

template <typename Bits>
char *writeDigits(char *out, Bits digits, int count) {
  char *at = out + count;
  for (; digits >= 10; digits /= 100) std::memcpy(at -= 2, &kDigitPairs[2 * (digits % 100)], 2);
  if (at > out) *out = static_cast<char>('0' + digits);
  return out + count;
}

char *writeText(char *out, std::string_view text) { return std::copy(text.begin(), text.end(), out); }

char *writeExponent(char *out, int exponent) {
  *out++ = 'e';
  *out++ = exponent < 0 ? '-' : '+';
  const auto size = static_cast<unsigned>(std::abs(exponent));
  if (size < 10) *out++ = '0';
  return writeDigits(out, size, countDigits(size));
}

/// With a point after the first `point` of the digits, of which there are more.
template <typename Bits>
char *writeWithPoint(char *out, Bits digits, int count, int point) {
  std::array<char, 16> rest;  // of a fixed size, which is faster to move
  writeDigits(out, digits, count);
  std::memcpy(rest.data(), out + point, rest.size());
  std::memcpy(out + point + 1, rest.data(), rest.size());
  out[point] = '.';
  return out + count + 1;
}

enum class Style { description, json };

/// 2^24 or 2^53. Up to it every whole number is a value of its own, so its digits are the shortest, and only
/// whole numbers have a text without a fraction.
template <typename Float>
constexpr Float kGreatestPlain = static_cast<Float>(2 * Parts<Float>::kHiddenBit);

template <typename Float>
char *writeFinite(char *out, Float size, Style style) {
  if (size <= kGreatestPlain<Float>) {
    const auto whole = static_cast<typename Parts<Float>::Bits>(size);
    if (static_cast<Float>(whole) == size) {
      out = writeDigits(out, whole, countDigits(whole));
      return style == Style::json ? out : writeText(out, ".0");
    }
  }
  auto decimal = shortestDecimal(Parts(size));
  dropTrailingZeros(decimal);
  const auto digits = decimal.digits;
  const int count = countDigits(digits);
  const int point = count + decimal.exponent;  // digits before the point

  if (point < -3 || size > kGreatestPlain<Float>) {
    out = count > 1 ? writeWithPoint(out, digits, count, 1) : writeDigits(out, digits, 1);
    return writeExponent(out, point - 1);
  }
  if (point <= 0) {
    writeText(out, "0.000");
    return writeDigits(out + 2 - point, digits, count);
  }
  return writeWithPoint(out, digits, count, point);
}

/// The payload, and an "s" where the quiet bit, the highest of the fraction, is clear.
template <typename Float>
char *writeNan(char *out, const Parts<Float> &parts) {
  const auto quietBit = Parts<Float>::kHiddenBit / 2;
  const auto payload = parts.fraction & (quietBit / 2 - 1);
  if (!(parts.fraction & quietBit)) *out++ = 's';
  out = writeText(out, "nan");
  if (payload == 0) return out;
  out = writeText(out, "(0x");
  out = std::to_chars(out, out + 16, payload, 16).ptr;
  return writeText(out, ")");
}

template <typename Float>
char *write(char *out, Float value, Style style) {
  if (std::signbit(value)) *out++ = '-';
  if (std::isfinite(value)) return writeFinite(out, std::abs(value), style);
  return std::isinf(value) ? writeText(out, "inf") : writeNan(out, Parts(value));
}

}  // namespace

char *writeFloatDescription(char *out, float value) { return write(out, value, Style::description); }
char *writeFloatDescription(char *out, double value) { return write(out, value, Style::description); }
char *writeFloatJson(char *out, float value) { return write(out, value, Style::json); }
char *writeFloatJson(char *out, double value) { return write(out, value, Style::json); }

}  // namespace vantorel
