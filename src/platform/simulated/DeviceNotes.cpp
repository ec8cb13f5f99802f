#include "platform/simulated/DeviceNotes.h"

#include <utility>

namespace vantorel {

void DeviceNotes::set(std::string_view name, std::string json) {
  const std::lock_guard lock(mutex_);
  values_.find(name)->second = std::move(json);
}

std::optional<std::string> DeviceNotes::find(std::string_view name) const {
  const std::lock_guard lock(mutex_);
  const auto found = values_.find(name);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

void DeviceNotes::reset() {
  const std::lock_guard lock(mutex_);
  values_ = {
      // The window and the views below the host's.
      {"window.isClear", "false"},
      {"rootView.isTransparent", "false"},
      {"view.ignoresTouches", "false"},
      {"navigationController.dismissals", "0"},
      // What views and display links were made with; null: nothing, or the plain initialiser.
      {"roomCaptureView.settings", "null"},
      {"sceneView.settings", "null"},
      {"displayLink.settings", "null"},
  };
}

}  // namespace vantorel
