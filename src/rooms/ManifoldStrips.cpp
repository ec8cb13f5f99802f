#include "rooms/Strips.h"

#include <utility>

namespace vantorel {
namespace {

constexpr Lattice kHalfSquare = kStepsPerMetre / 2000;

std::optional<Strips> withoutPinches(Region region, std::span<const Lattice> borders) {
  constexpr int kRounds = 4;  // a square may touch something in turn
  for (int round = 0; round < kRounds; ++round) {
    std::optional<Strips> strips = Strips::of(region, borders);
    if (!strips || strips->empty()) return std::nullopt;
    const std::vector<LatticePoint> pinches = strips->pinches();
    if (pinches.empty()) return strips;
    for (const auto &[x, y] : pinches)
      region.holes.push_back({{x - kHalfSquare, y - kHalfSquare}, {x + kHalfSquare, y + kHalfSquare}});
  }
  return std::nullopt;
}

}  // namespace

Strips manifoldStrips(Region region, std::span<const Lattice> borders) {
  if (std::optional<Strips> strips = withoutPinches(region, borders)) return *std::move(strips);
  if (!region.holes.empty()) {
    region.holes.clear();
    if (std::optional<Strips> strips = withoutPinches(region, borders)) return *std::move(strips);
  }
  region.outline = ringAround(withSize(boundsOf(region.outline)));
  return Strips::of(region, borders).value();
}

}  // namespace vantorel
