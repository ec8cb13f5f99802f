#pragma once

#include "plan/Plane.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel::plan {

/// How wide a text is set, in the font's size: the advance widths of Helvetica, which most sans-serif fonts of
/// its metrics share. U+0080 to U+00BF are 0.34 wide, what follows 0.6, and from U+1000 on 1.
double widthOf(std::string_view text);

enum class Weight { normal, bold };

struct TextLine {
  std::string text;
  double size;  ///< pixels
  Weight weight = Weight::normal;
  double width() const;
};

/// A text of some lines around a point. It takes a box: each line kAscent above its base line and kDescent
/// below, in its size.
struct Label {
  static constexpr double kAscent = 0.78, kDescent = 0.24;

  std::vector<TextLine> lines;
  Point centre{};
  bool isUpright = false;  ///< reads from the bottom to the top

  double width() const;
  double height() const;
  Box box() const;
};

}  // namespace vantorel::plan
