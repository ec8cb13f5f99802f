#include "platform/simulated/Sessions.h"

#include "platform/simulated/Playback.h"
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

void Sessions::setNextScans(Scans scans) {
  std::lock_guard lock(mutex_);
  nextScans_.swap(scans);  // the former ones are released without the lock
}

void Sessions::setRecording(Scans runs) {
  setNextScans(std::move(runs));
  std::lock_guard lock(mutex_);
  playedEvents_ = 0;
}

bool Sessions::hasNextScan() const {
  std::lock_guard lock(mutex_);
  return !nextScans_.empty();
}

std::shared_ptr<const Playback> Sessions::takeNextScan() {
  std::lock_guard lock(mutex_);
  if (nextScans_.empty()) return nullptr;
  auto scan = std::move(nextScans_.front());
  nextScans_.pop_front();
  return scan;
}

void Sessions::countPlayed() {
  std::lock_guard lock(mutex_);
  if (playedEvents_) ++*playedEvents_;
}

std::optional<std::size_t> Sessions::playedEvents() const {
  std::lock_guard lock(mutex_);
  return playedEvents_;
}

void Sessions::reset() {
  std::lock_guard lock(mutex_);
  created_.clear();
  lastRun_.reset();
  nextScans_.clear();
  playedEvents_.reset();
}

}  // namespace vantorel
