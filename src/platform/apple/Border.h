// What every crossing needs on the C++ side: handles, contexts, work and texts. VantorelSwift.h has the
// rules.
#pragma once

#include "platform/PlatformError.h"
#include "platform/apple/VantorelSwift.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace vantorel::apple {

struct ReleaseHandle {
  void operator()(void *object) const { vantorel_swift_release(object); }
};
/// A Swift object, retained once.
using Handle = std::unique_ptr<void, ReleaseHandle>;

/// What Swift keeps for C++ until nothing there can use it any more.
struct Context {
  virtual ~Context() = default;
};

/// A context that carries one value.
template <typename Value>
struct Carrier final : Context {
  explicit Carrier(Value v) : value(std::move(v)) {}
  Value value;
};

template <typename Value>
void *carry(Value value) {
  return static_cast<Context *>(new Carrier<Value>(std::move(value)));
}

template <typename Value>
Value &carried(void *context) {
  return static_cast<Carrier<Value> *>(static_cast<Context *>(context))->value;
}

/// What Swift completes later, with an object or null, at most once.
using Completion = std::function<void(Handle)>;
inline void *asCompletion(Completion completion) { return carry(std::move(completion)); }

/// Work for Swift to run once.
using Work = std::function<void()>;
inline void *asWork(Work work) { return carry(std::move(work)); }

/// Runs `call(error)`; where it returns false, its error is thrown.
template <typename Call>
void orThrow(Call call) {
  std::string error;
  if (!call(&error)) throw PlatformError(error);
}

/// The text or bytes that `call(text, error)` writes; where it returns false, its error is thrown.
template <typename Call>
std::string textFrom(Call call) {
  std::string text;
  orThrow([&](void *error) { return call(&text, error); });
  return text;
}

/// Platform::stop, as a function of which every compiler knows that it does not return.
[[noreturn]] void stopProcess(std::string_view message);

}  // namespace vantorel::apple
