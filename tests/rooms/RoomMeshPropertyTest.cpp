// Random shapes, measured in another way: areas and volumes to 0.01 %.
#include "MeshFacts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace vantorel {
namespace {

using namespace testing;

constexpr double kPi = 3.14159265358979323846;
constexpr int kRounds = 100;

class Random {
 public:
  double between(double low, double high) { return low + (high - low) * bits_() / 4294967296.0; }
  int below(int end) { return static_cast<int>(bits_() % static_cast<unsigned>(end)); }

 private:
  std::mt19937 bits_{1};
};

Surface flatAt(double width, double height, double x = 0, double y = 0) {
  return surfaceOf({float(width), float(height), 0}, {float(x), float(y), 0});
}

std::vector<Surface> randomOpenings(Random &random, double width, double height) {
  std::vector<Surface> openings;
  for (int n = random.below(6); n > 0; --n)
    openings.push_back(flatAt(random.between(0.1, 2), random.between(0.1, 2),
                              random.between(-width, width) / 2, random.between(-height, height) / 2));
  return openings;
}

/// What the openings leave of the wall's front: cell by cell of the grid that all sides make.
double areaLeft(double width, double height, const std::vector<Surface> &openings) {
  std::vector<double> xs{-width / 2, width / 2}, ys{-height / 2, height / 2};
  for (const Surface &o : openings) {
    for (double side : {-0.5, 0.5}) {
      xs.push_back(std::clamp(o.transform.at(3, 0) + side * o.dimensions.x, -width / 2, width / 2));
      ys.push_back(std::clamp(o.transform.at(3, 1) + side * o.dimensions.y, -height / 2, height / 2));
    }
  }
  std::sort(xs.begin(), xs.end());
  std::sort(ys.begin(), ys.end());
  double area = 0;
  for (std::size_t i = 0; i + 1 < xs.size(); ++i) {
    for (std::size_t j = 0; j + 1 < ys.size(); ++j) {
      const double x = (xs[i] + xs[i + 1]) / 2, y = (ys[j] + ys[j + 1]) / 2;
      const bool open = std::any_of(openings.begin(), openings.end(), [&](const Surface &o) {
        return std::abs(x - o.transform.at(3, 0)) < o.dimensions.x / 2 &&
               std::abs(y - o.transform.at(3, 1)) < o.dimensions.y / 2;
      });
      if (!open) area += (xs[i + 1] - xs[i]) * (ys[j + 1] - ys[j]);
    }
  }
  return area;
}

void expectNear(double value, double expected) { EXPECT_NEAR(value, expected, 1e-4 * expected); }

TEST(RoomMeshProperty, WallsAreTheirSizeLessTheirOpenings) {
  Random random;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    const double width = random.between(1, 8), height = random.between(2, 4),
                 turn = random.between(0.02, 2.6);
    const Surface wall = flatAt(width, height);
    const std::vector<Surface> openings = randomOpenings(random, width, height);
    const double area = areaLeft(width, height, openings);
    if (area < 0.2) continue;
    const MeshFacts facts = factsOf(wallWith(wall, openings));
    EXPECT_EQ(facts.fault, "");
    expectNear(facts.frontArea, area);
    expectNear(facts.backArea, area);
    expectNear(facts.volume, area * 0.16);
    const MeshFacts turned = factsOf(wallWith(wall, openings, Turn{std::sin(turn), std::cos(turn)}));
    EXPECT_EQ(turned.fault, "");
    EXPECT_NEAR(turned.volume, 0.16 * (area + 0.16 * std::tan(turn / 2) * height),
                1e-4 * (area + height) * 0.16);
  }
}

