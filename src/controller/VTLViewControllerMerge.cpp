// Several rooms merged into one structure: those that the host kept, or those of the session.
#include "controller/Job.h"
#include "controller/VTLViewController.h"
#include "storage/MergeInput.h"
#include "storage/SaveStructure.h"

namespace vantorel {
namespace {

using Rooms = std::vector<std::shared_ptr<CapturedRoom>>;
using Structure = std::shared_ptr<CapturedStructure>;

Answer<Structure> structureOf(std::shared_ptr<StructureBuilder> builder, Rooms rooms) {
  return Answer<Structure>([builder = std::move(builder), rooms = std::move(rooms)](auto receive) {
    builder->capturedStructure(rooms, std::move(receive));
  });
}

/// Owns all that it works on: what the controller's names become meanwhile does not matter.
Job mergeTexts(MainQueue &, Platform &platform, std::vector<std::string> texts, std::string directoryName,
               std::string scanName) {
  const auto builder = platform.makeStructureBuilder();
  Rooms rooms;
  for (const auto &text : texts)
    if (auto room = loadCapturedRoom(platform, text)) rooms.push_back(std::move(room));
  if (rooms.empty()) {
    platform.console().print("Structure data is empty.");
    co_return;
  }
  auto answer = structureOf(builder, std::move(rooms));
  const Structure structure = co_await answer;
  saveStructure(platform, directoryName, scanName, structure.get());
}

/// Reads the rooms when it runs, and the names when it writes.
Job mergeSession(MainQueue &, Platform &platform, std::shared_ptr<VTLViewController> controller) {
  const auto builder = platform.makeStructureBuilder();
  Rooms rooms = decodableRooms(platform, controller->capturedRoomsData);
  if (rooms.empty()) {
    platform.console().print("Paths is empty.");
    co_return;
  }
  auto answer = structureOf(builder, std::move(rooms));
  const Structure structure = co_await answer;
  saveStructure(platform, controller->directoryName, controller->scanName, structure.get());
}

}  // namespace

void VTLViewController::MergeScans(const std::string &data, const std::string &directory,
                                   const std::string &scan) {
  auto texts = splitRoomTexts(data);
  if (!texts.empty()) mergeTexts(platform_.mainQueue(), platform_, std::move(texts), directory, scan);
}

void VTLViewController::MergeScansInCapturedRoomSession() {
  addCapturedRoomToArray();
  session()->stop();
  mergeSession(platform_.mainQueue(), platform_, shared_from_this());
}

}  // namespace vantorel
