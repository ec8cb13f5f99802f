// Writes the USDZ of a room: write_usdz room.json scan.usdz
#include "rooms/RoomReader.h"
#include "rooms/UsdzWriter.h"
#include "support/TestData.h"

#include <exception>
#include <filesystem>
#include <iostream>

int main(int argc, char **argv) try {
  if (argc != 3) throw std::runtime_error("usage: write_usdz room.json scan.usdz");
  const std::filesystem::path package = argv[2];
  const auto room = vantorel::readRoom(vantorel::testing::readFile(argv[1]));
  vantorel::testing::writeFile(package.string(), vantorel::writeUsdz(room, package.stem().string()));
  return 0;
} catch (const std::exception &error) {
  std::cerr << error.what() << '\n';
  return 1;
}
