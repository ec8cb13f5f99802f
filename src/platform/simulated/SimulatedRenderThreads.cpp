#include "platform/simulated/SimulatedRenderThreads.h"

#include <algorithm>
#include <mutex>
#include <utility>

namespace vantorel {
namespace {

/// Frames a second; the display makes no more.
constexpr float kDisplayRate = 59;

double secondsOf(Scheduler::Time time) { return static_cast<double>(time) / Scheduler::kSecond; }

class SimulatedDisplayLink : public DisplayLink, public std::enable_shared_from_this<SimulatedDisplayLink> {
 public:
  SimulatedDisplayLink(Scheduler &scheduler, std::function<void(DisplayLink &)> action)
      : scheduler_(scheduler),
        group_(scheduler.newGroup()),
        action_(std::make_shared<Action>(std::move(action))) {}

  void addToCurrentRunLoop(RunLoopMode) override {
    const std::lock_guard lock(mutex_);
    if (!action_ || isAdded_) return;
    isAdded_ = true;
    thread_ = Scheduler::currentThread();
    if (thread_) scheduler_.addSource(thread_);
    postFrame();
  }

  void setPreferredFrameRateRange(const FrameRateRange &range) override {
    const std::lock_guard lock(mutex_);
    period_ = periodOf(range.maximum);
    if (!action_ || !isAdded_) return;
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
    const double used = rate > 0 ? std::min(rate, kDisplayRate) : kDisplayRate;
    return static_cast<Scheduler::Time>(std::min(1e18, static_cast<double>(Scheduler::kSecond) / used));
  }

  /// With the lock held. The run loop keeps the link alive.
  void postFrame() {
    scheduler_.post({.role = thread_ ? Role::render : Role::main,
                     .work = [self = shared_from_this()] { self->showFrame(); },
                     .group = group_,
                     .isPeriodic = true,
                     .thread = thread_},
                    scheduler_.now() + period_);
  }

  void showFrame() {
    std::shared_ptr<Action> action;
    {
      const std::lock_guard lock(mutex_);
      if (!action_) return;
      frame_ = scheduler_.now();
      postFrame();
      action = action_;  // the action may invalidate the link
    }
    (*action)(*this);
  }

  Scheduler &scheduler_;
  const Scheduler::Group group_;  // the next frame
  std::mutex mutex_;
  std::shared_ptr<Action> action_;  // null: invalidated
  std::shared_ptr<Scheduler::Thread> thread_;
  bool isAdded_ = false;
  Scheduler::Time period_ = periodOf(kDisplayRate);
  Scheduler::Time frame_ = 0;
};

}  // namespace

std::shared_ptr<DisplayLink> SimulatedRenderThreads::makeDisplayLink(
    std::function<void(DisplayLink &)> action) {
  return std::make_shared<SimulatedDisplayLink>(scheduler_, std::move(action));
}

}  // namespace vantorel
