#pragma once

#include "platform/simulated/Recording.h"
#include "platform/simulated/RecordingWriter.h"

#include <string>

namespace vantorel::testing {

using Runs = std::vector<std::shared_ptr<const RecordedRun>>;

/// Everything that the runs say, written again.
inline std::string written(const Runs &runs) {
  RecordingWriter writer;
  std::string text = std::string(kRecordingHeader) + "\n";
  for (const auto &run : runs) {
    text += writer.runLine(run->cameraAt(0)) + "\n";
    for (std::size_t i = 0; i < run->steps().size(); ++i) {
      const auto &step = run->steps()[i];
      text += writer.eventLine(step, run->cameraAt(step.due), run->seenAt(i)) + "\n";
    }
  }
  return text;
}

}  // namespace vantorel::testing
