#include "plan/RoomAreas.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

constexpr double kSmallestCell = 0.02, kMostCellsAlong = 700;  // metres; along one side
constexpr double kNear = 0.5;          // metres to a section's centre inside of a wall
constexpr double kLeastArea = 1;       // square metres of a part that nobody named
constexpr double kShortestLeg = 0.05;  // metres of a wall that a loop takes
constexpr double kWidestGap = 0.4;     // metres between the walls of a loop

/// A part of a wall's inner face on the way round a room.
struct Leg {
  const Track *track;
  double from, to;
  Point start() const { return track->at(from); }
  Point end() const { return track->at(to); }
};

/// How the way can go on along a wall: in its own direction, and where its end is nearer against that.
std::vector<Leg> legsFrom(Point point, const Track &track) {
  const double whole = track.length(), along = std::clamp(track.along(point), 0.0, whole);
  std::vector<Leg> legs;
  if (whole - along >= kShortestLeg) legs.push_back({&track, along, whole});
  legs.push_back({&track, whole, 0});
  std::erase_if(legs, [&](const Leg &leg) { return length(leg.start() - point) > kWidestGap; });
  return legs;
}

/// The nearest way on from the end of a leg, else one from before its end, for walls may be seen beyond
/// a corner; the leg then ends there.
std::optional<Leg> nextLeg(Leg &last, const std::vector<const Track *> &rest) {
  std::vector<Leg> legs;
  for (const Track *track : rest)
    if (track != last.track)
      for (const Leg &leg : legsFrom(last.end(), *track)) legs.push_back(leg);
  const auto gap = [&](const Leg &leg) { return length(leg.start() - last.end()); };
  if (!legs.empty()) return *std::ranges::min_element(legs, {}, gap);
  for (const Track *track : rest)
    for (const Leg &leg : {Leg{track, 0, track->length()}, Leg{track, track->length(), 0}}) {
      const auto [low, high] = std::minmax(last.from, last.to);
      const double along = last.track->along(leg.start());
      if (along <= low + kShortestLeg || along >= high ||
          length(last.track->at(along) - leg.start()) > kWidestGap)
        continue;
      last.to = along;
      return leg;
    }
  return std::nullopt;
}

/// The inner faces of walls that follow each other, from the longest on; empty when they do not close.
Polygon loopOf(const std::vector<Wall> &walls) {
  if (walls.empty()) return {};
  std::vector<const Track *> rest;
  rest.reserve(walls.size());
  for (const Wall &wall : walls) rest.push_back(&wall.track);
  const Track *first = *std::ranges::max_element(rest, {}, &Track::length);
  std::vector<Leg> loop{{first, 0, first->length()}};
  while (!rest.empty()) {
    const auto next = nextLeg(loop.back(), rest);
    if (!next) return {};
    std::erase(rest, next->track);
    if (next->track == first) {
      loop.front().from = next->from < next->to ? next->from : 0;
      Polygon outline;
      for (const Leg &leg : loop)
        for (const Point point : leg.track->line(leg.from, leg.to, 0)) outline.push_back(point);
      return outline;
    }
    loop.push_back(*next);
  }
  return {};
}

}  // namespace

RoomAreas::RoomAreas(const Storey &storey) : floors_(storey.floors) {
  if (floors_.empty())
    if (Polygon loop = loopOf(storey.walls); !loop.empty()) floors_.push_back(std::move(loop));
  for (const LabelledPlace &section : storey.sections) areas_.push_back({section.centre, section.name});
  layOut(storey);
  nameComponents();
  takeWholeFloors();
}

bool RoomAreas::isIn(std::size_t area, Point point) const {
  const auto cell = cellAt(point);
  return !areas_[area].squareMetres || (cell && owners_[*cell] == static_cast<int>(area));
}

bool RoomAreas::isInSpace(std::size_t area, Point from, Point to) const {
  constexpr int kSteps = 24;
  for (int i = 1; i < kSteps; ++i) {
    const auto cell = cellAt(from + (to - from) * (static_cast<double>(i) / kSteps));
    const int owner = cell ? owners_[*cell] : kOutside;
    if (owner < 0 || areas_[static_cast<std::size_t>(owner)].space != areas_[area].space) return false;
  }
  return true;
}

void RoomAreas::layOut(const Storey &storey) {
  Box box;
  for (const Polygon &floor : floors_) box.add(floor);
  if (box.isEmpty()) return;
  origin_ = box.low;
  cell_ = std::max({kSmallestCell, box.width() / kMostCellsAlong, box.height() / kMostCellsAlong});
  columns_ = static_cast<std::size_t>(box.width() / cell_) + 1;
  rows_ = static_cast<std::size_t>(box.height() / cell_) + 1;
  owners_.assign(columns_ * rows_, kOutside);
  for (const Polygon &floor : floors_) fill(floor, kUnclaimed);
  const auto close = [&](Band band) {
    band.depth = std::max(band.depth, 1.5 * cell_);
    fill(band.polygon(), kOutside);
  };
  for (const Wall &wall : storey.walls) std::ranges::for_each(wall.whole, close);
  for (const Hole &hole : storey.holes) close(hole.band());
}

