#include "rooms/BoxTree.h"

#include <algorithm>
#include <bit>

namespace vantorel {
namespace {

/// The axis along which the points spread most.
template <typename Points>
std::size_t widestAxis(Points first, Points last) {
  std::array<float, 3> low = first->at, high = low;
  for (; first != last; ++first)
    for (std::size_t axis = 0; axis < 3; ++axis) {
      low[axis] = std::min(low[axis], first->at[axis]);
      high[axis] = std::max(high[axis], first->at[axis]);
    }
  const std::array spread{high[0] - low[0], high[1] - low[1], high[2] - low[2]};
  return static_cast<std::size_t>(std::max_element(spread.begin(), spread.end()) - spread.begin());
}

std::array<float, 3> middleOf(const Box &box) {
  const auto middle = [&box](std::size_t axis) {
    return static_cast<float>((box.low[axis] + box.high[axis]) / 2);
  };
  return {middle(0), middle(1), middle(2)};
}

}  // namespace

void Box::include(const Box &other) {
  for (std::size_t axis = 0; axis < 3; ++axis) {
    low[axis] = std::min(low[axis], other.low[axis]);
    high[axis] = std::max(high[axis], other.high[axis]);
  }
}

Box Box::grownBy(double margin) const {
  Box grown = *this;
  for (double &value : grown.low) value -= margin;
  for (double &value : grown.high) value += margin;
  return grown;
}

bool Box::touches(const Box &other) const {
  for (std::size_t axis = 0; axis < 3; ++axis)
    if (!(low[axis] <= other.high[axis] && other.low[axis] <= high[axis])) return false;
  return true;
}

BoxTree::BoxTree(const std::vector<Box> &boxes)
    : leaves_(std::bit_ceil(boxes.size())),
      nodes_(2 * leaves_),
      nodeOf_(boxes.size()),
      itemOf_(boxes.size()) {
  std::vector<Middle> middles;
  middles.reserve(boxes.size());
  for (const Box &box : boxes) middles.push_back({middleOf(box), middles.size()});
  build(1, leaves_, middles.begin(), middles.end(), boxes);
}

// Halves go by place and, where that is the same, by number: one set of boxes makes one tree everywhere.
void BoxTree::build(std::size_t node, std::size_t leaves, Middles first, Middles last,
                    const std::vector<Box> &boxes) {
  if (first == last) return;
  if (leaves == 1) {
    nodeOf_[first->item] = node;
    itemOf_[node - leaves_] = first->item;
    nodes_[node].box = boxes[first->item];
    return;
  }
  const std::ptrdiff_t half = std::min(static_cast<std::ptrdiff_t>(leaves / 2), last - first);
  const std::size_t axis = widestAxis(first, last);
  std::nth_element(first, first + half, last, [axis](const Middle &a, const Middle &b) {
    return a.at[axis] < b.at[axis] || (a.at[axis] == b.at[axis] && a.item < b.item);
  });
  build(2 * node, leaves / 2, first, first + half, boxes);
  build(2 * node + 1, leaves / 2, first + half, last, boxes);
  nodes_[node].box = nodes_[2 * node].box;
  nodes_[node].box.include(nodes_[2 * node + 1].box);
}

void BoxTree::count(std::size_t item, std::ptrdiff_t change) {
  for (std::size_t node = nodeOf_[item]; node > 0; node /= 2) nodes_[node].present += change;
}

std::vector<std::size_t> BoxTree::touching(const Box &box) const {
  std::vector<std::size_t> found;
  search(1, box, found);
  return found;
}

void BoxTree::search(std::size_t node, const Box &box, std::vector<std::size_t> &found) const {
  if (nodes_[node].present == 0 || !nodes_[node].box.touches(box)) return;
  if (node >= leaves_) return found.push_back(itemOf_[node - leaves_]);
  search(2 * node, box, found);
  search(2 * node + 1, box, found);
}

}  // namespace vantorel
