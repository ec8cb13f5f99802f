#include "Crossing.h"

using namespace vantorel;
using namespace vantorel::device;

void *device_camera() { return given(simulatedPlatform().defaultCamera()); }
bool device_camera_has_torch(void *camera) { return taken<CaptureDevice>(camera)->hasTorch(); }
char *device_camera_lock(void *camera) {
  return errorOf([&] { taken<CaptureDevice>(camera)->lockForConfiguration(); });
}
void device_camera_set_torch(void *camera, bool on) { taken<CaptureDevice>(camera)->setTorch(on); }

static ScreenRecorder::Completion telling(device_callback completion) {
  return [completion = Callback(completion)](const std::optional<std::string> &error) {
    completion(error ? error->c_str() : nullptr);
  };
}

void device_recorder_start(device_callback completion) {
  simulatedPlatform().screenRecorder().start(telling(completion));
}
void device_recorder_stop(const char *path, device_callback completion) {
  simulatedPlatform().screenRecorder().stop(path, telling(completion));
}

void device_present(const char *kind, const char *content) {
  simulatedPlatform().observedConsole().present(kind, content);
}
