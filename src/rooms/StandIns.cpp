#include "rooms/StandIns.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

std::vector<Box> boxesOf(const std::vector<Candidate> &candidates) {
  std::vector<Box> boxes;
  boxes.reserve(candidates.size());
  for (const Candidate &candidate : candidates) boxes.push_back(candidate.box);
  return boxes;
}

/// For each candidate the number of its identifier: equal identifiers, equal numbers, from 0 on.
std::vector<std::size_t> identifierNumbers(const std::vector<Candidate> &candidates) {
  std::vector<std::pair<Uuid, std::size_t>> sorted;
  sorted.reserve(candidates.size());
  for (const Candidate &candidate : candidates) sorted.emplace_back(candidate.identifier, sorted.size());
  std::sort(sorted.begin(), sorted.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
  std::vector<std::size_t> numbers(candidates.size());
  for (std::size_t i = 1, number = 0; i < sorted.size(); ++i) {
    if (sorted[i].first != sorted[i - 1].first) ++number;
    numbers[sorted[i].second] = number;
  }
  return numbers;
}

/// Decides from the largest to the smallest, so that each meets all that could stand for it.
class Selection {
 public:
  Selection(const std::vector<Candidate> &candidates, double leastOverlap)
      : candidates_(candidates),
        leastOverlap_(leastOverlap),
        kept_(boxesOf(candidates)),
        numbers_(identifierNumbers(candidates)),
        keptOfNumber_(candidates.size(), kNone) {}

  std::vector<std::size_t> decide();

 private:
  bool isLarger(std::size_t a, std::size_t b) const;
  std::size_t standInFor(std::size_t item);
  std::size_t coincidingWith(std::size_t item) const;

  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  const std::vector<Candidate> &candidates_;
  double leastOverlap_;
  BoxTree kept_;                            // those with a rectangle
  const std::vector<std::size_t> numbers_;  // of the identifiers
  std::vector<std::size_t> keptOfNumber_;   // one of them; all others are of its room
};

/// Of equally large ones the earlier counts as larger.
bool Selection::isLarger(std::size_t a, std::size_t b) const {
  const double sizeA = candidates_[a].size, sizeB = candidates_[b].size;
  return sizeA > sizeB || (sizeA == sizeB && a < b);
}

std::vector<std::size_t> Selection::decide() {
  std::vector<std::pair<double, std::size_t>> order;
  order.reserve(candidates_.size());
  for (const Candidate &candidate : candidates_) order.emplace_back(-candidate.size, order.size());
  std::sort(order.begin(), order.end());
  std::vector<std::size_t> standIns(candidates_.size());
  for (const auto &[size, item] : order) {
    standIns[item] = standInFor(item);
    if (standIns[item] != item) continue;
    keptOfNumber_[numbers_[item]] = item;
    if (candidates_[item].rectangle) kept_.insert(item);
  }
  return standIns;
}

std::size_t Selection::standInFor(std::size_t item) {
  const std::size_t same = keptOfNumber_[numbers_[item]];
  if (same != kNone && candidates_[same].room != candidates_[item].room) return same;
  return candidates_[item].rectangle ? coincidingWith(item) : item;
}

/// The largest that coincides with the item, else the item itself.
std::size_t Selection::coincidingWith(std::size_t item) const {
  const Candidate &candidate = candidates_[item];
  std::size_t found = item;
  for (std::size_t other : kept_.touching(candidate.box.grownBy(kCoincidenceReach))) {
    const Candidate &larger = candidates_[other];
    if (larger.room != candidate.room && isLarger(other, found) &&
        coincide(*larger.rectangle, *candidate.rectangle, leastOverlap_))
      found = other;
  }
  return found;
}

}  // namespace

std::vector<std::size_t> standInsFor(const std::vector<Candidate> &candidates, double leastOverlap) {
  return Selection(candidates, leastOverlap).decide();
}

}  // namespace vantorel
