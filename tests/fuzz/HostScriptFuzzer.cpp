// Scripts of any bytes, played by the host on a device whose documents lie in a temporary folder.
#include "tools/Host.h"
#include "tools/LibraryCalls.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace {

using namespace vantorel;

std::string temporaryFolder() {
  std::string path = (std::filesystem::temp_directory_path() / "vantorel-fuzz-XXXXXX").string();
  if (!mkdtemp(path.data())) std::abort();
  return path;
}

/// What leads out of the documents folder and what is only slow is left out.
bool isPlayable(const Words &words) {
  if (words.empty() || words[0] == "settle" || words[0].find("ARWorldMap") != std::string::npos) return false;
  if (words[0] == "advance" && words.size() > 1) return words[1].size() == 1;
  return std::none_of(words.begin(), words.end(), [](const std::string &word) {
    return word.starts_with('@') || word.starts_with('/') || word.find("..") != std::string::npos;
  });
}

std::string playableLines(std::istream &script) {
  // Without these some calls end the process, as they should.
  std::string playable = "setVantorelXRSession\ninitializeVTL\nadvance 0\n";
  for (std::string line; std::getline(script, line);) {
    try {
      if (isPlayable(splitWords(line))) playable += line + '\n';
    } catch (const ScriptError &) {
      playable += line + '\n';
    }
  }
  return playable;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  static const std::string documents = temporaryFolder();
  std::istringstream bytes(std::string(reinterpret_cast<const char *>(data), size));
  std::istringstream script(playableLines(bytes));
  std::ostringstream out;
  JsonPrinter printer(out);
  Host host(printer, documents);
  registerCallbacks();
  host.runScript(script);
  std::filesystem::remove_all(documents);
  return 0;
}
