#include "rooms/StructureCheck.h"

#include "rooms/BoxTree.h"
#include "rooms/BuildStructure.h"
#include "rooms/Coincidence.h"
#include "rooms/SceneLimits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantorel {
namespace {

using Kind = StructureError::Kind;

constexpr double kVicinity = 50;    // metres from each room, or group of rooms, to the next
constexpr double kRigidity = 1e-3;  // by which a transform's numbers may miss; real ones miss by 3e-7

bool areFinite(std::span<const float> values) {
  return std::all_of(values.begin(), values.end(), [](float value) { return std::isfinite(value); });
}

bool areFinite(Float3 vector) { return areFinite(std::array{vector.x, vector.y, vector.z}); }

bool areFinite(const Curve::Angle &angle) {
  return std::isfinite(angle.value) && std::isfinite(angle.coefficient) && std::isfinite(angle.constant);
}

bool areFinite(const Curve &curve) {
  return areFinite(curve.startAngle) && areFinite(curve.endAngle) && std::isfinite(curve.radius) &&
         (!curve.center || areFinite(*curve.center));
}

bool areWithin(Float3 vector, float limit) {
  return std::abs(vector.x) <= limit && std::abs(vector.y) <= limit && std::abs(vector.z) <= limit;
}

bool isNear(double value, double expected) { return std::abs(value - expected) <= kRigidity; }

double dot(Float3 a, Float3 b) {
  return static_cast<double>(a.x) * b.x + static_cast<double>(a.y) * b.y + static_cast<double>(a.z) * b.z;
}

/// Of finite numbers: three axes of unit length, square to each other and right-handed, and a place.
bool isPlacement(const Float4x4 &matrix) {
  const Float3 x = matrix.column(0), y = matrix.column(1), z = matrix.column(2);
  const bool hasLastRow = isNear(matrix.at(0, 3), 0) && isNear(matrix.at(1, 3), 0) &&
                          isNear(matrix.at(2, 3), 0) && isNear(matrix.at(3, 3), 1);
  const bool areUnit = isNear(dot(x, x), 1) && isNear(dot(y, y), 1) && isNear(dot(z, z), 1);
  const bool areSquare = isNear(dot(x, y), 0) && isNear(dot(y, z), 0) && isNear(dot(z, x), 0);
  const Float3 cross{x.y * y.z - x.z * y.y, x.z * y.x - x.x * y.z, x.x * y.y - x.y * y.x};
  return hasLastRow && areUnit && areSquare && dot(cross, z) > 0;
}

/// Looks through one room and finds the box around its elements.
class RoomCheck {
 public:
  explicit RoomCheck(std::size_t number) : number_(number) {}
  std::optional<Box> check(const RoomDocument &room);

 private:
  template <typename Element>
  void check(const std::vector<Element> &elements, std::string_view list);
  template <typename Element>
  void checkPlace(const Element &element);
  void checkShape(const Surface &surface);
  void checkShape(const RoomObject &) {}
  void checkPlace(const Section &section);
  void checkShape(const Section &) {}
  void require(bool condition, Kind kind, const char *reason) const;

  const std::size_t number_;
  std::string_view list_;  // where it is looking
  std::size_t index_ = 0;
  std::optional<Box> box_;
};

void RoomCheck::require(bool condition, Kind kind, const char *reason) const {
  if (condition) return;
  std::string place = "room " + std::to_string(number_);
  if (!list_.empty()) place += std::string(", ").append(list_) + '[' + std::to_string(index_) + ']';
  throw StructureError(kind, place + ": " + reason);
}

template <typename Element>
void RoomCheck::check(const std::vector<Element> &elements, std::string_view list) {
  list_ = list;
  for (index_ = 0; index_ < elements.size(); ++index_) {
    checkPlace(elements[index_]);
    checkShape(elements[index_]);
  }
}

template <typename Element>
void RoomCheck::checkPlace(const Element &element) {
  const Float3 size = element.dimensions;
  require(areFinite(size) && areFinite(element.transform.elements), Kind::invalidInput,
          "a number is not finite");
  require(size.x >= 0 && size.y >= 0 && size.z >= 0, Kind::invalidInput, "a length is negative");
  require(isPlacement(element.transform), Kind::invalidInput, "the transform does more than turn and move");
  require(areWithin(size, kLongestElement), Kind::exceedSceneSizeLimit, "longer than 1 km");
  require(areWithin(element.transform.column(3), kSceneReach), Kind::exceedSceneSizeLimit,
          "more than 16,384 m from the origin");
  if (!box_) box_.emplace();
  box_->include(boxOf(element.transform, size));
}

void RoomCheck::checkShape(const Surface &surface) {
  if (surface.curve && *surface.curve)
    require(areFinite(**surface.curve), Kind::invalidInput, "a number of the curve is not finite");
  if (!surface.polygonCorners) return;
  for (const Float3 &corner : *surface.polygonCorners) {
    require(areFinite(corner), Kind::invalidInput, "a number of a corner is not finite");
    require(areWithin(corner, kLongestElement), Kind::exceedSceneSizeLimit, "longer than 1 km");
  }
}

void RoomCheck::checkPlace(const Section &section) {
  require(areFinite(section.center), Kind::invalidInput, "a number is not finite");
  require(areWithin(section.center, kSceneReach), Kind::exceedSceneSizeLimit,
          "more than 16,384 m from the origin");
}

std::optional<Box> RoomCheck::check(const RoomDocument &room) {
  if (room.referenceOriginTransform)
    require(areFinite(room.referenceOriginTransform->elements), Kind::invalidInput, "a number is not finite");
  check(room.walls, "walls");
  check(room.doors, "doors");
  check(room.windows, "windows");
  check(room.openings, "openings");
  check(room.objects, "objects");
  if (room.floors) check(*room.floors, "floors");
  if (room.sections) check(*room.sections, "sections");
  return box_;
}

/// Whether one can get from each box to every other by steps to boxes within the vicinity, measured along the
/// axis on which two boxes are farthest apart.
bool lieTogether(const std::vector<Box> &boxes) {
  BoxTree unreached(boxes);
  for (std::size_t i = 1; i < boxes.size(); ++i) unreached.insert(i);
  std::vector<std::size_t> reached{0};
  for (std::size_t next = 0; next < reached.size(); ++next)
    for (std::size_t i : unreached.touching(boxes[reached[next]].grownBy(kVicinity))) {
      unreached.erase(i);
      reached.push_back(i);
    }
  return reached.size() == boxes.size();
}

}  // namespace

void requireMergeable(const std::vector<std::shared_ptr<const RoomDocument>> &rooms) {
  if (std::all_of(rooms.begin(), rooms.end(), [](const auto &room) { return room->isEmpty(); }))
    throw StructureError(Kind::insufficientInput, "no room has a wall, door, window, opening or object");
  std::vector<Box> boxes;
  for (std::size_t i = 0; i < rooms.size(); ++i)
    if (const auto box = RoomCheck(i).check(*rooms[i])) boxes.push_back(*box);
  if (!lieTogether(boxes))
    throw StructureError(Kind::invalidRoomLocation, "more than 50 m lie between some rooms and the rest");
}

}  // namespace vantorel
