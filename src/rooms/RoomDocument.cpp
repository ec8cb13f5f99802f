#include "rooms/RoomDocument.h"

#include "rooms/RoomWriter.h"

#include <string_view>

namespace vantorel {
namespace {

/// FNV-1a of 128 bits: offset basis and prime (2^88 + 0x13B) as published by its authors.
class Fnv128 {
 public:
  void add(std::string_view text) {
    for (char c : text) {
      low_ ^= static_cast<unsigned char>(c);
      multiplyByPrime();
    }
  }

  std::array<std::uint8_t, 16> bytes() const {
    std::array<std::uint8_t, 16> bytes{};
    for (std::size_t i = 0; i < 8; ++i) {
      bytes[i] = static_cast<std::uint8_t>(high_ >> (56 - 8 * i));
      bytes[8 + i] = static_cast<std::uint8_t>(low_ >> (56 - 8 * i));
    }
    return bytes;
  }

 private:
  void multiplyByPrime() {
    constexpr std::uint64_t kPrimeLow = 0x13B;
    std::uint64_t lower = (low_ & 0xFFFFFFFF) * kPrimeLow;
    std::uint64_t upper = (low_ >> 32) * kPrimeLow + (lower >> 32);
    high_ = high_ * kPrimeLow + (low_ << 24) + (upper >> 32);  // 2^88 is 2^24 in the upper half
    low_ = upper << 32 | (lower & 0xFFFFFFFF);
  }

  std::uint64_t high_ = 0x6C62272E07BB0142, low_ = 0x62B821756295C58D;
};

}  // namespace

bool RoomDocument::isEmpty() const {
  return walls.empty() && doors.empty() && windows.empty() && openings.empty() && objects.empty();
}

Uuid identifierOf(const RoomDocument &room) {
  if (room.identifier) return *room.identifier;
  Fnv128 hash;
  hash.add(writeVisibleValues(room));
  Uuid uuid{hash.bytes()};
  uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x80);  // version 8: made by own rules
  uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);  // the variant of RFC 9562
  return uuid;
}

}  // namespace vantorel
