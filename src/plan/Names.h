#pragma once

#include "plan/LabelPlacing.h"
#include "plan/StoreyDrawing.h"
#include "plan/Units.h"

#include <map>
#include <string>
#include <vector>

namespace vantorel::plan {

/// Names that stand below a storey because there was no room for them in it.
class Legend {
 public:
  /// The number that stands for the name, from 1.
  std::size_t numberOf(const std::string &name);
  /// Something of that name for which not even a number had room.
  void addMissing(const std::string &name) { ++missing_[name]; }

  /// "1 Chair", and last "no room for: 2 Chair".
  std::vector<std::string> entries() const;

 private:
  std::vector<std::string> names_;
  std::map<std::string, std::size_t> numbers_, missing_;
};

/// The rooms' names and areas: in the middle of their room or near it, else smaller, upright, or as a number.
void drawRoomNames(const BuiltStorey &built, const Sheet &sheet, Units units, SvgText &svg, Board &board,
                   Legend &legend);

/// The furniture's names, the smallest first, for they have the least choice: inside of its outline where no other
/// piece hides it, else a number there or on what hides it, else one beside it with a line that leads to it.
void drawFurnitureNames(const BuiltStorey &built, const Sheet &sheet, SvgText &svg, Board &board,
                        Legend &legend);

}  // namespace vantorel::plan
