// The camera's matrices as the host reads them: "[a, b, ...]", 16 floats row by row, each the shortest text
// that reads back, always with a fraction or an exponent.
#pragma once

#include "base/Geometry.h"

#include <string>

namespace vantorel {

/// Turned from the platform's camera convention into the host's: rows 0 and 1 of the rotation and the z
/// translation change sign. Zeros keep theirs.
std::string cameraPoseText(const Float4x4 &pose);

/// Columns 1, 0, 2, 3 of each row, the element of column 0 negated in the first row.
std::string cameraProjectionText(const Float4x4 &projection);

}  // namespace vantorel
