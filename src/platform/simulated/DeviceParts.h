#pragma once

#include "platform/simulated/DeviceNotes.h"
#include "platform/simulated/DeviceOptions.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Scheduler.h"
#include "platform/simulated/Sessions.h"

namespace vantorel {

/// What the objects of the simulated platform share; outlives them all.
struct DeviceParts {
  DeviceOptions options;
  Faults faults;
  DeviceNotes notes;
  Sessions sessions;
  Scheduler scheduler;  // last: its threads end first
};

}  // namespace vantorel
