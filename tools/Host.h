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

  /// Records what the sessions of the script deliver. Throws ScriptError when the file cannot be written.
  void record(const std::string &path) const;

  /// Runs every line, as long as the printer is good; one that fails is an error event and the next one
  /// follows. A recording that was not written whole is one too, or one that was set but never played. False if
  /// any failed.
  bool runScript(std::istream &script);

 private:
  bool runLine(std::istream &script, std::size_t number);
  /// Does something for a line; an exception is an error event, and false.
  template <typename Action>
  static bool attempt(std::size_t number, Action action);
  bool finish(std::size_t lines) const;
  /// With the command's name in front of what is wrong with its arguments.
  void runNamed(const Words &words) const;
  void run(const Words &words) const;

  const Printer &printer_;
  Listening listening_;
  std::string documents_;
  std::size_t recordingLine_ = 0;  // that set a recording
};

}  // namespace vantorel
