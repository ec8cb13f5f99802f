#include "platform/apple/AppleRoomCaptureSession.h"

#include "platform/apple/AppleCapturedRoom.h"

#include <mutex>

namespace vantorel::apple {
namespace {

using Delegate = RoomCaptureSessionDelegate;

constexpr const char *kNoWorldMaps = "World maps are not built for the iPhone yet.";

// The border's numbers are the port's.
static_assert(int(Instruction::moveCloseToWall) == VANTOREL_SWIFT_MOVE_CLOSE_TO_WALL);
static_assert(int(Instruction::lowTexture) == VANTOREL_SWIFT_LOW_TEXTURE);
static_assert(int(Instruction::other) == VANTOREL_SWIFT_OTHER_INSTRUCTION);

bool sameOwner(const std::weak_ptr<Delegate> &a, const std::weak_ptr<Delegate> &b) {
  return !a.owner_before(b) && !b.owner_before(a);
}

/// Sets the Swift object that forwards to `delegate`. Sessions hold it weakly and may outlive their C++
/// wrapper, inside a view; so it is kept here. There is one at a time, as there is one controller.
void setForwarder(vantorel_swift_handle session, const std::weak_ptr<Delegate> &delegate) {
  static std::mutex mutex;
  static std::weak_ptr<Delegate> receiver;
  static Handle forwarder;
  std::lock_guard lock(mutex);
  if (!forwarder || !sameOwner(receiver, delegate)) {
    receiver = delegate;
    forwarder.reset(vantorel_swift_capture_delegate_create(carry(delegate)));
  }
  vantorel_swift_capture_session_set_delegate(session, forwarder.get());
}

/// Calls `event` on the delegate behind `context`, if it is still there.
template <typename... Parameters, typename... Arguments>
void tell(void *context, void (Delegate::*event)(Parameters...), Arguments &&...arguments) {
  if (const auto delegate = carried<std::weak_ptr<Delegate>>(context).lock())
    ((*delegate).*event)(std::forward<Arguments>(arguments)...);
}

std::shared_ptr<CapturedRoom> wrapped(vantorel_swift_handle room) {
  return std::make_shared<AppleCapturedRoom>(Handle(room));
}

}  // namespace

void AppleARSession::setDelegate(std::weak_ptr<ARSessionDelegate>) {
  vantorel_swift_ar_session_set_idle_delegate(session_.get());
}

std::optional<Float4x4> AppleARSession::cameraTransform() {
  stopProcess("The AR camera is not built for the iPhone yet.");
}

std::optional<Float4x4> AppleARSession::projectionMatrix(const ProjectionRequest &) {
  stopProcess("The AR camera is not built for the iPhone yet.");
}

bool AppleARSession::isTrackingNormal() { stopProcess(kNoWorldMaps); }

void AppleARSession::run(std::shared_ptr<WorldMap>) { stopProcess(kNoWorldMaps); }

void AppleARSession::getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)>) {
  stopProcess(kNoWorldMaps);
}

void AppleRoomCaptureSession::run(const RoomCaptureSessionConfiguration &configuration) {
  vantorel_swift_capture_session_run(session_.get(), configuration.isCoachingEnabled);
}

void AppleRoomCaptureSession::stop() { vantorel_swift_capture_session_stop(session_.get()); }

void AppleRoomCaptureSession::stop(bool pauseARSession) {
  vantorel_swift_capture_session_stop_pausing(session_.get(), pauseARSession);
}

std::shared_ptr<ARSession> AppleRoomCaptureSession::arSession() {
  return std::make_shared<AppleARSession>(Handle(vantorel_swift_capture_session_ar_session(session_.get())));
}

void AppleRoomCaptureSession::setDelegate(std::weak_ptr<Delegate> delegate) {
  setForwarder(session_.get(), delegate);
}

}  // namespace vantorel::apple

using namespace vantorel;
using namespace vantorel::apple;

void vantorel_core_session_did_start(void *context, vantorel_swift_handle session) noexcept {
  tell(context, &Delegate::captureSessionDidStart,
       std::make_shared<AppleRoomCaptureSession>(Handle(session)));
}
void vantorel_core_session_did_update(void *context, vantorel_swift_handle room) noexcept {
  tell(context, &Delegate::captureSessionDidUpdate, wrapped(room));
}
void vantorel_core_session_did_add(void *context, vantorel_swift_handle room) noexcept {
  tell(context, &Delegate::captureSessionDidAdd, wrapped(room));
}
void vantorel_core_session_did_change(void *context, vantorel_swift_handle room) noexcept {
  tell(context, &Delegate::captureSessionDidChange, wrapped(room));
}
void vantorel_core_session_did_remove(void *context, vantorel_swift_handle room) noexcept {
  tell(context, &Delegate::captureSessionDidRemove, wrapped(room));
}
void vantorel_core_session_did_provide(void *context, int32_t instruction) noexcept {
  tell(context, &Delegate::captureSessionDidProvide, static_cast<Instruction>(instruction));
}
void vantorel_core_session_did_end(void *context, const char *errorDescription) noexcept {
  std::optional<std::string> description;
  if (errorDescription) description = errorDescription;
  tell(context, &Delegate::captureSessionDidEnd, std::move(description));
}
