#include "walk/Walk.h"

#include <algorithm>
#include <array>

namespace vantorel::walk {
namespace {

constexpr std::array kStateNames = {"idle", "scanning", "paused", "room closed"};
constexpr std::array kModeNames = {"camera view", "scan view", "custom XR"};

}  // namespace

Coverage::Coverage() : cells_(2 * kStates * kModes * 2 * operations().size()) {}

Coverage::Place Coverage::placeOf(const Model &model) {
  const bool isRunning = model.phone.sessions[model.captureSession].isRunning;
  const State state = !model.isScanning                       ? idle
                      : !isRunning                            ? closed
                      : model.isRoomPlanSessionScanningPaused ? paused
                                                              : scanning;
  const Mode mode = model.isCustomXREnabled ? custom : model.isDefaultScanEnabled ? scanView : camera;
  return {state, mode, model.phone.ios >= 17};
}

std::size_t Coverage::indexOf(Place place, bool isPresent, std::size_t operation) {
  const int row = ((isPresent * kStates + place.state) * kModes + place.mode) * 2 + place.is17;
  return static_cast<std::size_t>(row) * operations().size() + operation;
}

/// Where presence does not matter there is one cell for both.
std::size_t Coverage::indexOf(const Model &model, std::size_t operation) {
  return indexOf(placeOf(model), model.isPresent && operations()[operation].dependsOnPresence, operation);
}

void Coverage::count(const Model &before, std::size_t operation) {
  cells_[indexOf(before, operation)] += operations()[operation].weight;
}

int Coverage::missing(const Model &model, std::size_t operation) const {
  return std::max(0, kQuota - cells_[indexOf(model, operation)]);
}

int Coverage::missing(Place place) const {
  int sum = 0;
  for (std::size_t operation = 0; operation < operations().size(); ++operation)
    for (int isPresent = 0; isPresent <= operations()[operation].dependsOnPresence; ++isPresent)
      sum += std::max(0, kQuota - cells_[indexOf(place, isPresent, operation)]);
  return sum;
}

int Coverage::missingOn(int ios) const {
  int sum = 0;
  for (int state = 0; state < kStates; ++state)
    for (int mode = 0; mode < kModes; ++mode) sum += missing({state, mode, ios >= 17});
  return sum;
}

std::optional<Step> Coverage::wayOn(const Model &model) const {
  const auto step = [](const char *operation, const char *argument = "", int number = 0) {
    return Step{.operation = operationNamed(operation), .a = argument, .number = number};
  };
  const Place from = placeOf(model);
  Place to = from;
  for (int state = 0; state < kStates; ++state)
    for (int mode = 0; mode < kModes; ++mode)
      if (missing({state, mode, from.is17}) > missing(to)) to = {state, mode, from.is17};
  if (missing(to) == 0) return std::nullopt;
  if (to.mode != from.mode && model.isCustomXREnabled != (to.mode == custom))
    return step("flag", "customXR", to.mode == custom);
  if (to.mode != from.mode) return step("flag", "defaultScan", to.mode == scanView);
  if (to.state == from.state) return step(model.isPresent ? "dispose" : "initialise");
  if (to.state == idle) return step("stop");
  if (to.state == closed && from.state != idle) return from.is17 ? step("closeRoom") : step("end", "none");
  if (to.state == scanning && from.state == paused) return step("resume");
  if (to.state == paused && from.state == scanning) return step("pause");
  return step("start");
}

std::string Coverage::gaps() const {
  std::string text;
  for (int state = 0; state < kStates; ++state)
    for (int mode = 0; mode < kModes; ++mode)
      for (int is17 = 0; is17 < 2; ++is17)
        if (const int gap = missing({state, mode, is17}); gap > 0)
          text += std::string(kStateNames.at(static_cast<std::size_t>(state))) + ", " +
                  kModeNames.at(static_cast<std::size_t>(mode)) + (is17 ? ", iOS 18" : ", iOS 16") + ": " +
                  std::to_string(gap) + " operations short\n";
  return text;
}

}  // namespace vantorel::walk
