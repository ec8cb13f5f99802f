// What the model says of previews, the share sheet, screenshots and screen recordings.
#include "walk/Model.h"

#include <cctype>

namespace vantorel::walk {
namespace {

/// A file URL's path, its escapes resolved; any other text as it stands.
std::string pathIn(const std::string &text) {
  constexpr std::string_view kScheme = "file://", kHost = "localhost";
  std::string rest = text.starts_with(kScheme) ? text.substr(kScheme.size()) : "";
  if (rest.starts_with(kHost)) rest.erase(0, kHost.size());
  if (!rest.starts_with('/')) return text;
  const auto isHex = [&](std::size_t i) {
    return i < rest.size() && std::isxdigit(static_cast<unsigned char>(rest[i]));
  };
  for (std::size_t i = 0; i < rest.size(); ++i)
    if (rest[i] == '%' && isHex(i + 1) && isHex(i + 2))
      rest.replace(i, 3, 1, static_cast<char>(std::stoi(rest.substr(i + 1, 2), nullptr, 16)));
  return rest;
}

std::string injected(const std::string &call) { return "the simulated device was told to fail " + call; }

}  // namespace

std::string screenshotPath(int number) {
  return kDocuments + "/screenshot-" + std::to_string(number) + ".jpg";
}

// ---- Preview and share ----

/// The device closes at once what it shows.
bool Model::present(const char *kind, const std::string &path) {
  if (path.empty()) {
    print("There is nothing to show: the path is empty");
  } else if (const bool endsInSlash = path.ends_with('/');
             !phone.exists(path.substr(0, path.size() - endsInSlash))) {
    print("There is no such file or folder: " + path);
  } else {
    say("present " + std::string(kind) + " " + path);
    return true;
  }
  return false;
}

void Model::presentEach(const char *kind, const std::string &path, bool isPreviewed, bool isShared) {
  if (isPreviewed) present(kind, path);
  if (isShared) present("share", path);
}

void Model::quickLook(const std::string &text) {
  if (present("preview", pathIn(text))) previewedPath = pathIn(text);
}

void Model::share(const std::string &text) { present("share", pathIn(text)); }

// ---- Screenshots ----

void Model::screenshot() {
  for (const char *call : {"screenshot", "window", "documentsDirectory", "createDirectory", "writeFile"}) {
    const bool isWindowMissing = call == std::string("window") && phone.window == "none";
    if (isWindowMissing || phone.fails(call))
      return print("Couldn't take a screenshot: " +
                   (isWindowMissing ? "there is no window" : injected(call)));
  }
  keepScreenshot();
}

void Model::keepScreenshot() {
  int number = 1;
  while (phone.exists(screenshotPath(number))) ++number;
  phone.write(screenshotPath(number), {ModelFile::Kind::other});
  nativeScreenshotOutputURL = screenshotPath(number);
  presentEach("screenshot", nativeScreenshotOutputURL, nativeScreenshotPreview, nativeScreenshot);
}

void Model::shareScreenshot() {
  if (nativeScreenshotOutputURL.empty()) return print("There is no screenshot to share");
  present("share", nativeScreenshotOutputURL);
}

// ---- Screen recordings ----

void Model::startScreenRecorder() {
  phone.startRecording([](Model &model, const std::string &error) {
    if (!error.empty()) model.print("Couldn't start the screen recording: " + error);
  });
}

void Model::stopScreenRecorder() {
  const std::string path =
      temporaryFolder() + "/vantorel-recording-" + std::to_string(++recordings_) + ".mp4";
  phone.stopRecording(path, [path](Model &model, const std::string &error) {
    if (!error.empty()) return model.print("Couldn't stop the screen recording: " + error);
    model.phone.post(Thread::main, [path](Model &later) {
      later.nativeScreenRecorderOutputURL = path;
      later.presentEach("recording", path, later.nativeScreenRecorderPreview, later.nativeScreenRecorder);
    });
  });
}

}  // namespace vantorel::walk
