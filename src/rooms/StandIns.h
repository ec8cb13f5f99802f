#pragma once

#include "base/Uuid.h"
#include "rooms/BoxTree.h"
#include "rooms/Coincidence.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vantorel {

/// An element, as far as it matters for which other one may be the same thing.
struct Candidate {
  Uuid identifier;
  std::size_t room;  ///< its number
  double size;       ///< an area or a volume: the larger stands for the smaller
  Box box;
  std::optional<Rectangle> rectangle;  ///< none: only its identifier tells what it is
};

/// For each candidate of one kind the number of the one that stands for it, which is its own for all that
/// stay. Whatever stands for others stays. See buildStructure for the rules, coincide for `leastOverlap`.
std::vector<std::size_t> standInsFor(const std::vector<Candidate> &candidates, double leastOverlap);

}  // namespace vantorel
