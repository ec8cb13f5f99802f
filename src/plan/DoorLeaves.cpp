#include "plan/DoorLeaves.h"

#include <algorithm>
#include <numbers>

namespace vantorel::plan {
namespace {

constexpr double kTwoLeaves = 1.3, kSliding = 2.4;  // metres

/// The share of the swing that lies in a polygon, looked at in a grid of points.
double shareIn(const DoorLeaf &leaf, const Polygon &polygon) {
  const Point open = leaf.tip - leaf.hinge, shut = leaf.latch - leaf.hinge;
  constexpr int kSteps = 5;
  int inside = 0;
  for (int i = 1; i <= kSteps; ++i)
    for (int k = 0; k < kSteps; ++k) {
      const double part = (k + 0.5) / kSteps;
      const Point ray = unit(open * part + shut * (1 - part)) * (leaf.width() * i / (kSteps + 0.5));
      inside += contains(polygon, leaf.hinge + ray) ? 1 : 0;
    }
  return inside / static_cast<double>(kSteps * kSteps);
}

/// What a leaf should not swing through.
struct Obstacle {
  Polygon polygon;
  double weight;
  Box box = boundsOf(polygon);
};

double trouble(const DoorLeaf &leaf, const std::vector<Obstacle> &obstacles) {
  const Box reach = boundsOf(leaf.swing()).grown(0.01);
  double sum = 0;
  for (const Obstacle &obstacle : obstacles)
    if (obstacle.box.meets(reach)) sum += obstacle.weight * shareIn(leaf, obstacle.polygon);
  return sum;
}

DoorLeaf leafAt(Point hinge, Point latch, Point outward) {
  return {hinge, hinge + outward * length(latch - hinge), latch};
}

std::vector<DoorLeaf> leaves(const Hole &door, bool isHingedAtEnd, bool opensToBack) {
  const double depth = opensToBack ? door.depth : 0;
  Point first = door.track.at(door.from, depth), last = door.track.at(door.to, depth);
  const Point outward = door.track.back((door.from + door.to) / 2) * (opensToBack ? 1 : -1);
  if (isHingedAtEnd) std::swap(first, last);
  if (length(last - first) < kTwoLeaves) return {leafAt(first, last, outward)};
  const Point centre = middle(first, last);
  return {leafAt(first, centre, outward), leafAt(last, centre, outward)};
}

std::vector<DoorLeaf> leavesOf(const Hole &door, const std::vector<Obstacle> &obstacles) {
  const double width = length(door.track.at(door.to) - door.track.at(door.from));
  if (width >= kSliding) return {};
  const bool isEndNearer = door.track.length() - door.to < door.from;
  std::vector<DoorLeaf> best;
  double least = std::numeric_limits<double>::infinity();
  for (const bool opensToBack : {false, true})
    for (const bool isHingedAtEnd : {isEndNearer, !isEndNearer}) {
      std::vector<DoorLeaf> made = leaves(door, isHingedAtEnd, opensToBack);
      double cost = (opensToBack ? 0.3 : 0) + (isHingedAtEnd != isEndNearer ? 0.1 : 0);
      for (const DoorLeaf &leaf : made) cost += trouble(leaf, obstacles);
      if (cost < least) best = std::move(made), least = cost;
    }
  return best;
}

}  // namespace

Polygon DoorLeaf::swing() const {
  Polygon outline{hinge};
  const Point open = tip - hinge, shut = latch - hinge;
  constexpr int kSteps = 6;
  for (int i = 0; i <= kSteps; ++i) {
    const double part = static_cast<double>(i) / kSteps;
    outline.push_back(hinge + unit(open * (1 - part) + shut * part) * width());
  }
  return outline;
}

std::vector<std::vector<DoorLeaf>> openDoors(const Storey &storey) {
  std::vector<Obstacle> obstacles;
  for (const Wall &wall : storey.walls)
    for (const Band &band : wall.solid) obstacles.push_back({band.polygon(), 4});
  for (const Furniture &thing : storey.furniture) obstacles.push_back({thing.outline(), 1.5});
  std::vector<std::vector<DoorLeaf>> doors;
  for (const Hole &hole : storey.holes) {
    doors.push_back(hole.kind == Hole::Kind::door ? leavesOf(hole, obstacles) : std::vector<DoorLeaf>{});
    for (const DoorLeaf &leaf : doors.back()) obstacles.push_back({leaf.swing(), 1});
  }
  return doors;
}

}  // namespace vantorel::plan
