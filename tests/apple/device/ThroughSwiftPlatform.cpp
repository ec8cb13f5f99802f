// The iPhone's platform, on a device that is simulated. Files, the console and what the phone is, which no framework has
// a part in, are the simulated device's own, so that scripts can steer and see them.
#include "Crossing.h"
#include "platform/apple/ApplePlatform.h"

extern "C" {
/// An ARSession for vantorelDeviceARSession.
vantorel_swift_handle standin_host_ar_session();
void standin_run_tasks_in_place();
}

namespace vantorel {
namespace {

class ThroughSwiftPlatform final : public apple::ApplePlatform {
 public:
  ThroughSwiftPlatform() { standin_run_tasks_in_place(); }

  Console &console() override { return simulatedPlatform().console(); }
  Device &device() override { return simulatedPlatform().device(); }
  FileManager &fileManager() override { return simulatedPlatform().fileManager(); }

#ifdef VANTOREL_WALK_THROUGH_SWIFT  // whose model knows only sheets that are closed at once
  Presenter &presenter() override { return simulatedPlatform().presenter(); }
#endif

  std::shared_ptr<ARSession> arSession(void *object) override {
    if (!simulatedPlatform().arSession(object)) return nullptr;
    const apple::Handle session(standin_host_ar_session());
    return ApplePlatform::arSession(session.get());
  }
};

}  // namespace

Platform &platform() {
  static auto &kept = *new ThroughSwiftPlatform;
  return kept;
}

}  // namespace vantorel
