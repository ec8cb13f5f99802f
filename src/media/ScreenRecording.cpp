#include "media/ScreenRecording.h"

#include "media/MediaLines.h"
#include "platform/PlatformError.h"

#include <utility>

namespace vantorel {

void startScreenRecording(Platform &platform) {
  platform.screenRecorder().start([&platform](const std::optional<std::string> &error) {
    if (error) platform.console().print(kRecordingNotStarted + *error);
  });
}

void stopScreenRecording(Platform &platform, int number, std::function<void(const std::string &path)> done) {
  try {
    const std::string path = platform.fileManager().temporaryDirectory() + "/vantorel-recording-" +
                             std::to_string(number) + ".mp4";
    platform.screenRecorder().stop(
        path, [&platform, path, done = std::move(done)](const std::optional<std::string> &error) {
          if (error) {
            platform.console().print(kRecordingNotStopped + *error);
          } else {
            platform.mainQueue().async([path, done] { done(path); });
          }
        });
  } catch (const PlatformError &error) {
    platform.console().print(std::string(kRecordingNotStopped) + error.what());
  }
}

}  // namespace vantorel
