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

  /// Runs every line, as long as the printer is good; one that fails is an error event and the next one
  /// follows. False if any failed.
  bool runScript(std::istream &script);

 private:
  bool runLine(std::istream &script, std::size_t number);
  /// With the command's name in front of what is wrong with its arguments.
  void runNamed(const Words &words) const;
  void run(const Words &words) const;

  const Printer &printer_;
  Listening listening_;
  std::string documents_;
};

}  // namespace vantorel
