// What the scenes of vantorel_apple_check share. Main thread.
#pragma once

#include <atomic>
#include <functional>
#include <string>

/// Counts what does not hold.
void expect(bool holds, const std::string &what);

/// The text, which is freed.
std::string taken(const char *text);

/// The whole file; empty when there is none.
std::string fileText(const std::string &path);

/// Lets the main thread run for a while.
void letRun();

/// Lets the main thread run until something holds, for five seconds at most.
void waitUntil(const std::function<bool()> &holds);

/// What `work` writes to the console, until the line `last`, for which it waits as waitUntil does.
std::string printed(const std::string &last, const std::function<void()> &work);
/// Just this.
void expectPrinted(const std::string &wanted, const std::function<void()> &work);

/// The window's views, as standin_views describes them.
void expectViews(const std::string &wanted);

/// What the library has called back.
struct Heard {
  std::atomic<int> starts = 0, ends = 0, sessionStarts = 0, sessionEnds = 0, updates = 0;
  std::string snapshot, instruction;
};
extern Heard heard;

/// Torch, screenshots, previews, sharing and films, with and without a window. `home` holds the documents.
void mediaWithoutWindow();
void mediaScene(const std::string &home);

/// The AR camera, and scans that end with a world map and begin from one.
void worldMapScene(const std::string &home);

/// Rooms merged into a structure. After a scan.
void mergeScene(const std::string &home);

/// The platform's own scan view.
void scanViewScene();
