#include "platform/PlatformError.h"
#include "platform/simulated/SimulatedWorldMap.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

KnownSpace someSpace() {
  KnownSpace space;
  for (std::uint8_t i = 0; i < 16; ++i) space.identifier.bytes[i] = static_cast<std::uint8_t>(0xf0 + i);
  for (std::size_t i = 0; i < 16; ++i) space.camera.elements[i] = static_cast<float>(i) / 7 - 1;
  space.camera.elements[5] = -0.0F;
  space.camera.elements[6] = std::numeric_limits<float>::infinity();
  return space;
}

std::string refusalOf(const std::string &bytes) {
  try {
    readArchive(bytes);
  } catch (const PlatformError &error) {
    return error.what();
  }
  return "";
}

TEST(SimulatedWorldMap, ComesBackFromItsArchive) {
  const std::string bytes = archiveOf(someSpace());
  EXPECT_EQ(readArchive(bytes), someSpace());
  EXPECT_EQ(archiveOf(readArchive(bytes)), bytes);
  Faults faults;
  const SimulatedWorldMap map(someSpace(), faults);
  EXPECT_EQ(map.archivedData(), bytes);
  faults.plan("archive", 1, 0);
  EXPECT_THROW(map.archivedData(), PlatformError);
}

// As docs/world-maps.md has it: archives outlive the program that wrote them.
TEST(SimulatedWorldMap, KeepsItsFormat) {
  const std::string bytes = archiveOf(someSpace());
  EXPECT_EQ(bytes.size(), 96U);
  EXPECT_EQ(bytes.substr(0, 14), std::string("VTLMAP\r\n\1\0\0\0\xf0\xf1", 14));
  EXPECT_EQ(bytes.substr(28, 4), std::string("\0\0\x80\xbf", 4)) << "-1, the lowest byte first";
  EXPECT_EQ(bytes.substr(92), "\xa5\x53\x4c\x75") << "CRC-32 as in ZIP files, of the 92 bytes before it";
}

TEST(SimulatedWorldMap, RefusesEveryFlippedBitAndEveryOtherLength) {
  const std::string bytes = archiveOf(someSpace());
  for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
    std::string flipped = bytes;
    flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
    EXPECT_NE(refusalOf(flipped), "") << bit;
  }
  for (std::size_t length = 0; length < bytes.size(); ++length)
    EXPECT_NE(refusalOf(bytes.substr(0, length)), "") << length;
  for (const char *more : {"x", "\r\n"}) EXPECT_NE(refusalOf(bytes + more), "");
  EXPECT_NE(refusalOf(bytes + bytes), "");
}

TEST(SimulatedWorldMap, TellsWhyItRefuses) {
  std::string bytes = archiveOf(someSpace());
  EXPECT_EQ(refusalOf("bplist00"), "no world map: the data does not begin as the archive of one");
  EXPECT_EQ(refusalOf(bytes.substr(0, 9)), "no world map: the archive is cut off");
  EXPECT_EQ(refusalOf(bytes + "x"), "no world map: the archive has 97 bytes, not 96");
  bytes[50] = 'x';
  EXPECT_EQ(refusalOf(bytes), "no world map: the archive is damaged");
  bytes[8] = 2;
  EXPECT_EQ(refusalOf(bytes), "no world map: the archive is of version 2, not 1");
}

}  // namespace
}  // namespace vantorel
