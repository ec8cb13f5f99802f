#pragma once

#include <stdexcept>

namespace vantorel {

/// A platform call that failed, with the platform's description. Ports throw it where Apple's call throws.
struct PlatformError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace vantorel
