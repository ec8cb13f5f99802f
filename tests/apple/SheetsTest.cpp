// Sheets that stay until somebody closes them; the simulated device's own are closed at once.
#include "bridge/Vantorel.h"
#include "support/DeviceTest.h"

extern "C" {
void standin_keep_sheets(bool isKept);
char *standin_presented();
void standin_close_top();
void standin_present_alert();
void standin_dismiss_all();
}

namespace vantorel::testing {
namespace {

class Sheets : public DeviceTest {
 protected:
  Sheets() { standin_keep_sheets(true); }
  ~Sheets() override { standin_keep_sheets(false); }

  /// What is shown over the host's view, once all is done that is due.
  static std::string shown() {
    advance();
    return taken(standin_presented());
  }
  /// The person closes what is on top.
  static std::string next() {
    standin_close_top();
    return shown();
  }
};

TEST_F(Sheets, AreShownOneAfterAnother) {
  isNativeScreenshotPreview(1);
  isNativeScreenshot(1);
  screenshotVTL();
  const std::string picture = file("screenshot-1.jpg"), folder = file("");
  vtl_QuickLook(picture.c_str());
  vtl_shareFolder(folder.c_str());
  Vantorel::shareText("50 % of it");
  Vantorel::shareLink("https://example.com/a?b=1");
  Vantorel::shareLink("http://[no link");
  EXPECT_EQ(shown(), "preview " + picture);
  EXPECT_EQ(next(), "share " + picture);
  EXPECT_EQ(next(), "preview " + picture);
  EXPECT_EQ(next(), "share " + folder.substr(0, folder.size() - 1));
  EXPECT_EQ(next(), "share 50 % of it");
  EXPECT_EQ(next(), "share https://example.com/a?b=1");
  EXPECT_EQ(next(), "share http://[no link");
  EXPECT_EQ(next(), "");
}

TEST_F(Sheets, LieOverWhatTheHostShows) {
  standin_present_alert();
  Vantorel::shareText("first");
  EXPECT_EQ(shown(), "alert  > share first");
  EXPECT_EQ(next(), "alert ");
  Vantorel::shareText("second");
  Vantorel::shareText("third");
  EXPECT_EQ(shown(), "alert  > share second");
  standin_dismiss_all();
  EXPECT_EQ(shown(), "share third");
  standin_close_top();
  Vantorel::shareText("while the third goes");
  EXPECT_EQ(shown(), "share while the third goes");
  EXPECT_EQ(next(), "");
}

TEST_F(Sheets, AreGoneAtOnceWithoutAWindow) {
  option("window", "none");
  Vantorel::shareText("nobody sees this");
  advance();
  option("window", "full");
  Vantorel::shareText("somebody sees this");
  EXPECT_EQ(shown(), "share somebody sees this");
}

}  // namespace
}  // namespace vantorel::testing
