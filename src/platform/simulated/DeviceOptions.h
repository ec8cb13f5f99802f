#pragma once

#include "base/Geometry.h"

#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// What the simulated device is. The defaults are a current iPhone's.
struct DeviceTraits {
  enum class Torch { present, absent, refused, noDevice };
  enum class Window { full, bare, empty, none };
  enum class Tracking { automatic, normal, limited, unavailable };

  int systemMajor = 18;
  bool hasLidar = true;
  Torch torch = Torch::present;
  Window window = Window::full;
  int coachingSubviews = 2;                    ///< how many subviews the platform's scan view has
  Tracking tracking = Tracking::automatic;     ///< of the current frame
  bool hasWorldMap = true;                     ///< whether AR sessions give their world map
  std::optional<Float4x4> camera, projection;  ///< of the current frame; nothing: the walk's and the lens's
};

/// The traits, set by the names and texts of the command line. Any thread.
class DeviceOptions {
 public:
  DeviceTraits get() const;
  /// Gives a message for the developer when the name or the value is refused; nothing changes then.
  std::optional<std::string> set(std::string_view name, std::string_view value);
  /// A new run sees its own frames again.
  void forgetFrame();
  void reset();

 private:
  mutable std::mutex mutex_;
  DeviceTraits traits_;
};

}  // namespace vantorel
