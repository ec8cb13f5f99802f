#include "rooms/Strips.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace vantorel {
namespace {

enum Part { kOutline, kHole, kAnnex, kPartCount };

/// A side of a ring that is not upright, from left to right.
struct Edge {
  LatticePoint left, right;
  int winding;  // what it adds for those above it
  Part part;

  Lattice at(Lattice x) const { return left.y + (right.y - left.y) * (x - left.x) / (right.x - left.x); }
};

/// An edge inside one strip.
struct Crossing {
  Lattice left, right;
  int winding;
  Part part;
};

void addEdges(std::vector<Edge> &edges, const Ring &ring, Part part) {
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const LatticePoint &from = ring[i], &to = ring[i + 1 == ring.size() ? 0 : i + 1];
    if (from.x < to.x) edges.push_back({from, to, 1, part});
    if (from.x > to.x) edges.push_back({to, from, -1, part});
  }
}

std::vector<Edge> edgesOf(const Region &region) {
  std::vector<Edge> edges;
  addEdges(edges, region.outline, kOutline);
  for (const LatticeRect &hole : region.holes) addEdges(edges, ringAround(hole), kHole);
  if (region.annex) addEdges(edges, ringAround(*region.annex), kAnnex);
  std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.left.x < b.left.x; });
  return edges;
}

/// The two columns of the grid between which the edges cross.
void addCrossing(std::vector<Lattice> &borders, const Edge &a, const Edge &b) {
  const Lattice left = std::max(a.left.x, b.left.x), right = std::min(a.right.x, b.right.x);
  if (left >= right) return;
  const Lattice before = a.at(left) - b.at(left), after = a.at(right) - b.at(right);
  if (before == 0 || after == 0 || (before < 0) == (after < 0)) return;
  const Lattice x = left + (right - left) * before / (before - after);
  borders.push_back(x);
  if (x < right) borders.push_back(x + 1);
}

/// Level edges cross nothing but slanted ones. False, and not all of them, if they are more than `most`.
bool addCrossings(std::vector<Lattice> &borders, const std::vector<Edge> &edges, std::size_t most) {
  for (const Edge &slanted : edges) {
    if (borders.size() > most) return false;
    if (slanted.left.y == slanted.right.y) continue;
    for (const Edge &edge : edges) {
      if (edge.left.x >= slanted.right.x) break;
      addCrossing(borders, slanted, edge);
    }
  }
  return borders.size() <= most;
}

/// All borders inside of the region, each once; none if the edges cross all over.
std::vector<Lattice> bordersOf(const Region &region, const std::vector<Edge> &edges,
                               std::span<const Lattice> more, std::size_t most) {
  const LatticeRect box = boundsOf(region.outline);
  std::vector<Lattice> borders(more.begin(), more.end());
  for (const Edge &edge : edges)
    if (edge.part != kAnnex) borders.insert(borders.end(), {edge.left.x, edge.right.x});
  if (!addCrossings(borders, edges, most)) return {};
  std::erase_if(borders, [&](Lattice x) { return x < box.low.x || x > box.high.x; });
  borders.insert(borders.end(), {box.low.x, box.high.x});
  if (region.annex) borders.push_back(region.annex->high.x);
  std::sort(borders.begin(), borders.end());
  borders.erase(std::unique(borders.begin(), borders.end()), borders.end());
  return borders;
}

/// In order, and never below one another though rounding may say so.
void arrange(std::vector<Crossing> &crossings) {
  std::sort(crossings.begin(), crossings.end(), [](const Crossing &a, const Crossing &b) {
    return std::tuple(a.left + a.right, a.left, a.winding) < std::tuple(b.left + b.right, b.left, b.winding);
  });
  for (std::size_t i = 1; i < crossings.size(); ++i) {
    crossings[i].left = std::max(crossings[i].left, crossings[i - 1].left);
    crossings[i].right = std::max(crossings[i].right, crossings[i - 1].right);
  }
}

/// Appends the pieces of one strip. Those that share a whole side become one.
void fill(std::vector<Piece> &pieces, const std::vector<Crossing> &crossings) {
  const std::size_t first = pieces.size();
  int depth[kPartCount] = {};
  bool filled = false;
  for (const Crossing &at : crossings) {
    depth[at.part] += at.winding;
    const bool wasFilled =
        std::exchange(filled, depth[kAnnex] != 0 || (depth[kOutline] != 0 && depth[kHole] == 0));
    if (filled == wasFilled) continue;
    if (filled) {
      const bool goesOn =
          pieces.size() > first && pieces.back().leftHigh == at.left && pieces.back().rightHigh == at.right;
      if (!goesOn) pieces.push_back({at.left, at.left, at.right, at.right});
      continue;
    }
    Piece &piece = pieces.back();
    piece.leftHigh = at.left;
    piece.rightHigh = at.right;
    if (piece.leftLow == piece.leftHigh && piece.rightLow == piece.rightHigh) pieces.pop_back();
  }
}

