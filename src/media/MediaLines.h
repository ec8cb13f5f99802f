// The console lines of the media operations. Those that end in a colon go on with a path or the platform's
// reason.
#pragma once

namespace vantorel {

inline constexpr const char *kEmptyPath = "There is nothing to show: the path is empty";
inline constexpr const char *kEmptyText = "There is nothing to share: the text is empty";
inline constexpr const char *kMissingFile = "There is no such file or folder: ";
inline constexpr const char *kNoScreenshot = "There is no screenshot to share";
inline constexpr const char *kScreenshotFailed = "Couldn't take a screenshot: ";
inline constexpr const char *kRecordingNotStarted = "Couldn't start the screen recording: ";
inline constexpr const char *kRecordingNotStopped = "Couldn't stop the screen recording: ";

}  // namespace vantorel
