#include "HostCommand.h"

#include "vantorel/simulated_device.h"

#include "Arguments.h"
#include "Host.h"
#include "LibraryCalls.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unistd.h>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// A fresh folder, removed with the object.
class TemporaryFolder {
 public:
  TemporaryFolder() : path_((fs::temp_directory_path() / "vantorel-XXXXXX").string()) {
    if (!mkdtemp(path_.data())) throw ScriptError("cannot make a temporary folder as " + path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder &) = delete;
  TemporaryFolder &operator=(const TemporaryFolder &) = delete;
  const std::string &path() const { return path_; }

 private:
  std::string path_;
};

/// VANTOREL_FREE_RUNNING=1 and VANTOREL_HANDOVER_SLEEP=MICROSECONDS[:SEED]: how the project's own checks vary
/// the timing of threads.
void applyEnvironment() {
  const char *freeRunning = std::getenv("VANTOREL_FREE_RUNNING");
  vantorelDeviceSetFreeRunning(freeRunning && booleanArgument(freeRunning));
  const char *sleep = std::getenv("VANTOREL_HANDOVER_SLEEP");
  if (!sleep) return;
  const std::string words = sleep;
  const std::size_t colon = words.find(':');
  vantorelDeviceSetHandoverSleep(countArgument(words.substr(0, colon)),
                                 colon == std::string::npos ? 1 : countArgument(words.substr(colon + 1)));
}

bool run(const HostOptions &options, std::istream &script, const std::string &documents) {
  JsonPrinter json(std::cout);
  ReadablePrinter readable(std::cout);
  Host host(options.json ? static_cast<Printer &>(json) : readable, documents);
  if (options.registersCallbacks) registerCallbacks();
  return host.runScript(script);
}

bool run(const HostOptions &options, std::istream &script) {
  if (!options.documents.empty()) return run(options, script, options.documents);
  const TemporaryFolder folder;
  return run(options, script, folder.path());
}

}  // namespace

int runHost(const HostOptions &options) {
  applyEnvironment();
  if (options.script.empty()) return run(options, std::cin) ? 0 : 1;
  std::ifstream script(options.script, std::ios::binary);
  script.peek();  // a folder opens but cannot be read
  if (script.fail()) throw ScriptError("cannot read " + options.script);
  return run(options, script) ? 0 : 1;
}

}  // namespace vantorel
