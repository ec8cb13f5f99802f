// Finding room for labels on a board: nothing is ever written over a wall or another label.
#pragma once

#include "plan/Board.h"
#include "plan/Lettering.h"

#include <functional>
#include <optional>
#include <vector>

namespace vantorel::plan {

/// The best place among those that `isAllowed`: near `wanted`, at most `reach` pixels away, in steps of `step`,
/// and over as little as possible. Each pixel of distance counts `distanceCost`.
struct Search {
  Point wanted{};
  double reach = 0, step = 8, distanceCost = 0.02;
  double mostCost = 1e9;
  std::function<bool(const Box &)> isAllowed = [](const Box &) { return true; };
};

/// The label at its best place, with what it costs; nothing when every place is taken.
struct Placed {
  Label label;
  double cost;
};
std::optional<Placed> bestPlace(const Board &board, Label label, const Search &search);

/// The first label of which the board has room, in the order given.
std::optional<Label> firstThatFits(const Board &board, const std::vector<Label> &labels,
                                   const Search &search);

}  // namespace vantorel::plan
