// How a finished room becomes the session that scanned it.
#pragma once

#include "platform/simulated/CameraWalk.h"
#include "platform/simulated/Playback.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// Walls are found one after the other and grow; doors, windows and openings appear once their wall stands;
/// then furniture, the floors and the sections. Confidence rises, coaching comes in between, and the last
/// update is the given room. Pure: the same room, length and rate give the same session. Immutable; any
/// thread.
class RoomPlayback : public Playback {
 public:
  /// A message when no session has that length (seconds) and rate (updates a second); else nothing.
  static std::optional<std::string> refusal(double seconds, double rate);
  /// `room` must not be null, `seconds` and `rate` not be refused.
  RoomPlayback(std::shared_ptr<const RoomDocument> room, double seconds, double rate);

  /// The last step is the update at the session's end.
  const std::vector<Step> &steps() const override { return steps_; }
  /// The identifier is that of the finished room throughout.
  Seen seenAt(std::size_t step) const override { return {roomAt(steps_[step].due), identifier_}; }
  Float4x4 cameraAt(Time time) const override { return walk_.poseAt(shareOf(time)); }
  bool isRecorded() const override { return false; }

  /// What is known of the room by then.
  std::shared_ptr<const RoomDocument> roomAt(Time time) const;

 private:
  /// When an element is first seen and when it is as in the finished room, as shares of the session.
  struct Span {
    double start = 0, end = 0;
  };
  struct Plan {
    std::vector<Span> walls, doors, windows, openings, objects;  ///< each in the room's order
  };

  static Plan planOf(const RoomDocument &room);
  static std::vector<Span> spansFrom(double first, double step, double length,
                                     const std::vector<std::size_t> &ranks);
  static CameraWalk walkOf(const RoomDocument &room, const Plan &plan);
  void addSteps(Time period);
  double shareOf(Time time) const;

  std::shared_ptr<const RoomDocument> room_;
  Uuid identifier_;
  Time duration_;
  Plan plan_;
  CameraWalk walk_;
  std::vector<Step> steps_;
};

}  // namespace vantorel
