#include "rooms/RoomMesh.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <stdexcept>
#include <tuple>

namespace vantorel {
namespace {

using Point = std::tuple<double, double, double>;

Point operator-(const Point &a, const Point &b) {
  return {std::get<0>(a) - std::get<0>(b), std::get<1>(a) - std::get<1>(b), std::get<2>(a) - std::get<2>(b)};
}

Point cross(const Point &a, const Point &b) {
  const auto [ax, ay, az] = a;
  const auto [bx, by, bz] = b;
  return {ay * bz - az * by, az * bx - ax * bz, ax * by - ay * bx};
}

double dot(const Point &a, const Point &b) {
  return std::get<0>(a) * std::get<0>(b) + std::get<1>(a) * std::get<1>(b) + std::get<2>(a) * std::get<2>(b);
}

Point pointOf(const Float3 &p) { return {p.x, p.y, p.z}; }

/// The volume that the mesh encloses; fails unless each edge is used twice, once in each direction, and every
/// normal is that of its face.
double closedVolume(const Mesh &mesh) {
  std::map<std::pair<Point, Point>, int> uses;
  double volume = 0;
  std::size_t first = 0;
  EXPECT_EQ(mesh.normals.size(), mesh.points.size());
  for (int size : mesh.faceSizes) {
    const auto corner = [&](int i) {
      return pointOf(mesh.points.at(first + static_cast<std::size_t>(i % size)));
    };
    for (int i = 0; i < size; ++i) ++uses[{corner(i), corner(i + 1)}];
    for (int i = 1; i + 1 < size; ++i) volume += dot(corner(0), cross(corner(i), corner(i + 1))) / 6;
    const Point across = cross(corner(1) - corner(0), corner(2) - corner(0));
    for (int i = 0; i < size; ++i) {
      const Point normal = pointOf(mesh.normals.at(first + static_cast<std::size_t>(i)));
      EXPECT_NEAR(dot(normal, normal), 1, 1e-6);
      EXPECT_NEAR(dot(normal, across) / std::sqrt(dot(across, across)), 1, 1e-6);
    }
    first += static_cast<std::size_t>(size);
  }
  EXPECT_EQ(first, mesh.points.size());
  for (const auto &[edge, count] : uses) {
    EXPECT_NE(edge.first, edge.second);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(uses.count({edge.second, edge.first}), 1u) << "an open edge";
  }
  return volume;
}

Surface surfaceOf(Float3 dimensions) {
  Surface surface;
  surface.dimensions = dimensions;
  return surface;
}

RoomObject objectOf(Float3 dimensions) {
  RoomObject object;
  object.dimensions = dimensions;
  return object;
}

void expectBounds(const Mesh &mesh, Float3 low, Float3 high) {
  const Bounds bounds = boundsOf(mesh.points);
  EXPECT_EQ(bounds.low, low);
  EXPECT_EQ(bounds.high, high);
}

TEST(RoomMesh, IsAClosedSolidOfItsElementsSize) {
  const Mesh wall = wallMesh(surfaceOf({4, 2.5f, 0}));
  expectBounds(wall, {-2, -1.25f, -0.16f}, {2, 1.25f, 0});
  EXPECT_NEAR(closedVolume(wall), 4 * 2.5 * 0.16, 1e-5);

  const Mesh panel = panelMesh(surfaceOf({1, 2, 0}));
  expectBounds(panel, {-0.5f, -1, -0.08f}, {0.5f, 1, 0});
  EXPECT_NEAR(closedVolume(panel), 0.16, 1e-5);

  const Mesh object = objectMesh(objectOf({1, 2, 3}));
  expectBounds(object, {-0.5f, -1, -1.5f}, {0.5f, 1, 1.5f});
  EXPECT_NEAR(closedVolume(object), 6, 1e-5);
}

TEST(RoomMesh, OfAFloorLiesAroundItsCorners) {
  Surface floor = surfaceOf({9, 9, 0});
  EXPECT_NEAR(closedVolume(floorMesh(floor)), 81 * 0.16, 1e-4);
  floor.polygonCorners.emplace();
  EXPECT_NEAR(closedVolume(floorMesh(floor)), 81 * 0.16, 1e-4) << "no corners are as good as no key";
  floor.polygonCorners = {{1, -1, 1e-7f}, {3, -1, 0}, {3, 4, 0}};
  expectBounds(floorMesh(floor), {1, -1, -0.16f}, {3, 4, 0});
  EXPECT_NEAR(closedVolume(floorMesh(floor)), 2 * 5 * 0.16, 1e-5);
}

TEST(RoomMesh, StaysClosedWhateverTheSizes) {
  constexpr float kMost = std::numeric_limits<float>::max(),
                  kLeast = std::numeric_limits<float>::denorm_min();
  const std::vector<float> sizes = {0, -3, kLeast, 1e-4f, kMost, -kMost};
  for (float a : sizes) {
    for (float b : sizes) {
      SCOPED_TRACE(std::to_string(a) + " by " + std::to_string(b));
      Surface floor = surfaceOf({});
      floor.polygonCorners = {{a, b, 0}, {b, a, 0}};
      for (const Mesh &mesh : {wallMesh(surfaceOf({a, b, b})), panelMesh(surfaceOf({a, b, b})),
                               floorMesh(floor), objectMesh(objectOf({a, b, a}))})
        EXPECT_GT(closedVolume(mesh), 0);
    }
  }
}

TEST(RoomMesh, RefusesANumberThatIsNone) {
  for (float bad : {std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity()}) {
    EXPECT_THROW(wallMesh(surfaceOf({bad, 1, 0})), std::runtime_error);
    EXPECT_THROW(panelMesh(surfaceOf({1, bad, 0})), std::runtime_error);
    EXPECT_THROW(objectMesh(objectOf({1, 1, bad})), std::runtime_error);
    Surface floor = surfaceOf({1, 1, 0});
    floor.polygonCorners = {{0, 0, 0}, {1, bad, 0}};
    EXPECT_THROW(floorMesh(floor), std::runtime_error);
  }
}

}  // namespace
}  // namespace vantorel
