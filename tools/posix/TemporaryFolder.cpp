#include "TemporaryFolder.h"

#include "Files.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

const std::string *removedOnAbort = nullptr;

void remove(const std::string &folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

/// An abort comes from a call and not from outside, so this may do what a handler otherwise must not.
extern "C" void removeOnAbort(int) {
  if (removedOnAbort) remove(*removedOnAbort);
}

/// Signals that are ignored, as under nohup, stay so.
sigset_t endingSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int number : {SIGHUP, SIGINT, SIGTERM}) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN) sigaddset(&signals, number);
  }
  return signals;
}

/// Ends the process as the signal would have done, only later.
void waitForSignal(const std::string &folder, const sigset_t &signals) {
  int number = 0;
  if (sigwait(&signals, &number) != 0) return;
  remove(folder);
  std::signal(number, SIG_DFL);
  pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
  std::raise(number);
}

std::string freshFolder() {
  const char *chosen = std::getenv("TMPDIR");
  std::string path = std::string(chosen && *chosen ? chosen : "/tmp") + "/vantorel-XXXXXX";
  if (!mkdtemp(path.data()))
    throw std::runtime_error("cannot make a temporary folder as " + path + ": " + errorText(errno));
  return path;
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(freshFolder()) {
  const sigset_t signals = endingSignals();
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::thread(waitForSignal, path_, signals).detach();
  removedOnAbort = &path_;
  std::signal(SIGABRT, removeOnAbort);
}

TemporaryFolder::~TemporaryFolder() {
  removedOnAbort = nullptr;
  remove(path_);
}

}  // namespace vantorel
