#include "Crossing.h"
#include "platform/simulated/SimulatedStructure.h"
#include "rooms/RoomWriter.h"

#include <algorithm>

using namespace vantorel;
using namespace vantorel::device;

static std::shared_ptr<CapturedRoom> room(const char *text, size_t length) {
  return simulatedPlatform().decodeRoom({text, length});
}

void device_room_identifier(const char *text, size_t length, uint8_t *identifier) {
  std::ranges::copy(room(text, length)->identifier().bytes, identifier);
}

char *device_room_export(const char *text, size_t length, const char *path) {
  return errorOf([&] { room(text, length)->writeUsdz(path); });
}

void device_structure_build(const device_bytes *texts, size_t count, device_callback completion) {
  std::vector<std::shared_ptr<CapturedRoom>> rooms;
  for (size_t i = 0; i < count; ++i) rooms.push_back(room(texts[i].bytes, texts[i].length));
  simulatedPlatform().makeStructureBuilder()->capturedStructure(
      std::move(rooms), [completion = Callback(completion)](std::shared_ptr<CapturedStructure> structure) {
        const std::string text =
            structure ? writeStructure(dynamic_cast<const SimulatedStructure &>(*structure).document())
                      : std::string();
        const device_structure built{given(structure), text.data(), text.size()};
        completion(&built);
      });
}

char *device_structure_export(void *structure, const char *path, const char *metadataPath) {
  return errorOf([&] { taken<CapturedStructure>(structure)->writeUsdz(path, metadataPath); });
}
