#pragma once

#include "platform/CapturedRoom.h"
#include "platform/apple/Border.h"

#include <memory>
#include <string_view>

namespace vantorel::apple {

class AppleCapturedRoom final : public CapturedRoom {
 public:
  explicit AppleCapturedRoom(Handle room) : room_(std::move(room)) {}

  bool isEmpty() const override;
  Uuid identifier() const override;
  std::string jsonText() const override;
  CapturedRoomContent content() const override;
  void writeUsdz(const std::string &path) const override;

  vantorel_swift_handle handle() const { return room_.get(); }

 private:
  Handle room_;
};

/// The room of a room text. Throws PlatformError when the text is none.
std::shared_ptr<CapturedRoom> decodedRoom(std::string_view text);

}  // namespace vantorel::apple
