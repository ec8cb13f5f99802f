// A flat shape, cut into upright strips.
#pragma once

#include "rooms/Lattice.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace vantorel {

/// What the outline winds around and no hole takes away.
struct Region {
  Ring outline;
  std::vector<LatticeRect> holes;
  /// Stands to the right of the outline and is filled whatever the holes; it is never cut in two.
  std::optional<LatticeRect> annex;
};

/// A filled part of a strip, from one of its borders to the other. Its left or its right side may be a point.
struct Piece {
  Lattice leftLow, leftHigh, rightLow, rightHigh;
};

/// A height on a border, and what is filled from there up to the next step.
struct Step {
  Lattice y;
  bool left, right;
};

/// Nothing happens inside a strip: its pieces reach from border to border, in order and without overlap. Between
/// strips neighbours need not agree: sides go wherever only one of them is filled.
class Strips {
 public:
  /// Nothing for a shape that would take out of all proportion many pieces. `borders` are taken besides those
  /// that the shape needs, if they lie in it.
  static std::optional<Strips> of(const Region &region, std::span<const Lattice> borders = {});

  /// Ascending; strip i lies between borders i and i + 1. Not empty.
  const std::vector<Lattice> &borders() const { return borders_; }
  std::size_t count() const { return borders_.size() - 1; }
  /// From the lowest to the highest.
  std::span<const Piece> pieces(std::size_t strip) const;
  /// Whether anything but the annex is filled.
  bool empty() const { return firsts_[count() - (annexed_ ? 1 : 0)] == 0; }

  /// All heights on a border where a piece of either side begins or ends, ascending; into `steps`.
  void stepsAt(std::size_t border, std::vector<Step> &steps) const;

  /// Where the shape touches itself in nothing but a point.
  std::vector<LatticePoint> pinches() const;

 private:
  std::vector<Lattice> borders_;
  std::vector<Piece> pieces_;
  bool annexed_ = false;             // as the last strip
  std::vector<std::size_t> firsts_;  // the first piece of each strip, and the end
};

/// Strips that make a closed solid. Where the shape touches itself in nothing but a point, a square of 1 mm around that
/// is left out. A region without anything between its holes, or too tangled to cut, is taken without them; an
/// outline around nothing, or too tangled, as the box around it.
Strips manifoldStrips(Region region, std::span<const Lattice> borders = {});

}  // namespace vantorel
