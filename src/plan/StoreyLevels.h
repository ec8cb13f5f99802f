#pragma once

#include "rooms/RoomDocument.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vantorel::plan {

/// Which storey something belongs to: by its number, or where all have the same by the height of its foot, for
/// rooms that were scanned one by one all call their storey 0.
class StoreyLevels {
 public:
  explicit StoreyLevels(const RoomDocument &document);

  /// From the lowest to the highest; at least one.
  std::vector<std::string> names() const;
  std::size_t of(const Surface &surface) const;
  std::size_t of(const RoomObject &object) const;
  std::size_t of(const Section &section) const;

 private:
  std::size_t indexOf(const std::optional<std::int64_t> &story, double foot) const;

  std::int64_t usual_ = 0;             // for what has no number
  std::vector<std::int64_t> stories_;  // sorted
  std::vector<double> feet_;           // of walls, the lowest of each storey; sorted
};

}  // namespace vantorel::plan
