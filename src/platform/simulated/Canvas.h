#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace vantorel {

/// Rows from the top, three bytes a pixel: red, green, blue.
struct Picture {
  int width = 0, height = 0;
  std::vector<std::uint8_t> rgb;
};

struct Colour {
  std::uint8_t red = 0, green = 0, blue = 0;
  double opacity = 1;
};

/// From the left and the top; on a canvas in pixels.
struct Point {
  double x = 0, y = 0;
};

/// Paints shapes with smooth edges. What lies outside is cut off, and a shape with a NaN or an infinity is left
/// out. However many and large the shapes are, painting ends soon: what no picture needs is left out too.
class Canvas {
 public:
  Canvas(int width, int height, Colour background);

  /// Where outlines cross, every second part is a hole.
  void fill(std::span<const Point> corners, Colour colour);
  /// The ends reach `beyond` farther.
  void line(Point from, Point to, double width, Colour colour, double beyond = 0);
  void disc(Point centre, double radius, Colour colour);
  void outline(std::span<const Point> corners, double width, Colour colour);

  const Picture &picture() const { return picture_; }

 private:
  struct Box {
    int left, top, right, bottom;
  };

  Box boxAround(std::span<const Point> corners) const;
  bool spend(const Box &box, std::size_t corners);
  void measureRow(std::span<const Point> corners, const Box &box, int row);
  void cover(double left, double right);
  void paintRow(const Box &box, int row, Colour colour);

  Picture picture_;
  std::vector<double> coverage_;  // of the pixels of a row, 0 to 1, and of one beyond
  std::vector<double> crossings_;
  double allowance_;
};

}  // namespace vantorel
