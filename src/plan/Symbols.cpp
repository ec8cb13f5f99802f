#include "plan/Symbols.h"

#include <algorithm>
#include <string_view>

namespace vantorel::plan {
namespace {

/// Draws in a piece's own frame: in metres, x to its right, y to its front, (0, 0) in its middle.
class Pen {
 public:
  Pen(const Furniture &thing, const Sheet &sheet)
      : thing_(thing),
        path(sheet),
        x(unit(thing.right)),
        y(unit(thing.front)),
        w(length(thing.right)),
        d(length(thing.front)) {}

  Point at(double right, double front) const { return thing_.centre + x * right + y * front; }
  void line(double x0, double y0, double x1, double y1) { path.segment(at(x0, y0), at(x1, y1)); }
  void box(double x0, double y0, double x1, double y1) {
    path.polygon({at(x0, y0), at(x1, y0), at(x1, y1), at(x0, y1)});
  }
  /// The outline this much smaller; nothing in pieces that are too small.
  void inset(double by) {
    if (by < std::min(w, d)) box(by - w, by - d, w - by, d - by);
  }
  void ellipse(double cx, double cy, double rx, double ry) { path.ellipse(at(cx, cy), x * rx, y * ry); }
  void circle(double cx, double cy, double radius) { ellipse(cx, cy, radius, radius); }

 private:
  const Furniture &thing_;

 public:
  Path path;
  Point x, y;
  double w, d;  // half the width and the depth
};

void drawBed(Pen &pen) {
  const double pillow = std::min(0.4, pen.d * 0.5), gap = std::min(0.06, pen.w * 0.1);
  const int pillows = pen.w > 0.6 ? 2 : 1;
  const double width = (2 * pen.w - (pillows + 1) * gap) / pillows;
  for (int i = 0; i < pillows; ++i) {
    const double left = -pen.w + gap + i * (width + gap);
    pen.box(left, -pen.d + gap, left + width, -pen.d + gap + pillow);
  }
  pen.line(-pen.w, -pen.d + pillow + 2.5 * gap, pen.w, -pen.d + pillow + 2.5 * gap);
}

void drawSofa(Pen &pen) {
  const double back = std::min(0.2, pen.d * 0.4), arm = std::min(0.16, pen.w * 0.25);
  pen.line(-pen.w + arm, -pen.d + back, pen.w - arm, -pen.d + back);
  for (const double side : {-pen.w + arm, pen.w - arm}) pen.line(side, -pen.d + back, side, pen.d);
  if (pen.w > 0.8) pen.line(0, -pen.d + back, 0, pen.d);
}

void drawChair(Pen &pen) {
  const double back = std::min(0.08, pen.d * 0.3);
  pen.line(-pen.w, -pen.d + back, pen.w, -pen.d + back);
}

void drawBasin(Pen &pen) {
  const double edge = std::min(pen.w, pen.d) * 0.22;
  pen.ellipse(0, edge * 0.4, pen.w - edge, pen.d - edge);
  pen.circle(0, edge * 0.4, std::min(pen.w, pen.d) * 0.08);
}

void drawTub(Pen &pen) {
  pen.inset(std::min(0.07, std::min(pen.w, pen.d) * 0.3));
  const double r = std::min(pen.w, pen.d) * 0.1;
  pen.w >= pen.d ? pen.circle(-pen.w + 5 * r, 0, r) : pen.circle(0, -pen.d + 5 * r, r);
}

void drawToilet(Pen &pen) {
  const double tank = std::min(0.2, pen.d * 0.6);
  pen.line(-pen.w, -pen.d + tank, pen.w, -pen.d + tank);
  pen.ellipse(0, tank / 2, pen.w * 0.8, (pen.d - tank / 2) * 0.92);
}

void drawStove(Pen &pen) {
  const double r = std::min(pen.w, pen.d) * 0.3;
  for (const double cx : {-pen.w / 2, pen.w / 2})
    for (const double cy : {-pen.d / 2, pen.d / 2}) pen.circle(cx, cy, r);
}

void drawDrum(Pen &pen) {
  pen.inset(0.04);
  pen.circle(0, 0, std::min(pen.w, pen.d) * 0.6);
}

void drawFront(Pen &pen) {
  const double door = std::min(0.06, pen.d * 0.3);
  pen.line(-pen.w, pen.d - door, pen.w, pen.d - door);
}

void drawStairs(Pen &pen) {
  constexpr double kTread = 0.28;
  const bool isAlong = pen.d >= pen.w;
  const double half = isAlong ? pen.d : pen.w;
  const int treads = static_cast<int>(std::min(2 * half / kTread, 100.0));
  for (int i = 1; i < treads; ++i) {
    const double at = -half + 2 * half * i / treads;
    isAlong ? pen.line(-pen.w, at, pen.w, at) : pen.line(at, -pen.d, at, pen.d);
  }
}

struct Symbol {
  std::string_view category;
  void (*draw)(Pen &pen);
};

constexpr Symbol kSymbols[] = {
    {"bed", drawBed},      {"sofa", drawSofa},        {"chair", drawChair},        {"sink", drawBasin},
    {"bathtub", drawTub},  {"toilet", drawToilet},    {"stove", drawStove},        {"washerDryer", drawDrum},
    {"oven", drawFront},   {"dishwasher", drawFront}, {"refrigerator", drawFront}, {"fireplace", drawFront},
    {"stairs", drawStairs}};

}  // namespace

Path symbolOf(const Furniture &thing, const Sheet &sheet) {
  Pen pen(thing, sheet);
  for (const Symbol &symbol : kSymbols)
    if (symbol.category == thing.category) symbol.draw(pen);
  return pen.path;
}

}  // namespace vantorel::plan
