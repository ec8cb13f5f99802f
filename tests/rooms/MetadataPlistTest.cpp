#include "rooms/BuildStructure.h"
#include "rooms/MetadataPlist.h"
#include "rooms/UsdzWriter.h"
#include "support/TestRooms.h"

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
                    object("floor", 17, {0, 0, -1}, 12), object("<&\">\n", 16, {0, 0, -1}, 12)};
  first.identifier = uuid(100);
  second.identifier = uuid(101);
  return buildStructure({shared(first), shared(second)});
}

TEST(MetadataPlist, NamesTheElementOfEachMeshAndKeepsAllElseUnderAKeyOfItsOwn) {
  std::string text = writeMetadataPlist(twoRooms());
  text = std::regex_replace(text, std::regex("\n\t*"), "");
  text = std::regex_replace(text, std::regex("00000000-0000-0000-0000-0000000000"), "#");
  EXPECT_EQ(
      text,
      R"(<?xml version="1.0" encoding="UTF-8"?>)"
      R"(<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" )"
      R"("http://www.apple.com/DTDs/PropertyList-1.0.dtd"><plist version="1.0"><dict>)"
      "<key>Wall0</key><string>#01</string><key>Wall1</key><string>#0C</string>"
      "<key>Door0</key><string>#0D</string><key>Floor0</key><string>#03</string>"
      "<key>Chair0</key><string>#0E</string><key>FloorObject0</key><string>#11</string><key>Object0</"
      "key><string>#10</string>"
      "<key>WallObject0</key><string>#0F</string>"
      "<key>vantorel</key><dict><key>formatVersion</key><integer>1</integer>"
      "<key>openings</key><array><string>#02</string></array>"
      "<key>replaced</key><dict><key>#0B</key><string>#01</string></dict>"
      "<key>rooms</key><array><string>#64</string><string>#65</string></array>"
      "<key>structure</key><string>C3635D86-59EE-8D3F-A020-3109C843640A</string></dict></dict></plist>");
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
  EXPECT_EQ(meshes.size(), 8u);
  EXPECT_EQ(keys, meshes);
}

}  // namespace
}  // namespace vantorel
