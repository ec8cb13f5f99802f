// Any room that a document can hold becomes a package of closed meshes.
#include "rooms/MeshFacts.h"
#include "rooms/RoomMesh.h"
#include "rooms/UsdzWriter.h"

#include <bit>
#include <cmath>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <iostream>

namespace {

using namespace vantorel;

/// Rooms in which much meets: most lengths are few centimetres of a grid, some are any float.
class RandomRoom {
 public:
  RandomRoom(const std::uint8_t *data, std::size_t size) : data_(data, size) {}

  RoomDocument room() {
    RoomDocument room;
    room.floors.emplace();
    for (std::size_t i = 0; data_.remaining_bytes() > 0 && i < 24; ++i) {
      switch (data_.ConsumeIntegralInRange(0, 6)) {
        case 0:
          room.walls.push_back(surface("wall"));
          break;
        case 1:
          room.doors.push_back(surface("door"));
          break;
        case 2:
          room.windows.push_back(surface("window"));
          break;
        case 3:
          room.openings.push_back(surface("opening"));
          break;
        case 4:
          room.floors->push_back(surface("floor"));
          break;
        case 5:
          room.objects.push_back(object("chair"));
          break;
        case 6:
          room.objects.push_back(object("table"));
          break;
      }
    }
    return room;
  }

 private:
  float length() {
    switch (data_.ConsumeIntegralInRange(0, 3)) {
      case 0:
        return static_cast<float>(data_.ConsumeIntegralInRange(-20, 20)) * 1e-5f;
      case 1: {
        const float any = std::bit_cast<float>(data_.ConsumeIntegral<std::uint32_t>());
        return std::isfinite(any) ? any : 0;
      }
      default:
        return static_cast<float>(data_.ConsumeIntegralInRange(-40, 40)) * 0.1f;
    }
  }
  Float3 lengths() { return {length(), length(), length()}; }
  Uuid uuid() {
    Uuid uuid;
    uuid.bytes[15] = data_.ConsumeIntegralInRange<std::uint8_t>(0, 3);
    return uuid;
  }
  Float4x4 transform() {
    const Float3 at = lengths();
    const int quarter = data_.ConsumeIntegralInRange(0, 4);
    const float c = quarter == 4 ? 0.6f : static_cast<float>((quarter == 0) - (quarter == 2));
    const float s = quarter == 4 ? 0.8f : static_cast<float>((quarter == 1) - (quarter == 3));
    return {{c, 0, s, 0, 0, 1, 0, 0, -s, 0, c, 0, at.x, at.y, at.z, 1}};
  }
  Surface surface(const char *category) {
    Surface made;
    made.category.name = category;
    made.identifier = uuid();
    made.dimensions = lengths();
    made.transform = transform();
    made.parentIdentifier = uuid();
    if (data_.ConsumeIntegralInRange(0, 3) == 0) {
      made.polygonCorners.emplace();
      for (int n = data_.ConsumeIntegralInRange(0, 40); n > 0; --n)
        made.polygonCorners->push_back({length(), length(), 0});
    }
    if (data_.ConsumeIntegralInRange(0, 7) == 0) made.curve = curve();
    return made;
  }
  Curve curve() {
    Curve made;
    made.startAngle.value = length();
    made.endAngle.value = length();
    made.radius = length();
    made.center = {length(), length()};
    return made;
  }
  RoomObject object(const char *category) {
    RoomObject made;
    made.category.name = category;
    made.identifier = uuid();
    made.dimensions = lengths();
    made.transform = transform();
    made.parentIdentifier = uuid();
    return made;
  }

  FuzzedDataProvider data_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  const RoomDocument room = RandomRoom(data, size).room();
  const std::size_t elements =
      room.walls.size() + room.doors.size() + room.windows.size() + room.floors->size() + room.objects.size();
  const std::vector<testing::MeshFacts> meshes = testing::factsOfPackage(writeUsdz(room, "scan"));
  if (meshes.size() != elements) std::abort();
  for (const testing::MeshFacts &mesh : meshes) {
    if (mesh.fault.empty() && mesh.volume > 0) continue;
    std::cerr << mesh.fault << ", volume " << mesh.volume << '\n';
    std::abort();
  }
  return 0;
}
