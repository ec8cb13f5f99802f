#include "base/FloatText.h"
#include "support/PlainFloatText.h"
#include "support/TestData.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

namespace vantorel {
namespace {

template <typename Float>
std::string description(Float value) {
  char text[kFloatTextMax];
  return {text, writeFloatDescription(text, value)};
}

template <typename Float>
std::string json(Float value) {
  char text[kFloatTextMax];
  return {text, writeFloatJson(text, value)};
}

template <typename Float, typename Bits>
void expectReferenceTexts(const char *fileName) {
  const auto rows = testing::referenceRows(fileName);
  if (rows.empty()) GTEST_SKIP() << "the reference texts are not here";
  for (const auto &row : rows) {
    const auto value = std::bit_cast<Float>(static_cast<Bits>(std::stoull(row.at(0), nullptr, 16)));
    EXPECT_EQ(description(value), row.at(1)) << row[0];
    if (std::isfinite(value)) {
      EXPECT_EQ(json(value), row.at(2)) << row[0];
    }
  }
}

TEST(FloatText, WritesFloatsAsTheReferenceDoes) {
  expectReferenceTexts<float, std::uint32_t>("float32_vectors.tsv");
}

TEST(FloatText, WritesDoublesAsTheReferenceDoes) {
  expectReferenceTexts<double, std::uint64_t>("float64_vectors.tsv");
}

TEST(FloatText, FollowsTheLayoutRules) {
  EXPECT_EQ(json(1.0f), "1");
  EXPECT_EQ(json(-0.0f), "-0");
  EXPECT_EQ(description(-0.0), "-0.0");
  EXPECT_EQ(json(0.1f), "0.1");
  EXPECT_EQ(json(static_cast<double>(0.1f)), "0.10000000149011612");
  EXPECT_EQ(description(1e-4f), "0.0001");  // lies below 1e-4; the printed exponent counts
  EXPECT_EQ(description(std::nextafter(1e-4f, 0.0f)), "9.999999e-05");
  EXPECT_EQ(description(1e-5f), "1e-05");
  EXPECT_EQ(description(16777216.0f), "16777216.0");
  EXPECT_EQ(description(16777218.0f), "1.6777218e+07");
  EXPECT_EQ(description(9007199254740992.0), "9007199254740992.0");
  EXPECT_EQ(description(1e100), "1e+100");
  EXPECT_EQ(description(-1e-45f), "-1e-45");  // the least float: one digit is enough
  EXPECT_EQ(description(2097152.25f), "2097152.2");
  EXPECT_EQ(description(2097152.75f), "2097152.8");
}

TEST(FloatText, NamesEveryKindOfNan) {
  const auto text = [](std::uint32_t bits) { return description(std::bit_cast<float>(bits)); };
  EXPECT_EQ(text(0x7FC00000), "nan");
  EXPECT_EQ(text(0xFFC00000), "-nan");
  EXPECT_EQ(text(0x7FA00000), "snan");
  EXPECT_EQ(text(0x7FFFFFFF), "nan(0x1fffff)");
  EXPECT_EQ(text(0xFF800001), "-snan(0x1)");
  EXPECT_EQ(text(0xFF800000), "-inf");
  EXPECT_EQ(description(std::bit_cast<double>(0xFFF7FFFFFFFFFFFF)), "-snan(0x3ffffffffffff)");
}

/// Spread over all bit patterns; the multipliers are odd, so no pattern comes twice.
template <typename Float, typename Bits>
int differences(std::uint32_t count, Bits multiplier) {
  int differences = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto value = std::bit_cast<Float>(static_cast<Bits>(i * multiplier));
    if (std::isfinite(value) && json(value) != testing::plainFloatJson(value)) ++differences;
  }
  return differences;
}

TEST(FloatText, AgreesWithTheStandardLibraryOnSpreadPatterns) {
  EXPECT_EQ((differences<float, std::uint32_t>(4'000'000, 2'654'435'761u)), 0);
  EXPECT_EQ((differences<double, std::uint64_t>(1'000'000, 0x9E37'79B9'7F4A'7C15u)), 0);
}

TEST(FloatText, AgreesWithTheStandardLibraryAroundPowersOfTwo) {
  for (int exponent = -1074; exponent < 1024; ++exponent) {
    const double power = std::ldexp(1.0, exponent);
    for (double value : {power, std::nextafter(power, 0.0), std::nextafter(power, 2 * power)})
      EXPECT_EQ(json(value), testing::plainFloatJson(value));
  }
}

}  // namespace
}  // namespace vantorel
