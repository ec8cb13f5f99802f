#include "platform/simulated/SimulatedWorldMap.h"

#include "platform/PlatformError.h"

#include <libdeflate.h>

#include <algorithm>
#include <bit>
#include <cstdint>

namespace vantorel {
namespace {

constexpr std::string_view kMagic = "VTLMAP\r\n";  // the line break shows transfers as text
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kVersionAt = 8, kIdentifierAt = 12, kCameraAt = 28, kChecksumAt = 92, kSize = 96;

void put(std::string &out, std::uint32_t value) {
  for (int shift = 0; shift < 32; shift += 8) out += static_cast<char>(value >> shift & 0xffU);
}

/// `bytes` reach to `at` + 4.
std::uint32_t numberAt(std::string_view bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < 4; ++i)
    value |= std::uint32_t{static_cast<std::uint8_t>(bytes[at + i])} << (8 * i);
  return value;
}

std::uint32_t checksumOf(std::string_view bytes) { return libdeflate_crc32(0, bytes.data(), kChecksumAt); }

void checkArchive(std::string_view bytes) {
  const auto refuse = [](const std::string &why) { throw PlatformError("no world map: " + why); };
  if (!bytes.starts_with(kMagic)) refuse("the data does not begin as the archive of one");
  if (bytes.size() < kIdentifierAt) refuse("the archive is cut off");
  if (const auto version = numberAt(bytes, kVersionAt); version != kVersion)
    refuse("the archive is of version " + std::to_string(version) + ", not 1");
  if (bytes.size() != kSize)
    refuse("the archive has " + std::to_string(bytes.size()) + " bytes, not " + std::to_string(kSize));
  if (numberAt(bytes, kChecksumAt) != checksumOf(bytes)) refuse("the archive is damaged");
}

}  // namespace

std::string archiveOf(const KnownSpace &space) {
  std::string bytes(kMagic);
  put(bytes, kVersion);
  bytes.append(space.identifier.bytes.begin(), space.identifier.bytes.end());
  for (const float element : space.camera.elements) put(bytes, std::bit_cast<std::uint32_t>(element));
  put(bytes, checksumOf(bytes));
  return bytes;
}

KnownSpace readArchive(std::string_view bytes) {
  checkArchive(bytes);
  KnownSpace space;
  std::copy_n(bytes.begin() + kIdentifierAt, space.identifier.bytes.size(), space.identifier.bytes.begin());
  for (std::size_t i = 0; i < space.camera.elements.size(); ++i)
    space.camera.elements[i] = std::bit_cast<float>(numberAt(bytes, kCameraAt + 4 * i));
  return space;
}

std::string SimulatedWorldMap::archivedData() const {
  faults_.check("archive");
  return archiveOf(space_);
}

}  // namespace vantorel
