#include "platform/simulated/SimulatedConsole.h"

#include <cstdio>
#include <string>

namespace vantorel {

void SimulatedConsole::print(std::string_view line) {
  if (isMuted_) return;
  std::string text(line);
  if (const auto observer = observer_.load()) {
    observer("console", nullptr, text.c_str());
    return;
  }
  text += '\n';  // in one piece, so that lines of two threads do not mix
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void SimulatedConsole::present(const char *kind, const std::string &content) {
  if (isMuted_) return;
  if (const auto observer = observer_.load()) observer("present", kind, content.c_str());
}

}  // namespace vantorel
