#include "platform/simulated/SessionRecorder.h"

#include "base/Utf8Path.h"
#include "platform/simulated/DiskFiles.h"
#include "platform/simulated/Recording.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vantorel {
namespace {

/// A recording has its name once it is whole: until then an older one of that name can still be played.
std::string partOf(const std::string &path) { return path + ".part"; }

}  // namespace

// ---- The file ----

std::optional<std::string> SessionRecorder::start(const std::string &path) {
  const std::lock_guard lock(mutex_);
  if (file_.is_open()) return "a recording is under way, to " + path_;
  path_ = path;
  writer_ = {};
  run_ = 0;
  lines_ = bytes_ = 0;
  errno = 0;
  file_.open(pathOf(partOf(path)), std::ios::binary | std::ios::trunc);
  file_ ? write(std::string(kRecordingHeader)) : fail(lastFileError().message());
  if (failure_) file_.close();
  return std::exchange(failure_, std::nullopt);
}

std::optional<std::string> SessionRecorder::end() {
  const std::lock_guard lock(mutex_);
  if (!file_.is_open()) return std::nullopt;
  errno = 0;
  file_.close();
  if (!file_ && !failure_) fail(lastFileError().message());
  std::error_code error;
  if (!failure_) std::filesystem::rename(pathOf(partOf(path_)), pathOf(path_), error);
  if (error) fail(error.message());
  return std::exchange(failure_, std::nullopt);
}

/// Each line at once, so that the file is whole whenever the process stops.
void SessionRecorder::write(const std::string &line) {
  if (++lines_ > kMostRecordedLines) return fail("it would have more than 1000000 lines");
  bytes_ += line.size() + 1;
  if (bytes_ > kLongestRecording) return fail("it would be larger than 1 GiB");
  errno = 0;
  file_ << line << '\n' << std::flush;
  if (!file_) fail(lastFileError().message());
}

void SessionRecorder::fail(const std::string &reason) {
  failure_ = "cannot write the recording " + path_ + ": " + reason;
}

// ---- Events ----

SessionRecorder::Run SessionRecorder::begin(const RecordingWriter::Camera &camera) {
  const std::lock_guard lock(mutex_);
  if (!file_.is_open() || failure_) return 0;
  write(writer_.runLine(camera));
  return run_ = ++runs_;
}

void SessionRecorder::record(Run run, const Playback::Step &step, const RecordingWriter::Camera &camera,
                             const Playback::Seen &seen) {
  const std::lock_guard lock(mutex_);
  if (!file_.is_open() || failure_ || run == 0 || run != run_) return;
  if (step.due > kLongestRun) return fail("a run is recorded up to 3600 seconds");
  try {
    write(writer_.eventLine(step, camera, seen));
  } catch (const JsonEncodingError &error) {
    fail(error.what());
  }
}

}  // namespace vantorel
