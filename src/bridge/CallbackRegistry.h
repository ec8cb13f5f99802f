// The host's ten callback slots. A leaf: anyone may include it.
#pragma once

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

namespace vantorel {

/// One host function pointer. Set on the host's main thread, never while it fires; read at the moment of the
/// event. A null pointer is stored like any other.
template <typename Function>
class CallbackSlot {
 public:
  void set(Function function) { function_ = function; }
  bool isSet() const { return function_.has_value(); }

  /// Calls the host on this thread, or does nothing when the slot is empty.
  template <typename... Arguments>
  void fire(Arguments... arguments) const {
    if (function_) (*function_)(arguments...);
  }

 private:
  std::optional<Function> function_;
};

struct CallbackRegistry {
  using Event = CallbackSlot<void (*)()>;
  /// Each text is a fresh copy that the host frees.
  using TextEvent = CallbackSlot<void (*)(const char *)>;

  Event VTLDidStart;
  Event VTLDidEnd;
  Event VTLCaptureSessionDidStart;
  Event VTLCaptureSessionDidEnd;
  Event VTLCaptureSessionDidAdd;  // never fired, as DidChange and DidRemove: they keep the host's binding in
                                  // shape
  Event VTLCaptureSessionDidUpdate;
  Event VTLCaptureSessionDidChange;
  Event VTLCaptureSessionDidRemove;
  TextEvent VTLCaptureSessionInstruction;
  TextEvent VTLRoomSnapshot;
};

/// A copy for the host, which frees it with free(); null only without memory.
inline char *copyForHost(const std::string &text) { return strdup(text.c_str()); }

}  // namespace vantorel
