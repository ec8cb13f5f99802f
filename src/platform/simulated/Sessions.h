#pragma once

#include <memory>
#include <mutex>
#include <vector>

namespace vantorel {

class RoomPlayback;
class SimulatedSession;

/// Which session the device's events reach, and what the next run sees. Any thread.
class Sessions {
 public:
  void created(const std::shared_ptr<SimulatedSession> &session);
  void ran(const std::shared_ptr<SimulatedSession> &session);
  /// The last one that ran, else the last one created, of those alive; null without any.
  std::shared_ptr<SimulatedSession> current() const;

  void setNextScan(std::shared_ptr<const RoomPlayback> scan);
  bool hasNextScan() const;
  /// The scan of a run that begins now; null when the run sees no room.
  std::shared_ptr<const RoomPlayback> takeNextScan();

  void reset();

 private:
  mutable std::mutex mutex_;
  std::vector<std::weak_ptr<SimulatedSession>> created_;
  std::weak_ptr<SimulatedSession> lastRun_;
  std::shared_ptr<const RoomPlayback> nextScan_;
};

}  // namespace vantorel
