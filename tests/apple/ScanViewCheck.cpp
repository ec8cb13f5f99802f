#include "vantorel/vantorel.h"

#include "Check.h"

extern "C" {
int standin_scan_views_asked();
int standin_scan_views_presented();
}

/// A session's start event makes it the library's, also when it comes after the next start; so each is waited for.
static void startAndScan() {
  const int updates = heard.updates;
  startCaptureSession();
  waitUntil([updates] { return heard.updates > updates; });
  expect(heard.updates > updates, "the view's own session scans");
}

void scanViewScene() {
  prepareVTLResources();
  expectViews("clear UIWindow(untouchable UIView, clear UIView)");
  isVTLDefaultScanEnabled(1);
  startAndScan();
  expectViews(
      "clear UIWindow(untouchable UIView(RoomCaptureView(UIView, CoachingView, ModelView)), clear UIView)");
  stopCaptureSession();
  isVTLCoachingEnabled(0);
  isVTLDefaultMiniatureModelEnabled(0);
  startAndScan();
  expectViews(
      "clear UIWindow(untouchable UIView(RoomCaptureView(UIView, hidden CoachingView)), clear UIView)");
  stopCaptureSession();
  expectViews("clear UIWindow(untouchable UIView, clear UIView)");
  waitUntil([] { return standin_scan_views_asked() == 2; });
  expect(standin_scan_views_asked() == 2 && standin_scan_views_presented() == 0,
         "no scan view shows its result");
}
