#include "walk/Model.h"

#include "platform/simulated/SimulatedARSession.h"
#include "support/PlainFloatText.h"

#include <algorithm>
#include <utility>

namespace vantorel::walk {
namespace {

constexpr const char *kNeeds17 = "This feature is only available for iOS 17+.";

/// Each with a fraction or an exponent.
std::string listOf(const std::vector<float> &numbers) {
  std::string text;
  for (const float number : numbers) {
    const std::string plain = testing::plainFloatJson(number);
    const bool isWhole = plain.find_first_of(".e") == std::string::npos;
    text += (text.empty() ? "[" : ", ") + plain + (isWhole ? ".0" : "");
  }
  return text + "]";
}

}  // namespace

std::size_t slotNamed(std::string_view name) {
  return static_cast<std::size_t>(std::find(kSlots.begin(), kSlots.end(), name) - kSlots.begin());
}

// ---- Firing ----

void Model::say(const std::string &line) { heard += std::string(nameOf(thread_)) + " " + line + "\n"; }

void Model::fire(std::string_view name, const std::string *text) {
  if (const int which = slots.at(slotNamed(name)))
    say(std::string(name) + (which > 1 ? "'" : "") + (text ? " " + *text : ""));
}

bool Model::isRefusedBefore17() {
  if (phone.ios < 17) print(kNeeds17);
  return phone.ios < 17;
}

// ---- Lifecycle ----

void Model::initializeVTL() {
  phone.post(Thread::main, [](Model &model) {
    if (!model.isPresent) model.setupScene();
  });
}

void Model::setupScene() {
  if (phone.window == "none") return;
  if (!isCustomXREnabled) {
    loadView();
    phone.arrangeWindow();
    isWindowClear_ = true;
    auto &views = phone.windowSubviews;
    std::erase(views, "controller");
    views.push_back("controller");
    if (views.size() > 1) std::swap(views[0], views[1]);
  }
  if (phone.window == "bare") return;
  if (!isCustomXREnabled) {
    if (phone.fails("loadRootView")) throw ProcessStops{};
    isRootViewTransparent_ = true;
  }
  hasRootViewController = true;
  initialize();
}

void Model::initialize() {
  fire("VTLDidStart");
  if (!isCustomXREnabled) {
    displayLink = displayLinkRuns.size();
    displayLinkRuns.push_back(true);
  }
  loadView();
  ignoresTouches_ = true;
  isPresent = true;
}

void Model::loadView() {
  if (!isViewLoaded_ && phone.fails("loadView")) throw ProcessStops{};
  isViewLoaded_ = true;
}

void Model::disposeVTL() {
  phone.post(Thread::main, [](Model &model) { model.dispose(); });
}

void Model::dispose() {
  if (!isCustomXREnabled) {
    if (displayLink == 0) throw ProcessStops{};
    displayLinkRuns[displayLink] = false;
  }
  if (isScanning) {
    phone.stop(session());
    isRoomPlanSessionScanningPaused = false;
    isScanning = false;
  }
  if (!isCustomXREnabled) removeScanView();
  isPresent = false;
  fire("VTLDidEnd");
  ++dismissals_;
}

void Model::prepareVTLResources() {
  if (isCustomXREnabled) return;
  phone.makeView("roomCaptureView", phone.makeSession());
  roomCaptureView = sceneView = 0;
  scanViewSettings_ = sceneViewSettings_ = "null";
}

// ---- Capture session ----

/// Created on first use.
Id Model::session() {
  if (captureSession == 0) captureSession = phone.makeSession();
  return captureSession;
}

void Model::createCaptureSession() {
  capturedRoomsData.clear();
  if (phone.ios >= 17 && isCustomXREnabled) {
    captureSession = phone.makeSession(customARSession);
  } else {
    loadView();
    isDefaultScanEnabled ? createScanView() : createCameraView();
  }
  phone.sessions[captureSession].hasDelegate = true;
}

void Model::createScanView() {
  captureSession = phone.makeSession();
  roomCaptureView = phone.makeView("roomCaptureView", captureSession);
  phone.arSessionOf(captureSession).hasDelegate = true;
  ModelView &view = phone.views[roomCaptureView];
  if (!isCoachingEnabled && view.subviews >= 2) view.hidesSecond = true;
  configIsCoachingEnabled = isCoachingEnabled;
  phone.insertAtBack(roomCaptureView);
  scanViewSettings_ = R"({"frame":[0,0,390,844],"isModelEnabled":)" +
                      std::string(isDefaultMiniatureModelEnabled ? "true" : "false") +
                      R"(,"hasDelegate":true})";
}

void Model::createCameraView() {
  sceneView = phone.makeView("sceneView");
  phone.arSessionOf(session()).hasDelegate = true;
  phone.insertAtBack(sceneView);
  sceneViewSettings_ =
      R"({"frame":[0,0,390,844],"hasSession":true,"hasDelegate":true,"antialiasingMode":0,)"
      R"("automaticallyUpdatesLighting":false,"rendersCameraGrain":false,"rendersMotionBlur":false,)"
      R"("preferredFramesPerSecond":30})";
}

/// By the flag of now, not by the view that was built.
void Model::removeScanView() {
  phone.remove(std::exchange(isDefaultScanEnabled ? roomCaptureView : sceneView, 0));
}

void Model::startCaptureSession() {
  createCaptureSession();
  phone.run(session(), configIsCoachingEnabled);
  isRoomPlanSessionScanningPaused = false;
  isScanning = true;
  fire("VTLCaptureSessionDidStart");
}

void Model::stopCaptureSession() {
  if (!isScanning) return;
  phone.stop(session());
  if (!isCustomXREnabled) removeScanView();
  capturedRoomsData.clear();
  isRoomPlanSessionScanningPaused = false;
  isScanning = false;
  fire("VTLCaptureSessionDidEnd");
}

void Model::stopCaptureSessionWithPause() {
  if (!isScanning || isRefusedBefore17()) return;
  addCapturedRoomToArray();
  phone.stop(session());
  roomFinalStringResults = nullptr;
}

void Model::runCaptureSession() {
  if (!isScanning || isRefusedBefore17()) return;
  phone.run(session(), configIsCoachingEnabled);
  isRoomPlanSessionScanningPaused = false;
}

void Model::createNewRoomCaptureSession() {
  if (!isScanning || isRefusedBefore17()) return;
  addCapturedRoomToArray();
  phone.stop(session());
  roomFinalStringResults = nullptr;
  phone.run(session(), configIsCoachingEnabled);
  isRoomPlanSessionScanningPaused = false;
}

void Model::pauseCaptureSessionScanning() {
  if (isScanning) isRoomPlanSessionScanningPaused = true;
}

void Model::resumeCaptureSessionScanning() {
  if (isScanning) isRoomPlanSessionScanningPaused = false;
}

void Model::forceReloadCaptureSession() {
  phone.stop(session());
  phone.run(session(), configIsCoachingEnabled);
  isRoomPlanSessionScanningPaused = false;
  isScanning = true;
}

// ---- Session events ----

void Model::sessionStarts(Id id) {
  if (!isAlive(id)) return;
  phone.arSessionOf(id).hasFrame = true;
  if (!isCustomXREnabled && phone.sessions[id].hasDelegate) captureSession = id;
}

void Model::roomUpdate(const RoomRef &room) {
  if (isRoomPlanSessionScanningPaused) return;
  phone.post(Thread::main, [room](Model &model) { model.roomUpdateOnMain(room); });
}

void Model::roomUpdateOnMain(const RoomRef &room) {
  if (room->isEmpty) return;
  finalResults = room;
  if (!phone.fails("encodeRoom")) {
    roomFinalStringResults = room;
    fire("VTLRoomSnapshot", &room->text);
  }
  fire("VTLCaptureSessionDidUpdate");
}

void Model::instruction(const std::string &name) {
  static const std::map<std::string, std::string> kTexts = {{"moveCloseToWall", "MoveCloseToWall"},
                                                            {"moveAwayFromWall", "MoveAwayFromWall"},
                                                            {"slowDown", "SlowDown"},
                                                            {"turnOnLight", "TurnOnLight"},
                                                            {"normal", "Normal"},
                                                            {"lowTexture", "LowTexture"}};
  if (isRoomPlanSessionScanningPaused || !isInstructionEnabled) return;
  const auto text = kTexts.find(name);
  roomInstructionStringResults = text == kTexts.end() ? "None" : text->second;
  fire("VTLCaptureSessionInstruction", &roomInstructionStringResults);
}

void Model::sessionEnds(Id id, const std::optional<std::string> &error) {
  if (!isAlive(id) || !phone.sessions[id].hasDelegate || error != "World tracking failure") return;
  print("There was an error in the Apple RoomCaptureSession form!");
  print("RSError: kRSError_Runtime_DriftDetection: 4");
  print("Session reloaded!");
  forceReloadCaptureSession();
}

// ---- Torch and queries ----

std::string Model::cameraMatrix() {
  if (!isScanning) return "";
  if (const auto pose = phone.pose(phone.arSessionOf(session()))) arCameraMatrix = *pose;
  std::vector<float> numbers;
  for (std::size_t row = 0; row < 4; ++row)
    for (std::size_t column = 0; column < 4; ++column) {
      const float element = arCameraMatrix.at(column, row);
      const bool isNegated = row < 2 ? column < 3 : row == 2 && column == 3;
      numbers.push_back(isNegated ? -element : element);
    }
  return listOf(numbers);
}

std::string Model::projectionMatrix() {
  if (!isScanning) return "";
  if (phone.arSessionOf(session()).hasFrame)
    arCameraProjectionMatrix =
        phone.projection.value_or(lensProjection({InterfaceOrientation::portrait, 390, 844, 0.01, 1000}));
  std::vector<float> numbers;
  for (std::size_t row = 0; row < 4; ++row)
    for (const std::size_t column : {1U, 0U, 2U, 3U}) {
      const float element = arCameraProjectionMatrix.at(column, row);
      numbers.push_back(row == 0 && column == 0 ? -element : element);
    }
  return listOf(numbers);
}

void Model::setFlashlightStatus(bool isOn) {
  if (phone.torch == "present") isTorchEnabled = phone.isLit = isOn;
}

bool Model::isSupportedFrom17() { return !isRefusedBefore17() && phone.hasLidar; }

// ---- The device's side ----

void Model::advance(Time duration) {
  const Time end = phone.now + duration;
  while (!phone.events.empty() && std::get<Time>(phone.events.begin()->first) <= end) runNextEvent();
  phone.now = end;
}

void Model::settle() {
  while (!phone.isSettled()) runNextEvent();
}

void Model::runNextEvent() {
  const auto event = phone.events.extract(phone.events.begin());
  phone.now = std::max(phone.now, std::get<Time>(event.key()));
  thread_ = std::get<Thread>(event.key());
  event.mapped().work(*this);
  thread_ = Thread::main;
  releaseSessions();
}

template <typename Work>
bool Model::onDelegateThread(Work work) {
  const Id id = currentSession();
  if (id == 0) return false;
  thread_ = Thread::delegate;
  work(id);
  thread_ = Thread::main;
  return true;
}

bool Model::deliverUpdate(const RoomRef &room) {
  return onDelegateThread([&](Id id) {
    if (phone.sessions[id].hasDelegate) roomUpdate(room);
  });
}

bool Model::deliverInstruction(const std::string &name) {
  return onDelegateThread([&](Id id) {
    if (phone.sessions[id].hasDelegate) instruction(name);
  });
}

bool Model::deliverEnd(const std::optional<std::string> &error) {
  return onDelegateThread([&](Id id) {
    phone.interrupt(id);
    phone.sessions[id].isEnding = true;
    sessionEnds(id, error);
    phone.sessions[id].isEnding = false;
  });
}

void Model::sessionPlays(Id id, std::size_t step) {
  phone.sessions[id].nextStep = step + 1;
  const auto scan = phone.sessions[id].scan;
  const auto coaching = std::get_if<Instruction>(&scan->steps()[step].event);
  if (!coaching) {
    roomUpdate(roomOf("played", scan->seenAt(step).room));
  } else if (phone.sessions[id].isCoaching) {
    static constexpr std::array kNames = {"moveCloseToWall", "moveAwayFromWall", "slowDown",
                                          "turnOnLight",     "normal",           "lowTexture"};
    instruction(kNames.at(static_cast<std::size_t>(*coaching)));
  }
}

// ---- Which sessions live: those that something on the phone or in the library holds ----

bool Model::isAlive(Id id) const {
  const auto holds = [&](Id view) { return phone.views[view].session == id; };
  const auto &shown = phone.controllerSubviews;
  return id != 0 &&
         (id == captureSession || holds(roomCaptureView) || std::any_of(shown.begin(), shown.end(), holds));
}

Id Model::currentSession() const {
  if (isAlive(phone.lastRun)) return phone.lastRun;
  for (Id id = phone.sessions.size() - 1; id > 0; --id)
    if (isAlive(id)) return id;
  return 0;
}

void Model::releaseSessions() {
  for (Id id = 1; id < phone.sessions.size(); ++id) {
    if (!phone.sessions[id].scan || isAlive(id)) continue;
    std::erase_if(phone.events,
                  [&](const auto &event) { return event.second.group == phone.sessions[id].run; });
    phone.sessions[id].scan = nullptr;
  }
}

}  // namespace vantorel::walk
