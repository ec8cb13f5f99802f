#pragma once

#include "platform/simulated/Playback.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

// Limits of a recording, far beyond any scan; they keep a wrong file from filling the memory.
inline constexpr Playback::Time kLongestRun = 3'600'000'000'000;  // nanoseconds
inline constexpr std::size_t kMostRecordedLines = 1'000'000;
inline constexpr std::size_t kLongestRecording = std::size_t{1} << 30U;  // bytes

inline constexpr std::string_view kRecordingHeader = R"({"format":"vantorel-recording","version":1})";

/// One run of a recording.
class RecordedRun : public Playback {
 public:
  /// In order of time; `seen` is for updates.
  void add(Step step, Seen seen);
  /// The camera's pose from then on.
  void look(Time from, const Float4x4 &pose) { poses_.emplace_back(from, pose); }

  const std::vector<Step> &steps() const override { return steps_; }
  Seen seenAt(std::size_t step) const override { return seen_[step]; }
  Float4x4 cameraAt(Time time) const override;
  bool isRecorded() const override { return true; }

 private:
  std::vector<Step> steps_;
  std::vector<Seen> seen_;  // a place for each step
  std::vector<std::pair<Time, Float4x4>> poses_;
};

/// The runs in a recording's text (docs/recordings.md), with an event in at least one of them. Throws
/// RoomReadError. Pure; any thread.
std::vector<std::shared_ptr<const RecordedRun>> readRecording(std::string_view text);

}  // namespace vantorel
