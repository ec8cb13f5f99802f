#include "plan/LabelPlacing.h"

#include <algorithm>

namespace vantorel::plan {
namespace {

constexpr int kMostRings = 40;

/// A square ring of places around the origin, in steps.
std::vector<Point> ringOf(int ring) {
  std::vector<Point> places;
  for (int y = -ring; y <= ring; ++y)
    for (int x = -ring; x <= ring; x += std::abs(y) == ring ? 1 : std::max(2 * ring, 1))
      places.push_back({static_cast<double>(x), static_cast<double>(y)});
  return places;
}

}  // namespace

std::optional<Placed> bestPlace(const Board &board, Label label, const Search &search) {
  std::optional<Placed> best;
  for (int ring = 0; ring <= kMostRings && ring * search.step <= search.reach; ++ring) {
    if (best && best->cost <= ring * search.step * search.distanceCost) break;
    for (const Point offset : ringOf(ring)) {
      label.centre = search.wanted + offset * search.step;
      const double away = length(offset) * search.step * search.distanceCost;
      if (away > search.mostCost || (best && away >= best->cost)) continue;
      const Box box = label.box();
      if (!search.isAllowed(box) || !board.isFree(box)) continue;
      const double cost = away + board.cost(box);
      if (cost <= search.mostCost && (!best || cost < best->cost)) best = Placed{label, cost};
    }
  }
  return best;
}

std::optional<Label> firstThatFits(const Board &board, const std::vector<Label> &labels,
                                   const Search &search) {
  for (const Label &label : labels)
    if (auto placed = bestPlace(board, label, search)) return placed->label;
  return std::nullopt;
}

}  // namespace vantorel::plan
