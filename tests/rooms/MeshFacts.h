#pragma once

#include "rooms/RoomMesh.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

/// What can be measured of a mesh, from its points as 32-bit floats. Metres.
struct MeshFacts {
  double volume = 0;
  double frontArea = 0, backArea = 0;  ///< of the faces towards +z and -z
  double area = 0;
  std::string
      fault;  ///< of a solid: an open or a shared edge, a face without area, a wrong normal; empty if none
};
MeshFacts factsOf(const Mesh &mesh);

/// Of each mesh of a package, read back from its text.
std::vector<MeshFacts> factsOfPackage(std::string_view package);

/// Upright, seen from +z.
inline Surface surfaceOf(Float3 dimensions, Float3 at = {}) {
  Surface surface;
  surface.dimensions = dimensions;
  surface.transform = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, at.x, at.y, at.z, 1}};
  return surface;
}

inline Mesh wallWith(const Surface &wall, const std::vector<Surface> &openings,
                     std::optional<Turn> turn = {}) {
  std::vector<const Surface *> pointers;
  for (const Surface &opening : openings) pointers.push_back(&opening);
  return wallMesh(wall, pointers, turn);
}

}  // namespace vantorel::testing
