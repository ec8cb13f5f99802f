#include "plan/Board.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

constexpr double kCell = 32;  // pixels
constexpr double kMostCells = 400;
constexpr std::size_t kMostMarked = 64;  // shapes in a cell, after which marks make no difference

std::size_t cellCount(double pixels) {
  return static_cast<std::size_t>(std::clamp(pixels / kCell, 0.0, kMostCells)) + 1;
}

}  // namespace

Board::Board(const Box &extent)
    : extent_(extent),
      columns_(cellCount(extent.width())),
      rows_(cellCount(extent.height())),
      cells_(columns_ * rows_) {}

bool Board::isFree(const Box &box) const {
  if (box.low.x < extent_.low.x || box.low.y < extent_.low.y || box.high.x > extent_.high.x ||
      box.high.y > extent_.high.y)
    return false;
  const auto blocks = [&](std::uint32_t i) {
    const Shape &shape = shapes_[i];
    return shape.cost == kBlocked && shape.box.meets(box) && meets(shape.polygon, box);
  };
  const Cells cells = cellsOf(box);
  for (std::size_t y = cells.top; y <= cells.bottom; ++y)
    for (std::size_t x = cells.left; x <= cells.right; ++x)
      if (std::ranges::any_of(cells_[y * columns_ + x], blocks)) return false;
  return true;
}

double Board::cost(const Box &box) const {
  double sum = 0;
  for (const std::uint32_t i : near(box)) {
    const Shape &shape = shapes_[i];
    if (shape.cost == kBlocked) continue;
    if (edgeMeets(shape.polygon, box))
      sum += shape.cost;
    else if (contains(shape.polygon, box.centre()))
      sum += shape.cost / 2;
  }
  return sum;
}

void Board::add(const Polygon &polygon, double cost) {
  const auto number = static_cast<std::uint32_t>(shapes_.size());
  shapes_.push_back({polygon, boundsOf(polygon).grown(0.01), cost});
  const Cells cells = cellsOf(shapes_.back().box);
  for (std::size_t y = cells.top; y <= cells.bottom; ++y)
    for (std::size_t x = cells.left; x <= cells.right; ++x) {
      std::vector<std::uint32_t> &cell = cells_[y * columns_ + x];
      if (cost == kBlocked || cell.size() < kMostMarked) cell.push_back(number);
    }
}

Board::Cells Board::cellsOf(const Box &box) const {
  const auto cell = [](double pixels, std::size_t count) {
    return static_cast<std::size_t>(std::clamp(pixels / kCell, 0.0, static_cast<double>(count - 1)));
  };
  const Point low = box.low - extent_.low, high = box.high - extent_.low;
  return {cell(low.x, columns_), cell(low.y, rows_), cell(high.x, columns_), cell(high.y, rows_)};
}

std::vector<std::uint32_t> Board::near(const Box &box) const {
  std::vector<std::uint32_t> found;
  const Cells cells = cellsOf(box);
  for (std::size_t y = cells.top; y <= cells.bottom; ++y)
    for (std::size_t x = cells.left; x <= cells.right; ++x)
      for (const std::uint32_t i : cells_[y * columns_ + x])
        if (shapes_[i].box.meets(box)) found.push_back(i);
  std::ranges::sort(found);
  const auto again = std::ranges::unique(found);
  found.erase(again.begin(), again.end());
  return found;
}

}  // namespace vantorel::plan
