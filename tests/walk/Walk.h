// Random walks: the library and the model take the same steps and must say and show the same.
#pragma once

#include "walk/Operations.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel::walk {

/// A process from its start; steps that would stop it are left out when it is played.
struct Episode {
  int ios = 18;
  std::vector<Step> steps;
};

struct Failure {
  Episode episode;         ///< ends with the step that failed
  std::string difference;  ///< what library and model disagree about
};

/// How often each operation was tried in each state, view mode and system.
class Coverage {
 public:
  /// Each cell is to be hit this often.
  static constexpr int kQuota = 100;

  Coverage();
  void count(const Model &before, std::size_t operation);
  /// How often the operation is still wanted in the model's state.
  int missing(const Model &model, std::size_t operation) const;
  /// What to do to come to a state in which something is missing; nothing when nothing is.
  std::optional<Step> wayOn(const Model &model) const;
  /// How many operations are wanted on that system in all.
  int missingOn(int ios) const;
  /// What is below the quota: a line for each state, view mode and system; empty when nothing is.
  std::string gaps() const;

 private:
  enum State { idle, scanning, paused, closed, kStates };
  enum Mode { camera, scanView, custom, kModes };
  struct Place {
    int state, mode, is17;
  };

  static Place placeOf(const Model &model);
  /// Of a cell among cells_.
  static std::size_t indexOf(Place place, bool isPresent, std::size_t operation);
  static std::size_t indexOf(const Model &model, std::size_t operation);
  int missing(Place place) const;

  std::vector<int> cells_;
};

/// Walks that many steps from a start value; nothing when library and model agree.
std::optional<Failure> walk(std::uint64_t seed, std::size_t steps, Coverage &coverage);
/// The difference when the episode is played, if any; `episode` then ends with the step that failed.
std::optional<std::string> play(Episode &episode);
/// The same failure with fewer steps.
Failure shortened(Failure failure);
std::string toText(const Failure &failure);

}  // namespace vantorel::walk
