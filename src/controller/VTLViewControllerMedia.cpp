// What the host can have shown, shared, photographed and filmed. Main thread; whatever fails prints one line and
// leaves the state as it was.
#include "controller/VTLViewController.h"
#include "media/HostFile.h"
#include "media/MediaLines.h"
#include "media/ScreenRecording.h"
#include "media/Screenshot.h"

namespace vantorel {

// ---- Previewing and sharing ----

void VTLViewController::QuickLook(const std::string &path) {
  const auto file = existingFile(platform_, path);
  if (!file) return;
  QLModelViewerURL = *file;
  platform_.presenter().present(Presentation::preview, *file);
}

void VTLViewController::ShareFile(const std::string &path) {
  if (const auto file = existingFile(platform_, path))
    platform_.presenter().present(Presentation::shareFile, *file);
}

void VTLViewController::ShareFolder(const std::string &path) { ShareFile(path); }

void VTLViewController::ShareText(const std::string &text) { shareWords(Presentation::shareText, text); }

void VTLViewController::ShareLink(const std::string &text) { shareWords(Presentation::shareLink, text); }

void VTLViewController::shareWords(Presentation kind, const std::string &text) {
  if (text.empty()) {
    platform_.console().print(kEmptyText);
  } else {
    platform_.presenter().present(kind, text);
  }
}

// ---- Screenshots ----

void VTLViewController::Screenshot() {
  const auto path = takeScreenshot(platform_);
  if (!path) return;
  nativeScreenshotOutputURL = *path;
  nativeScreenshotActivityItems = {*path};
  if (nativeScreenshotPreview) platform_.presenter().present(Presentation::screenshot, *path);
  if (nativeScreenshot) platform_.presenter().present(Presentation::shareFile, *path);
}

void VTLViewController::ScreenshotShare() {
  if (nativeScreenshotActivityItems.empty()) {
    platform_.console().print(kNoScreenshot);
  } else {
    ShareFile(nativeScreenshotActivityItems.front());
  }
}

// ---- Screen recordings ----

void VTLViewController::startScreenRecorder() { startScreenRecording(platform_); }

void VTLViewController::stopScreenRecorder() {
  stopScreenRecording(platform_, ++screenRecordings_, [weak = weak_from_this()](const std::string &path) {
    if (const auto self = weak.lock()) self->screenRecorderDidWrite(path);
  });
}

void VTLViewController::screenRecorderDidWrite(const std::string &path) {
  nativeScreenRecorderOutputURL = path;
  if (nativeScreenRecorderPreview) platform_.presenter().present(Presentation::recording, path);
  if (nativeScreenRecorder) platform_.presenter().present(Presentation::shareFile, path);
}

}  // namespace vantorel
