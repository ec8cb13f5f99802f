#include "TemporaryFolder.h"

#include "base/Utf8Path.h"

#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <windows.h>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

const std::string *removedAtEnd = nullptr;

void remove(const std::string &folder) {
  std::error_code ignored;
  fs::remove_all(pathOf(folder), ignored);
}

/// An abort comes from a call and not from outside, so this may do what a handler otherwise must not.
extern "C" void removeOnAbort(int) {
  if (removedAtEnd) remove(*removedAtEnd);
}

/// Ctrl+C or a closed window, told on a thread of its own; the process then ends as it would have done.
BOOL WINAPI removeOnControl(DWORD) {
  if (removedAtEnd) remove(*removedAtEnd);
  return FALSE;
}

/// The folder for temporary files is the user's own.
std::string freshFolder() {
  const std::string base = textOf(fs::temp_directory_path() / "vantorel-");
  const std::string process = std::to_string(GetCurrentProcessId());
  for (int number = 1;; ++number) {
    const std::string path = base + process + '-' + std::to_string(number);
    std::error_code error;
    if (fs::create_directory(pathOf(path), error)) return path;
    if (error) throw std::runtime_error("cannot make a temporary folder as " + path + ": " + error.message());
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(freshFolder()) {
  removedAtEnd = &path_;
  SetConsoleCtrlHandler(removeOnControl, TRUE);
  std::signal(SIGABRT, removeOnAbort);
}

TemporaryFolder::~TemporaryFolder() {
  removedAtEnd = nullptr;
  remove(path_);
}

}  // namespace vantorel
