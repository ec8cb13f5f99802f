#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// What the library told the platform and neither an event nor a view shows: the JSON of each value under its
/// name of vantorelDeviceState. Any thread.
class DeviceNotes {
 public:
  DeviceNotes() { reset(); }
  /// `name` is one of the known names.
  void set(std::string_view name, std::string json);
  /// Nothing for an unknown name.
  std::optional<std::string> find(std::string_view name) const;
  /// As before the library said anything.
  void reset();

 private:
  mutable std::mutex mutex_;
  std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace vantorel
