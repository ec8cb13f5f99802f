#include "plan/WallSolids.h"
#include "support/TestRooms.h"

#include <gtest/gtest.h>

namespace vantorel::plan {
namespace {

using namespace vantorel::testing;

/// In square metres, counted in points 1 cm apart: parts may overlap.
double solidArea(const Storey &storey) {
  std::vector<Polygon> parts;
  for (const Wall &wall : storey.walls)
    for (const Band &band : wall.solid) parts.push_back(band.polygon());
  double area = 0;
  for (double x = -6.005; x < 6; x += 0.01)
    for (double y = -6.005; y < 6; y += 0.01)
      for (const Polygon &part : parts)
        if (contains(part, {x, y})) {
          area += 1e-4;
          break;
        }
  return area;
}

/// Raised, from walls and a door.
Storey storeyWith(const std::vector<Surface> &walls, const std::vector<Surface> &doors = {}) {
  RoomDocument room;
  room.walls = walls;
  room.doors = doors;
  Storey storey = storeysOf(room).storeys.at(0);
  return storey;
}

/// Four by three metres, all walls looking inwards.
std::vector<Surface> fourWalls() {
  return {wall(1, {0, 0, -1.5f}, 4, 0), wall(2, {2, 0, 0}, 3, 270), wall(3, {0, 0, 1.5f}, 4, 180),
          wall(4, {-2, 0, 0}, 3, 90)};
}

TEST(WallSolids, CloseTheirCornersOnTheOutside) {
  Storey storey = storeyWith(fourWalls());
  raiseWalls(storey);
  EXPECT_NEAR(solidArea(storey), 4.32 * 3.32 - 4 * 3, 0.02);
}

TEST(WallSolids, HaveGapsForDoors) {
  Storey storey = storeyWith(fourWalls(), {door(9, {0.5f, 0, -1.5f}, 1)});
  raiseWalls(storey);
  EXPECT_NEAR(solidArea(storey), 4.32 * 3.32 - 4 * 3 - 0.9 * 0.16, 0.02);
}

TEST(WallSolids, FillWhatLiesBetweenTwoRoomsAndOpenItForADoor) {
  // Two faces of one wall, 0.24 m apart; the door belongs to the first.
  const std::vector<Surface> faces{wall(1, {0, 0, 0}, 4, 0), wall(2, {0, 0, -0.24f}, 4, 180)};
  Storey storey = storeyWith(faces, {door(9, {0.5f, 0, 0}, 1)});
  raiseWalls(storey);
  EXPECT_NEAR(solidArea(storey), (4 - 0.9) * 0.24, 0.02);
  EXPECT_NEAR(storey.holes.at(0).depth, 0.24, 1e-6);
}

TEST(WallSolids, MeetInNodesAndAreDrawnUpToOthers) {
  // A partition that stops 8 cm short of a wall's face.
  std::vector<Surface> walls = fourWalls();
  walls.push_back(wall(5, {0.5f, 0, -0.46f}, 1.92f, 90));
  Storey storey = storeyWith(walls);
  raiseWalls(storey);
  EXPECT_NEAR(solidArea(storey), 4.32 * 3.32 - 4 * 3 + 0.16 * 2, 0.02);
}

}  // namespace
}  // namespace vantorel::plan
