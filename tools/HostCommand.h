#pragma once

#include <string>

namespace vantorel {

struct HostOptions {
  std::string script;     ///< empty: standard input
  std::string documents;  ///< empty: a temporary folder
  bool json = false;
  bool registersCallbacks = true;
};

/// vantorel host. The exit code.
int runHost(const HostOptions &options);

}  // namespace vantorel
