// Writes the USDZ of a room: write_usdz room.json scan.usdz
// Of several rooms it writes that of their structure, and beside it scan.json and scan.plist.
#include "rooms/BuildStructure.h"
#include "rooms/MetadataPlist.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "rooms/UsdzWriter.h"
#include "support/TestData.h"

#include <exception>
#include <filesystem>
#include <iostream>

namespace {

using namespace vantorel;

void writeStructureFiles(std::vector<std::shared_ptr<const RoomDocument>> rooms,
                         std::filesystem::path package) {
  const StructureDocument structure = buildStructure(std::move(rooms));
  testing::writeFile(package.string(), writeUsdz(structure.elements, package.stem().string()));
  testing::writeFile(package.replace_extension(".json").string(), writeStructure(structure));
  testing::writeFile(package.replace_extension(".plist").string(), writeMetadataPlist(structure));
}

}  // namespace

int main(int argc, char **argv) try {
  if (argc < 3) throw std::runtime_error("usage: write_usdz room.json... scan.usdz");
  const std::filesystem::path package = argv[argc - 1];
  std::vector<std::shared_ptr<const RoomDocument>> rooms;
  for (int i = 1; i < argc - 1; ++i)
    rooms.push_back(std::make_shared<const RoomDocument>(readRoom(testing::readFile(argv[i]))));
  if (rooms.size() == 1) {
    testing::writeFile(package.string(), writeUsdz(*rooms[0], package.stem().string()));
  } else {
    writeStructureFiles(std::move(rooms), package);
  }
  return 0;
} catch (const std::exception &error) {
  std::cerr << error.what() << '\n';
  return 1;
}
