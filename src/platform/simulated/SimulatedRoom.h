#pragma once

#include "platform/CapturedRoom.h"
#include "platform/simulated/Faults.h"
#include "rooms/RoomDocument.h"

#include <memory>

namespace vantorel {

/// A room document in the role of a captured room.
class SimulatedRoom : public CapturedRoom {
 public:
  /// `faults` outlives the room.
  SimulatedRoom(std::shared_ptr<const RoomDocument> document, Uuid identifier, Faults &faults)
      : document_(std::move(document)), identifier_(identifier), faults_(faults) {}

  bool isEmpty() const override { return document_->isEmpty(); }
  Uuid identifier() const override { return identifier_; }
  std::string jsonText() const override;
  CapturedRoomContent content() const override;
  void writeUsdz(const std::string &path) const override;

 private:
  const std::shared_ptr<const RoomDocument> document_;
  const Uuid identifier_;
  Faults &faults_;
};

}  // namespace vantorel
