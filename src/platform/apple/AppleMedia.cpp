#include "platform/apple/AppleMedia.h"

#include "platform/apple/Border.h"

namespace vantorel::apple {
namespace {

using Show = decltype(&vantorel_swift_preview_file);

Show showing(Presentation kind) {
  switch (kind) {
    case Presentation::preview:
    case Presentation::screenshot:
    case Presentation::recording:
      return vantorel_swift_preview_file;
    case Presentation::shareFile:
      return vantorel_swift_share_file;
    case Presentation::shareText:
      return vantorel_swift_share_text;
    case Presentation::shareLink:
      break;
  }
  return vantorel_swift_share_link;
}

}  // namespace

void ApplePresenter::present(Presentation kind, const std::string &content) {
  waiting_.emplace(kind, content);
  if (!isShowing_) showNext();
}

void ApplePresenter::showNext() {
  isShowing_ = !waiting_.empty();
  if (!isShowing_) return;
  const auto [kind, content] = std::move(waiting_.front());
  waiting_.pop();
  const Handle window(vantorel_swift_first_window());
  showing(kind)(window.get(), content.c_str(), asWork([this] { showNext(); }));
}

void AppleScreenRecorder::start(Completion completion) {
  vantorel_swift_recorder_start(carry(std::move(completion)));
}

void AppleScreenRecorder::stop(const std::string &path, Completion completion) {
  vantorel_swift_recorder_stop(path.c_str(), carry(std::move(completion)));
}

}  // namespace vantorel::apple

void vantorel_core_recorder_did_finish(void *context, const char *errorDescription) noexcept {
  using vantorel::ScreenRecorder;
  std::optional<std::string> error;
  if (errorDescription) error = errorDescription;
  vantorel::apple::carried<ScreenRecorder::Completion>(context)(error);
}
