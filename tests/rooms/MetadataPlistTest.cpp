#include "rooms/MetadataPlist.h"
#include "rooms/StructureRooms.h"
#include "rooms/UsdzWriter.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace vantorel {
namespace {

using namespace testing;

StructureDocument twoRooms() {
  RoomDocument first, second;
  first.walls = {wall(1, {0, 0, 0}, 4)};
  first.openings = {surface("opening", 2, {0, 0, 0}, 1)};
  first.floors = {wall(3, {0, 0, 0}, 4)};
  second.walls = {wall(11, {0, 0, -0.2f}, 3.9f, 180), wall(12, {2, 0, -2}, 4, 90)};
  second.doors = {door(13, {1, 0, -0.2f}, 11, 180)};
  second.objects = {object("chair", 14, {0, 0, -1}, 12), object("wall", 15, {0, 0, -1}, 12),
                    object("<&\">\n", 16, {0, 0, -1}, 12)};
  first.identifier = uuid(100);
  second.identifier = uuid(101);
  return buildStructure({shared(first), shared(second)});
}

TEST(MetadataPlist, NamesTheElementOfEachMesh) {
  const StructureDocument structure = twoRooms();
  const std::string text = writeMetadataPlist(structure);
  const auto entry = [](const std::string &key, const Uuid &value) {
    return "\t<key>" + key + "</key>\n\t<string>" + value.text() + "</string>\n";
  };
  const std::string flat = "<dict>\n" + entry("Wall0", uuid(1)) + entry("Wall1", uuid(12)) +
                           entry("Door0", uuid(13)) + entry("Floor0", uuid(3)) + entry("Chair0", uuid(14)) +
                           entry("Object0", uuid(16)) + entry("WallObject0", uuid(15)) +
                           "\t<key>vantorel</key>\n";
  EXPECT_NE(text.find(flat), std::string::npos) << text;
}

TEST(MetadataPlist, NamesExactlyTheMeshesOfTheModel) {
  const StructureDocument structure = twoRooms();
  const std::string model = writeUsdz(structure.elements, "scan"), text = writeMetadataPlist(structure);
  std::multiset<std::string> meshes, keys;
  const auto collect = [](const std::string &from, const std::regex &pattern, auto &into) {
    for (std::sregex_iterator it(from.begin(), from.end(), pattern), end; it != end; ++it)
      into.insert((*it)[1]);
  };
  collect(model, std::regex("def Mesh \"(\\w+)\""), meshes);
  collect(text, std::regex("\n\t<key>(\\w+\\d)</key>"), keys);
  EXPECT_EQ(meshes.size(), 7u);
  EXPECT_EQ(keys, meshes);
}

TEST(MetadataPlist, KeepsAllElseUnderAKeyOfItsOwn) {
  const StructureDocument structure = twoRooms();
  const std::string text = writeMetadataPlist(structure);
  std::string own = text.substr(text.find("\t<key>vantorel</key>"));
  own = std::regex_replace(own, std::regex("\\s"), "");
  EXPECT_EQ(own,
            "<key>vantorel</key><dict><key>formatVersion</key><integer>1</integer>"
            "<key>openings</key><array><string>" +
                uuid(2).text() +
                "</string></array>"
                "<key>replaced</key><dict><key>" +
                uuid(11).text() + "</key><string>" + uuid(1).text() +
                "</string></dict><key>rooms</key><array><string>" + uuid(100).text() + "</string><string>" +
                uuid(101).text() + "</string></array><key>structure</key><string>" +
                identifierOf(structure).text() + "</string></dict></dict></plist>");
}

}  // namespace
}  // namespace vantorel
