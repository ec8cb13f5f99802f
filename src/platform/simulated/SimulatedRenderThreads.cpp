#include "platform/simulated/SimulatedRenderThreads.h"

#include "platform/simulated/DeviceJson.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace vantorel {
namespace {

/// Frames a second; the display makes no more.
constexpr float kDisplayRate = 60;

float rateOf(const FrameRateRange &range) {
  return range.maximum > 0 ? std::min(range.maximum, kDisplayRate) : kDisplayRate;
}

double secondsOf(Scheduler::Time time) { return static_cast<double>(time) / Scheduler::kSecond; }

class SimulatedDisplayLink : public DisplayLink, public std::enable_shared_from_this<SimulatedDisplayLink> {
 public:
  SimulatedDisplayLink(DeviceParts &device, std::function<void(DisplayLink &)> action)
      : notes_(device.notes),
        scheduler_(device.scheduler),
        action_(std::make_shared<Action>(std::move(action))) {}

  void addToCurrentRunLoop(RunLoopMode mode) override {
    const std::lock_guard lock(mutex_);
    if (!action_ || isAdded_) return;
    isAdded_ = true;
    mode_ = mode;
    thread_ = Scheduler::currentThread();
    if (thread_) scheduler_.addSource(thread_);
    noteSettings();
    postFrame();
  }

  void setPreferredFrameRateRange(const FrameRateRange &range) override {
    const std::lock_guard lock(mutex_);
    range_ = range;
    period_ = periodOf(rateOf(range));
    if (!action_ || !isAdded_) return;
    noteSettings();
    scheduler_.cancel(group_);
    postFrame();
  }

  void invalidate() override {
    std::shared_ptr<Action> ended;  // released without the lock
    const std::lock_guard lock(mutex_);
    if (!action_) return;
    ended.swap(action_);
    scheduler_.cancel(group_);
    if (thread_) scheduler_.removeSource(thread_);
  }

  double timestamp() override {
    const std::lock_guard lock(mutex_);
    return secondsOf(frame_);
  }
  double targetTimestamp() override {
    const std::lock_guard lock(mutex_);
    return secondsOf(frame_ + period_);
  }

 private:
  using Action = std::function<void(DisplayLink &)>;

  static Scheduler::Time periodOf(float rate) {
    return static_cast<Scheduler::Time>(std::min(1e18, static_cast<double>(Scheduler::kSecond) / rate));
  }

  /// With the lock held, as below.
  void noteSettings() { notes_.set("displayLink.settings", jsonOf(mode_, range_, rateOf(range_))); }

  /// The run loop keeps the link alive. No frame before this one, were it handed over already, is shown.
  void postFrame() {
    group_ = scheduler_.newGroup();
    scheduler_.post({.role = thread_ ? Role::render : Role::main,
                     .work = [self = shared_from_this(), frame = group_] { self->showFrame(frame); },
                     .group = group_,
                     .isPeriodic = true,
                     .thread = thread_},
                    scheduler_.now() + period_);
  }

  void showFrame(Scheduler::Group frame) {
    std::shared_ptr<Action> action;
    {
      const std::lock_guard lock(mutex_);
      if (!action_ || frame != group_) return;
      frame_ = scheduler_.now();
      postFrame();
      action = action_;  // the action may invalidate the link
    }
    (*action)(*this);
  }

  DeviceNotes &notes_;
  Scheduler &scheduler_;
  std::mutex mutex_;
  std::shared_ptr<Action> action_;  // null: invalidated
  std::shared_ptr<Scheduler::Thread> thread_;
  bool isAdded_ = false;
  Scheduler::Group group_ = 0;  // the next frame
  RunLoopMode mode_ = RunLoopMode::defaultMode;
  FrameRateRange range_;
  Scheduler::Time period_ = periodOf(kDisplayRate);
  Scheduler::Time frame_ = 0;
};

}  // namespace

std::shared_ptr<DisplayLink> SimulatedRenderThreads::makeDisplayLink(
    std::function<void(DisplayLink &)> action) {
  return std::make_shared<SimulatedDisplayLink>(device_, std::move(action));
}

}  // namespace vantorel
