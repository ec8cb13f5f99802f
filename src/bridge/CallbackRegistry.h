// The host's ten callback slots. A leaf: anyone may include it.
#pragma once

#include "base/Guarded.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

namespace vantorel {

/// One host function pointer, set at any time and read at the moment of the event, on any thread. A null pointer is
/// stored like any other.
template <typename Function>
class CallbackSlot {
 public:
  void set(Function function) { function_.store(function); }
  /// Nothing when the host has not registered one.
  std::optional<Function> get() const { return function_.load(); }
  /// Calls the host on this thread, or does nothing when the slot is empty.
  void fire() const {
    if (const auto function = get()) (*function)();
  }

 private:
  Guarded<std::optional<Function>> function_;
};

struct CallbackRegistry {
  using Event = CallbackSlot<void (*)()>;
  /// Each text is a fresh copy that the host frees.
  using TextEvent = CallbackSlot<void (*)(const char *)>;

  Event VTLDidStart;
  Event VTLDidEnd;
  Event VTLCaptureSessionDidStart;
  Event VTLCaptureSessionDidEnd;
  // Never fired, as DidChange and DidRemove: they keep the host's binding in shape.
  Event VTLCaptureSessionDidAdd;
  Event VTLCaptureSessionDidUpdate;
  Event VTLCaptureSessionDidChange;
  Event VTLCaptureSessionDidRemove;
  TextEvent VTLCaptureSessionInstruction;
  TextEvent VTLRoomSnapshot;
};

/// A copy for the host, which frees it with free(); null only without memory.
inline char *copyForHost(const std::string &text) { return strdup(text.c_str()); }

}  // namespace vantorel
