#include "ScanProgress.h"

#include <algorithm>
#include <ostream>

namespace vantorel {

ScanProgress::ScanProgress(std::ostream &terminal, double seconds, bool showsBar)
    : terminal_(terminal), seconds_(seconds), showsBar_(showsBar) {}

ScanProgress::~ScanProgress() { clearBar(); }

void ScanProgress::print(const Event &event) {
  const std::lock_guard lock(mutex_);
  count(event);
  if (showsBar_) drawBar(event.seconds);
}

void ScanProgress::count(const Event &event) {
  if (event.name == "VTLCaptureSessionDidUpdate") ++updates_;
  if (event.name == "VTLCaptureSessionInstruction") ++instructions_;
  if (event.kind == "return") isSaved_ = event.value.content == "true";
  if (event.kind == "console" || event.kind == "error")
    remarks_ += (remarks_.empty() ? "" : "; ") + event.value.content;
}

void ScanProgress::drawBar(double now) {
  constexpr std::size_t kWidth = 40;
  const auto done = static_cast<std::size_t>(kWidth * std::clamp(now / seconds_, 0.0, 1.0));
  terminal_ << "\r[" << std::string(done, '#') << std::string(kWidth - done, '.') << "] " << updates_
            << " updates" << std::flush;
}

void ScanProgress::clearBar() {
  if (showsBar_) terminal_ << "\r\x1b[K" << std::flush;
  showsBar_ = false;
}

}  // namespace vantorel
