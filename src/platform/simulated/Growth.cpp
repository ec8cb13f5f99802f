#include "platform/simulated/Growth.h"

#include <string_view>

namespace vantorel {
namespace {

// The part of its size that an element is first seen with.
constexpr double kFirstWidth = 0.3, kFirstHeight = 0.7, kFirstFurniture = 0.75;
constexpr double kMediumFrom = 1.0 / 3;

/// Low, then medium, then what it is in the end; never above that.
void raiseConfidence(EnumCase &confidence, double progress) {
  if (confidence.name == "low" || progress >= 1) return;
  confidence = {.name = progress < kMediumFrom ? "low" : "medium", .isOpen = {}, .payload = {}};
}

float scaled(float length, double first, double progress) {
  return static_cast<float>(length * (first + (1 - first) * progress));
}

/// Moves the centre along a local axis (a column of the transform).
void shift(Float4x4 &transform, int axis, float distance) {
  for (int row = 0; row < 3; ++row)
    transform.elements[static_cast<std::size_t>(12 + row)] += distance * transform.at(axis, row);
}

void resize(Float3 &dimensions, Float4x4 &transform, Float3 size) {
  shift(transform, 1, (size.y - dimensions.y) / 2);  // the foot stays
  dimensions = size;
}

}  // namespace

Surface grownInWall(Surface surface, double progress) {
  if (progress >= 1) return surface;
  raiseConfidence(surface.confidence, progress);
  if (surface.completedEdges) surface.completedEdges->clear();
  return surface;
}

Surface grownWall(Surface wall, double progress) {
  if (progress >= 1) return wall;
  wall = grownInWall(std::move(wall), progress);
  if (wall.curve && *wall.curve) return wall;
  const Float3 &full = wall.dimensions;
  const Float3 size{scaled(full.x, kFirstWidth, progress), scaled(full.y, kFirstHeight, progress), full.z};
  shift(wall.transform, 0, (size.x - full.x) / 2);  // the left end stays
  resize(wall.dimensions, wall.transform, size);
  if (wall.polygonCorners) wall.polygonCorners->clear();  // an outline of the full size
  return wall;
}

RoomObject grownObject(RoomObject object, double progress) {
  if (progress >= 1) return object;
  raiseConfidence(object.confidence, progress);
  const Float3 &full = object.dimensions;
  resize(object.dimensions, object.transform,
         {scaled(full.x, kFirstFurniture, progress), scaled(full.y, kFirstFurniture, progress),
          scaled(full.z, kFirstFurniture, progress)});
  if (object.attributes) object.attributes->clear();  // told apart only at the end
  return object;
}

}  // namespace vantorel
