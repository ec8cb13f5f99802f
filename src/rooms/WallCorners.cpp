#include "rooms/WallCorners.h"

#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace vantorel {
namespace {

constexpr double kSamePlace = 0.001;  // metres
constexpr double kFarthestPlace = 1e6;

/// An upright wall in plan: where it starts and ends, as the room sees it from left to right.
struct PlanWall {
  double startX, startZ, endX, endZ;
  double directionX, directionZ;  // of unit length
  double low, high;
};

std::optional<PlanWall> planOf(const Surface &wall) {
  const Float4x4 &t = wall.transform;
  const double x = t.at(0, 0), z = t.at(0, 2), length = std::sqrt(x * x + z * z);
  const double middleX = t.at(3, 0), middleY = t.at(3, 1), middleZ = t.at(3, 2);
  const double halfWidth = wall.dimensions.x / 2.0, halfHeight = wall.dimensions.y / 2.0;
  const bool near = std::abs(middleX) + std::abs(middleZ) + std::abs(halfWidth) < kFarthestPlace;
  const bool upright = t.at(1, 1) > 0.99 && std::abs(length - 1) < 0.01;
  if (!near || !upright || wall.curve.value_or(std::nullopt)) return std::nullopt;
  const double dx = x / length, dz = z / length;
  return PlanWall{middleX - halfWidth * dx,
                  middleZ - halfWidth * dz,
                  middleX + halfWidth * dx,
                  middleZ + halfWidth * dz,
                  dx,
                  dz,
                  middleY - halfHeight,
                  middleY + halfHeight};
}

/// The starts of walls by the square millimetre they lie in, so that those at a place are found without asking all.
class Starts {
 public:
  explicit Starts(const std::vector<std::optional<PlanWall>> &walls) {
    for (const std::optional<PlanWall> &wall : walls)
      if (wall) cells_.emplace(cellOf(wall->startX, wall->startZ), &*wall);
  }

  /// The only other wall that starts where `wall` ends.
  const PlanWall *onlyAtEndOf(const PlanWall &wall) const {
    const PlanWall *only = nullptr;
    const Cell cell = cellOf(wall.endX, wall.endZ);
    for (std::int64_t x = cell.first - 1; x <= cell.first + 1; ++x) {
      for (std::int64_t z = cell.second - 1; z <= cell.second + 1; ++z) {
        int asked = 0;
        for (auto [at, end] = cells_.equal_range({x, z}); at != end; ++at) {
          if (++asked > kMostAtOnePlace) return nullptr;
          if (at->second == &wall || !meet(wall, *at->second)) continue;
          if (only) return nullptr;
          only = at->second;
        }
      }
    }
    return only;
  }

 private:
  using Cell = std::pair<std::int64_t, std::int64_t>;
  static constexpr int kMostAtOnePlace = 64;  // more is no building

  static Cell cellOf(double x, double z) {
    return {static_cast<std::int64_t>(std::floor(x / kSamePlace)),
            static_cast<std::int64_t>(std::floor(z / kSamePlace))};
  }

  static bool meet(const PlanWall &wall, const PlanWall &next) {
    const double x = next.startX - wall.endX, z = next.startZ - wall.endZ;
    return x * x + z * z <= kSamePlace * kSamePlace && next.low < wall.high && wall.low < next.high;
  }

  std::multimap<Cell, const PlanWall *> cells_;
};

std::optional<Turn> convexTurn(const PlanWall &wall, const PlanWall &next) {
  constexpr double kLeastSine = 0.0174524064372835,
                   kLeastCosine = -0.866025403784439;  // of 1 and 150 degrees
  const double sine = wall.directionX * next.directionZ - wall.directionZ * next.directionX;
  const double cosine = wall.directionX * next.directionX + wall.directionZ * next.directionZ;
  if (sine < kLeastSine || cosine < kLeastCosine) return std::nullopt;
  return Turn{sine, cosine};
}

}  // namespace

std::vector<std::optional<Turn>> convexCorners(const std::vector<Surface> &walls) {
  std::vector<std::optional<PlanWall>> plans;
  plans.reserve(walls.size());
  for (const Surface &wall : walls) plans.push_back(planOf(wall));
  const Starts starts(plans);
  std::vector<std::optional<Turn>> turns;
  turns.reserve(walls.size());
  for (const std::optional<PlanWall> &wall : plans) {
    const PlanWall *next = wall ? starts.onlyAtEndOf(*wall) : nullptr;
    turns.push_back(next ? convexTurn(*wall, *next) : std::nullopt);
  }
  return turns;
}

}  // namespace vantorel
