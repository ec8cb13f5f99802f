#include "plan/WallSolids.h"

#include <algorithm>
#include <map>

namespace vantorel::plan {
namespace {

constexpr double kReach = 0.12;           // metres that a corner may gape
constexpr double kThrough = 0.45;         // metres that a hole goes through walls back to back
constexpr double kParallel = 0.985;       // the cosine of 10 degrees
constexpr double kLeastSine = 0.15;       // of the angle of a corner, for a mitre
constexpr double kLongestMitre = 4;       // in depths
constexpr double kSteep = 0.7;            // of the angle at which a wall ends at another one
constexpr double kShortestPiece = 0.005;  // metres

/// The part of `wall` before the piece of the other one, as places along the wall.
std::pair<double, double> shadow(const Track &wall, const Track &other, double from, double to) {
  return std::minmax({wall.along(other.at(from)), wall.along(other.at(to))});
}

bool isBackToBack(const Track &a, const Track &b) {
  return a.isStraight() && b.isStraight() && dot(a.back(0), b.back(0)) < -kParallel;
}

/// The pieces of `band` outside of and inside of the places from `from` to `to`.
void splitBand(const Band &band, double from, double to, std::vector<Band> &outside,
               std::vector<Band> *inside) {
  const double a = std::clamp(from, band.from, band.to), b = std::clamp(to, band.from, band.to);
  const auto piece = [&](double first, double last) {
    Band part = band;
    part.from = first, part.to = last;
    part.outerFrom = first == band.from ? band.outerFrom : first;
    part.outerTo = last == band.to ? band.outerTo : last;
    return part;
  };
  if (a - std::min(band.from, band.outerFrom) > kShortestPiece) outside.push_back(piece(band.from, a));
  if (inside && b - a > kShortestPiece) inside->push_back(piece(a, b));
  if (std::max(band.to, band.outerTo) - b > kShortestPiece) outside.push_back(piece(b, band.to));
}

/// Where `wall` stands back to back with `other`, it reaches to the middle of both.
void narrow(Wall &wall, const Track &other) {
  const double gap = wall.track.depth(other.at(other.length() / 2));
  if (!isBackToBack(wall.track, other) || gap < 0.02 || gap > 2 * kWallDepth) return;
  const auto [from, to] = shadow(wall.track, other, 0, other.length());
  std::vector<Band> pieces;
  for (const Band &band : wall.whole) {
    std::vector<Band> before;
    splitBand(band, from, to, pieces, &before);
    for (Band &narrowed : before) {
      narrowed.depth = std::min(narrowed.depth, gap / 2);
      pieces.push_back(narrowed);
    }
  }
  std::ranges::sort(pieces, {}, &Band::from);
  wall.whole = std::move(pieces);
}

/// One end of a wall.
struct End {
  Wall *wall;
  bool isLast;
  double along() const { return isLast ? wall->track.length() : 0; }
  Point place() const { return wall->track.at(along()); }
  Point direction() const { return wall->track.direction(along()); }
  Band &band() const { return isLast ? wall->whole.back() : wall->whole.front(); }
  Point outer() const { return wall->track.at(along(), band().depth); }
};

/// How far along `direction` from `point` the line through `through` crosses.
double crossing(Point point, Point direction, Point through, Point otherDirection) {
  return cross(through - point, otherDirection) / cross(direction, otherDirection);
}

/// How much farther an end's corners reach than the wall itself.
struct Shift {
  double inner = 0, outer = 0;
};

/// To the other wall's faces; nothing for walls that go on straight or meet in too sharp a corner.
std::optional<Shift> mitre(const End &end, const End &other) {
  if (std::abs(cross(end.direction(), other.direction())) < kLeastSine) return std::nullopt;
  Shift shift{crossing(end.place(), end.direction(), other.place(), other.direction()),
              crossing(end.outer(), end.direction(), other.outer(), other.direction())};
  if (std::abs(shift.inner) > 2 * kReach) shift.inner = 0;
  if (std::abs(shift.outer) > kLongestMitre * std::max(end.band().depth, other.band().depth)) shift.outer = 0;
  return shift;
}

/// Up to the wall that the end nearly or slightly more than touches.
Shift abut(const End &end, const std::vector<Wall> &walls) {
  for (const Wall &wall : walls) {
    if (&wall == end.wall || !wall.track.isStraight()) continue;
    const double along = wall.track.along(end.place()), depth = wall.track.depth(end.place());
    if (along < 0 || along > wall.track.length() || depth < -kReach || depth > kReach + kWallDepth) continue;
    const Point direction = wall.track.direction(0);
    if (std::abs(cross(end.direction(), direction)) < kSteep) continue;
    const Point face = wall.track.at(0, depth < kWallDepth / 2 ? 0 : kWallDepth);
    const Shift shift{crossing(end.place(), end.direction(), face, direction),
                      crossing(end.outer(), end.direction(), face, direction)};
    return std::max(std::abs(shift.inner), std::abs(shift.outer)) > 2 * kReach ? Shift{} : shift;
  }
  return {};
}

/// Where three or more walls meet, each reaches as far as any of the others needs it.
Shift shiftOf(const End &end, const std::vector<Wall> &walls, const std::vector<End> &ends) {
  std::vector<Shift> shifts;
  std::size_t others = 0;
  for (const End &other : ends) {
    if (other.wall == end.wall || length(other.place() - end.place()) > kReach) continue;
    ++others;
    if (const auto shift = mitre(end, other)) shifts.push_back(*shift);
  }
  if (others == 0) return abut(end, walls);
  if (others == 1) return shifts.empty() ? Shift{} : shifts[0];
  const double sign = end.isLast ? 1 : -1;  // of a shift that makes the wall longer
  Shift most;
  for (const Shift &shift : shifts) {
    most.inner = sign * std::max(sign * most.inner, sign * shift.inner);
    most.outer = sign * std::max(sign * most.outer, sign * shift.outer);
  }
  return most;
}

/// An end cannot go past the piece's other end.
void apply(const End &end, Shift shift) {
  Band &band = end.band();
  const double most = band.to - band.from, sign = end.isLast ? 1 : -1;
  const auto limited = [&](double by) { return std::max(sign * by, -most) * sign; };
  (end.isLast ? band.outerTo : band.outerFrom) = end.along() + limited(shift.outer);
  (end.isLast ? band.to : band.from) = end.along() + limited(shift.inner);
}

void joinWalls(std::vector<Wall> &walls) {
  std::vector<End> ends;
  for (Wall &wall : walls)
    for (const bool isLast : {false, true}) ends.push_back({&wall, isLast});
  std::vector<Shift> shifts;
  shifts.reserve(ends.size());
  for (const End &end : ends) shifts.push_back(shiftOf(end, walls, ends));
  for (std::size_t i = 0; i < ends.size(); ++i) apply(ends[i], shifts[i]);
}

void cut(Wall &wall, double from, double to) {
  std::vector<Band> rest;
  for (const Band &band : wall.solid) splitBand(band, from, to, rest, nullptr);
  wall.solid = std::move(rest);
}

Wall *wallOf(const Hole &hole, std::vector<Wall> &walls, const std::map<Uuid, Wall *> &byIdentifier) {
  if (hole.wall && byIdentifier.contains(*hole.wall)) return byIdentifier.at(*hole.wall);
  const Point place = hole.track.at(hole.track.length() / 2);
  Wall *nearest = nullptr;
  double least = 0.3;
  for (Wall &wall : walls) {
    const double along = wall.track.along(place), away = std::abs(wall.track.depth(place));
    if (along < 0 || along > wall.track.length() || away >= least) continue;
    if (std::abs(dot(wall.track.direction(along), hole.track.direction(0))) < kParallel) continue;
    nearest = &wall, least = away;
  }
  return nearest;
}

double depthAt(const Wall &wall, double along) {
  for (const Band &band : wall.whole)
    if (along >= band.from && along <= band.to) return band.depth;
  return kWallDepth;
}

/// Cuts what stands back to back with the hole's wall too; the hole then goes through both.
void cutThrough(Hole &hole, std::vector<Wall> &walls, const Wall *own) {
  for (Wall &wall : walls) {
    if (&wall == own || !isBackToBack(hole.track, wall.track)) continue;
    const double gap =
        hole.track.depth(wall.track.at(wall.track.along(hole.track.at((hole.from + hole.to) / 2))));
    if (gap < -0.05 || gap > kThrough) continue;
    const auto [from, to] = shadow(wall.track, hole.track, hole.from, hole.to);
    if (std::min(to, wall.track.length()) - std::max(from, 0.0) < (to - from) / 2) continue;
    cut(wall, from, to);
    hole.depth = std::max({hole.depth, gap});
  }
}

void fit(Hole &hole, std::vector<Wall> &walls, const std::map<Uuid, Wall *> &byIdentifier) {
  Wall *wall = wallOf(hole, walls, byIdentifier);
  if (wall) {
    const double half = hole.track.length() / 2, along = wall->track.along(hole.track.at(half));
    const double from = std::max(along - half, 0.0), to = std::min(along + half, wall->track.length());
    if (to - from > kShortestPiece) {
      hole.track = wall->track, hole.from = from, hole.to = to;
      hole.depth = depthAt(*wall, along);
      cut(*wall, from, to);
    }
  }
  cutThrough(hole, walls, wall);
}

}  // namespace

void raiseWalls(Storey &storey) {
  std::vector<Wall> &walls = storey.walls;
  for (Wall &wall : walls) wall.whole = {{&wall.track, 0, wall.track.length(), kWallDepth}};
  for (Wall &wall : walls)
    for (const Wall &other : walls)
      if (&other != &wall) narrow(wall, other.track);
  joinWalls(walls);
  std::map<Uuid, Wall *> byIdentifier;
  for (Wall &wall : walls) {
    wall.solid = wall.whole;
    byIdentifier.emplace(wall.identifier, &wall);
  }
  for (Hole &hole : storey.holes) fit(hole, walls, byIdentifier);
}

}  // namespace vantorel::plan
