#include "base/Utf8.h"

#include <cstdint>

namespace vantorel {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

/// What a lead byte allows: how many bytes in all, and the range of the second, which alone keeps out
/// overlong forms, surrogates and values above U+10FFFF (Unicode 15, table 3-7).
struct Sequence {
  std::size_t length;
  std::uint8_t secondFrom, secondTo;
};

Sequence sequenceOf(std::uint8_t lead) {
  if (lead < 0x80) return {1, 0x80, 0xBF};
  if (lead >= 0xC2 && lead <= 0xDF) return {2, 0x80, 0xBF};
  if (lead == 0xE0) return {3, 0xA0, 0xBF};
  if (lead == 0xED) return {3, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {3, 0x80, 0xBF};
  if (lead == 0xF0) return {4, 0x90, 0xBF};
  if (lead >= 0xF1 && lead <= 0xF3) return {4, 0x80, 0xBF};
  if (lead == 0xF4) return {4, 0x80, 0x8F};
  return {0, 0, 0};
}

/// The leading bytes that form a character, or that begin one before the text goes wrong: at least 1.
struct Prefix {
  std::size_t length;
  bool isWellFormed;
};

Prefix prefixOf(std::string_view text) {
  const auto byteAt = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const Sequence sequence = sequenceOf(byteAt(0));
  if (sequence.length == 0) return {1, false};
  std::size_t length = 1;
  while (length < sequence.length && length < text.size()) {
    const std::uint8_t from = length == 1 ? sequence.secondFrom : 0x80;
    const std::uint8_t to = length == 1 ? sequence.secondTo : 0xBF;
    if (byteAt(length) < from || byteAt(length) > to) break;
    ++length;
  }
  return {length, length == sequence.length};
}

}  // namespace

std::string repairedUtf8(std::string_view text) {
  std::string repaired;
  repaired.reserve(text.size());
  while (!text.empty()) {
    const Prefix prefix = prefixOf(text);
    repaired += prefix.isWellFormed ? text.substr(0, prefix.length) : kReplacement;
    text.remove_prefix(prefix.length);
  }
  return repaired;
}

}  // namespace vantorel
