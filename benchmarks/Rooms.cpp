#include "Rooms.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace vantorel::benchmarks {
namespace {

namespace fs = std::filesystem;

fs::path roomFolder() {
  if (const char *folder = std::getenv("VANTOREL_ROOMS")) return folder;
  fs::path shared = fs::path(VANTOREL_SHARED_DIR) / "rooms";
  return fs::is_directory(shared) ? shared : fs::path(VANTOREL_SAMPLES_DIR);
}

std::string readFile(const fs::path &path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

}  // namespace

std::vector<Room> rooms() {
  std::vector<Room> found;
  for (const auto &entry : fs::directory_iterator(roomFolder()))
    if (entry.path().extension() == ".json") found.push_back({entry.path().stem(), readFile(entry.path())});
  std::ranges::sort(found, {}, &Room::name);
  return found;
}

}  // namespace vantorel::benchmarks
