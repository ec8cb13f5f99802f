#pragma once

#include <cstdint>
#include <optional>

namespace vantorel {

inline bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Nothing when the character is no hexadecimal digit.
inline std::optional<std::uint8_t> hexDigit(char c) {
  if (isDigit(c)) return static_cast<std::uint8_t>(c - '0');
  if (c >= 'A' && c <= 'F') return static_cast<std::uint8_t>(c - 'A' + 10);
  if (c >= 'a' && c <= 'f') return static_cast<std::uint8_t>(c - 'a' + 10);
  return std::nullopt;
}

}  // namespace vantorel
