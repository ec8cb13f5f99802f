#pragma once

#include "platform/simulated/DeviceNotes.h"
#include "platform/simulated/DeviceOptions.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Scheduler.h"
#include "platform/simulated/SessionRecorder.h"
#include "platform/simulated/Sessions.h"
#include "platform/simulated/SimulatedFiles.h"

#include <atomic>
#include <cstdint>

namespace vantorel {

/// What the objects of the simulated platform share; outlives them all.
struct DeviceParts {
  DeviceOptions options;
  Faults faults;
  SimulatedFiles files{faults};
  DeviceNotes notes;
  Sessions sessions;
  SessionRecorder recorder;
  std::atomic<std::uint32_t> arSessionCount = 0;  ///< made since the power cycle
  Scheduler scheduler;                            // last: its threads end first
};

}  // namespace vantorel
