// vantorel_apple_check ROOM: a host that scans ROOM through the iPhone's platform on stand-in frameworks and
// saves it. Fails when a callback is missing or a text is not Foundation's.
#include "vantorel/vantorel.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" {
void standin_connect_scene();
void standin_run_main_loop();
char *standin_views();
void standin_scan(const char *path);
char *standin_room_text();
}

namespace {

int starts = 0, ends = 0, sessionStarts = 0, sessionEnds = 0, updates = 0;
std::string snapshot, instruction;
int failures = 0;

std::string taken(const char *text) {
  std::string copy = text;
  std::free(const_cast<char *>(text));
  return copy;
}

std::string fileText(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void expect(bool holds, const char *what) {
  std::printf("%s %s\n", holds ? "ok    " : "FAILED", what);
  if (!holds) ++failures;
}

void expectViews(const char *wanted) {
  const std::string views = taken(standin_views());
  expect(views == wanted, ("the views are " + views).c_str());
}

/// Lets the main thread run until `count` is there, for two seconds at most.
void waitFor(const int &count) {
  for (int i = 0; i < 200 && count == 0; ++i) standin_run_main_loop();
}

void registerCallbacks() {
  setVTLDidStart([] { ++starts; });
  setVTLDidEnd([] { ++ends; });
  setVTLCaptureSessionDidStart([] { ++sessionStarts; });
  setVTLCaptureSessionDidEnd([] { ++sessionEnds; });
  setVTLCaptureSessionDidUpdate([] { ++updates; });
  setVTLCaptureSessionInstruction([](const char *text) { instruction = taken(text); });
  setVTLRoomSnapshot([](const char *text) { snapshot = taken(text); });
}

void scan() {
  initializeVTL();
  expect(starts == 0, "initialise does nothing inside the call");
  waitFor(starts);
  startCaptureSession();
  expectViews("clear UIWindow(untouchable UIView(ARSCNView), clear UIView)");
  waitFor(updates);
}

void save(const std::string &home, const std::string &roomPath) {
  const std::string foundation = taken(standin_room_text()), input = fileText(roomPath);
  expect(snapshot == foundation, "the snapshot is Foundation's text");
  expect(trySaveRoomPlanExperience("rooms", "first") == 1, "the save succeeds");
  expect(trySaveRoomPlanExperience("rooms", "first") == 0, "a second save is refused");
  const std::string saved = fileText(home + "/Documents/rooms/first/scan.json");
  expect(saved == foundation, "scan.json is Foundation's text");
  if (input.starts_with("{\n") && input.find("\"version\" : 2") != std::string::npos)
    expect(saved == input, "scan.json is the file that was scanned, byte for byte");
  expect(!fileText(home + "/Documents/rooms/first/scan.usdz").empty(), "scan.usdz is there");
}

void finish() {
  stopCaptureSession();
  disposeVTL();
  waitFor(ends);
  expectViews("clear UIWindow(untouchable UIView, clear UIView)");
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 2) return std::puts("usage: vantorel_apple_check ROOM"), 2;
  std::string home = std::filesystem::temp_directory_path() / "vantorel-apple-XXXXXX";
  if (!mkdtemp(home.data())) return std::perror("mkdtemp"), 2;
  setenv("CFFIXED_USER_HOME", home.c_str(), 1);  // where Foundation looks for the documents
  standin_connect_scene();
  standin_scan(argv[1]);
  registerCallbacks();
  scan();
  save(home, argv[1]);
  finish();
  expect(starts == 1 && ends == 1, "the library started and ended");
  expect(sessionStarts == 1 && sessionEnds == 1, "the session started and ended");
  expect(updates == 1, "there was one update");
  expect(instruction == "TurnOnLight", "the instruction came");
  std::filesystem::remove_all(home);
  return failures == 0 ? 0 : 1;
}
