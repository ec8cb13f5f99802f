#include "walk/Library.h"

#include "vantorel/simulated_device.h"

#include "platform/simulated/SimulatedPlatform.h"
#include "support/MemoryFiles.h"
#include "support/TestData.h"

#include <rapidjson/document.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace vantorel::walk {
namespace {

using testing::MemoryFiles;

/// Callbacks are plain pointers, so what they bring is kept here. Threads go hand over hand.
std::string heardLines;
std::shared_ptr<MemoryFiles> store;

// ---- Callbacks ----

std::string nameOf(std::size_t slot, int which) {
  return std::string(kSlots.at(slot)) + (which > 1 ? "'" : "");
}

template <std::size_t slot, int which>
void hearCallback() {
  hear(nameOf(slot, which));
}

template <std::size_t slot, int which>
void hearText(const char *text) {
  hear(nameOf(slot, which) + " " + text);
  std::free(const_cast<char *>(text));
}

using Setter = void (*)(vantorelCallback) noexcept;
constexpr Setter kSetters[] = {setVTLDidStart,
                               setVTLDidEnd,
                               setVTLCaptureSessionDidStart,
                               setVTLCaptureSessionDidEnd,
                               setVTLCaptureSessionDidAdd,
                               setVTLCaptureSessionDidUpdate,
                               setVTLCaptureSessionDidChange,
                               setVTLCaptureSessionDidRemove};
constexpr std::size_t kTextSlots = std::size(kSetters);  // from here on

template <int which, std::size_t... slots>
vantorelCallback callbackFor(std::size_t slot, std::index_sequence<slots...>) {
  static constexpr vantorelCallback kCallbacks[] = {hearCallback<slots, which>...};
  return kCallbacks[slot];
}

template <int which>
void fill(std::size_t slot) {
  if (slot < kTextSlots) kSetters[slot](callbackFor<which>(slot, std::make_index_sequence<kTextSlots>()));
  if (slot == kTextSlots) setVTLCaptureSessionInstruction(hearText<kTextSlots, which>);
  if (slot == kTextSlots + 1) setVTLRoomSnapshot(hearText<kTextSlots + 1, which>);
}

void observe(const char *kind, const char *name, const char *value) {
  hear(std::string(kind) + " " + (name ? std::string(name) + " " : "") + value);
}

// ---- Comparing ----

std::string state(const char *name) {
  char *text = vantorelDeviceState(name);
  std::string copy = text ? text : "no such name";
  std::free(text);
  return copy;
}

/// Of long texts, the part from a little before `place`.
std::string excerpt(const std::string &text, std::size_t place) {
  constexpr std::size_t kBefore = 80, kLength = 240;
  return text.substr(place > kBefore ? place - kBefore : 0, kLength);
}

/// Empty when they are equal.
std::string unlike(const std::string &what, const std::string &real, const std::string &expected) {
  if (real == expected) return "";
  const auto shorter = std::min(real.size(), expected.size());
  const auto same =
      std::mismatch(real.begin(), real.begin() + static_cast<std::ptrdiff_t>(shorter), expected.begin());
  const auto place = static_cast<std::size_t>(same.first - real.begin());
  return what + "\n   library: " + excerpt(real, place) + "\n   model:   " + excerpt(expected, place);
}

/// The identifiers of the rooms in a structure's text, a line each.
std::string roomsIn(const std::string &text) {
  rapidjson::Document structure;
  structure.Parse(text.data(), text.size());
  if (structure.HasParseError() || !structure.IsObject() || !structure.HasMember("rooms"))
    return "no structure";
  std::string identifiers;
  for (const auto &room : structure["rooms"].GetArray())
    identifiers += std::string(room.HasMember("identifier") ? room["identifier"].GetString() : "none") + "\n";
  return identifiers;
}

std::string fileDifference(const Model &model) {
  auto real = store->list("/");
  std::vector<std::string> expected;
  for (const auto &folder : model.phone.folders)
    if (folder != kRoot) expected.push_back(folder.substr(1) + "/");
  for (const auto &[path, file] : model.phone.files) expected.push_back(path.substr(1));
  std::sort(real.begin(), real.end());
  std::sort(expected.begin(), expected.end());
  if (real == expected) return "";
  const auto joined = [](const auto &paths) {
    return std::accumulate(
        paths.begin(), paths.end(), std::string(),
        [](std::string sum, const std::string &path) { return std::move(sum) + path + "  "; });
  };
  return unlike("files", joined(real), joined(expected));
}

}  // namespace

void hear(const std::string &line) { heardLines += std::string(vantorelDeviceThread()) + " " + line + "\n"; }

void hearResult(char *text) {
  hear("= " + std::string(text));
  std::free(text);
}

void hearRefusal(char *message) {
  if (message) hear("refused");
  std::free(message);
}

void switchOn(const Model &like) {
  vantorelDevicePowerCycle();
  vantorelDeviceSetObserver(observe);
  store = std::make_shared<MemoryFiles>();
  simulatedPlatform().files().setStore(store);
  hearRefusal(vantorelDeviceSetDocumentsDirectory(kDocuments.c_str()));
  for (const auto &folder : like.phone.folders) store->createDirectories(folder);
  for (const auto &[path, file] : like.phone.files) store->write(path, file.text);
  hearRefusal(vantorelDeviceSetOption("ios", std::to_string(like.phone.ios).c_str()));
  heardLines.clear();
}

void fillSlot(std::size_t slot, int which) { which > 1 ? fill<2>(slot) : fill<1>(slot); }

void removeFile(const std::string &path) {
  if (store->exists(path)) store->remove(path);
}

std::string roomFile(const std::string &name) {
  static const testing::TemporaryFolder folder;
  static const bool isWritten = [] {
    for (const RoomRef &room : rooms()) testing::writeFile(folder.path() + "/" + room->name, room->text);
    return true;
  }();
  return isWritten ? folder.path() + "/" + name : "";
}

std::string difference(Model &model) {
  if (auto found = unlike("heard", std::exchange(heardLines, {}), model.heard); !found.empty()) return found;
  if (auto found = unlike("state", state(nullptr), model.stateJson()); !found.empty()) return found;
  for (const auto &[name, expected] : model.looks())
    if (auto found = unlike(name, state(name), expected); !found.empty()) return found;
  if (auto found = fileDifference(model); !found.empty()) return found;
  return unlike("time (ns)", std::to_string(std::llround(vantorelDeviceTime() * 1e9)),
                std::to_string(model.phone.now));
}

std::string contentDifference(const Model &model) {
  for (const auto &[path, file] : model.phone.files) {
    if (file.kind != ModelFile::Kind::text && file.kind != ModelFile::Kind::structure) continue;
    const std::string text = store->read(path);
    const bool isStructure = file.kind == ModelFile::Kind::structure;
    if (auto found = unlike(path, isStructure ? roomsIn(text) : text, file.text); !found.empty())
      return found;
  }
  return "";
}

}  // namespace vantorel::walk
