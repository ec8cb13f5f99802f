// Scripts of any bytes, played by the host on a device whose documents lie in a temporary folder. Samples are
// found from the source folder, where the process goes: give it paths from there.
#include "tools/Host.h"
#include "tools/LibraryCalls.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

namespace {

using namespace vantorel;
namespace fs = std::filesystem;

std::string temporaryFolder() {
  std::string path = (fs::temp_directory_path() / "vantorel-fuzz-XXXXXX").string();
  if (!mkdtemp(path.data())) std::abort();
  return path;
}

/// The documents lie this deep in the temporary folder, so that as many ".." of a script do not lead out.
constexpr int kDepth = 2;

bool leadsOut(const Words &words) {
  int ups = 0;
  for (const std::string &word : words) {
    if (word.starts_with('@') || word.starts_with('/')) return true;
    for (auto at = word.find(".."); at != std::string::npos; at = word.find("..", at + 1)) ++ups;
  }
  return ups > kDepth;
}

/// Picks the lines that neither lead out of the temporary folder, nor are only slow, nor end the process as
/// they should.
class Picker {
 public:
  bool isPlayable(const Words &words) {
    if (words.empty() || leadsOut(words)) return false;
    if (words[0] == "settle") return settles_++ == 0;
    if (words[0] == "advance") return words.size() < 2 || isSoon(numberOf(words[1]));
    if (words[0] != "device" || words.size() < 3) return true;
    if (words[1] == "room") return isQuick(words);
    return words[1] != "fail" || !words[2].starts_with("load");  // a missing view ends the process
  }

 private:
  static constexpr double kSeconds = 40, kUpdates = 200;

  static double numberOf(const std::string &word) { return std::max(0.0, std::atof(word.c_str())); }
  bool isSoon(double seconds) {
    if (seconds_ + seconds > kSeconds) return false;
    seconds_ += seconds;
    return true;
  }
  static bool isQuick(const Words &room) {
    const double seconds = room.size() > 3 ? numberOf(room[3]) : 10;
    const double rate = room.size() > 4 ? numberOf(room[4]) : 10;
    return seconds < kSeconds && seconds * rate < kUpdates;
  }

  int settles_ = 0;
  double seconds_ = 0;
};

std::string playableLines(std::istream &script) {
  // Without these some calls end the process, as they should.
  std::string playable = "setVantorelXRSession\ninitializeVTL\nadvance 0\n";
  Picker picker;
  for (std::string line; std::getline(script, line);) {
    try {
      if (picker.isPlayable(splitWords(line))) playable += line + '\n';
    } catch (const ScriptError &) {
      playable += line + '\n';
    }
  }
  return playable;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  fs::current_path(VANTOREL_SOURCE_DIR);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  static const std::string folder = temporaryFolder();
  std::istringstream bytes(std::string(reinterpret_cast<const char *>(data), size));
  std::istringstream script(playableLines(bytes));
  std::ostringstream out;
  JsonPrinter printer(out);
  {
    Host host(printer, folder + "/nested/documents");
    registerCallbacks();
    host.runScript(script);
  }
  for (const auto &entry : fs::directory_iterator(folder)) fs::remove_all(entry);
  return 0;
}
