#include "MeshFacts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace vantorel {
namespace {

using namespace testing;

constexpr double kPi = 3.14159265358979323846;

RoomObject objectOf(Float3 dimensions, std::string category = "sofa") {
  RoomObject object;
  object.dimensions = dimensions;
  object.category.name = std::move(category);
  return object;
}

MeshFacts solid(const Mesh &mesh) {
  const MeshFacts facts = factsOf(mesh);
  EXPECT_EQ(facts.fault, "");
  EXPECT_GT(facts.volume, 0);
  return facts;
}

/// Micrometres.
void expectBounds(const Mesh &mesh, MicroPoint low, MicroPoint high) {
  const MeshBounds bounds = boundsOf(mesh.points);
  EXPECT_EQ(bounds.low, low);
  EXPECT_EQ(bounds.high, high);
}

TEST(RoomMesh, IsAClosedBoxOfItsElementsSize) {
  const Mesh wall = wallMesh(surfaceOf({4, 2.5f, 0}));
  expectBounds(wall, {-2'000'000, -1'250'000, -160'000}, {2'000'000, 1'250'000, 0});
  EXPECT_NEAR(solid(wall).volume, 4 * 2.5 * 0.16, 1e-6);
  EXPECT_EQ(wall.points.size(), 24u);
  EXPECT_EQ(wall.triangles.size(), 12u);

  const Mesh panel = panelMesh(surfaceOf({1, 2, 0}));
  expectBounds(panel, {-500'000, -1'000'000, -80'000}, {500'000, 1'000'000, 0});
  EXPECT_NEAR(solid(panel).volume, 0.16, 1e-6);

  const Mesh object = objectMesh(objectOf({1, 2, 3}));
  expectBounds(object, {-500'000, -1'000'000, -1'500'000}, {500'000, 1'000'000, 1'500'000});
  EXPECT_NEAR(solid(object).volume, 6, 1e-6);
  expectBounds(objectMesh(objectOf({1, 150, 1})), {-500'000, -75'000'000, -500'000},
               {500'000, 75'000'000, 500'000});
}

TEST(RoomMesh, OfAWallHasItsOpeningsCutStraightThrough) {
  const Surface wall = surfaceOf({4, 2.5f, 0}, {10, 0, 3});
  const Surface door = surfaceOf({0.9f, 2, 0}, {9, -0.25f, 3.01f}),
                window = surfaceOf({1, 1, 0}, {11, 0.3f, 2.9f});
  const MeshFacts facts = solid(wallWith(wall, {door, window}));
  EXPECT_NEAR(facts.frontArea, 4 * 2.5 - 0.9 * 2 - 1, 1e-5);
  EXPECT_NEAR(facts.backArea, facts.frontArea, 1e-9);
  // Round the wall, less the door's sill; two jambs and a lintel; round the window.
  EXPECT_NEAR(facts.area, 2 * facts.frontArea + 0.16 * (13 - 0.9 + 4.9 + 4), 1e-5);
}

TEST(RoomMesh, OfAWallTakesNonsenseByItsRules) {
  const Surface wall = surfaceOf({4, 2, 0});
  struct {
    const char *what;
    std::vector<Surface> openings;
    double frontArea;
  } const cases[] = {
      {"larger than the wall", {surfaceOf({9, 9, 0})}, 8},
      {"together larger than the wall",
       {surfaceOf({2, 2, 0}, {-1, 0, 0}), surfaceOf({2, 2, 0}, {1, 0, 0})},
       8},
      {"the same twice", {surfaceOf({1, 1, 0}), surfaceOf({1, 1, 0})}, 7},
      {"without size", {surfaceOf({0, 1, 0}), surfaceOf({1, -1, 0})}, 8},
      {"a hair short of the floor", {surfaceOf({1, 1, 0}, {0, -0.49995f, 0})}, 7 - 5e-5},
      {"far away", {surfaceOf({1, 1, 0}, {1e30f, -1e30f, 1e38f})}, 8},
      // A square of 1 mm takes half of its area from either.
      {"touching in a corner",
       {surfaceOf({1, 1, 0}, {-0.5f, 0.5f, 0}), surfaceOf({1, 1, 0}, {0.5f, -0.5f, 0})},
       6 - 5e-7},
  };
  for (const auto &[what, openings, frontArea] : cases) {
    SCOPED_TRACE(what);
    EXPECT_NEAR(solid(wallWith(wall, openings)).frontArea, frontArea, 1e-7);
  }
}

TEST(RoomMesh, OfAWallEndsInAPostWhereItTurns) {
  const Surface wall = surfaceOf({4, 2.5f, 0});
  const Mesh square = wallMesh(wall, {}, Turn{1, 0});
  expectBounds(square, {-2'000'000, -1'250'000, -160'000}, {2'160'000, 1'250'000, 0});
  EXPECT_NEAR(solid(square).volume, 4.16 * 2.5 * 0.16, 1e-6);
  const Surface door = surfaceOf({1, 2, 0}, {1.5f, -0.25f, 0});
  EXPECT_NEAR(solid(wallWith(wall, {door}, Turn{1, 0})).volume, (4.16 * 2.5 - 2) * 0.16, 1e-6);
}

TEST(RoomMesh, OfAWallFollowsItsCorners) {
  Surface wall = surfaceOf({4, 3, 0});
  wall.polygonCorners = {{-2, -1.5f, 0}, {2, -1.5f, 0}, {2, 0, 1e-7f},
                         {0, 0, 0},      {0, 1.5f, 0},  {-2, 1.5f, 0}};
  EXPECT_NEAR(solid(wallMesh(wall)).frontArea, 9, 1e-6);
  EXPECT_NEAR(solid(wallWith(wall, {surfaceOf({2, 1, 0})}, Turn{1, 0})).frontArea, 9 - 1.5 + 0.48, 1e-6);
  wall.polygonCorners = {{-2, -1.5f, 0}, {2, -1.5f, 0}, {2, -1, 0}, {0, 1.5f, 0}, {-2, 0.3f, 0}};
  const double gable = 4 * 0.5 + 2 * (2.5 / 2) + 2 * (1.3 + 2.5) / 2;
  EXPECT_NEAR(solid(wallMesh(wall)).frontArea, gable, 1e-4);
  EXPECT_NEAR(solid(wallWith(wall, {surfaceOf({1, 0.5f, 0})})).frontArea, gable - 0.5, 1e-4);
}

Surface curvedWall(double from, double to, float radius, std::array<float, 2> center) {
  Surface wall = surfaceOf({3, 2.5f, 0});
  Curve curve;
  curve.startAngle.value = from;
  curve.endAngle.value = to;
  curve.radius = radius;
  curve.center = center;
  wall.curve = curve;
  return wall;
}

/// Between two radii, with the flat pieces that keep within 1 mm of them.
void expectArc(const Surface &wall, double sweep, double inner, double outer) {
  const MeshFacts facts = solid(wallMesh(wall));
  const double expected = sweep / 2 * (outer * outer - inner * inner) * 2.5;
  EXPECT_LE(facts.volume, expected);
  EXPECT_GT(facts.volume, expected * (1 - 0.0014 / outer));
}

TEST(RoomMesh, OfACurvedWallKeepsToItsArc) {
  expectArc(curvedWall(-kPi / 4, -3 * kPi / 4, 2, {0, 1}), kPi / 2, 2, 2.16);  // the room is inside
  expectArc(curvedWall(3 * kPi / 4, kPi / 4, 2, {0, -1}), kPi / 2, 1.84, 2);   // and outside
  expectArc(curvedWall(0.1, 6, 0.4f, {0, 0}), 5.9, 0.24, 0.4);
}

TEST(RoomMesh, OfAnImpossibleCurveIsStraight) {
  const double straight = solid(wallMesh(surfaceOf({3, 2.5f, 0}))).volume;
  for (const Surface &wall :
       {curvedWall(0, 7, 2, {0, 0}), curvedWall(1, 1, 2, {0, 0}), curvedWall(0, 1, -2, {0, 0}),
        curvedWall(0, 1, 0.1f, {0, 0}), curvedWall(0, 1, 1e30f, {0, 0}), curvedWall(0, 1, 2, {-1e30f, 0}),
        curvedWall(1e30, 1e30, 2, {0, 0}), curvedWall(0, 2, 60, {0, 0})})
    EXPECT_EQ(solid(wallMesh(wall)).volume, straight);
}

double floorArea(std::vector<Float3> corners) {
  Surface floor = surfaceOf({9, 9, 0});
  floor.polygonCorners = std::move(corners);
  const MeshFacts facts = solid(floorMesh(floor));
  EXPECT_NEAR(facts.volume, facts.frontArea * 0.16, 1e-5);
  return facts.frontArea;
}

TEST(RoomMesh, OfAFloorReachesUnderItsWalls) {
  EXPECT_NEAR(solid(floorMesh(surfaceOf({9, 4, 0}))).frontArea, 9.32 * 4.32, 1e-4);
  EXPECT_NEAR(floorArea({}), 9.32 * 9.32, 1e-4) << "no corners are as good as no key";
  EXPECT_NEAR(floorArea({{0, 0, 1e-7f}, {4, 0, 0}, {4, 1, 0}, {1, 1, 0}, {1, 3, 0}, {0, 3, 0}}),
              4.32 * 1.32 + 1.32 * 2, 1e-4);
  EXPECT_NEAR(floorArea({{0, 3, 0}, {4, 3, 0}, {4, 0, 0}, {0, 0, 0}}), 4.32 * 3.32, 1e-4) << "clockwise";
  EXPECT_NEAR(floorArea({{0, 0, 0}, {4, 0, 0}, {3.9999f, 0, 0}, {4, 3, 0}, {0, 3, 0}, {1e-4f, 1e-4f, 0}}),
              4.32 * 3.32, 1e-4)
      << "corners that are one but for noise";
  EXPECT_NEAR(floorArea({{0, 0, 0}, {4, 0, 0}, {0, 3, 0}}), 6 + 12 * 0.16 + 0.16 * 0.16 * 6, 1e-4)
      << "mitred";
  // A notch narrower than twice the distance closes.
  EXPECT_NEAR(
      floorArea(
          {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {2.2f, 3, 0}, {2.2f, 2, 0}, {2, 2, 0}, {2, 3, 0}, {0, 3, 0}}),
      4.32 * 3.32, 1e-4);
}

TEST(RoomMesh, OfATangledFloorIsWhatItWindsAround) {
  // Two triangles of a crossed square; the smaller lies clockwise and loses what the larger wins.
  EXPECT_NEAR(floorArea({{0, 0, 0}, {4, 4, 0}, {4, 0, 0}, {0, 4, 0}}), 8, 1);
  EXPECT_NEAR(floorArea({{0, 0, 0}, {1, 1, 0}}), 1.32 * 1.32, 1e-4) << "too few corners: the box around them";
  EXPECT_NEAR(floorArea({{1, 1, 0}, {1, 1, 0}, {1, 1, 0}}), 0.321 * 0.321, 1e-4);
  std::vector<Float3> zigzag;
  for (int i = 0; i < 200; ++i)
    zigzag.push_back({i % 2 ? 3.0f : -3.0f, static_cast<float>(i * i % 201) / 30, 0});
  EXPECT_GT(floorArea(zigzag), 30) << "too tangled: the box around it";
}

TEST(RoomMesh, OfAChairEndsBelowItsTable) {
  const RoomObject table = objectOf({2, 0.75f, 1}, "table"), chair = objectOf({0.5f, 1, 0.5f}, "chair");
  expectBounds(objectMesh(chair, &table), {-250'000, -500'000, -250'000}, {250'000, 100'000, 250'000});
  for (const Mesh &whole :
       {objectMesh(chair), objectMesh(objectOf({0.5f, 1, 0.5f}), &table), objectMesh(chair, &chair)})
    EXPECT_NEAR(solid(whole).volume, 0.25, 1e-6);
  const RoomObject stool = objectOf({0.5f, 0.4f, 0.5f}, "chair");
  EXPECT_NEAR(solid(objectMesh(stool, &table)).volume, 0.1, 1e-6) << "lower than that already";
}

TEST(RoomMesh, StaysClosedWhateverTheSizes) {
  constexpr float kMost = std::numeric_limits<float>::max(),
                  kLeast = std::numeric_limits<float>::denorm_min();
  const std::vector<float> sizes = {0, -3, kLeast, 1e-4f, kMost, -kMost};
  for (float a : sizes) {
    for (float b : sizes) {
      SCOPED_TRACE(std::to_string(a) + " by " + std::to_string(b));
      Surface floor = surfaceOf({});
      floor.polygonCorners = {{a, b, 0}, {b, a, 0}, {a, a, 0}};
      const RoomObject table = objectOf({1, b, 1}, "table");
      for (const Mesh &mesh :
           {wallMesh(surfaceOf({a, b, b})), panelMesh(surfaceOf({a, b, b})), wallMesh(floor),
            floorMesh(floor), objectMesh(objectOf({a, b, a}, "chair"), &table),
            wallWith(surfaceOf({a, b, 0}), {surfaceOf({b, a, 0}, {a, b, a})}, Turn{1, 0})})
        solid(mesh);
    }
  }
}

TEST(RoomMesh, RefusesANumberThatIsNone) {
  for (float bad : {std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity()}) {
    EXPECT_THROW(wallMesh(surfaceOf({bad, 1, 0})), std::runtime_error);
    EXPECT_THROW(wallWith(surfaceOf({1, 1, 0}), {surfaceOf({1, 1, 0}, {0, bad, 0})}), std::runtime_error);
    EXPECT_THROW(wallMesh(curvedWall(0, bad, 2, {0, 0})), std::runtime_error);
    EXPECT_THROW(wallMesh(curvedWall(0, 1, bad, {0, 0})), std::runtime_error);
    EXPECT_THROW(panelMesh(surfaceOf({1, bad, 0})), std::runtime_error);
    EXPECT_THROW(objectMesh(objectOf({1, 1, bad})), std::runtime_error);
    Surface floor = surfaceOf({1, 1, 0});
    floor.polygonCorners = {{0, 0, 0}, {1, bad, 0}};
    EXPECT_THROW(floorMesh(floor), std::runtime_error);
  }
}

}  // namespace
}  // namespace vantorel
