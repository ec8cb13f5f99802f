#include "rooms/ContentHash.h"

#include <cstddef>

namespace vantorel {

void ContentHash::add(std::string_view text) {
  for (char c : text) {
    low_ ^= static_cast<unsigned char>(c);
    multiplyByPrime();
  }
}

Uuid ContentHash::uuid() const {
  Uuid uuid;
  for (std::size_t i = 0; i < 8; ++i) {
    uuid.bytes[i] = static_cast<std::uint8_t>(high_ >> (56 - 8 * i));
    uuid.bytes[8 + i] = static_cast<std::uint8_t>(low_ >> (56 - 8 * i));
  }
  uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x80);
  uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);
  return uuid;
}

void ContentHash::multiplyByPrime() {
  constexpr std::uint64_t kPrimeLow = 0x13B;
  std::uint64_t lower = (low_ & 0xFFFFFFFF) * kPrimeLow;
  std::uint64_t upper = (low_ >> 32) * kPrimeLow + (lower >> 32);
  high_ = high_ * kPrimeLow + (low_ << 24) + (upper >> 32);  // 2^88 is 2^24 in the upper half
  low_ = upper << 32 | (lower & 0xFFFFFFFF);
}

}  // namespace vantorel
