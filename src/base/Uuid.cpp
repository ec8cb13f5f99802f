#include "base/Uuid.h"

#include "base/Digits.h"

namespace vantorel {
namespace {

constexpr std::size_t kTextLength = 36;

bool isHyphenPlace(std::size_t i) { return i == 8 || i == 13 || i == 18 || i == 23; }

}  // namespace

std::string Uuid::text() const {
  std::string text;
  text.reserve(kTextLength);
  for (std::uint8_t byte : bytes) {
    if (isHyphenPlace(text.size())) text += '-';
    text += "0123456789ABCDEF"[byte >> 4];
    text += "0123456789ABCDEF"[byte & 15];
  }
  return text;
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
  if (text.size() != kTextLength) return std::nullopt;
  Uuid uuid;
  std::size_t digits = 0;
  for (std::size_t i = 0; i < kTextLength; ++i) {
    if (isHyphenPlace(i)) {
      if (text[i] != '-') return std::nullopt;
      continue;
    }
    const auto digit = hexDigit(text[i]);
    if (!digit) return std::nullopt;
    std::uint8_t &byte = uuid.bytes[digits++ / 2];
    byte = static_cast<std::uint8_t>(byte << 4 | *digit);
  }
  return uuid;
}

}  // namespace vantorel
