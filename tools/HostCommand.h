#pragma once

#include <string>

namespace vantorel {

struct HostOptions {
  std::string script;     ///< empty: standard input
  std::string documents;  ///< empty: a temporary folder
  std::string recording;  ///< a file to record the sessions to; empty: none
  bool json = false;
  bool registersCallbacks = true;
};

/// vantorel host. The exit code.
int runHost(const HostOptions &options);

}  // namespace vantorel
