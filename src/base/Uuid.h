#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

struct Uuid {
  std::array<std::uint8_t, 16> bytes{};

  /// 36 characters, upper case, hyphens after the 8th, 12th, 16th and 20th digit.
  std::string text() const;
  /// Accepts digits of any case; nothing unless the text has exactly that form.
  static std::optional<Uuid> parse(std::string_view text);

  bool operator==(const Uuid &) const = default;
  bool operator<(const Uuid &other) const { return bytes < other.bytes; }
};

}  // namespace vantorel
