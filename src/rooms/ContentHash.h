#pragma once

#include "base/Uuid.h"

#include <cstdint>
#include <string_view>

namespace vantorel {

/// Makes identifiers from content: FNV-1a of 128 bits, offset basis and prime (2^88 + 0x13B) as published by
/// its authors. The same bytes give the same identifier on every machine.
class ContentHash {
 public:
  void add(std::string_view text);
  /// Of all that was added: version 8, a UUID made by own rules, and the variant of RFC 9562.
  Uuid uuid() const;

 private:
  void multiplyByPrime();

  std::uint64_t high_ = 0x6C62272E07BB0142, low_ = 0x62B821756295C58D;
};

}  // namespace vantorel
