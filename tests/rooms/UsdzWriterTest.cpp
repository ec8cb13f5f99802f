#include "rooms/UsdzWriter.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <sstream>
#include <stdexcept>

namespace vantorel {
namespace {

using namespace testing;

Surface surfaceIn(const char *category, std::uint32_t id, std::uint32_t parent) {
  Surface made = surface(category, id, {}, 1);
  made.parentIdentifier = uuid(parent);
  return made;
}

RoomObject object(const char *category) { return testing::object(category, 0, {}, 0); }

RoomDocument smallRoom() {
  RoomDocument room;
  room.walls = {wall(1, {}, 1), wall(2, {}, 1)};
  room.doors = {door(3, {}, 2), surface("door", 4, {}, 1)};
  room.doors[0].category.isOpen = true;
  room.windows = {surfaceIn("window", 5, 99), surfaceIn("window", 6, 1)};
  room.openings = {surfaceIn("opening", 7, 1)};
  room.objects = {object("table"), object("chair"), object("table")};
  room.floors = {surface("floor", 8, {}, 1)};
  room.sections = {{{1, 1.25f, 2}, "kitchen", 0}, {{3, 1.25f, 2}, "kitchen", 0}};
  return room;
}

std::string layerOf(const RoomDocument &room, std::string_view name = "scan") {
  const std::string package = writeUsdz(room, name);
  const std::size_t start = package.find("#usda 1.0");
  EXPECT_EQ(start % 64, 0u);
  return package.substr(start, package.find("PK\x01\x02") - start);
}

/// "Type path" of every prim, materials left out.
std::vector<std::string> primsOf(const std::string &layer) {
  std::vector<std::string> prims, path;
  std::istringstream lines(layer);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t depth = line.find_first_not_of(' ') / 4;
    std::string type, name;
    if (line.find("def ") != 4 * depth) continue;
    std::istringstream(line.substr(4 * depth + 4)) >> type >> name;
    path.resize(depth);
    path.push_back(name.substr(1, name.size() - 2));
    if (type == "Material" || type == "Shader") continue;
    prims.push_back(type + ' ');
    for (const std::string &part : path) prims.back() += '/' + part;
  }
  return prims;
}

bool has(const std::string &text, std::string_view part) { return text.find(part) != std::string::npos; }

TEST(UsdzWriter, LaysTheRoomOutAsRoomPlanDoes) {
  const std::vector<std::string> expected = {
      "Xform /scan",
      "Xform /scan/Section_grp",
      "Xform /scan/Section_grp/kitchen0",
      "Xform /scan/Section_grp/kitchen0/kitchen0_centerTop",
      "Xform /scan/Section_grp/kitchen1",
      "Xform /scan/Section_grp/kitchen1/kitchen1_centerTop",
      "Xform /scan/Mesh_grp",
      "Xform /scan/Mesh_grp/Arch_grp",
      "Xform /scan/Mesh_grp/Arch_grp/Wall_0_grp",
      "Mesh /scan/Mesh_grp/Arch_grp/Wall_0_grp/Wall0",
      "Mesh /scan/Mesh_grp/Arch_grp/Wall_0_grp/Window1",
      "Xform /scan/Mesh_grp/Arch_grp/Wall_1_grp",
      "Mesh /scan/Mesh_grp/Arch_grp/Wall_1_grp/Wall1",
      "Mesh /scan/Mesh_grp/Arch_grp/Wall_1_grp/Door0",
      "Xform /scan/Mesh_grp/Arch_grp/Unattached_grp",
      "Mesh /scan/Mesh_grp/Arch_grp/Unattached_grp/Door1",
      "Mesh /scan/Mesh_grp/Arch_grp/Unattached_grp/Window0",
      "Xform /scan/Mesh_grp/Floor_grp",
      "Mesh /scan/Mesh_grp/Floor_grp/Floor0",
      "Xform /scan/Mesh_grp/Object_grp",
      "Xform /scan/Mesh_grp/Object_grp/Chair_grp",
      "Mesh /scan/Mesh_grp/Object_grp/Chair_grp/Chair0",
      "Xform /scan/Mesh_grp/Object_grp/Table_grp",
      "Mesh /scan/Mesh_grp/Object_grp/Table_grp/Table0",
      "Mesh /scan/Mesh_grp/Object_grp/Table_grp/Table1",
  };
  const std::string layer = layerOf(smallRoom());
  EXPECT_EQ(primsOf(layer), expected);
  EXPECT_TRUE(has(layer, "string Category = \"Door(Isopen: True)\""));
  EXPECT_TRUE(has(layer, "string UUID = \"00000000-0000-0000-0000-000000000003\""));
}

TEST(UsdzWriter, PutsASectionsAnchorUnderTheCeiling) {
  RoomDocument room = smallRoom();
  room.floors->front().transform.elements[13] = -0.5f;
  EXPECT_TRUE(has(layerOf(room), "((1, 0, 0, 0), (0, 0, -1, 0), (0, 1, 0, 0), (0, 1.75, 0, 1))"));
  room.floors->front().story = 0;
  room.floors->push_back(room.floors->front());
  room.floors->back().story = 1;
  room.floors->back().transform.elements[13] = 2.5f;
  room.sections = {{{1, 4, 2}, "attic", 1}, {{1, 1.25f, 2}, "kitchen", 0}, {{1, -1, 2}, "cellar", -1}};
  const std::string layer = layerOf(room);
  for (std::string_view rise : {"1.5", "1.75", "-0.5"})
    EXPECT_TRUE(has(layer, "(0, 1, 0, 0), (0, " + std::string(rise) + ", 0, 1))")) << rise;
  room.floors.reset();
  EXPECT_TRUE(has(layerOf(room), "((1, 0, 0, 0), (0, 0, -1, 0), (0, 1, 0, 0), (0, 0, 0, 1))"));
}

TEST(UsdzWriter, KeepsNamesApartAndValidWhateverTheRoomSays) {
  RoomDocument room;
  room.objects = {object("chair"), object("ch-air"), object("chair1"),
                  object(""),      object("\"\n}{"), object("3d\xffprinter")};
  room.sections = {{{}, "den", 0}, {{}, "den1", 0}, {{}, "den\") {", 0}, {{}, "", 0}};
  std::vector<std::string> prims = primsOf(layerOf(room, "2nd \"floor\""));
  for (std::string_view name : {"/Chair_grp/Chair2", "/Object_grp/Object1", "/_3dprinter_grp/_3dprinter0",
                                "/den2/den2_centerTop", "/section0"})
    EXPECT_TRUE(std::any_of(prims.begin(), prims.end(), [&](const auto &p) { return p.ends_with(name); }))
        << name;
  EXPECT_EQ(prims.front(), "Xform /_2ndfloor");
  std::sort(prims.begin(), prims.end());
  EXPECT_EQ(std::adjacent_find(prims.begin(), prims.end()), prims.end());
}

TEST(UsdzWriter, WritesARoomWithoutAnything) {
  EXPECT_EQ(primsOf(layerOf({}, "")), (std::vector<std::string>{"Xform /scan", "Xform /scan/Mesh_grp",
                                                                "Xform /scan/Mesh_grp/Arch_grp"}));
}

TEST(UsdzWriter, RefusesANumberThatIsNone) {
  constexpr float kBad = std::numeric_limits<float>::quiet_NaN();
  RoomDocument moved = smallRoom(), labelled = smallRoom();
  moved.walls[1].transform.elements[12] = kBad;
  labelled.sections->front().center.x = kBad;
  for (const RoomDocument &room : {moved, labelled})
    EXPECT_THROW(writeUsdz(room, "scan"), std::runtime_error);
}

}  // namespace
}  // namespace vantorel
