// Sessions that end with a world map, and sessions that begin from one.
#include "controller/Job.h"
#include "controller/VTLViewController.h"
#include "storage/WorldMapFile.h"

namespace vantorel {
namespace {

constexpr std::chrono::nanoseconds kPollInterval{1'000'000'000};

struct Elapsed {};

Answer<Elapsed> after(MainQueue &queue, std::chrono::nanoseconds time) {
  return Answer<Elapsed>(
      [&queue, time](auto receive) { queue.after(time, [receive] { receive(Elapsed{}); }); });
}

/// Prints a line when a job leaves, by whatever path.
class LeavingLine {
 public:
  LeavingLine(Console &console, const char *line) : console_(console), line_(line) {}
  LeavingLine(const LeavingLine &) = delete;
  ~LeavingLine() { console_.print(line_); }

 private:
  Console &console_;
  const char *line_;
};

/// "/n" is refused as the host writes it, slash and n.
bool isEmptyPath(const std::string &path) { return path.empty() || path == "/n" || path == " "; }

Job scanOnceTracking(MainQueue &queue, Console &console, std::shared_ptr<VTLViewController> controller) {
  const LeavingLine line(console, "Worker task ending");
  while (!controller->session()->arSession()->isTrackingNormal()) {
    auto second = after(queue, kPollInterval);
    co_await second;
  }
  controller->beginScanning();
}

}  // namespace

void VTLViewController::startCaptureSessionWithARWorldMap(const std::string &path) {
  if (isScanning || !requireIOS17()) return;
  if (isEmptyPath(path)) return platform_.console().print("Path is empty.");
  const auto map = loadWorldMap(platform_, path);
  if (!map) return;
  createCaptureSession();
  session()->arSession()->run(*map);
  scanOnceTracking(platform_.mainQueue(), platform_.console(), shared_from_this());
}

void VTLViewController::stopCaptureSessionWithARWorldMap(const std::string &path) {
  if (!isScanning || !requireIOS17()) return;
  session()->stop();
  session()->arSession()->getCurrentWorldMap(
      [self = shared_from_this(), path](const std::shared_ptr<WorldMap> &map) {
        self->endWithWorldMap(path, map.get());
      });
}

/// On the platform's completion thread, the views included.
void VTLViewController::endWithWorldMap(const std::string &path, const WorldMap *map) {
  if (!map) return platform_.console().print("Can't get current world map");
  writeWorldMap(platform_, *map, path);
  removeScanningView();
  isRoomPlanSessionScanningPaused = false;
  isScanning = false;
  callbacks_.VTLCaptureSessionDidEnd.fire();
}

}  // namespace vantorel
