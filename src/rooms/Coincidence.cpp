#include "rooms/Coincidence.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr double kCosineOf10Degrees = 0.98480775301220806;
constexpr double kSameFace = 0.10;  // metres: what two scans of one surface differ by

double dot(const Vector &a, const Vector &b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

bool areAligned(const Vector &a, const Vector &b) { return std::abs(dot(a, b)) >= kCosineOf10Degrees; }

Vector columnOf(const Float4x4 &transform, int column) {
  return {transform.at(column, 0), transform.at(column, 1), transform.at(column, 2)};
}

/// How much two lengths share when their middles lie this far apart.
double sharedLength(double a, double b, double distance) {
  return std::clamp((a + b) / 2 - std::abs(distance), 0.0, std::min(a, b));
}

}  // namespace

std::optional<Rectangle> rectangleOf(const Surface &surface) {
  const bool isCurved = surface.curve && *surface.curve;
  const bool hasCorners = surface.polygonCorners && !surface.polygonCorners->empty();
  const Float3 size = surface.dimensions;
  if (isCurved || hasCorners || !(size.x > 0) || !(size.y > 0)) return std::nullopt;
  const Float4x4 &transform = surface.transform;
  return Rectangle{columnOf(transform, 3),
                   columnOf(transform, 0),
                   columnOf(transform, 1),
                   columnOf(transform, 2),
                   size.x,
                   size.y};
}

Box boxOf(const Float4x4 &transform, Float3 dimensions) {
  const Vector center = columnOf(transform, 3), x = columnOf(transform, 0), y = columnOf(transform, 1),
               z = columnOf(transform, 2);
  Box box;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const double half = (std::abs(x[axis]) * dimensions.x + std::abs(y[axis]) * dimensions.y +
                         std::abs(z[axis]) * dimensions.z) /
                        2;
    box.low[axis] = center[axis] - half;
    box.high[axis] = center[axis] + half;
  }
  return box;
}

bool coincide(const Rectangle &surface, const Rectangle &other, double leastOverlap) {
  if (!areAligned(surface.x, other.x) || !areAligned(surface.z, other.z)) return false;
  const Vector way{other.center[0] - surface.center[0], other.center[1] - surface.center[1],
                   other.center[2] - surface.center[2]};
  const double ahead = dot(way, surface.z);
  const double farthestBehind = dot(surface.z, other.z) > 0 ? kSameFace : kCoincidenceReach;
  if (ahead > kSameFace || ahead < -farthestBehind) return false;
  const double shared = sharedLength(surface.width, other.width, dot(way, surface.x)) *
                        sharedLength(surface.height, other.height, dot(way, surface.y));
  return shared >= leastOverlap * other.width * other.height;
}

}  // namespace vantorel
