#pragma once

#include "plan/Board.h"
#include "plan/Dimensions.h"
#include "plan/DoorLeaves.h"
#include "plan/RoomAreas.h"
#include "plan/SvgText.h"

#include <string>
#include <vector>

namespace vantorel::plan {

/// A storey that is ready to be drawn: walls raised, doors opened, areas known. Metres.
struct BuiltStorey {
  explicit BuiltStorey(Storey &from);
  BuiltStorey(const BuiltStorey &) = delete;

  const Storey &storey;
  std::vector<std::vector<DoorLeaf>> doors;  ///< of each hole
  RoomAreas rooms;
  std::vector<Polygon> barriers;
  Box bounds;  ///< of all that is drawn
};

/// Floors, furniture, walls and what lies in them. What labels have to mind goes on the board.
void drawBuilding(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board);

}  // namespace vantorel::plan
