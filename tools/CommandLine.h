#pragma once

namespace vantorel {

/// Carries out what the words after the program's name ask for. The exit code: 2 for wrong usage, which one
/// line on standard error explains. Throws std::exception when it refuses or fails.
int runCommandLine(int argc, const char *const *argv);

}  // namespace vantorel
