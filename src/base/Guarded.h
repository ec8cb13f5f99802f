#pragma once

#include <mutex>
#include <utility>

namespace vantorel {

/// A value that several threads read and write. Each access copies under a lock that no caller ever holds, so
/// a callback can never run with it.
template <typename T>
class Guarded {
 public:
  explicit Guarded(T value = {}) : value_(std::move(value)) {}
  Guarded(const Guarded &) = delete;

  T load() const {
    std::lock_guard lock(mutex_);
    return value_;
  }
  void store(T value) {
    std::lock_guard lock(mutex_);
    std::swap(value_, value);  // the old value is released after the lock
  }

 private:
  mutable std::mutex mutex_;
  T value_;
};

}  // namespace vantorel