TEST(RoomMeshProperty, CurvedWallsLoseTheirOpeningsAlongTheArc) {
  Random random;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    const double radius = random.between(0.5, 20), sweep = std::min(random.between(0.1, 6), 20 / radius);
    const double start = random.between(-7, 7), length = radius * sweep, height = random.between(2, 3);
    Surface wall = flatAt(length, height);
    wall.curve.emplace(Curve{});
    (*wall.curve)->startAngle.value = start;
    (*wall.curve)->endAngle.value = start + sweep;
    (*wall.curve)->radius = static_cast<float>(radius);
    const double behind =
        radius + (std::sin(start + sweep / 2) < 0 ? 0.08 : -0.08);  // half way through the wall
    const double whole = factsOf(wallMesh(wall)).volume, expected = length * behind / radius * height * 0.16;
    EXPECT_LE(whole, expected * 1.0001);
    EXPECT_GE(whole, expected * (1 - 0.0014 / (radius - 0.16)));

    const double width = std::min(1.0, length / 2), angle = start + sweep / 2;
    Surface opening = flatAt(width, 1, radius * std::cos(angle), 0.1);
    opening.transform.elements[14] = static_cast<float>(radius * std::sin(angle));
    const MeshFacts cut = factsOf(wallWith(wall, {opening}));
    EXPECT_EQ(cut.fault, "");
    EXPECT_NEAR(whole - cut.volume, width * behind / radius * 0.16, 0.003 * expected / radius);
  }
}

/// Corners of a circle at random angles, counter-clockwise or clockwise.
std::vector<Float3> randomConvex(Random &random) {
  std::vector<double> angles;
  for (int n = 3 + random.below(30); n > 0; --n) angles.push_back(random.between(0, 2 * kPi));
  std::sort(angles.begin(), angles.end());
  std::vector<Float3> corners;
  const double radius = random.between(2, 9);
  for (double a : angles) corners.push_back({float(radius * std::cos(a)), float(radius * std::sin(a)), 0});
  if (random.below(2)) std::reverse(corners.begin(), corners.end());
  return corners;
}

/// Of a convex outline and all that is within 0.16 m of its sides, mitred; 0 if a corner is too sharp for that.
double widenedArea(const std::vector<Float3> &corners) {
  double area = 0, more = 0;
  const std::size_t n = corners.size();
  for (std::size_t i = 0; i < n; ++i) {
    const Float3 &a = corners[i], &b = corners[(i + 1) % n], &c = corners[(i + 2) % n];
    const double ux = b.x - a.x, uy = b.y - a.y, vx = c.x - b.x, vy = c.y - b.y;
    const double length = std::hypot(ux, uy), next = std::hypot(vx, vy);
    const double turn = std::acos(std::clamp((ux * vx + uy * vy) / (length * next), -1.0, 1.0));
    if (turn > 2.5 || length < 0.05) return 0;
    area += (double(a.x) * b.y - double(b.x) * a.y) / 2;
    more += length * 0.16 + 0.16 * 0.16 * std::tan(turn / 2);
  }
  return std::abs(area) + more;
}

TEST(RoomMeshProperty, FloorsAreWiderThanTheirOutlineOnEverySide) {
  Random random;
  int checked = 0;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    Surface floor = flatAt(1, 1);
    floor.polygonCorners = randomConvex(random);
    const MeshFacts facts = factsOf(floorMesh(floor));
    EXPECT_EQ(facts.fault, "");
    const double area = widenedArea(*floor.polygonCorners);
    if (area == 0) continue;
    expectNear(facts.frontArea, area);
    expectNear(facts.volume, area * 0.16);
    ++checked;
  }
  EXPECT_GT(checked, kRounds / 4);
}

/// On a grid so coarse that corners, sides and crossings meet all the time.
TEST(RoomMeshProperty, TangledOutlinesMakeClosedSolids) {
  Random random;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    Surface shape = flatAt(4, 3);
    shape.polygonCorners.emplace();
    const float step = std::array{0.5f, 1.1e-3f, 3e-5f}[static_cast<std::size_t>(random.below(3))];
    for (int n = random.below(16); n > 0; --n)
      shape.polygonCorners->push_back({step * float(random.below(8)), step * float(random.below(6)), 0});
    std::vector<Surface> openings;
    for (int n = random.below(5); n > 0; --n)
      openings.push_back(flatAt(step * random.below(5), step * random.below(5), step * random.below(8),
                                step * random.below(6)));
    for (const Mesh &mesh :
         {wallWith(shape, openings), wallWith(shape, openings, Turn{1, 0}), floorMesh(shape)}) {
      const MeshFacts facts = factsOf(mesh);
      EXPECT_EQ(facts.fault, "");
      EXPECT_GT(facts.volume, 0);
    }
  }
}

}  // namespace
}  // namespace vantorel