void RoomAreas::fill(const Polygon &polygon, int value) {
  const Box box = boundsOf(polygon);
  const auto clamped = [&](double at, std::size_t count) {
    return static_cast<std::size_t>(std::clamp(std::ceil(at / cell_ - 0.5), 0.0, static_cast<double>(count)));
  };
  const std::size_t last = clamped(box.high.y - origin_.y, rows_);
  for (std::size_t row = clamped(box.low.y - origin_.y, rows_); row < last; ++row) {
    const double y = placeOf(row * columns_).y;
    std::vector<double> crossings;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
      const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
      if ((a.y > y) != (b.y > y)) crossings.push_back(xAt(y, a, b) - origin_.x);
    }
    std::ranges::sort(crossings);
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
      for (std::size_t x = clamped(crossings[i], columns_); x < clamped(crossings[i + 1], columns_); ++x)
        owners_[row * columns_ + x] = value;
  }
}

std::optional<std::size_t> RoomAreas::cellAt(Point point) const {
  const Point at = (point - origin_) * (1 / cell_);
  if (!(at.x >= 0 && at.y >= 0 && at.x < static_cast<double>(columns_) && at.y < static_cast<double>(rows_)))
    return std::nullopt;
  return static_cast<std::size_t>(at.y) * columns_ + static_cast<std::size_t>(at.x);
}

Point RoomAreas::placeOf(std::size_t cell) const {
  const std::size_t column = cell % columns_, row = cell / columns_;
  return origin_ + Point{static_cast<double>(column) + 0.5, static_cast<double>(row) + 0.5} * cell_;
}

std::optional<std::size_t> RoomAreas::freeCellNear(Point point) const {
  constexpr int kRings = 10;
  for (int ring = 0; ring <= kRings; ++ring)
    for (int y = -ring; y <= ring; ++y)
      for (int x = -ring; x <= ring; ++x) {
        if (std::max(std::abs(x), std::abs(y)) != ring) continue;
        const auto cell = cellAt(point + Point{x * kNear / kRings, y * kNear / kRings});
        if (cell && owners_[*cell] == kUnclaimed) return cell;
      }
  return std::nullopt;
}

RoomAreas::Component RoomAreas::componentOf(std::size_t cell, std::vector<bool> &seen) const {
  Component component{cell};
  seen[cell] = true;
  const auto visit = [&](std::size_t neighbour) {
    if (seen[neighbour] || owners_[neighbour] != kUnclaimed) return;
    seen[neighbour] = true;
    component.push_back(neighbour);
  };
  for (std::size_t next = 0; next < component.size();) {
    const std::size_t at = component[next++], column = at % columns_;
    if (column > 0) visit(at - 1);
    if (column + 1 < columns_) visit(at + 1);
    if (at >= columns_) visit(at - columns_);
    if (at + columns_ < owners_.size()) visit(at + columns_);
  }
  return component;
}

void RoomAreas::claim(std::size_t space, const Component &component,
                      const std::vector<std::size_t> &claimants) {
  for (const std::size_t area : claimants) {
    areas_[area].squareMetres = 0;
    areas_[area].space = space;
    areas_[area].isShare = claimants.size() > 1;
  }
  for (const std::size_t cell : component) {
    const auto distance = [&](std::size_t area) { return length(placeOf(cell) - areas_[area].centre); };
    const std::size_t nearest = *std::ranges::min_element(claimants, {}, distance);
    *areas_[nearest].squareMetres += cell_ * cell_;
    owners_[cell] = static_cast<int>(nearest);
  }
}

void RoomAreas::nameComponents() {
  std::vector<int> componentAt(owners_.size(), -1);
  std::vector<Component> components;
  std::vector<bool> seen(owners_.size());
  for (std::size_t cell = 0; cell < owners_.size(); ++cell) {
    if (seen[cell] || owners_[cell] != kUnclaimed) continue;
    components.push_back(componentOf(cell, seen));
    for (const std::size_t member : components.back())
      componentAt[member] = static_cast<int>(components.size() - 1);
  }
  std::vector<std::vector<std::size_t>> claimants(components.size());
  for (std::size_t area = 0; area < areas_.size(); ++area)
    if (const auto cell = freeCellNear(areas_[area].centre))
      claimants[static_cast<std::size_t>(componentAt[*cell])].push_back(area);
  const std::string name = areas_.empty() ? "Room" : "";
  for (std::size_t i = 0; i < components.size(); ++i) {
    if (claimants[i].empty() && areaOf(components[i]) >= kLeastArea) {
      areas_.push_back({middleOf(components[i]), name});
      claimants[i] = {areas_.size() - 1};
    }
    if (!claimants[i].empty()) claim(i, components[i], claimants[i]);
  }
}

double RoomAreas::areaOf(const Component &component) const {
  return static_cast<double>(component.size()) * cell_ * cell_;
}

Point RoomAreas::middleOf(const Component &component) const {
  Point sum;
  for (const std::size_t cell : component) sum = sum + placeOf(cell);
  return sum * (1 / static_cast<double>(component.size()));
}

/// The polygon's own area where the floor has one name and no other part was found on it.
void RoomAreas::takeWholeFloors() {
  for (const Polygon &floor : floors_) {
    RoomArea *only = nullptr;
    std::size_t count = 0;
    for (RoomArea &area : areas_)
      if (area.squareMetres && contains(floor, area.centre)) only = &area, ++count;
    if (count == 1) only->squareMetres = plan::areaOf(floor);
  }
}

}  // namespace vantorel::plan
