// The session's events, as the platform's delegate thread brings them.
#include "controller/VTLViewController.h"
#include "model/InstructionText.h"
#include "platform/PlatformError.h"

namespace vantorel {
namespace {

/// The description of the one error that a new run mends.
constexpr std::string_view kTrackingFailure = "World tracking failure";

}  // namespace

void VTLViewController::captureSessionDidStart(std::shared_ptr<RoomCaptureSession> started) {
  if (!isCustomXREnabled) captureSession.store(std::move(started));
}

void VTLViewController::captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) {
  if (isRoomPlanSessionScanningPaused) return;
  platform_.mainQueue().async(
      [self = shared_from_this(), room = std::move(room)] { self->handleUpdate(room); });
}

void VTLViewController::handleUpdate(const std::shared_ptr<CapturedRoom> &room) {
  if (room->isEmpty()) return;
  finalResults = room;
  SendRoomSnapshot(*room);
  callbacks_.VTLCaptureSessionDidUpdate.fire();
}

void VTLViewController::SendRoomSnapshot(const CapturedRoom &room) {
  try {
    roomFinalStringResults = room.jsonText();
  } catch (const PlatformError &) {
    return;
  }
  const auto callback = callbacks_.VTLRoomSnapshot.get();
  if (!callback) return;
  const char *copy = copyForHost(roomFinalStringResults);
  if (!copy) platform_.stop(kNilUnwrapped);
  (*callback)(copy);
}

void VTLViewController::captureSessionDidProvide(Instruction instruction) {
  if (isRoomPlanSessionScanningPaused || !isInstructionEnabled) return;
  const std::string text = instructionText(instruction);
  roomInstructionStringResults.store(text);
  if (const auto callback = callbacks_.VTLCaptureSessionInstruction.get()) (*callback)(copyForHost(text));
}

void VTLViewController::captureSessionDidEnd(std::optional<std::string> errorDescription) {
  if (errorDescription != kTrackingFailure) return;
  platform_.console().print("There was an error in the Apple RoomCaptureSession form!");
  platform_.console().print("RSError: kRSError_Runtime_DriftDetection: 4");
  platform_.console().print("Session reloaded!");
  forceReloadCaptureSession();
}

}  // namespace vantorel
