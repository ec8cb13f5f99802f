// Checks the text of every one of the 2^32 float patterns against text made another way. Takes minutes, so it
// is no part of the test run: build and start vantorel_all_floats by hand.
#include "base/FloatText.h"
#include "support/PlainFloatText.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <string>
#include <string_view>

namespace {

using namespace vantorel;

struct Tally {
  unsigned long long checked = 0, differences = 0;
};

struct Texts {
  std::string description, json;
};

/// The expected texts of a value without its sign; no JSON where there is none.
Texts plainTexts(std::uint32_t bits) {
  const auto value = std::bit_cast<float>(bits);
  if (std::isinf(value)) return {"inf", ""};
  if (std::isfinite(value)) {
    const std::string json = testing::plainFloatJson(value);
    return {json.find_first_of(".e") == json.npos ? json + ".0" : json, json};
  }
  std::array<char, 16> payload{};
  if (bits & 0x1F'FFFF)
    std::snprintf(payload.data(), payload.size(), "(0x%x)", static_cast<unsigned>(bits & 0x1F'FFFF));
  return {std::string(bits >> 22 & 1 ? "nan" : "snan") + payload.data(), ""};
}

bool isRight(float value, std::string_view sign, const Texts &unsignedTexts) {
  std::array<char, kFloatTextMax> buffer;
  const auto matches = [&](char *end, std::string_view expected) {
    const std::string_view text(buffer.data(), end);
    return text.starts_with(sign) && text.substr(sign.size()) == expected;
  };
  if (!matches(writeFloatDescription(buffer.data(), value), unsignedTexts.description)) return false;
  return !std::isfinite(value) || matches(writeFloatJson(buffer.data(), value), unsignedTexts.json);
}

/// Checks these patterns and those with the sign bit set.
Tally check(std::uint32_t from, std::uint32_t to) {
  Tally tally;
  for (std::uint32_t bits = from; bits < to; ++bits, tally.checked += 2) {
    const Texts texts = plainTexts(bits);
    if (!isRight(std::bit_cast<float>(bits), "", texts)) ++tally.differences;
    if (!isRight(std::bit_cast<float>(bits | 0x8000'0000), "-", texts)) ++tally.differences;
  }
  return tally;
}

}  // namespace

int main() {
  auto upper = std::async(std::launch::async, check, 0x4000'0000, 0x8000'0000);
  const Tally lower = check(0, 0x4000'0000), other = upper.get();
  const auto differences = lower.differences + other.differences;
  std::printf("%llu float patterns checked, %llu differences; compiler %s\n", lower.checked + other.checked,
              differences, __VERSION__);
  return differences == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
