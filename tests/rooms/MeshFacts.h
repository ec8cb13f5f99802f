#pragma once

#include "rooms/Solid.h"

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

}  // namespace vantorel::testing
