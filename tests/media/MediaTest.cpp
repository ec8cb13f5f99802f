#include "bridge/Vantorel.h"
#include "media/HostFile.h"
#include "support/DeviceTest.h"

#include <cstdlib>
#include <filesystem>
#include <regex>
#include <turbojpeg.h>

namespace vantorel::testing {
namespace {

/// A device whose temporary folder is one of its own.
class MediaTest : public DeviceTest {
 protected:
  MediaTest() { setenv("TMPDIR", temporary_.path().c_str(), 1); }
  ~MediaTest() override { unsetenv("TMPDIR"); }

  std::string recording(int number) const {
    return temporary_.path() + "/vantorel-recording-" + std::to_string(number) + ".mp4";
  }
  std::string screenshot(int number) const { return file("screenshot-" + std::to_string(number) + ".jpg"); }

  /// A path as a state shows it.
  static std::string quoted(const std::string &path) {
    return '"' + std::regex_replace(path, std::regex("/"), "\\/") + '"';
  }

  /// One line on the console that begins so, and nothing else has changed.
  static void expectOnlyLine(const std::string &beginning, const std::string &before) {
    const Lines lines = heard();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].starts_with(beginning)) << lines[0];
    EXPECT_EQ(state(nullptr), before);
  }

  TemporaryFolder temporary_;
};

using Sharing = MediaTest;
using Screenshots = MediaTest;
using ScreenRecordings = MediaTest;

// ---- Previewing and sharing ----

TEST_F(Sharing, ShowsWhatIsThere) {
  const std::string path = file("über uns 100%.usdz");
  writeFile(path, "model");
  vtl_QuickLook(path.c_str());
  vtl_shareFile(path.c_str());
  vtl_shareFolder(file("").c_str());
  Vantorel::shareText("two\nlines");
  Vantorel::shareLink("https://example.org");
  EXPECT_EQ(heard(), (Lines{"main present preview " + path, "main present share " + path,
                            "main present share " + file(""), "main present share two\nlines",
                            "main present share https://example.org"}));
  EXPECT_EQ(state("QLModelViewerURL"), quoted(path));
}

TEST_F(Sharing, SaysWhatIsMissing) {
  writeFile(file("there"), "");
  vtl_QuickLook(file("there").c_str());
  heard();
  const std::string before = state(nullptr), gone = file("gone");
  for (const auto operation : {vtl_QuickLook, vtl_shareFile, vtl_shareFolder}) {
    operation(gone.c_str());
    expectOnlyLine("main console There is no such file or folder: " + gone, before);
    operation("");
    expectOnlyLine("main console There is nothing to show: the path is empty", before);
  }
  for (const auto operation : {Vantorel::shareText, Vantorel::shareLink}) {
    operation("");
    expectOnlyLine("main console There is nothing to share: the text is empty", before);
  }
}

TEST_F(Sharing, UnderstandsFileUrls) {
  const struct {
    const char *text, *path;
  } cases[] = {
      {"file:///a/b%20c%2fd", "/a/b c/d"},
      {"file://localhost/a", "/a"},
      {"file:///a b", "/a b"},
      {"file:///50%", "/50%"},
      {"file:///%zz%4", "/%zz%4"},
      {"file:///%00", "/%00"},
      {"file:///%C3%BC%FF", "/ü\uFFFD"},
      {"/as%20it stands", "/as%20it stands"},
      {"file://elsewhere/a", "file://elsewhere/a"},
  };
  for (const auto &[text, path] : cases) EXPECT_EQ(pathIn(text), path) << text;
}

// ---- Screenshots ----

TEST_F(Screenshots, AreNumberedPicturesOfTheMomentInTheDocumentsFolder) {
  initialize();
  writeFile(screenshot(2), "somebody's");
  screenshotVTL();
  EXPECT_EQ(taken(getVTLNativeScreenshotOutputURL()), screenshot(1));
  start();
  screenshotVTL();
  EXPECT_EQ(taken(getVTLNativeScreenshotOutputURL()), screenshot(3));
  EXPECT_EQ(state("nativeScreenshotActivityItems"), '[' + quoted(screenshot(3)) + ']');
  update(walledRoom(3));
  screenshotVTL();
  stopCaptureSession();
  start();
  screenshotVTL();
  EXPECT_EQ(files(), (Lines{"screenshot-1.jpg", "screenshot-2.jpg", "screenshot-3.jpg", "screenshot-4.jpg",
                            "screenshot-5.jpg"}));
  EXPECT_EQ(readFile(screenshot(2)), "somebody's");

  const std::string empty = readFile(screenshot(3)), jpeg = readFile(screenshot(4));
  EXPECT_NE(readFile(screenshot(1)), empty) << "the camera";
  EXPECT_NE(jpeg, empty) << "the room";
  EXPECT_EQ(readFile(screenshot(5)), empty) << "a new scan has seen nothing";
  const tjhandle decoder = tjInitDecompress();
  int width = 0, height = 0, subsampling = 0, colours = 0;
  EXPECT_EQ(tjDecompressHeader3(decoder, reinterpret_cast<const unsigned char *>(jpeg.data()), jpeg.size(),
                                &width, &height, &subsampling, &colours),
            0);
  tjDestroy(decoder);
  EXPECT_EQ(width, 780);
  EXPECT_EQ(height, 1688);
}

