#pragma once

#include "platform/RoomCaptureSession.h"
#include "rooms/RoomDocument.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vantorel {

/// What a session plays in one run: a scan made from a room, or a run of a recording. Immutable; any thread.
class Playback {
 public:
  using Time = std::int64_t;  ///< nanoseconds since the run

  struct Update {};  ///< with the room of seenAt
  struct End {
    std::optional<std::string> description;  ///< of the error, if it was one
  };

  using Event = std::variant<Update, Instruction, End>;

  struct Step {
    Time due = 0;
    Event event;
    /// Not the session's own doing but sent to it: comes after all else of its time, coaching or not.
    bool isSent = false;
    /// Comes directly after the step before, or with the run's start.
    bool isAtOnce = false;
  };
  struct Seen {
    std::shared_ptr<const RoomDocument> room;
    Uuid identifier;  ///< of the captured room; the document need not have it
  };

  Playback() = default;
  Playback(const Playback &) = delete;
  virtual ~Playback() = default;

  /// What happens, in order of time.
  virtual const std::vector<Step> &steps() const = 0;
  /// What an update brings, by its place among the steps.
  virtual Seen seenAt(std::size_t step) const = 0;
  virtual Float4x4 cameraAt(Time time) const = 0;
  /// One of a recording's runs, which has the next one behind it.
  virtual bool isRecorded() const = 0;
};

/// The camera's pose where nothing says otherwise.
inline constexpr Float4x4 kCameraAtOrigin = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};

}  // namespace vantorel
