#include "plan/Lettering.h"

#include <algorithm>
#include <array>

namespace vantorel::plan {
namespace {

/// In thousandths of the size, from U+0020 to U+007E.
constexpr std::array<short, 95> kAdvances{
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

constexpr double kBold = 1.07;  // the bold face is that much wider on average

}  // namespace

double widthOf(std::string_view text) {
  double width = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F)
      width += kAdvances[byte - 0x20U] / 1000.0;
    else if (byte >= 0xC0)
      width += byte == 0xC2 ? 0.34 : byte >= 0xE1 ? 1 : 0.6;
  }
  return width;
}

double TextLine::width() const { return size * widthOf(text) * (weight == Weight::bold ? kBold : 1); }

double Label::width() const {
  double width = 0;
  for (const TextLine &line : lines) width = std::max(width, line.width());
  return width;
}

double Label::height() const {
  double height = 0;
  for (const TextLine &line : lines) height += line.size * (kAscent + kDescent);
  return height;
}

Box Label::box() const {
  return isUpright ? Box::around(centre, height(), width()) : Box::around(centre, width(), height());
}

}  // namespace vantorel::plan
