#include "platform/simulated/Canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

/// Each row of pixels is measured along this many lines.
constexpr int kSamples = 4;
/// How often the whole picture may be painted over.
constexpr double kLayers = 60;

std::uint8_t mixed(std::uint8_t under, std::uint8_t over, double share) {
  return static_cast<std::uint8_t>(std::lround(under + (over - under) * share));
}

int clampedTo(double value, int limit) {
  return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
}

}  // namespace

Canvas::Canvas(int width, int height, Colour background)
    : picture_{width, height, {}},
      coverage_(static_cast<std::size_t>(width) + 1),
      allowance_(kLayers * width * height) {
  std::vector<std::uint8_t> row;
  for (int column = 0; column < width; ++column)
    row.insert(row.end(), {background.red, background.green, background.blue});
  picture_.rgb.reserve(row.size() * static_cast<std::size_t>(height));
  for (int i = 0; i < height; ++i) picture_.rgb.insert(picture_.rgb.end(), row.begin(), row.end());
}

void Canvas::fill(std::span<const Point> corners, Colour colour) {
  const bool isFinite = std::ranges::all_of(
      corners, [](Point corner) { return std::isfinite(corner.x) && std::isfinite(corner.y); });
  if (!isFinite || corners.empty()) return;
  const Box box = boxAround(corners);
  if (!spend(box, corners.size())) return;
  for (int row = box.top; row < box.bottom; ++row) {
    measureRow(corners, box, row);
    paintRow(box, row, colour);
  }
}

void Canvas::line(Point from, Point to, double width, Colour colour, double beyond) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (!(length > 0)) return;
  const Point along{(to.x - from.x) / length, (to.y - from.y) / length};
  const Point end{along.x * beyond, along.y * beyond};
  const Point side{-along.y * width / 2, along.x * width / 2};
  from = {from.x - end.x, from.y - end.y};
  to = {to.x + end.x, to.y + end.y};
  const Point corners[] = {{from.x - side.x, from.y - side.y},
                           {from.x + side.x, from.y + side.y},
                           {to.x + side.x, to.y + side.y},
                           {to.x - side.x, to.y - side.y}};
  fill(corners, colour);
}

void Canvas::disc(Point centre, double radius, Colour colour) {
  constexpr int kCorners = 24;
  std::vector<Point> corners;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCorners;
    corners.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
  fill(corners, colour);
}

void Canvas::outline(std::span<const Point> corners, double width, Colour colour) {
  for (std::size_t i = 0; i < corners.size(); ++i)
    line(corners[i], corners[(i + 1) % corners.size()], width, colour, width / 2);
}

/// The pixels that the shape may touch.
Canvas::Box Canvas::boxAround(std::span<const Point> corners) const {
  const auto [left, right] = std::ranges::minmax(corners, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(corners, {}, &Point::y);
  return {clampedTo(std::floor(left.x), picture_.width), clampedTo(std::floor(top.y), picture_.height),
          clampedTo(std::ceil(right.x), picture_.width), clampedTo(std::ceil(bottom.y), picture_.height)};
}

/// False when so much has been painted that the shape is to be left out.
bool Canvas::spend(const Box &box, std::size_t corners) {
  const double perRow = box.right - box.left + kSamples * static_cast<double>(corners);
  allowance_ -= perRow * (box.bottom - box.top);
  return allowance_ >= 0;
}

/// How much of each pixel the shape covers.
void Canvas::measureRow(std::span<const Point> corners, const Box &box, int row) {
  std::fill(coverage_.begin() + box.left, coverage_.begin() + box.right + 1, 0);
  for (int sample = 0; sample < kSamples; ++sample) {
    const double y = row + (sample + 0.5) / kSamples;
    crossings_.clear();
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const Point &a = corners[i], &b = corners[(i + 1) % corners.size()];
      if ((a.y <= y) != (b.y <= y)) crossings_.push_back(a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x));
    }
    std::ranges::sort(crossings_);
    for (std::size_t i = 0; i + 1 < crossings_.size(); i += 2) cover(crossings_[i], crossings_[i + 1]);
  }
}

void Canvas::cover(double left, double right) {
  const double width = picture_.width;
  left = std::clamp(left, 0.0, width);
  right = std::clamp(right, 0.0, width);
  const auto first = static_cast<std::size_t>(left), last = static_cast<std::size_t>(right);
  for (std::size_t i = first; i <= last; ++i) {
    const auto pixel = static_cast<double>(i);
    coverage_[i] += std::max(0.0, std::min(right, pixel + 1) - std::max(left, pixel)) / kSamples;
  }
}

void Canvas::paintRow(const Box &box, int row, Colour colour) {
  std::uint8_t *pixel = &picture_.rgb[3 * static_cast<std::size_t>(row * picture_.width + box.left)];
  for (int column = box.left; column < box.right; ++column, pixel += 3) {
    const double share = std::min(coverage_[static_cast<std::size_t>(column)], 1.0) * colour.opacity;
    pixel[0] = mixed(pixel[0], colour.red, share);
    pixel[1] = mixed(pixel[1], colour.green, share);
    pixel[2] = mixed(pixel[2], colour.blue, share);
  }
}

}  // namespace vantorel
