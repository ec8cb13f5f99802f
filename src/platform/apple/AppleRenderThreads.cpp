#include "platform/apple/AppleRenderThreads.h"

#include "platform/apple/Border.h"

namespace vantorel::apple {
namespace {

using Action = std::function<void(DisplayLink &)>;

class AppleDisplayLink final : public DisplayLink {
 public:
  explicit AppleDisplayLink(Handle link) : link_(std::move(link)) {}

  void addToCurrentRunLoop(RunLoopMode mode) override {
    vantorel_swift_link_add_to_current_run_loop(link_.get(), mode == RunLoopMode::commonModes);
  }
  void setPreferredFrameRateRange(const FrameRateRange &range) override {
    vantorel_swift_link_set_frame_rate(link_.get(), range.minimum, range.maximum, range.preferred);
  }
  void invalidate() override { vantorel_swift_link_invalidate(link_.get()); }
  double timestamp() override { return vantorel_swift_link_timestamp(link_.get()); }
  double targetTimestamp() override { return vantorel_swift_link_target_timestamp(link_.get()); }

 private:
  Handle link_;
};

}  // namespace

std::shared_ptr<DisplayLink> AppleRenderThreads::makeDisplayLink(Action action) {
  return std::make_shared<AppleDisplayLink>(Handle(vantorel_swift_link_create(carry(std::move(action)))));
}

void AppleRenderThreads::startThread(std::function<void()> entry) {
  vantorel_swift_start_thread(asWork(std::move(entry)));
}

void AppleRenderThreads::runCurrentRunLoop() { vantorel_swift_run_current_run_loop(); }

}  // namespace vantorel::apple

using namespace vantorel::apple;

void vantorel_core_link_fired(void *context, vantorel_swift_handle link) noexcept {
  AppleDisplayLink fired{Handle(link)};
  carried<Action>(context)(fired);
}