/// Steps through the heights of one side of a border.
class Side {
 public:
  Side(std::span<const Piece> pieces, bool leftSideOfPieces) : pieces_(pieces), left_(leftSideOfPieces) {}

  /// Whether the border is filled just above y; y must not fall.
  bool filledAbove(Lattice y) {
    while (!pieces_.empty() && high(pieces_.front()) <= y) pieces_ = pieces_.subspan(1);
    return !pieces_.empty() && low(pieces_.front()) <= y;
  }

  Lattice low(const Piece &piece) const { return left_ ? piece.leftLow : piece.rightLow; }
  Lattice high(const Piece &piece) const { return left_ ? piece.leftHigh : piece.rightHigh; }

 private:
  std::span<const Piece> pieces_;
  bool left_;
};

}  // namespace

std::optional<Strips> Strips::of(const Region &region, std::span<const Lattice> borders) {
  const std::vector<Edge> edges = edgesOf(region);
  Strips strips;
  strips.annexed_ = region.annex.has_value();
  // An honest shape has a few edges in a strip; one that crosses itself all over could take the square.
  std::size_t left = 1024 + 16 * (edges.size() + borders.size());
  strips.borders_ = bordersOf(region, edges, borders, left);
  if (strips.borders_.empty()) return std::nullopt;
  strips.firsts_.push_back(0);
  std::vector<const Edge *> active;
  std::vector<Crossing> crossings;
  for (std::size_t i = 0, next = 0; i + 1 < strips.borders_.size(); ++i) {
    const Lattice from = strips.borders_[i], to = strips.borders_[i + 1];
    std::erase_if(active, [from](const Edge *edge) { return edge->right.x <= from; });
    for (; next < edges.size() && edges[next].left.x <= from; ++next)
      if (edges[next].right.x > from) active.push_back(&edges[next]);
    if (active.size() > left) return std::nullopt;
    left -= active.size();
    crossings.clear();
    for (const Edge *edge : active)
      crossings.push_back({edge->at(from), edge->at(to), edge->winding, edge->part});
    arrange(crossings);
    fill(strips.pieces_, crossings);
    strips.firsts_.push_back(strips.pieces_.size());
  }
  return strips;
}

std::span<const Piece> Strips::pieces(std::size_t strip) const {
  return std::span(pieces_).subspan(firsts_[strip], firsts_[strip + 1] - firsts_[strip]);
}

void Strips::stepsAt(std::size_t border, std::vector<Step> &steps) const {
  const std::span<const Piece> before = border > 0 ? pieces(border - 1) : std::span<const Piece>();
  const std::span<const Piece> after = border < count() ? pieces(border) : std::span<const Piece>();
  Side left(before, false), right(after, true);
  steps.clear();
  for (const Piece &piece : before)
    steps.insert(steps.end(), {{left.low(piece), false, false}, {left.high(piece), false, false}});
  for (const Piece &piece : after)
    steps.insert(steps.end(), {{right.low(piece), false, false}, {right.high(piece), false, false}});
  const auto lower = [](const Step &a, const Step &b) { return a.y < b.y; };
  const auto same = [](const Step &a, const Step &b) { return a.y == b.y; };
  std::sort(steps.begin(), steps.end(), lower);
  steps.erase(std::unique(steps.begin(), steps.end(), same), steps.end());
  for (Step &step : steps) step = {step.y, left.filledAbove(step.y), right.filledAbove(step.y)};
}

std::vector<LatticePoint> Strips::pinches() const {
  std::vector<LatticePoint> found;
  std::vector<Step> steps;
  std::vector<int> sides;  // of the shape that end at each step
  for (std::size_t border = 0; border < borders_.size(); ++border) {
    stepsAt(border, steps);
    sides.assign(steps.size(), 0);
    const auto count = [&](Lattice y) {
      ++sides[static_cast<std::size_t>(
          std::lower_bound(steps.begin(), steps.end(), y,
                           [](const Step &step, Lattice at) { return step.y < at; }) -
          steps.begin())];
    };
    if (border > 0)
      for (const Piece &piece : pieces(border - 1)) count(piece.rightLow), count(piece.rightHigh);
    if (border < this->count())
      for (const Piece &piece : pieces(border)) count(piece.leftLow), count(piece.leftHigh);
    for (std::size_t i = 0; i < steps.size(); ++i) {
      if (steps[i].left != steps[i].right) ++sides[i], ++sides[i + 1];
    }
    for (std::size_t i = 0; i < steps.size(); ++i)
      if (sides[i] > 2) found.push_back({borders_[border], steps[i].y});
  }
  return found;
}

}  // namespace vantorel
