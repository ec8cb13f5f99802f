#pragma once

#include "plan/Storey.h"
#include "plan/SvgText.h"

namespace vantorel::plan {

/// What tells a bed from a table without words: the lines within a piece's outline. Its front is where +z is.
Path symbolOf(const Furniture &thing, const Sheet &sheet);

}  // namespace vantorel::plan
