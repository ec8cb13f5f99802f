#include "platform/simulated/Sessions.h"

#include "platform/simulated/RoomPlayback.h"
#include "platform/simulated/SimulatedSession.h"

#include <ranges>
#include <utility>

namespace vantorel {

void Sessions::created(const std::shared_ptr<SimulatedSession> &session) {
  std::lock_guard lock(mutex_);
  std::erase_if(created_, [](const auto &older) { return older.expired(); });
  created_.push_back(session);
}

void Sessions::ran(const std::shared_ptr<SimulatedSession> &session) {
  std::lock_guard lock(mutex_);
  lastRun_ = session;
}

std::shared_ptr<SimulatedSession> Sessions::current() const {
  std::lock_guard lock(mutex_);
  if (auto session = lastRun_.lock()) return session;
  for (const auto &newest : std::views::reverse(created_))
    if (auto session = newest.lock()) return session;
  return nullptr;
}

void Sessions::setNextScan(std::shared_ptr<const RoomPlayback> scan) {
  std::lock_guard lock(mutex_);
  nextScan_ = std::move(scan);
}

bool Sessions::hasNextScan() const {
  std::lock_guard lock(mutex_);
  return nextScan_ != nullptr;
}

std::shared_ptr<const RoomPlayback> Sessions::takeNextScan() {
  std::lock_guard lock(mutex_);
  return std::exchange(nextScan_, nullptr);
}

void Sessions::reset() {
  std::lock_guard lock(mutex_);
  created_.clear();
  lastRun_.reset();
  nextScan_.reset();
}

}  // namespace vantorel
