// Any bytes either are refused or are exactly the archive of the space that they give.
#include "platform/PlatformError.h"
#include "platform/simulated/SimulatedWorldMap.h"

#include <libdeflate.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vantorel;

void check(std::string_view bytes) {
  try {
    if (archiveOf(readArchive(bytes)) != bytes) std::abort();
  } catch (const PlatformError &error) {
    if (std::strlen(error.what()) == 0) std::abort();
  }
}

/// With a checksum that is right, which chance does not find.
std::string sealed(std::string_view bytes) {
  std::string copy(bytes.substr(0, bytes.size() - 4));
  const std::uint32_t sum = libdeflate_crc32(0, copy.data(), copy.size());
  for (int shift = 0; shift < 32; shift += 8) copy += static_cast<char>(sum >> shift & 0xffU);
  return copy;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char *>(data), size);
  check(bytes);
  if (size >= 4) check(sealed(bytes));
  return 0;
}
