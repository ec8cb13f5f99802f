#pragma once

#include "base/JsonWriter.h"
#include "platform/simulated/Playback.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// Writes the lines of one recording in their order, as docs/recordings.md has them. Values that hold on from an
/// earlier line are left out.
class RecordingWriter {
 public:
  using Camera = std::optional<Float4x4>;  ///< nothing when it is not known

  /// A further run begins.
  std::string runLine(const Camera &camera);
  /// `seen` is for updates. Throws JsonEncodingError for a room with a NaN or infinite number.
  std::string eventLine(const Playback::Step &step, const Camera &camera, const Playback::Seen &seen);

 private:
  using Members = std::function<void(JsonWriter &)>;

  std::string line(const char *event, Playback::Time time, const Camera &camera, const Members &members);
  void writeMembers(JsonWriter &json, const Playback::Step &step, const Playback::Seen &seen);
  void writeSeen(JsonWriter &json, const Playback::Seen &seen);
  bool isLastModel(const std::shared_ptr<const std::string> &coreModel) const;

  Float4x4 camera_ = kCameraAtOrigin;
  std::optional<Uuid> identifier_;  // of the run
  std::shared_ptr<const std::string> coreModel_;
};

}  // namespace vantorel
