#pragma once

#include "plan/Plane.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantorel::plan {

/// What lies where on a sheet, for finding room for labels. Shapes are kept in a grid of cells, so that a look
/// costs what lies nearby. Pixels.
class Board {
 public:
  explicit Board(const Box &extent);

  /// No label may touch this.
  void block(const Polygon &shape) { add(shape, kBlocked); }
  void block(const Box &box) { block(box.corners()); }
  void block(Point from, Point to) { block(Polygon{from, to}); }
  /// A label should not cross its edges, and better not lie in it either.
  void mark(const Polygon &shape, double cost) { add(shape, cost); }

  /// Lies within the sheet and touches nothing that is blocked.
  bool isFree(const Box &box) const;
  /// The sum of what the box crosses (all of the cost) and lies in (half of it).
  double cost(const Box &box) const;

 private:
  static constexpr double kBlocked = -1;

  struct Shape {
    Polygon polygon;
    Box box;
    double cost;
  };
  struct Cells {
    std::size_t left, top, right, bottom;
  };

  void add(const Polygon &shape, double cost);
  Cells cellsOf(const Box &box) const;
  /// Those whose bounds meet the box, each once, in the order in which they came.
  std::vector<std::uint32_t> near(const Box &box) const;

  Box extent_;
  std::size_t columns_, rows_;
  std::vector<Shape> shapes_;
  std::vector<std::vector<std::uint32_t>> cells_;
};

}  // namespace vantorel::plan
