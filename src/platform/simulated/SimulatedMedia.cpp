#include "platform/simulated/SimulatedMedia.h"

#include "platform/PlatformError.h"

#include <utility>

namespace vantorel {
namespace {

const char *nameOf(Presentation kind) {
  switch (kind) {
    case Presentation::preview:
      return "preview";
    case Presentation::screenshot:
      return "screenshot";
    case Presentation::recording:
      return "recording";
    case Presentation::shareFile:
    case Presentation::shareText:
    case Presentation::shareLink:
      break;
  }
  return "share";
}

std::string standIn(Scheduler::Time start, Scheduler::Time end) {
  const auto milliseconds = [](Scheduler::Time time) { return std::to_string(time / 1'000'000) + " ms"; };
  return "This is not a video. The simulated device made it in place of a screen recording\nfrom " +
         milliseconds(start) + " to " + milliseconds(end) + " of its clock.\n";
}

}  // namespace

void SimulatedPresenter::present(Presentation kind, const std::string &content) {
  console_.present(nameOf(kind), content);
}

void SimulatedScreenRecorder::start(Completion completion) {
  if (device_.faults.hits("recording")) {
    complete(std::move(completion), "the person declined");
  } else if (start_) {
    complete(std::move(completion), "a recording runs already");
  } else {
    start_ = device_.scheduler.now();
    complete(std::move(completion), std::nullopt);
  }
}

void SimulatedScreenRecorder::stop(const std::string &path, Completion completion) {
  complete(std::move(completion), start_ ? write(path) : "no recording runs");
}

/// The reason when that fails; the recording is over either way.
std::optional<std::string> SimulatedScreenRecorder::write(const std::string &path) {
  try {
    device_.files.exportFile(path, standIn(*std::exchange(start_, std::nullopt), device_.scheduler.now()));
    return std::nullopt;
  } catch (const PlatformError &error) {
    return error.what();
  }
}

void SimulatedScreenRecorder::complete(Completion completion, std::optional<std::string> error) {
  device_.scheduler.post(
      {.role = Role::completion,
       .work = [completion = std::move(completion), error = std::move(error)] { completion(error); }});
}

}  // namespace vantorel
