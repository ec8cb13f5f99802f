// The solids of a room's elements, each in its element's own frame: metres, x to the right and y up as seen
// from the room, z towards the viewer. All are closed, so that no viewer has to draw back faces.
#pragma once

#include "rooms/RoomDocument.h"

#include <span>
#include <vector>

namespace vantorel {

/// Flat faces, one after the other: face i takes the next faceSizes[i] points, counter-clockwise as seen from
/// outside. Faces share no points.
struct Mesh {
  std::vector<Float3> points;
  std::vector<Float3> normals;  ///< one per point, of unit length, outward
  std::vector<int> faceSizes;

  void addFace(std::span<const Float3> corners, Float3 normal);
};

/// The least and the greatest coordinates of one or more points.
struct Bounds {
  Float3 low, high;
};
Bounds boundsOf(std::span<const Float3> points);

/// Every mesh keeps a length of at least 1 mm and coordinates within 1 km of its element's origin: sizes
/// beyond, and sizes of zero or below, are held there. Each throws std::runtime_error for a NaN or infinite
/// number.
Mesh wallMesh(const Surface &wall);         ///< 0.16 m thick, away from the room
Mesh panelMesh(const Surface &surface);     ///< a door or a window: 0.08 m thick, away from the room
Mesh floorMesh(const Surface &floor);       ///< the box around its corners, 0.16 m thick, downward
Mesh objectMesh(const RoomObject &object);  ///< a box of its dimensions, about its centre

}  // namespace vantorel
