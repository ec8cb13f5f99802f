// Scene set-up and the render loop.
#include "controller/VTLViewController.h"

namespace vantorel {
namespace {

/// The display link holds its target, and the target the controller only weakly: the link keeps no controller
/// alive.
struct WeakTarget {
  std::weak_ptr<VTLViewController> renderer;

  void render(DisplayLink &link) const {
    if (const auto controller = renderer.lock()) controller->render(link);
  }
};

}  // namespace

void VTLViewController::Initialize() {
  callbacks_.VTLDidStart.fire();
  if (!isCustomXREnabled) startRenderThread();
  loadedView().ignoreTouches();
  viewController_->exposeSceneView(std::shared_ptr<SceneViewSlot>(shared_from_this(), &sceneView));
  isPresent = true;
}

void VTLViewController::startRenderThread() {
  const WeakTarget target{weak_from_this()};
  displayLink =
      platform_.renderThreads().makeDisplayLink([target](DisplayLink &link) { target.render(link); });
  platform_.renderThreads().startThread(
      [&platform = platform_, link = displayLink] { runOnBackgroundThread(platform, *link); });
}

/// Returns, and the thread with it, when the link is invalidated.
void VTLViewController::runOnBackgroundThread(Platform &platform, DisplayLink &link) {
  link.addToCurrentRunLoop(RunLoopMode::commonModes);
  // Below the host's 60 frames a second, so that the hook never competes with its rendering.
  link.setPreferredFrameRateRange({.minimum = 10, .maximum = 59});
  platform.renderThreads().runCurrentRunLoop();
}

void VTLViewController::render(DisplayLink &) {}

void VTLViewController::createDisplayLink() {
  if (isCustomXREnabled) return;
  const auto link = platform_.renderThreads().makeDisplayLink(
      [self = shared_from_this()](DisplayLink &fired) { self->step(fired); });
  link->addToCurrentRunLoop(RunLoopMode::defaultMode);
  link->setPreferredFrameRateRange({.minimum = 10, .maximum = 30});
}

void VTLViewController::step(DisplayLink &link) {
  if (isCustomXREnabled) return;
  [[maybe_unused]] const double framesPerSecond = 1 / (link.targetTimestamp() - link.timestamp());
}

void VTLViewController::PrepareResources() {
  if (isCustomXREnabled) return;
  roomCaptureView.store(platform_.screen().makeRoomCaptureView({}));
  roomCaptureView.load()->removeFromSuperview();
  roomCaptureView.store(nullptr);
  sceneView.store(platform_.screen().makeARSCNView({}));
  sceneView.load()->removeFromSuperview();
  sceneView.store(nullptr);
}

}  // namespace vantorel
