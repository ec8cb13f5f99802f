#include "platform/apple/AppleRoomCaptureSession.h"

#include "platform/apple/AppleARSession.h"
#include "platform/apple/AppleCapturedRoom.h"
#include "platform/apple/Forwarder.h"

namespace vantorel::apple {
namespace {

using Delegate = RoomCaptureSessionDelegate;

// The border's numbers are the port's.
static_assert(int(Instruction::moveCloseToWall) == VANTOREL_SWIFT_MOVE_CLOSE_TO_WALL);
static_assert(int(Instruction::lowTexture) == VANTOREL_SWIFT_LOW_TEXTURE);
static_assert(int(Instruction::other) == VANTOREL_SWIFT_OTHER_INSTRUCTION);

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
  static auto &forwarder = *new Forwarder<Delegate>(vantorel_swift_capture_delegate_create);
  forwarder.with(delegate, [&](vantorel_swift_handle object) {
    vantorel_swift_capture_session_set_delegate(session_.get(), object);
  });
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
