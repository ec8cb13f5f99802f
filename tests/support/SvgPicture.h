// What a floor plan shows, read from its SVG text alone.
#pragma once

#include "plan/Plane.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

struct PictureText {
  std::string style, text;
  plan::Box box;  ///< 0.78 of the size above the base line, 0.24 below, as wide as textLength
};

struct SvgPicture {
  std::vector<PictureText> texts;
  std::vector<plan::Polygon> walls;  ///< the parts of paths of the class "walls", arcs as chords
  plan::Box sheet;
};

/// Throws std::runtime_error for what is no well-formed XML, or no number where the picture needs one.
SvgPicture readSvg(std::string_view svg);

/// Labels that overlap, lie over a wall or leave the sheet, a line each; empty when all is well.
std::string labelFaults(const SvgPicture &picture);

}  // namespace vantorel::testing
