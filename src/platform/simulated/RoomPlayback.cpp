#include "platform/simulated/RoomPlayback.h"

#include "platform/simulated/Growth.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <tuple>

namespace vantorel {
namespace {

constexpr double kLongest = 3600;     // seconds
constexpr double kMostUpdates = 1e5;  // of one session

// The phases, as shares of the session.
constexpr double kWallsEnd = 0.65, kFurnitureEnd = 0.98, kFloorsFrom = 0.85, kSectionsFrom = 0.92;
constexpr double kInWallTime = 0.15, kFurnitureTime = 0.1;
/// A wall is still growing when the next one is found.
constexpr double kWallOverlap = 1.5;

// Where somebody looks who scans walls, and furniture.
constexpr double kWallPitch = -0.05, kFurniturePitch = -0.4;  // radians

/// A person is told to come closer, hurries, is slowed down, gets too close.
constexpr std::array<std::pair<double, Instruction>, 6> kCoaching = {{
    {0.05, Instruction::moveCloseToWall},
    {0.12, Instruction::normal},
    {0.35, Instruction::slowDown},
    {0.42, Instruction::normal},
    {0.70, Instruction::moveAwayFromWall},
    {0.76, Instruction::normal},
}};

template <typename Element>
Float3 meanCentre(const std::vector<Element> &elements) {
  double x = 0, y = 0, z = 0;
  for (const Element &element : elements) {
    const Float3 centre = element.transform.column(3);
    x += centre.x, y += centre.y, z += centre.z;
  }
  const double count = std::max<double>(1, static_cast<double>(elements.size()));
  return {static_cast<float>(x / count), static_cast<float>(y / count), static_cast<float>(z / count)};
}

/// The elements' places in the order of somebody who turns round, beginning with the first element.
template <typename Element>
std::vector<std::size_t> ranksAround(const std::vector<Element> &elements) {
  const Float3 middle = meanCentre(elements);
  const auto angleOf = [&](const Element &element) {
    const Float3 centre = element.transform.column(3);
    const double angle = std::atan2(centre.x - middle.x, middle.z - centre.z);
    return std::isnan(angle) ? 0 : angle;  // numbers beyond reason still have an order
  };
  std::vector<std::pair<double, std::size_t>> turned;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const double turn = angleOf(elements[i]) - angleOf(elements[0]);
    turned.emplace_back(turn < 0 ? turn + 2 * std::numbers::pi : turn, i);
  }
  std::sort(turned.begin(), turned.end());
  std::vector<std::size_t> ranks(elements.size());
  for (std::size_t rank = 0; rank < turned.size(); ++rank) ranks[turned[rank].second] = rank;
  return ranks;
}

double lowestPoint(const RoomDocument &room) {
  double lowest = 0;
  bool isFirst = true;
  const auto visit = [&](const auto &element) {
    const double foot = element.transform.at(3, 1) - element.dimensions.y / 2.0;
    if (isFirst || foot < lowest) lowest = foot;
    isFirst = false;
  };
  for (const auto &wall : room.walls) visit(wall);
  for (const auto &object : room.objects) visit(object);
  return lowest;
}

/// The elements that have been seen by then, as far as they are known.
template <typename Element, typename Span, typename Grown>
std::vector<Element> foundBy(double share, const std::vector<Element> &elements,
                             const std::vector<Span> &spans, Grown grown) {
  std::vector<Element> found;
  for (std::size_t i = 0; i < elements.size(); ++i) {
    const auto [start, end] = spans[i];
    if (share >= start) found.push_back(grown(elements[i], std::min(1.0, (share - start) / (end - start))));
  }
  return found;
}

template <typename Visit>
void visitElements(RoomDocument &room, Visit visit) {
  for (auto *surfaces : {&room.walls, &room.doors, &room.windows, &room.openings})
    for (Surface &surface : *surfaces) visit(surface);
  for (RoomObject &object : room.objects) visit(object);
}

/// No element names a parent that has not been found.
void forgetUnknownParents(RoomDocument &room) {
  std::set<Uuid> known;
  visitElements(room, [&](const auto &element) { known.insert(element.identifier); });
  visitElements(room, [&](auto &element) {
    auto &parent = element.parentIdentifier;
    if (parent && *parent && !known.count(**parent)) parent->reset();
  });
}

}  // namespace

std::optional<std::string> RoomPlayback::refusal(double seconds, double rate) {
  if (!(seconds >= 0 && seconds <= kLongest)) return "a scan lasts from 0 to 3600 seconds";
  if (!(rate > 0 && rate <= 1000)) return "the rate must be above 0 and at most 1000 updates a second";
  if (seconds * rate > kMostUpdates) return "a scan has at most 100000 updates";
  return std::nullopt;
}

