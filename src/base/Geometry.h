// Plain geometry values that the ports and the rooms share.
#pragma once

#include <array>

namespace vantorel {

struct Float3 {
  float x = 0, y = 0, z = 0;
  bool operator==(const Float3 &) const = default;
};

/// A 4x4 matrix of 32-bit floats, column by column: elements 12, 13 and 14 are a pose's translation.
struct Float4x4 {
  std::array<float, 16> elements{};

  float at(int column, int row) const { return elements[static_cast<std::size_t>(4 * column + row)]; }
  /// Its first three rows: an axis, or for column 3 the translation.
  Float3 column(int index) const { return {at(index, 0), at(index, 1), at(index, 2)}; }
  bool operator==(const Float4x4 &) const = default;
};

/// In points, as views are measured.
struct Rect {
  double x = 0, y = 0, width = 0, height = 0;
};

}  // namespace vantorel
