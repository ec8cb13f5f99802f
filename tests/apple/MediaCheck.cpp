#include "vantorel/vantorel.h"

#include "Check.h"
#include "bridge/Vantorel.h"
#include "platform/Platform.h"
#include "platform/PlatformError.h"

#include <cstdio>
#include <fstream>

extern "C" {
void standin_connect_camera(bool hasTorch, bool isLockRefused);
void standin_remove_camera();
char *standin_camera_log();
void standin_refuse_drawing(bool isRefused);
char *standin_presented();
void standin_close_top();
void standin_present_alert();
void standin_dismiss_all();
void standin_decline_recordings(bool isDeclined);
}

namespace {

using vantorel::Vantorel;

void expectShown(const std::string &wanted) {
  std::string shown;
  waitUntil([&] { return (shown = taken(standin_presented())) == wanted; });
  expect(shown == wanted, "shown: " + shown);
}

/// The person closes what is on top; then `wanted` is shown.
void expectNext(const std::string &wanted) {
  standin_close_top();
  expectShown(wanted);
}

template <typename Call>
void expectThrow(const char *what, Call call) {
  try {
    call();
    expect(false, what);
  } catch (const vantorel::PlatformError &error) {
    expect(*error.what() != '\0', std::string(what) + ": " + error.what());
  }
}

void keepFiles(const std::string &home) {
  vantorel::FileManager &files = vantorel::platform().fileManager();
  expect(files.temporaryDirectory() == home, "the temporary folder is without a slash at the end");
  const std::string folder = home + "/a folder", path = folder + "/ä", bytes("a\0\xFF\n", 4);
  files.createDirectory(folder);
  files.writeFile(path, bytes);
  expect(files.readFile(path) == bytes, "all bytes of a file come back");
  expectThrow("a folder is no file", [&] { files.readFile(folder); });
  files.removeItem(folder);
  expect(!files.fileExists(folder), "a folder goes with what is in it");
  expectThrow("nothing can be read where nothing is", [&] { files.readFile(path); });
  expectThrow("nothing can be removed where nothing is", [&] { files.removeItem(folder); });
}

void expectCamera(const char *wanted, bool torch) {
  setFlashlightStatus(torch);
  const std::string log = taken(standin_camera_log());
  expect(log == wanted, "the camera saw: " + log);
}

void switchTorch() {
  expectCamera("", true);
  standin_connect_camera(false, false);
  expectCamera("", true);
  standin_connect_camera(true, true);
  expectCamera("", true);
  standin_connect_camera(true, false);
  expectCamera("lock on unlock ", true);
  expectCamera("lock off unlock ", false);
  standin_remove_camera();
}

std::string takeScreenshots(const std::string &home) {
  const std::string path = home + "/Documents/screenshot-1.jpg";
  standin_refuse_drawing(true);
  expectPrinted("Couldn't take a screenshot: the window could not be drawn", screenshotVTL);
  standin_refuse_drawing(false);
  expectPrinted("There is no screenshot to share", screenshotShareVTL);
  screenshotVTL();
  expect(taken(getVTLNativeScreenshotOutputURL()) == path, "the screenshot's path is " + path);
  const std::string jpeg = fileText(path);
  expect(jpeg.starts_with("\xFF\xD8\xFF") && jpeg.ends_with("\xFF\xD9"), "it is a JPEG");
  expect(jpeg.find("UIWindow") != std::string::npos, "it shows the window");
  expectShown("");
  return path;
}

void showOneAfterAnother(const std::string &home, const std::string &picture) {
  isNativeScreenshotPreview(1);
  isNativeScreenshot(1);
  screenshotVTL();
  const std::string second = home + "/Documents/screenshot-2.jpg";
  vtl_QuickLook(picture.c_str());
  vtl_shareFolder(home.c_str());
  Vantorel::shareText("50 % of it");
  Vantorel::shareLink("https://example.com/a?b=1");
  expectShown("preview " + second);
  expectNext("share file " + second);
  expectNext("preview " + picture);
  expectNext("share file " + home);
  expectNext("share text 50 % of it");
  expectNext("share link https://example.com/a?b=1");
  expectNext("");
  screenshotShareVTL();
  expectShown("share file " + second);
  expectNext("");
}

/// What the host shows stays, and its coming and going is waited for.
void showOverTheHost(const std::string &picture) {
  standin_present_alert();
  vtl_QuickLook(picture.c_str());
  expectShown("UIAlertController > preview " + picture);
  expectNext("UIAlertController");
  vtl_QuickLook(picture.c_str());
  Vantorel::shareText("later");
  expectShown("UIAlertController > preview " + picture);
  standin_dismiss_all();
  expectShown("share text later");
  standin_close_top();
  vtl_shareFile(picture.c_str());
  expectShown("share file " + picture);
  expectNext("");
}

void film(const std::string &home) {
  const std::string path = home + "/vantorel-recording-2.mp4";
  std::ofstream(path) << "of an earlier process";
  standin_decline_recordings(true);
  expectPrinted("Couldn't start the screen recording: The user declined application recording.",
                startScreenRecorderVTL);
  standin_decline_recordings(false);
  expectPrinted("Couldn't stop the screen recording: No recording runs.", stopScreenRecorderVTL);
  isNativeScreenRecorderPreview(1);
  isNativeScreenRecorder(1);
  startScreenRecorderVTL();
  expectPrinted("Couldn't start the screen recording: Recording runs already.", startScreenRecorderVTL);
  stopScreenRecorderVTL();
  expectShown("preview " + path);
  expectNext("share file " + path);
  expectNext("");
  expect(taken(getVTLNativeScreenRecorderOutputURL()) == path, "the film's path is " + path);
  expect(fileText(path) == "film without microphone", "it replaces an older one, without the microphone");
}

}  // namespace

void mediaWithoutWindow() {
  expectPrinted("Couldn't take a screenshot: there is no window", screenshotVTL);
  expect(taken(getVTLNativeScreenshotOutputURL()).empty(), "there is no screenshot without a window");
  Vantorel::shareText("nobody sees this");
  letRun();
}

void mediaScene(const std::string &home) {
  keepFiles(home);
  switchTorch();
  const std::string picture = takeScreenshots(home);
  expectPrinted("There is no such file or folder: /nowhere", [] { vtl_QuickLook("/nowhere"); });
  showOneAfterAnother(home, picture);
  showOverTheHost(picture);
  film(home);
}
