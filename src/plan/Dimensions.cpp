#include "plan/Dimensions.h"

#include <algorithm>
#include <tuple>

namespace vantorel::plan {
namespace {

constexpr double kAskew = 0.06;  // of a wall along a side, as a sine

/// Turns a side's view so that the side is the top.
Point seenFrom(Side side, Point p) {
  switch (side) {
    case Side::top:
      return p;
    case Side::bottom:
      return {p.x, -p.y};
    case Side::left:
      return {p.y, p.x};
    case Side::right:
      return {p.y, -p.x};
  }
  return p;
}

Polygon seenFrom(Side side, Polygon polygon) {
  for (Point &corner : polygon) corner = seenFrom(side, corner);
  return polygon;
}

/// How high the polygon reaches (the least y) above this x; nothing when it does not.
std::optional<double> topAt(const Polygon &polygon, double x) {
  std::optional<double> top;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
    if ((a.x > x) == (b.x > x)) continue;
    const double y = xAt(x, {a.y, a.x}, {b.y, b.x});
    if (!top || y < *top) top = y;
  }
  return top;
}

/// A wall or a hole as seen from a side.
struct Front {
  double from, to, y;
};

std::optional<Front> frontOf(const Band &band, Side side) {
  const Point direction = seenFrom(side, band.track->direction((band.from + band.to) / 2));
  if (!band.track->isStraight() || std::abs(direction.y) > kAskew) return std::nullopt;
  const Point a = seenFrom(side, band.track->at(band.outerFrom, band.depth)),
              b = seenFrom(side, band.track->at(band.outerTo, band.depth));
  const Point c = seenFrom(side, band.track->at(band.from)), d = seenFrom(side, band.track->at(band.to));
  const bool isOuter = std::min(a.y, b.y) < std::min(c.y, d.y);
  const auto [from, to] = isOuter ? std::minmax(a.x, b.x) : std::minmax(c.x, d.x);
  return Front{from, to, isOuter ? std::min(a.y, b.y) : std::min(c.y, d.y)};
}

/// What stands or lies before something hides it. The floor of a room begins at its walls.
struct Hiding {
  std::vector<Polygon> walls, floors;
  bool hides(double x, double y) const {
    const auto isAbove = [&](double by) {
      return [=](const Polygon &polygon) {
        const auto top = topAt(polygon, x);
        return top && *top < y - by;
      };
    };
    return std::ranges::any_of(walls, isAbove(0.05)) || std::ranges::any_of(floors, isAbove(0.3));
  }
};

/// A place that a chain could have; the lower the rank, the more it matters.
struct Candidate {
  ChainPoint point;
  int rank;
};
constexpr int kAtEnd = 0, kAtEdge = 1, kAtCorner = 2;
constexpr double kClosest[] = {0, 0.12, 0.35};  // metres to a point that is already there, by rank

void add(std::vector<Candidate> &points, const Band &band, Side side, const Hiding &hiding, int rank) {
  const auto front = frontOf(band, side);
  if (!front) return;
  const double inset = std::min(0.02, (front->to - front->from) / 4);
  if (!hiding.hides(front->from + inset, front->y)) points.push_back({{front->from, front->y}, rank});
  if (!hiding.hides(front->to - inset, front->y)) points.push_back({{front->to, front->y}, rank});
}

std::vector<ChainPoint> chosen(std::vector<Candidate> points) {
  std::ranges::stable_sort(points, {},
                           [](const Candidate &c) { return std::tuple(c.rank, c.point.from, c.point.at); });
  std::vector<ChainPoint> kept;
  for (const auto &[point, rank] : points) {
    const double closest = kClosest[rank];
    const auto next = std::ranges::lower_bound(kept, point.at, {}, &ChainPoint::at);
    if (next != kept.end() && next->at - point.at < closest) continue;
    if (next != kept.begin() && point.at - std::prev(next)->at < closest) continue;
    kept.insert(next, point);
  }
  return kept;
}

}  // namespace

std::vector<ChainPoint> chainOf(const Storey &storey, const std::vector<Polygon> &floors, Side side) {
  Hiding hiding;
  Box box;
  for (const Wall &wall : storey.walls)
    for (const Band &band : wall.whole) {
      hiding.walls.push_back(seenFrom(side, band.polygon()));
      box.add(hiding.walls.back());
    }
  for (const Polygon &floor : floors) hiding.floors.push_back(seenFrom(side, floor));
  if (box.isEmpty()) return {};
  std::vector<Candidate> points;
  for (const Wall &wall : storey.walls)
    for (const Band &band : wall.whole) add(points, band, side, hiding, kAtCorner);
  for (const Hole &hole : storey.holes) add(points, hole.band(), side, hiding, kAtEdge);
  for (const double end : {box.low.x, box.high.x}) {
    double from = box.high.y;
    for (const Polygon &wall : hiding.walls)
      for (const Point p : wall)
        if (std::abs(p.x - end) < 0.001) from = std::min(from, p.y);
    points.push_back({{end, from}, kAtEnd});
  }
  return chosen(std::move(points));
}

std::vector<Polygon> barriersOf(const Storey &storey) {
  std::vector<Polygon> barriers;
  for (const Wall &wall : storey.walls)
    for (const Band &band : wall.whole) barriers.push_back(band.polygon());
  for (const Hole &hole : storey.holes) barriers.push_back(hole.band().polygon());
  return barriers;
}

std::optional<ClearSize> clearSize(const std::vector<Polygon> &barriers, Point point, bool isVertical) {
  const Side side = isVertical ? Side::left : Side::top;  // so that the line runs along x
  const Point from = seenFrom(side, point);
  double left = -std::numeric_limits<double>::infinity(), right = -left;
  bool isSquareLeft = false, isSquareRight = false;
  for (const Polygon &barrier : barriers)
    for (std::size_t i = 0; i < barrier.size(); ++i) {
      const Point a = seenFrom(side, barrier[i]), b = seenFrom(side, barrier[(i + 1) % barrier.size()]);
      if ((a.y > from.y) == (b.y > from.y)) continue;
      const double x = xAt(from.y, a, b);
      const bool isSquare = std::abs(unit(b - a).x) < kAskew;
      if (x <= from.x && x > left) left = x, isSquareLeft = isSquare;
      if (x > from.x && x < right) right = x, isSquareRight = isSquare;
    }
  if (!std::isfinite(left) || !std::isfinite(right)) return std::nullopt;
  return ClearSize{seenFrom(side, {left, from.y}), seenFrom(side, {right, from.y}),
                   isSquareLeft && isSquareRight};
}

}  // namespace vantorel::plan
