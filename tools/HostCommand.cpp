#include "HostCommand.h"

#include "vantorel/simulated_device.h"

#include "Arguments.h"
#include "Files.h"
#include "Host.h"
#include "LibraryCalls.h"
#include "TemporaryFolder.h"

#include <cstdlib>
#include <iostream>

namespace vantorel {
namespace {

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
  if (!options.recording.empty()) host.record(options.recording);
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
  std::ifstream script = openFile(options.script);
  return run(options, script) ? 0 : 1;
}

}  // namespace vantorel