RoomPlayback::RoomPlayback(std::shared_ptr<const RoomDocument> room, double seconds, double rate)
    : room_(std::move(room)),
      identifier_(identifierOf(*room_)),
      duration_(std::llround(seconds * 1e9)),
      plan_(planOf(*room_)),
      walk_(walkOf(*room_, plan_)) {
  addSteps(static_cast<Time>(std::min(1e18, 1e9 / rate)));
}

RoomPlayback::Plan RoomPlayback::planOf(const RoomDocument &room) {
  const double wallsEnd = room.walls.empty() ? 0 : kWallsEnd;
  const double wallStep = wallsEnd / (static_cast<double>(room.walls.size()) - 1 + kWallOverlap);
  Plan plan;
  plan.walls = spansFrom(0, wallStep, wallStep * kWallOverlap, ranksAround(room.walls));
  std::map<Uuid, double> standsFrom;
  for (std::size_t i = 0; i < room.walls.size(); ++i)
    standsFrom.emplace(room.walls[i].identifier, plan.walls[i].end);
  for (auto [surfaces, spans] : {std::pair(&room.doors, &plan.doors), std::pair(&room.windows, &plan.windows),
                                 std::pair(&room.openings, &plan.openings)}) {
    for (const Surface &surface : *surfaces) {
      const auto wall = standsFrom.find(surface.parentIdentifier.value_or(std::nullopt).value_or(Uuid{}));
      const double start = wall == standsFrom.end() ? wallsEnd : wall->second;
      spans->push_back({start, start + kInWallTime});
    }
  }
  const double furnitureStep = (kFurnitureEnd - kFurnitureTime - wallsEnd) /
                               std::max<double>(1, static_cast<double>(room.objects.size()));
  plan.objects = spansFrom(wallsEnd, furnitureStep, kFurnitureTime, ranksAround(room.objects));
  return plan;
}

/// One span for each rank: a step apart, each as long.
std::vector<RoomPlayback::Span> RoomPlayback::spansFrom(double first, double step, double length,
                                                        const std::vector<std::size_t> &ranks) {
  std::vector<Span> spans;
  for (const std::size_t rank : ranks) {
    const double start = first + step * static_cast<double>(rank);
    spans.push_back({start, start + length});
  }
  return spans;
}

CameraWalk RoomPlayback::walkOf(const RoomDocument &room, const Plan &plan) {
  std::vector<CameraWalk::Sight> sights;
  for (std::size_t i = 0; i < room.walls.size(); ++i)
    sights.push_back({plan.walls[i].start, room.walls[i].transform.column(3), kWallPitch});
  for (std::size_t i = 0; i < room.objects.size(); ++i)
    sights.push_back({plan.objects[i].start, room.objects[i].transform.column(3), kFurniturePitch});
  std::stable_sort(sights.begin(), sights.end(),
                   [](const auto &a, const auto &b) { return a.share < b.share; });
  return CameraWalk(sights, lowestPoint(room));
}

void RoomPlayback::addSteps(Time period) {
  for (const auto &[share, instruction] : kCoaching)
    steps_.push_back({std::llround(share * static_cast<double>(duration_)), instruction});
  for (Time due = period; due < duration_ - period / 2; due += period) steps_.push_back({due, Update{}});
  std::stable_sort(steps_.begin(), steps_.end(), [](const Step &a, const Step &b) { return a.due < b.due; });
  steps_.push_back({duration_, Update{}});
}

double RoomPlayback::shareOf(Time time) const {
  if (time >= duration_) return 1;
  return static_cast<double>(std::max<Time>(0, time)) / static_cast<double>(duration_);
}

std::shared_ptr<const RoomDocument> RoomPlayback::roomAt(Time time) const {
  if (time >= duration_) return room_;
  const double share = shareOf(time);
  auto room = std::make_shared<RoomDocument>(*room_);
  room->walls = foundBy(share, room_->walls, plan_.walls, grownWall);
  room->doors = foundBy(share, room_->doors, plan_.doors, grownInWall);
  room->windows = foundBy(share, room_->windows, plan_.windows, grownInWall);
  room->openings = foundBy(share, room_->openings, plan_.openings, grownInWall);
  room->objects = foundBy(share, room_->objects, plan_.objects, grownObject);
  if (room->floors && share < kFloorsFrom) room->floors->clear();
  if (room->sections && share < kSectionsFrom) room->sections->clear();
  forgetUnknownParents(*room);
  return room;
}

}  // namespace vantorel