TEST_F(Screenshots, AreShownAsTheSwitchesSay) {
  const std::string preview = "main present screenshot ", share = "main present share ";
  screenshotVTL();
  EXPECT_EQ(heard(), Lines());
  isNativeScreenshot(1);
  screenshotVTL();
  EXPECT_EQ(heard(), Lines{share + screenshot(2)});
  isNativeScreenshotPreview(1);
  screenshotVTL();
  EXPECT_EQ(heard(), (Lines{preview + screenshot(3), share + screenshot(3)}));
  isNativeScreenshot(0);
  screenshotVTL();
  EXPECT_EQ(heard(), Lines{preview + screenshot(4)});
}

TEST_F(Screenshots, AreSharedOnRequest) {
  const std::string before = state(nullptr);
  screenshotShareVTL();
  expectOnlyLine("main console There is no screenshot to share", before);
  screenshotVTL();
  screenshotShareVTL();
  EXPECT_EQ(heard(), Lines{"main present share " + screenshot(1)});
  removeFiles();
  const std::string taken = state(nullptr);
  screenshotShareVTL();
  expectOnlyLine("main console There is no such file or folder: " + screenshot(1), taken);
}

TEST_F(Screenshots, FailWithOneLine) {
  isNativeScreenshot(1);
  isNativeScreenshotPreview(1);
  screenshotVTL();
  heard();
  removeFiles();
  const std::string before = state(nullptr);
  for (const char *call : {"screenshot", "documentsDirectory", "createDirectory", "writeFile"}) {
    fail(call);
    screenshotVTL();
    expectOnlyLine("main console Couldn't take a screenshot: ", before);
  }
  option("window", "none");
  screenshotVTL();
  expectOnlyLine("main console Couldn't take a screenshot: there is no window", before);
  EXPECT_EQ(files(), Lines());
}

// ---- Screen recordings ----

TEST_F(ScreenRecordings, AreWrittenToTheTemporaryFolder) {
  writeFile(recording(1), "an older one");
  advance(1.5);
  startScreenRecorderVTL();
  EXPECT_EQ(state("screenRecorder.isRecording"), "true");
  advance(2.5);
  stopScreenRecorderVTL();
  EXPECT_EQ(state("screenRecorder.isRecording"), "false");
  EXPECT_EQ(taken(getVTLNativeScreenRecorderOutputURL()), "") << "it comes with the main queue";
  advance();
  EXPECT_EQ(taken(getVTLNativeScreenRecorderOutputURL()), recording(1));
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(readFile(recording(1)),
            "This is not a video. The simulated device made it in place of a screen recording\n"
            "from 1500 ms to 4000 ms of its clock.\n");
}

TEST_F(ScreenRecordings, AreShownAsTheSwitchesSay) {
  isNativeScreenRecorder(1);
  for (const vantorelBool previews : {0, 1}) {
    startScreenRecorderVTL();
    stopScreenRecorderVTL();
    isNativeScreenRecorderPreview(previews);  // read when the recording is there
    advance();
  }
  EXPECT_EQ(heard(), (Lines{"main present share " + recording(1), "main present recording " + recording(2),
                            "main present share " + recording(2)}));
}

TEST_F(ScreenRecordings, FailWithOneLine) {
  isNativeScreenRecorder(1);
  const std::string before = state(nullptr);
  stopScreenRecorderVTL();
  advance();
  expectOnlyLine("completion console Couldn't stop the screen recording: no recording runs", before);
  fail("recording");
  startScreenRecorderVTL();
  advance();
  expectOnlyLine("completion console Couldn't start the screen recording: the person declined", before);
  EXPECT_EQ(state("screenRecorder.isRecording"), "false");

  startScreenRecorderVTL();
  startScreenRecorderVTL();
  advance();
  expectOnlyLine("completion console Couldn't start the screen recording: a recording runs already", before);
  EXPECT_EQ(state("screenRecorder.isRecording"), "true") << "the first goes on";

  setenv("TMPDIR", file("gone").c_str(), 1);
  stopScreenRecorderVTL();
  advance();
  expectOnlyLine("main console Couldn't stop the screen recording: no folder for temporary files", before);
  EXPECT_EQ(state("screenRecorder.isRecording"), "true");
  setenv("TMPDIR", temporary_.path().c_str(), 1);
  std::filesystem::create_directory(recording(3));  // where the file should be
  stopScreenRecorderVTL();
  advance();
  expectOnlyLine("completion console Couldn't stop the screen recording: ", before);
  EXPECT_EQ(state("screenRecorder.isRecording"), "false") << "it is lost";
}

TEST_F(ScreenRecordings, AreForgottenWithThePower) {
  isNativeScreenRecorder(1);
  startScreenRecorderVTL();
  stopScreenRecorderVTL();
  startScreenRecorderVTL();
  powerCycle();
  EXPECT_EQ(state("screenRecorder.isRecording"), "false");
  advance(1);
  EXPECT_EQ(heard(), Lines());
  EXPECT_EQ(taken(getVTLNativeScreenRecorderOutputURL()), "");
}

}  // namespace
}  // namespace vantorel::testing
