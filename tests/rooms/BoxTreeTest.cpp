#include "rooms/BoxTree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace vantorel {
namespace {

TEST(BoxTree, FindsExactlyThePresentBoxesThatTouch) {
  std::uint32_t state = 1;
  const auto next = [&state] { return static_cast<double>((state = state * 1664525 + 1013904223) >> 24); };
  for (std::size_t size : {0U, 1U, 2U, 3U, 17U, 200U}) {
    std::vector<Box> boxes(size);
    for (Box &box : boxes)
      for (std::size_t axis = 0; axis < 3; ++axis)
        box.high[axis] = (box.low[axis] = next()) + (next() > 250 ? 300 : next() / 16);
    BoxTree tree(boxes);
    std::vector<bool> isPresent(size);
    for (int round = 0; round < 3; ++round) {
      for (std::size_t i = 0; i < size; ++i) {
        if (next() < 100) continue;
        isPresent[i] ? tree.erase(i) : tree.insert(i);
        isPresent[i] = !isPresent[i];
      }
      for (const Box &box : boxes) {
        const Box query = box.grownBy(next() / 8);
        std::vector<std::size_t> expected, found = tree.touching(query);
        for (std::size_t i = 0; i < size; ++i)
          if (isPresent[i] && boxes[i].touches(query)) expected.push_back(i);
        std::sort(found.begin(), found.end());
        EXPECT_EQ(found, expected);
      }
    }
  }
}

}  // namespace
}  // namespace vantorel
