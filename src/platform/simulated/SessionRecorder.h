#pragma once

#include "platform/simulated/RecordingWriter.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <mutex>
#include <optional>
#include <string>

namespace vantorel {

/// Writes what sessions deliver to a file while it happens (docs/recordings.md). The first failure ends the
/// writing, and its reason waits for end(). Any thread.
class SessionRecorder {
 public:
  /// Names a run that is recorded; 0: none.
  using Run = std::uint64_t;

  /// Records the runs that begin from now on, to `path` + ".part", which end() renames. A message when that fails
  /// or a recording is under way.
  std::optional<std::string> start(const std::string &path);
  /// A message when not everything could be written; nothing without a recording.
  std::optional<std::string> end();

  /// A session runs. This and record write to the file before they return.
  Run begin(const RecordingWriter::Camera &camera);
  /// Only of the run that began last. `seen` is for updates.
  void record(Run run, const Playback::Step &step, const RecordingWriter::Camera &camera,
              const Playback::Seen &seen);

 private:
  void write(const std::string &line);
  void fail(const std::string &reason);

  std::mutex mutex_;
  std::ofstream file_;  // open: a recording is under way
  std::string path_;
  std::optional<std::string> failure_;
  RecordingWriter writer_;
  Run runs_ = 0, run_ = 0;
  std::size_t lines_ = 0, bytes_ = 0;
};

}  // namespace vantorel
