// vantorel_apple_check ROOM: a host that scans ROOM through the iPhone's platform on stand-in frameworks and
// saves it. Fails when a callback is missing or a text is not Foundation's.
#include "Check.h"

#include "vantorel/vantorel.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>

extern "C" {
void standin_connect_scene();
void standin_run_main_loop();
char *standin_views();
void standin_scan(const char *path);
char *standin_room_text();
}

namespace {

int failures = 0;

void registerCallbacks() {
  setVTLDidStart([] { ++heard.starts; });
  setVTLDidEnd([] { ++heard.ends; });
  setVTLCaptureSessionDidStart([] { ++heard.sessionStarts; });
  setVTLCaptureSessionDidEnd([] { ++heard.sessionEnds; });
  setVTLCaptureSessionDidUpdate([] { ++heard.updates; });
  setVTLCaptureSessionInstruction([](const char *text) { heard.instruction = taken(text); });
  setVTLRoomSnapshot([](const char *text) { heard.snapshot = taken(text); });
}

void scan() {
  initializeVTL();
  expect(heard.starts == 0, "initialise does nothing inside the call");
  waitUntil([] { return heard.starts > 0; });
  startCaptureSession();
  expectViews("clear UIWindow(untouchable UIView(ARSCNView), clear UIView)");
  waitUntil([] { return heard.updates > 0; });
}

void save(const std::string &home, const std::string &roomPath) {
  const std::string foundation = taken(standin_room_text()), input = fileText(roomPath);
  expect(heard.snapshot == foundation, "the snapshot is Foundation's text");
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
  waitUntil([] { return heard.ends > 0; });
  expectViews("clear UIWindow(untouchable UIView, clear UIView)");
}

}  // namespace

Heard heard;

std::string taken(const char *text) {
  std::string copy = text;
  std::free(const_cast<char *>(text));
  return copy;
}

std::string fileText(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void expect(bool holds, const std::string &what) {
  std::printf("%s %s\n", holds ? "ok    " : "FAILED", what.c_str());
  if (!holds) ++failures;
}

void expectViews(const std::string &wanted) {
  const std::string views = taken(standin_views());
  expect(views == wanted, "the views are " + views);
}

void waitUntil(const std::function<bool()> &holds) {
  for (int i = 0; i < 500 && !holds(); ++i) standin_run_main_loop();
}

void letRun() {
  for (int i = 0; i < 5; ++i) standin_run_main_loop();
}

std::string printed(const std::string &last, const std::function<void()> &work) {
  std::fflush(stdout);
  const int console = dup(STDOUT_FILENO);
  const std::string path = std::filesystem::temp_directory_path() / "console";
  const int file = open(path.c_str(), O_CREAT | O_TRUNC | O_WRONLY, 0600);
  dup2(file, STDOUT_FILENO);
  close(file);
  work();
  std::string text;
  waitUntil([&] {
    std::fflush(stdout);
    return (text = fileText(path)).ends_with(last + "\n");
  });
  dup2(console, STDOUT_FILENO);
  close(console);
  return text;
}

void expectPrinted(const std::string &wanted, const std::function<void()> &work) {
  const std::string text = printed(wanted, work);
  expect(text == wanted + "\n", "printed: " + text.substr(0, text.find('\n')));
}

int main(int argc, char **argv) {
  if (argc != 2) return std::puts("usage: vantorel_apple_check ROOM"), 2;
  std::string home = std::filesystem::temp_directory_path() / "vantorel-apple-XXXXXX";
  if (!mkdtemp(home.data())) return std::perror("mkdtemp"), 2;
  setenv("CFFIXED_USER_HOME", home.c_str(), 1);  // where Foundation looks for the documents
  setenv("TMPDIR", home.c_str(), 1);
  mediaWithoutWindow();
  standin_connect_scene();
  mediaScene(home);
  standin_scan(argv[1]);
  registerCallbacks();
  scan();
  save(home, argv[1]);
  finish();
  expect(heard.starts == 1 && heard.ends == 1, "the library started and ended");
  expect(heard.sessionStarts == 1 && heard.sessionEnds == 1, "the session started and ended");
  expect(heard.updates == 1, "there was one update");
  expect(heard.instruction == "TurnOnLight", "the instruction came");
  worldMapScene(home);
  mergeScene(home);
  scanViewScene();
  std::filesystem::remove_all(home);
  return failures == 0 ? 0 : 1;
}
