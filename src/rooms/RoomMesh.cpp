#include "rooms/RoomMesh.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace vantorel {
namespace {

constexpr float kWallThickness = 0.16f;  // as RoomPlan's own models have it
constexpr float kPanelThickness = 0.08f;
constexpr float kLeastSize = 0.001f;
constexpr float kFarthest = 1000;

struct BoxFace {
  int corners[4];
  Float3 normal;
};

// Corner i has the high x, y and z where the bits 0, 1 and 2 of i are set.
constexpr BoxFace kBoxFaces[] = {
    {{1, 3, 7, 5}, {1, 0, 0}},  {{0, 4, 6, 2}, {-1, 0, 0}}, {{2, 6, 7, 3}, {0, 1, 0}},
    {{0, 1, 5, 4}, {0, -1, 0}}, {{4, 5, 7, 6}, {0, 0, 1}},  {{0, 2, 3, 1}, {0, 0, -1}},
};

Mesh boxMesh(Bounds box) {
  const auto corner = [&box](int i) {
    return Float3{i & 1 ? box.high.x : box.low.x, i & 2 ? box.high.y : box.low.y,
                  i & 4 ? box.high.z : box.low.z};
  };
  Mesh mesh;
  for (const BoxFace &face : kBoxFaces) {
    const Float3 corners[] = {corner(face.corners[0]), corner(face.corners[1]), corner(face.corners[2]),
                              corner(face.corners[3])};
    mesh.addFace(corners, face.normal);
  }
  return mesh;
}

void requireFinite(Float3 value) {
  if (!std::isfinite(value.x) || !std::isfinite(value.y) || !std::isfinite(value.z))
    throw std::runtime_error("a size of the room is not a finite number");
}

float halfSize(float size) { return std::clamp(size, kLeastSize, kFarthest) / 2; }

/// A box of this width and height about the origin.
Mesh slab(Float3 dimensions, float thickness) {
  requireFinite(dimensions);
  const float x = halfSize(dimensions.x), y = halfSize(dimensions.y);
  return boxMesh({{-x, -y, -thickness}, {x, y, 0}});
}

/// Moves two coordinates into reach and at least the least size apart.
void separate(float &low, float &high) {
  low = std::clamp(low, -kFarthest, kFarthest);
  high = std::clamp(high, -kFarthest, kFarthest);
  if (high - low >= kLeastSize) return;
  const float middle = (low + high) / 2;
  low = middle - kLeastSize / 2;
  high = middle + kLeastSize / 2;
}

}  // namespace

void Mesh::addFace(std::span<const Float3> corners, Float3 normal) {
  points.insert(points.end(), corners.begin(), corners.end());
  normals.insert(normals.end(), corners.size(), normal);
  faceSizes.push_back(static_cast<int>(corners.size()));
}

Bounds boundsOf(std::span<const Float3> points) {
  Bounds box{points.front(), points.front()};
  for (const Float3 &point : points) {
    box.low = {std::min(box.low.x, point.x), std::min(box.low.y, point.y), std::min(box.low.z, point.z)};
    box.high = {std::max(box.high.x, point.x), std::max(box.high.y, point.y), std::max(box.high.z, point.z)};
  }
  return box;
}

Mesh wallMesh(const Surface &wall) { return slab(wall.dimensions, kWallThickness); }

Mesh panelMesh(const Surface &surface) { return slab(surface.dimensions, kPanelThickness); }

Mesh floorMesh(const Surface &floor) {
  if (!floor.polygonCorners || floor.polygonCorners->empty()) return slab(floor.dimensions, kWallThickness);
  for (const Float3 &corner : *floor.polygonCorners) requireFinite(corner);
  Bounds box = boundsOf(*floor.polygonCorners);
  separate(box.low.x, box.high.x);
  separate(box.low.y, box.high.y);
  box.low.z = -kWallThickness;
  box.high.z = 0;
  return boxMesh(box);
}

Mesh objectMesh(const RoomObject &object) {
  requireFinite(object.dimensions);
  const Float3 half{halfSize(object.dimensions.x), halfSize(object.dimensions.y),
                    halfSize(object.dimensions.z)};
  return boxMesh({{-half.x, -half.y, -half.z}, half});
}

}  // namespace vantorel
