#include "bridge/Vantorel.h"
#include "media/HostFile.h"
#include "support/DeviceTest.h"

#include <cstdlib>
#include <filesystem>
#include <turbojpeg.h>

namespace vantorel::testing {
namespace {

// ---- Previewing and sharing ----

using Sharing = DeviceTest;

// Without an exported function.
TEST_F(Sharing, ShowsTextsAndLinks) {
  Vantorel::shareText("two\nlines");
  Vantorel::shareLink("https://example.org");
  Vantorel::shareLink("");
  EXPECT_EQ(heard(), (Lines{"main present share two\nlines", "main present share https://example.org",
                            "main console There is nothing to share: the text is empty"}));
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

class Screenshots : public DeviceTest {
 protected:
  std::string screenshot(int number) const { return file("screenshot-" + std::to_string(number) + ".jpg"); }
};

TEST_F(Screenshots, AreNumberedPicturesOfTheMoment) {
  initialize();
  writeFile(screenshot(2), "somebody's");
  screenshotVTL();
  start();
  screenshotVTL();
  update(walledRoom(3));
  screenshotVTL();
  stopCaptureSession();
  start();
  screenshotVTL();
  EXPECT_EQ(taken(getVTLNativeScreenshotOutputURL()), screenshot(5));
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

TEST_F(Screenshots, OfADeletedFileAreNotShared) {
  screenshotVTL();
  removeFiles();
  screenshotShareVTL();
  EXPECT_EQ(heard(), Lines{"main console There is no such file or folder: " + screenshot(1)});
}

// ---- Screen recordings ----

/// With a temporary folder of its own.
class ScreenRecordings : public DeviceTest {
 protected:
  ScreenRecordings() { setenv("TMPDIR", temporary_.path().c_str(), 1); }
  ~ScreenRecordings() override { unsetenv("TMPDIR"); }

  std::string recording(int number) const {
    return temporary_.path() + "/vantorel-recording-" + std::to_string(number) + ".mp4";
  }

  TemporaryFolder temporary_;
};

TEST_F(ScreenRecordings, AreWrittenToTheTemporaryFolder) {
  writeFile(recording(1), "an older one");
  advance(1.5);
  startScreenRecorderVTL();
  advance(2.5);
  stopScreenRecorderVTL();
  advance();
  EXPECT_EQ(taken(getVTLNativeScreenRecorderOutputURL()), recording(1));
  EXPECT_EQ(readFile(recording(1)),
            "This is not a video. The simulated device made it in place of a screen recording\n"
            "from 1500 ms to 4000 ms of its clock.\n");
}

TEST_F(ScreenRecordings, SayWhyTheyCouldNotBeWritten) {
  const auto expectLine = [](const std::string &thread, const std::string &why) {
    const Lines lines = heard();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(lines[0].starts_with(thread + " console Couldn't stop the screen recording: " + why))
        << lines[0];
  };
  startScreenRecorderVTL();
  setenv("TMPDIR", file("gone").c_str(), 1);
  stopScreenRecorderVTL();
  expectLine("main", "no folder for temporary files");
  EXPECT_EQ(state("screenRecorder.isRecording"), "true");

  setenv("TMPDIR", temporary_.path().c_str(), 1);
  std::filesystem::create_directory(recording(2));  // where the file should be
  stopScreenRecorderVTL();
  advance();
  expectLine("completion", "");
  EXPECT_EQ(state("screenRecorder.isRecording"), "false") << "it is lost";
}

TEST_F(ScreenRecordings, AreForgottenWithThePower) {
  startScreenRecorderVTL();
  stopScreenRecorderVTL();
  startScreenRecorderVTL();
  powerCycle();
  EXPECT_EQ(state("screenRecorder.isRecording"), "false");
  advance(1);
  EXPECT_EQ(taken(getVTLNativeScreenRecorderOutputURL()), "");
}

}  // namespace
}  // namespace vantorel::testing
