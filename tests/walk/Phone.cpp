#include "walk/Phone.h"

#include "walk/Model.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace vantorel::walk {

const char *nameOf(Thread thread) {
  return thread == Thread::main ? "main" : thread == Thread::delegate ? "delegate" : "completion";
}

// ---- Time ----

void Phone::post(Thread thread, Work work, Time delay, bool isPeriodic) {
  events.emplace(Key(now + delay, thread, arrivals++), Event{std::move(work), isPeriodic});
}

bool Phone::isSettled() const {
  return std::all_of(events.begin(), events.end(), [](const auto &event) { return event.second.isPeriodic; });
}

bool Phone::fails(const std::string &call) {
  const auto found = faults.find(call);
  if (found == faults.end() || found->second.count == 0) return false;
  Plan &plan = found->second;
  if (plan.skip > 0) {
    --plan.skip;
    return false;
  }
  --plan.count;
  return true;
}

// ---- Sessions ----

Id Phone::makeSession(Id arSession) {
  if (arSession == 0) {
    arSession = arSessions.size();
    arSessions.emplace_back();
  }
  sessions.emplace_back().arSession = arSession;
  return sessions.size() - 1;
}

void Phone::run(Id id, bool isCoaching) {
  ModelSession &session = sessions[id];
  std::erase_if(events, [&](const auto &event) { return session.run && event.second.group == session.run; });
  if (!session.canResume || (!session.isEnding && nextScan)) {
    session.scan = std::exchange(nextScan, nullptr);
    session.nextStep = 0;
    session.elapsed = 0;
  }
  session.canResume = false;
  session.isRunning = true;
  session.isCoaching = isCoaching;
  session.start = now - session.elapsed;
  session.run = ++groups;
  ModelARSession &ar = arSessionOf(id);
  ar.scan = session.scan;
  ar.start = session.start;
  ar.stopped.reset();
  post(Thread::delegate, [id](Model &model) { model.sessionStarts(id); });
  postSteps(id);
  camera.reset();
  projection.reset();
  lastRun = id;
}

void Phone::postSteps(Id id) {
  const ModelSession &session = sessions[id];
  if (!session.scan) return;
  for (std::size_t step = session.nextStep; step < session.scan->steps().size(); ++step)
    events.emplace(
        Key(std::max(now, session.start + session.scan->steps()[step].due), Thread::delegate, arrivals++),
        Event{[id, step](Model &model) { model.sessionPlays(id, step); }, false, session.run});
}

void Phone::stop(Id id) {
  ModelSession &session = sessions[id];
  if (!session.isEnding) session.canResume = false;
  if (!interrupt(id)) return;
  session.canResume = false;
  post(Thread::delegate, [id](Model &model) { model.sessionEnds(id, std::nullopt); });
}

bool Phone::interrupt(Id id) {
  ModelSession &session = sessions[id];
  if (!session.isRunning) return false;
  session.isRunning = false;
  session.elapsed = now - session.start;
  session.canResume = session.scan != nullptr;
  std::erase_if(events, [&](const auto &event) { return event.second.group == session.run; });
  ModelARSession &ar = arSessionOf(id);
  if (!ar.stopped) ar.stopped = now - ar.start;
  return true;
}

void Phone::runAR(Id id, const std::optional<Float4x4> &initialMap) {
  if (initialMap) {
    arSessions[id].camera = *initialMap;
    arSessions[id].scan = nullptr;
    arSessions[id].limitedUntil = now + 2 * kSecond;
  }
  camera.reset();
  projection.reset();
  post(Thread::delegate, [id](Model &model) { model.phone.arSessions[id].hasFrame = true; });
}

std::string Phone::trackingOf(const ModelARSession &ar) const {
  if (!ar.hasFrame) return "none";
  if (tracking != "auto") return tracking;
  return now < ar.limitedUntil ? "limited" : "normal";
}

std::optional<Float4x4> Phone::pose(const ModelARSession &ar) const {
  if (!ar.hasFrame) return std::nullopt;
  if (camera) return camera;
  return ar.scan ? ar.scan->cameraAt(ar.stopped.value_or(now - ar.start)) : ar.camera;
}

// ---- Views ----

Id Phone::makeView(const std::string &name, Id session) {
  const bool isScanView = session != 0;
  views.push_back({name, session, isScanView ? coaching : 0});
  if (isScanView) newestScanView = views.size() - 1;
  return views.size() - 1;
}

/// The host's view comes and goes with the option.
void Phone::arrangeWindow() {
  const bool isThere = std::count(windowSubviews.begin(), windowSubviews.end(), "host") > 0;
  if (window == "empty")
    std::erase(windowSubviews, "host");
  else if (!isThere)
    windowSubviews.insert(windowSubviews.begin(), "host");
}

// ---- Screen recorder: completions come later, errors are texts ----

void Phone::startRecording(RecorderAnswer answer) {
  const std::string error = fails("recording") ? "the person declined"
                            : isRecording      ? "a recording runs already"
                                               : "";
  if (error.empty()) isRecording = true;
  post(Thread::completion, [answer, error](Model &model) { answer(model, error); });
}

void Phone::stopRecording(const std::string &path, RecorderAnswer answer) {
  const std::string error = isRecording ? "" : "no recording runs";
  if (error.empty()) write(path, {ModelFile::Kind::other});
  isRecording = false;
  post(Thread::completion, [answer, error](Model &model) { answer(model, error); });
}

// ---- Files ----

std::string temporaryFolder() {
  const std::filesystem::path folder = std::filesystem::temp_directory_path();
  return (folder.has_filename() ? folder : folder.parent_path()).string();
}

/// With all above it; a file in the way stops it.
bool Phone::createFolder(const std::string &path) {
  std::vector<std::string> made;
  for (std::string above = path; !folders.count(above); above.resize(above.rfind('/'))) {
    if (files.count(above)) return false;
    made.push_back(above);
  }
  folders.insert(made.begin(), made.end());
  return true;
}

bool Phone::write(const std::string &path, ModelFile file) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos || !folders.count(path.substr(0, slash)) || folders.count(path))
    return false;
  files[path] = std::move(file);
  return true;
}

std::optional<std::optional<Float4x4>> Phone::unarchive(const ModelFile &file) {
  if (fails("unarchive")) return std::nullopt;
  if (fails("unarchiveNone")) return std::optional<Float4x4>();
  if (file.kind != ModelFile::Kind::worldMap) return std::nullopt;
  return file.camera;
}

}  // namespace vantorel::walk
