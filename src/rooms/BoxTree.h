#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <vector>

namespace vantorel {

/// An axis-aligned box: x, y and z in metres. Holds nothing at first.
struct Box {
  static constexpr double kInfinity = std::numeric_limits<double>::infinity();
  std::array<double, 3> low{kInfinity, kInfinity, kInfinity};
  std::array<double, 3> high{-kInfinity, -kInfinity, -kInfinity};

  void include(const Box &other);
  Box grownBy(double margin) const;
  bool touches(const Box &other) const;
};

/// Finds the boxes near a place: a bounding volume hierarchy over a fixed set of items, of which any may be
/// present or not. Takes O(n) memory whatever the sizes; a search takes O(log n) per box found in most layouts.
class BoxTree {
 public:
  /// Item i has box i. None is present.
  explicit BoxTree(const std::vector<Box> &boxes);

  void insert(std::size_t item) { count(item, 1); }  ///< must not be present
  void erase(std::size_t item) { count(item, -1); }  ///< must be present
  /// All present items whose boxes touch this one.
  std::vector<std::size_t> touching(const Box &box) const;

 private:
  struct Node {
    Box box;
    std::ptrdiff_t present = 0;  ///< items in and below
  };
  struct Middle {
    std::array<float, 3> at;
    std::size_t item;
  };
  using Middles = std::vector<Middle>::iterator;

  void build(std::size_t node, std::size_t leaves, Middles first, Middles last,
             const std::vector<Box> &boxes);
  void count(std::size_t item, std::ptrdiff_t change);
  void search(std::size_t node, const Box &box, std::vector<std::size_t> &found) const;

  std::size_t leaves_;               // a power of two, the last ones may be unused
  std::vector<Node> nodes_;          // node 1 is the root; 2i and 2i + 1 are below i
  std::vector<std::size_t> nodeOf_;  // by item
  std::vector<std::size_t> itemOf_;  // by leaf
};

}  // namespace vantorel
