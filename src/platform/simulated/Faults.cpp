#include "platform/simulated/Faults.h"

#include "platform/PlatformError.h"

#include <algorithm>
#include <cassert>

namespace vantorel {

std::optional<std::size_t> Faults::indexOf(std::string_view call) {
  const auto found = std::find(kCalls.begin(), kCalls.end(), call);
  if (found == kCalls.end()) return std::nullopt;
  return static_cast<std::size_t>(found - kCalls.begin());
}

std::optional<std::string> Faults::plan(std::string_view call, std::uint32_t count, std::uint32_t skip) {
  const auto index = indexOf(call);
  if (!index) return "no platform call is named \"" + std::string(call) + "\"";
  std::lock_guard lock(mutex_);
  plans_[*index] = {skip, count};
  return std::nullopt;
}

bool Faults::hits(std::string_view call) {
  const auto index = indexOf(call);
  assert(index);
  std::lock_guard lock(mutex_);
  Plan &plan = plans_[*index];
  if (plan.count == 0) return false;
  if (plan.skip > 0) {
    --plan.skip;
    return false;
  }
  --plan.count;
  return true;
}

void Faults::check(std::string_view call) {
  if (hits(call)) throw PlatformError("the simulated device was told to fail " + std::string(call));
}

void Faults::reset() {
  std::lock_guard lock(mutex_);
  plans_.fill({});
}

}  // namespace vantorel
