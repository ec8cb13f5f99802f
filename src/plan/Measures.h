#pragma once

#include "plan/StoreyDrawing.h"
#include "plan/Units.h"

namespace vantorel::plan {

/// How far chains of lengths reach beyond the building, in pixels: two rows at the top and the left, one at the
/// bottom and the right.
inline constexpr double kNearMargin = 84, kFarMargin = 56;

/// Chains along the building's sides: at the top and the left also the whole length, at the bottom and the right
/// only where something divides them. A part that is too short for its number has it one row farther out, or
/// where that is taken none.
void drawChains(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board);

/// The clear width and depth of each room, of at most 60 rooms, where they cross the least.
void drawClearSizes(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board);

}  // namespace vantorel::plan
