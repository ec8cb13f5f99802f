#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace vantorel {

class Playback;
class SimulatedSession;

/// Which session the device's events reach, and what the next runs see. Any thread.
class Sessions {
 public:
  using Scans = std::deque<std::shared_ptr<const Playback>>;

  void created(const std::shared_ptr<SimulatedSession> &session);
  void ran(const std::shared_ptr<SimulatedSession> &session);
  /// The last one that ran, else the last one created, of those alive; null without any.
  std::shared_ptr<SimulatedSession> current() const;

  // ---- What the next runs see, in turn ----

  void setNextScan(std::shared_ptr<const Playback> scan) { setNextScans({std::move(scan)}); }
  void setNextScans(Scans scans);
  /// The runs of a recording, whose played events are counted from now on.
  void setRecording(Scans runs);
  bool hasNextScan() const;
  /// The scan of a run that begins now; null when the run sees no room.
  std::shared_ptr<const Playback> takeNextScan();

  /// An event of the recording was played.
  void countPlayed();
  /// Nothing before a recording was set.
  std::optional<std::size_t> playedEvents() const;

  void reset();

 private:
  mutable std::mutex mutex_;
  std::vector<std::weak_ptr<SimulatedSession>> created_;
  std::weak_ptr<SimulatedSession> lastRun_;
  Scans nextScans_;
  std::optional<std::size_t> playedEvents_;
};

}  // namespace vantorel
