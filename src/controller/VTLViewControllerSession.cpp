// The capture session's life: idle, scanning, scanning but paused, room closed.
#include "controller/VTLViewController.h"

namespace vantorel {
namespace {

/// Its place among the scan view's subviews; the platform gives it no name.
constexpr std::size_t kCoachingOverlay = 1;

/// Takes the view off the screen and forgets it.
template <typename SomeView>
void removeAndDrop(Guarded<std::shared_ptr<SomeView>> &property) {
  if (const auto view = property.load()) view->removeFromSuperview();
  property.store(nullptr);
}

}  // namespace

std::shared_ptr<RoomCaptureSession> VTLViewController::session() {
  if (auto existing = captureSession.load()) return existing;
  auto created = platform_.makeRoomCaptureSession(nullptr);
  captureSession.store(created);
  return created;
}

// ---- Building ----

void VTLViewController::createCaptureSession() {
  capturedRoomsData.clear();
  if (isCustomXREnabled && platform_.device().isSystemAtLeast(17)) {
    buildCustomSession();
    return;
  }
  if (isDefaultScanEnabled) {
    buildScanView();
  } else {
    buildCameraView();
  }
  session()->setDelegate(weak_from_this());
}

void VTLViewController::buildCustomSession() {
  captureSession.store(platform_.makeRoomCaptureSession(customARSession));
  session()->setDelegate(weak_from_this());
}

void VTLViewController::buildScanView() {
  const auto view = platform_.screen().makeRoomCaptureView(
      RoomCaptureViewSettings{.frame = loadedView().bounds(),
                              .isModelEnabled = isDefaultMiniatureModelEnabled,
                              .delegate = weak_from_this()});
  roomCaptureView.store(view);
  captureSession.store(view->captureSession());
  session()->arSession()->setDelegate(weak_from_this());
  if (!isCoachingEnabled && view->subviewCount() > kCoachingOverlay) view->hideSubview(kCoachingOverlay);
  roomCaptureSessionConfig.store({.isCoachingEnabled = isCoachingEnabled});
  loadedView().insertAtBack(*view);
}

/// Shows the existing session's camera: this mode makes no new session.
void VTLViewController::buildCameraView() {
  const auto arSession = session()->arSession();
  const auto view = platform_.screen().makeARSCNView(
      ARSCNViewSettings{.frame = loadedView().bounds(), .session = arSession, .delegate = weak_from_this()});
  sceneView.store(view);
  arSession->setDelegate(weak_from_this());
  loadedView().insertAtBack(*view);
}

void VTLViewController::runSession() { session()->run(roomCaptureSessionConfig.load()); }

/// The mode is read now, not from the view that was built.
void VTLViewController::removeScanningView() {
  if (isDefaultScanEnabled) {
    removeAndDrop(roomCaptureView);
  } else {
    removeAndDrop(sceneView);
  }
}

// ---- Starting and stopping ----

void VTLViewController::startCaptureSession() {
  createCaptureSession();
  beginScanning();
}

void VTLViewController::beginScanning() {
  runSession();
  isRoomPlanSessionScanningPaused = false;
  isScanning = true;
  callbacks_.VTLCaptureSessionDidStart.fire();
}

void VTLViewController::stopCaptureSession() {
  if (!isScanning) return;
  session()->stop();
  if (!isCustomXREnabled) removeScanningView();
  capturedRoomsData.clear();
  isRoomPlanSessionScanningPaused = false;
  isScanning = false;
  callbacks_.VTLCaptureSessionDidEnd.fire();
}

void VTLViewController::forceReloadCaptureSession() {
  session()->stop();
  isRoomPlanSessionScanningPaused = false;
  isScanning = false;
  runSession();
  isRoomPlanSessionScanningPaused = false;
  isScanning = true;
}

void VTLViewController::dispose() {
  if (!isCustomXREnabled) {
    if (!displayLink) platform_.stop(kNilUnwrapped);
    displayLink->invalidate();  // and kept, so that a second dispose finds it
  }
  if (isScanning) {
    session()->stop();
    isRoomPlanSessionScanningPaused = false;
    isScanning = false;
  }
  if (!isCustomXREnabled) removeScanningView();
  isPresent = false;
  callbacks_.VTLDidEnd.fire();
}

// ---- Pausing, and several rooms in one space ----

void VTLViewController::pauseCaptureSessionScanning() {
  if (isScanning) isRoomPlanSessionScanningPaused = true;
}

void VTLViewController::resumeCaptureSessionScanning() {
  if (isScanning) isRoomPlanSessionScanningPaused = false;
}

void VTLViewController::stopCaptureSessionWithPause(bool pauseARSession) {
  if (isScanning && requireIOS17()) closeRoom(pauseARSession);
}

void VTLViewController::runCaptureSession() {
  if (!isScanning || !requireIOS17()) return;
  runSession();
  isRoomPlanSessionScanningPaused = false;
}

void VTLViewController::createNewRoomCaptureSession() {
  if (!isScanning || !requireIOS17()) return;
  closeRoom(false);  // AR goes on, so that the next room shares the space
  runSession();
  isRoomPlanSessionScanningPaused = false;
}

void VTLViewController::closeRoom(bool pauseARSession) {
  addCapturedRoomToArray();
  session()->stop(pauseARSession);
  roomFinalStringResults.clear();
}

void VTLViewController::addCapturedRoomToArray() { capturedRoomsData.push_back(roomFinalStringResults); }

}  // namespace vantorel
