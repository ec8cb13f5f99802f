// When two surfaces are one and the same, seen from two rooms.
#pragma once

#include "base/Geometry.h"
#include "rooms/BoxTree.h"
#include "rooms/RoomDocument.h"

#include <array>
#include <optional>

namespace vantorel {

using Vector = std::array<double, 3>;

/// A plane, upright or not, with edges along its x and y axes; z points into the room it was seen from.
struct Rectangle {
  Vector center, x, y, z;
  double width, height;  ///< metres, above zero
};

/// None for a surface that is curved, has corners of its own, or has no area.
std::optional<Rectangle> rectangleOf(const Surface &surface);

/// The box around an element of this size about the transform's origin.
Box boxOf(const Float4x4 &transform, Float3 dimensions);

/// How far apart, in metres, two coinciding surfaces can be at a place that both cover.
inline constexpr double kCoincidenceReach = 0.30;

/// Whether two surfaces of different rooms are the same thing. `other` is not larger than `surface`.
/// - Their x and z axes are within 10 degrees of each other's lines, and so their y axes within 15.
/// - Facing the same way: the middle of `other` is at most 0.10 m off the plane of `surface`.
///   Back to back: it is at most 0.30 m behind that plane, or 0.10 m before it. So the two sides of a dividing
///   wall are one, and the two walls of a corridor, which face each other, are not.
/// - At least the part `leastOverlap` of the area of `other` lies on `surface`.
bool coincide(const Rectangle &surface, const Rectangle &other, double leastOverlap);

}  // namespace vantorel
