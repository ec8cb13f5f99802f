#pragma once

#include "platform/apple/Border.h"

#include <memory>
#include <mutex>

namespace vantorel::apple {

/// The Swift object that forwards a delegate's events. The platform holds it weakly and may outlive the C++
/// wrapper of what it was set on; so it is kept here. There is one at a time, as there is one controller. Any
/// thread.
template <typename Delegate>
class Forwarder {
 public:
  /// Makes the Swift object; the context carries the weak delegate.
  using Create = vantorel_swift_handle (*)(void *context);

  explicit Forwarder(Create create) : create_(create) {}

  /// Calls `use` with the object that forwards to `delegate`, and returns what it returns.
  template <typename Use>
  auto with(const std::weak_ptr<Delegate> &delegate, Use use) {
    std::lock_guard lock(mutex_);
    if (!object_ || !sameOwner(receiver_, delegate)) {
      receiver_ = delegate;
      object_.reset(create_(carry(delegate)));
    }
    return use(object_.get());
  }

 private:
  static bool sameOwner(const std::weak_ptr<Delegate> &a, const std::weak_ptr<Delegate> &b) {
    return !a.owner_before(b) && !b.owner_before(a);
  }

  const Create create_;
  std::mutex mutex_;
  std::weak_ptr<Delegate> receiver_;
  Handle object_;
};

}  // namespace vantorel::apple
