// Points, boxes and polygons of a floor plan: x to the right, y towards the bottom of the paper.
#pragma once

#include <cmath>
#include <limits>
#include <vector>

namespace vantorel::plan {

struct Point {
  double x = 0, y = 0;
};

inline Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
inline Point operator*(Point a, double s) { return {a.x * s, a.y * s}; }
inline double dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }
inline double cross(Point a, Point b) { return a.x * b.y - a.y * b.x; }
inline double length(Point a) { return std::sqrt(dot(a, a)); }
/// Where the line through a and b has that y.
inline double xAt(double y, Point a, Point b) { return a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x); }
inline Point middle(Point a, Point b) { return (a + b) * 0.5; }
/// A quarter turn clockwise, as the paper shows it.
inline Point turned(Point a) { return {-a.y, a.x}; }
/// Of length 1; of (0, 0) itself.
Point unit(Point a);

using Polygon = std::vector<Point>;

struct Box {
  Point low{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
  Point high{-low.x, -low.y};

  static Box around(Point centre, double width, double height);
  void add(Point point);
  void add(const Polygon &polygon);
  bool isEmpty() const { return low.x > high.x; }
  double width() const { return isEmpty() ? 0 : high.x - low.x; }
  double height() const { return isEmpty() ? 0 : high.y - low.y; }
  Point centre() const { return middle(low, high); }
  Box grown(double by) const;
  bool meets(const Box &other) const;
  Polygon corners() const;
};

Box boundsOf(const Polygon &polygon);
/// Without sign; a polygon that crosses itself counts parts with their winding.
double areaOf(const Polygon &polygon);
bool contains(const Polygon &polygon, Point point);
bool meet(Point a, Point b, Point c, Point d);
/// Whether an edge of the polygon enters the box.
bool edgeMeets(const Polygon &polygon, const Box &box);
/// Whether they share a point.
bool meets(const Polygon &polygon, const Box &box);

}  // namespace vantorel::plan
