#pragma once

#include "platform/CapturedRoom.h"
#include "platform/simulated/DeviceParts.h"
#include "rooms/RoomDocument.h"

#include <memory>

namespace vantorel {

/// Writes the model of a room, or of a structure's elements, to a file ending in ".usdz". Throws PlatformError.
void exportUsdz(const RoomDocument &room, const std::string &path, SimulatedFiles &files);

/// A room document in the role of a captured room.
class SimulatedRoom : public CapturedRoom {
 public:
  /// `device` outlives the room.
  SimulatedRoom(std::shared_ptr<const RoomDocument> document, Uuid identifier, DeviceParts &device)
      : document_(std::move(document)), identifier_(identifier), device_(device) {}

  bool isEmpty() const override { return document_->isEmpty(); }
  Uuid identifier() const override { return identifier_; }
  std::string jsonText() const override;
  CapturedRoomContent content() const override;
  void writeUsdz(const std::string &path) const override;

  const std::shared_ptr<const RoomDocument> &document() const { return document_; }

 private:
  const std::shared_ptr<const RoomDocument> document_;
  const Uuid identifier_;
  DeviceParts &device_;
};

}  // namespace vantorel
