#include "Crossing.h"

using namespace vantorel;
using namespace vantorel::device;

void device_drop(void *object) { vantorel_core_drop(object); }

uint64_t device_power_cycles() { return simulatedPlatform().powerCycles(); }
bool device_has_lidar() { return parts().options.get().hasLidar; }
char *device_check(const char *call) {
  return errorOf([&] { parts().faults.check(call); });
}
void device_note(const char *name, const char *json) { parts().notes.set(name, json); }

// ---- Queues and threads ----

void device_main_async(device_callback work) { simulatedPlatform().mainQueue().async(Callback(work)); }

void device_main_after(int64_t nanoseconds, device_callback work) {
  simulatedPlatform().mainQueue().after(std::chrono::nanoseconds(nanoseconds), Callback(work));
}

bool device_is_main_thread() { return Scheduler::currentRole() == Role::main; }
void device_start_thread(device_callback entry) {
  simulatedPlatform().renderThreads().startThread(Callback(entry));
}
void device_run_loop() { simulatedPlatform().renderThreads().runCurrentRunLoop(); }

// ---- Display links ----

static DisplayLink &link(void *link) { return *taken<DisplayLink>(link); }

void *device_link_create(device_callback action) {
  return given(simulatedPlatform().renderThreads().makeDisplayLink(
      [action = Callback(action)](DisplayLink &) { action(); }));
}

void device_link_add(void *link, bool commonModes) {
  ::link(link).addToCurrentRunLoop(commonModes ? RunLoopMode::commonModes : RunLoopMode::defaultMode);
}

void device_link_set_rate(void *link, float minimum, float maximum, float preferred) {
  ::link(link).setPreferredFrameRateRange({minimum, maximum, preferred});
}

void device_link_invalidate(void *link) { ::link(link).invalidate(); }
double device_link_timestamp(void *link) { return ::link(link).timestamp(); }
double device_link_target_timestamp(void *link) { return ::link(link).targetTimestamp(); }
