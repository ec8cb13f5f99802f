// What every function of SimulatedDevice.h needs.
#pragma once

#include "SimulatedDevice.h"
#include "platform/apple/Border.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

namespace vantorel::device {

inline DeviceParts &parts() { return simulatedPlatform().parts(); }

/// An object for the stand-ins; null for null.
template <typename Object>
void *given(std::shared_ptr<Object> object) {
  return object ? apple::carry(std::move(object)) : nullptr;
}

/// What was given as a shared_ptr of exactly this type; null for null.
template <typename Object>
std::shared_ptr<Object> taken(void *object) {
  return object ? apple::carried<std::shared_ptr<Object>>(object) : nullptr;
}

/// A callback that is released with its last copy.
class Callback {
 public:
  explicit Callback(device_callback callback)
      : context_(callback.context, callback.release), call_(callback.call) {}
  void operator()(const void *argument = nullptr) const { call_(context_.get(), argument); }

 private:
  std::shared_ptr<void> context_;
  void (*call_)(void *, const void *);
};

inline device_bytes copied(std::string_view text) {
  auto *bytes = static_cast<char *>(std::malloc(text.size() + 1));
  std::memcpy(bytes, text.data(), text.size());
  bytes[text.size()] = '\0';
  return {bytes, text.size()};
}

/// The error's text of `call`, or null.
template <typename Call>
char *errorOf(Call call) {
  try {
    call();
    return nullptr;
  } catch (const std::exception &error) {
    return copied(error.what()).bytes;
  }
}

}  // namespace vantorel::device
