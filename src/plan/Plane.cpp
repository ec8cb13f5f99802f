#include "plan/Plane.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

bool contains(const Box &box, Point p) {
  return p.x >= box.low.x && p.x <= box.high.x && p.y >= box.low.y && p.y <= box.high.y;
}

}  // namespace

Point unit(Point a) {
  const double size = length(a);
  return size > 0 ? a * (1 / size) : a;
}

Box Box::around(Point centre, double width, double height) {
  const Point half{width / 2, height / 2};
  return {centre - half, centre + half};
}

void Box::add(Point point) {
  low = {std::min(low.x, point.x), std::min(low.y, point.y)};
  high = {std::max(high.x, point.x), std::max(high.y, point.y)};
}

void Box::add(const Polygon &polygon) {
  for (const Point corner : polygon) add(corner);
}

Box Box::grown(double by) const { return {low - Point{by, by}, high + Point{by, by}}; }

bool Box::meets(const Box &other) const {
  return low.x < other.high.x && other.low.x < high.x && low.y < other.high.y && other.low.y < high.y;
}

Polygon Box::corners() const { return {low, {high.x, low.y}, high, {low.x, high.y}}; }

Box boundsOf(const Polygon &polygon) {
  Box box;
  box.add(polygon);
  return box;
}

double areaOf(const Polygon &polygon) {
  double twice = 0;
  for (std::size_t i = 0; i < polygon.size(); ++i)
    twice += cross(polygon[i] - polygon[0], polygon[(i + 1) % polygon.size()] - polygon[0]);
  return std::abs(twice) / 2;
}

bool contains(const Polygon &polygon, Point p) {
  bool isInside = false;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < xAt(p.y, a, b)) isInside = !isInside;
  }
  return isInside;
}

bool meet(Point a, Point b, Point c, Point d) {
  const double c1 = cross(b - a, c - a), d1 = cross(b - a, d - a);
  const double a1 = cross(d - c, a - c), b1 = cross(d - c, b - c);
  return (c1 > 0) != (d1 > 0) && (a1 > 0) != (b1 > 0);
}

bool edgeMeets(const Polygon &polygon, const Box &box) {
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point a = polygon[i], b = polygon[(i + 1) % polygon.size()];
    if (contains(box, a)) return true;
    if (meet(a, b, box.low, box.high) || meet(a, b, {box.low.x, box.high.y}, {box.high.x, box.low.y}))
      return true;
  }
  return false;
}

bool meets(const Polygon &polygon, const Box &box) {
  return edgeMeets(polygon, box) || contains(polygon, box.centre());
}

}  // namespace vantorel::plan
