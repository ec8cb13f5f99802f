#pragma once

#include "rooms/Solid.h"
#include "rooms/UsdText.h"

namespace vantorel {

/// The attributes of a Mesh prim: its triangles, normals and points, in metres, with their extent.
void writeUsdMesh(UsdText &usd, const Mesh &mesh);

/// Writes a length in metres, the shortest decimal, without a NUL, and returns the end. At most
/// kMicrometresTextMax characters.
char *writeMicrometres(char *out, std::int32_t micrometres);
inline constexpr std::size_t kMicrometresTextMax = 12;

}  // namespace vantorel
