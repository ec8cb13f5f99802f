#pragma once

#include "Listening.h"
#include "ScriptParser.h"

#include <cstddef>
#include <iosfwd>
#include <string>

namespace vantorel {

/// A plain host of the library: carries out commands, one a line, and prints what comes back. Owns the
/// simulated device while it lives, so only one can. Main thread.
class Host {
 public:
  /// `documents` is the device's documents folder, created when absent. Throws ScriptError when it cannot be.
  Host(Printer &printer, std::string documents);

  /// Runs every line; one that fails is an error event and the next one follows. False if any failed.
  bool runScript(std::istream &script);

 private:
  bool runLine(std::istream &script, std::size_t number);
  void run(const Words &words) const;

  Listening listening_;
  std::string documents_;
};

}  // namespace vantorel
