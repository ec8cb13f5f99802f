#pragma once

#include "platform/CapturedRoom.h"
#include "platform/apple/Border.h"

namespace vantorel::apple {

class AppleCapturedRoom final : public CapturedRoom {
 public:
  explicit AppleCapturedRoom(Handle room) : room_(std::move(room)) {}

  bool isEmpty() const override;
  Uuid identifier() const override;
  std::string jsonText() const override;
  CapturedRoomContent content() const override;
  void writeUsdz(const std::string &path) const override;

 private:
  Handle room_;
};

}  // namespace vantorel::apple
