#include "rooms/NumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

namespace vantorel {
namespace {

/// The C library rounds correctly, in the plain locale that tests run in.
void expectAsStrtof(const std::string &text) {
  float expected = std::strtof(text.c_str(), nullptr);
  auto value = floatOf(text);
  ASSERT_EQ(value.has_value(), std::isfinite(expected)) << text;
  if (!value) return;
  EXPECT_EQ(std::bit_cast<std::uint32_t>(*value), std::bit_cast<std::uint32_t>(expected)) << text;
}

TEST(NumberText, RoundsToFloatOnce) {
  std::istringstream texts(
      "0 -0 -0.0 0.000 0e10 0e99999999999 1 1.0e0 1E2 16777217 16777219 33554435 "
      "16777217.0000000000000000000000001 1.00000005960464477539062500000000001 "
      "1.000000059604644775390625 0.99999994 5960464477539063e-23 7.0064923216240854e-46 1e-45 "
      "1.1754942e-38 1.17549435e-38 3.4028235e38 3.4028235677973366e38 "
      "0.000000000000000000000000000000000000000000001e45 123456789012345678901234567890e-25 "
      "9007199254740993 1.2345678901234567890123456789e+3");
  for (std::string text; texts >> text;) expectAsStrtof(text);
}

TEST(NumberText, RoundsToFloatOnceNearEveryMidpoint) {
  std::mt19937 random(7);
  char text[64];
  for (int i = 0; i < 200'000; ++i) {
    float low = std::bit_cast<float>(static_cast<std::uint32_t>(random() % 0x7F000000));
    double middle = (double{low} + double{std::nextafter(low, INFINITY)}) / 2;
    double near = std::bit_cast<double>(std::bit_cast<std::uint64_t>(middle) + random() % 13 - 6);
    std::snprintf(text, sizeof text, "%.*g", static_cast<int>(7 + random() % 14),
                  random() % 2 ? near : double{low});
    if (std::strtof(text, nullptr) != 0) expectAsStrtof(text);
  }
}

TEST(NumberText, RefusesWhatAFloatCannotHold) {
  for (const char *text : {"3.5e38", "-1e39", "1e400", "1e-46", "-1e-400", "7e-46", "1e-99999999999999999999",
                           "1e99999999999999999999"})
    EXPECT_FALSE(floatOf(text)) << text;
  for (const char *text : {"1e309", "1e-400"}) EXPECT_FALSE(doubleOf(text)) << text;
  EXPECT_EQ(doubleOf("57.29577951308232"), 57.29577951308232);
  EXPECT_EQ(doubleOf("-0.1"), -0.1);
}

TEST(NumberText, TakesWholeNumbersInAnyNotation) {
  std::istringstream wholes(
      "5 5  -5 -5  -0 0  0e-10 0  0.0e99 0  5.0 5  50e-1 5  -1E2 -100  0.5e+1 5  1000e-3 1 "
      "9223372036854775807.0 9223372036854775807  -9223372036854775808 -9223372036854775808 "
      "1e18 1000000000000000000");
  std::int64_t value = 0;
  for (std::string text; wholes >> text >> value;) EXPECT_EQ(integerOf(text), value) << text;
  for (const char *text :
       {"5.5", "0.1", "1e-1", "9223372036854775808", "1e19", "1e400", "1e-400", "1e999999999999999999999"})
    EXPECT_FALSE(integerOf(text)) << text;
}

}  // namespace
}  // namespace vantorel
