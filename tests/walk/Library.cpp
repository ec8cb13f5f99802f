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
void hearEvent() {
  hear(nameOf(slot, which));
}

template <std::size_t slot, int which>
void hearText(const char *text) {
  hear(nameOf(slot, which) + " " + text);
  std::free(const_cast<char *>(text));
}

template <std::size_t slot, auto set>
void fillEvent(int which) {
  set(which > 1 ? hearEvent<slot, 2> : hearEvent<slot, 1>);
}

template <std::size_t slot, auto set>
void fillText(int which) {
  set(which > 1 ? hearText<slot, 2> : hearText<slot, 1>);
}

/// In the order of kSlots.
constexpr std::array kFillers = {fillEvent<0, setVTLDidStart>,
                                 fillEvent<1, setVTLDidEnd>,
                                 fillEvent<2, setVTLCaptureSessionDidStart>,
                                 fillEvent<3, setVTLCaptureSessionDidEnd>,
                                 fillEvent<4, setVTLCaptureSessionDidAdd>,
                                 fillEvent<5, setVTLCaptureSessionDidUpdate>,
                                 fillEvent<6, setVTLCaptureSessionDidChange>,
                                 fillEvent<7, setVTLCaptureSessionDidRemove>,
                                 fillText<8, setVTLCaptureSessionInstruction>,
                                 fillText<9, setVTLRoomSnapshot>};

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
  std::map<std::string, const char *> expected;  // and what follows the path
  for (const auto &folder : model.phone.folders)
    if (folder != kRoot) expected[folder.substr(1)] = "/  ";
  for (const auto &[path, file] : model.phone.files) expected[path.substr(1)] = "  ";
  std::string realText, expectedText;
  for (const auto &path : store->list("/")) realText += path + "  ";
  for (const auto &[path, end] : expected) expectedText += path + end;
  return unlike("files", realText, expectedText);
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

void fillSlot(std::size_t slot, int which) { kFillers.at(slot)(which); }

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
