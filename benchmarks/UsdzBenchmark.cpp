// The whole model of a room, from the document in memory to the file, beside what nobody can save: the checksum and the
// write of the same bytes.
#include "Rooms.h"
#include "rooms/RoomReader.h"
#include "rooms/UsdzWriter.h"

#include <benchmark/benchmark.h>
#include <libdeflate.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace {

using vantorel::RoomDocument;

/// In memory, where Linux has such a folder.
constexpr const char *kFile = "/dev/shm/vantorel-benchmark.usdz";

void writeFile(const std::string &bytes) {
  std::FILE *file = std::fopen(kFile, "wb");
  std::setvbuf(file, nullptr, _IONBF, 0);
  std::fwrite(bytes.data(), 1, bytes.size(), file);
  std::fclose(file);
}

void whole(benchmark::State &state, const RoomDocument &room) {
  for (auto _ : state) writeFile(writeUsdz(room, "scan"));
}

void withoutFile(benchmark::State &state, const RoomDocument &room) {
  for (auto _ : state) benchmark::DoNotOptimize(writeUsdz(room, "scan"));
}

void checksumAndWrite(benchmark::State &state, const RoomDocument &room) {
  const std::string bytes = writeUsdz(room, "scan");
  for (auto _ : state) {
    benchmark::DoNotOptimize(libdeflate_crc32(0, bytes.data(), bytes.size()));
    writeFile(bytes);
  }
  state.counters["bytes"] = static_cast<double>(bytes.size());
}

vantorel::Surface surfaceAt(float x, float z, vantorel::Float3 dimensions) {
  vantorel::Surface surface;
  surface.dimensions = dimensions;
  surface.transform = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, 0, z, 1}};
  return surface;
}

vantorel::Uuid uuidOf(std::size_t number) {
  vantorel::Uuid uuid;
  for (std::size_t i = 0; i < 4; ++i) uuid.bytes[i] = static_cast<std::uint8_t>(number >> (8 * i));
  return uuid;
}

/// Rows of walls with a door each and a chair before every wall; `count` elements in all.
RoomDocument building(std::size_t count) {
  RoomDocument room;
  for (std::size_t i = 0; i < count / 3; ++i) {
    const float x = static_cast<float>(i % 100) * 3.017f, z = static_cast<float>(i / 100) * 2.573f;
    room.walls.push_back(surfaceAt(x, z, {3.017f, 2.531f, 0}));
    room.walls.back().identifier = uuidOf(i);
    room.doors.push_back(surfaceAt(x + 0.3141f, z, {0.913f, 2.017f, 0}));
    room.doors.back().parentIdentifier = room.walls.back().identifier;
    room.walls.back().category.name = "wall";
    room.doors.back().category.name = "door";
    vantorel::RoomObject chair;
    chair.category.name = "chair";
    chair.dimensions = {0.5123f, 0.9741f, 0.4877f};
    chair.transform = surfaceAt(x, z + 1, {}).transform;
    room.objects.push_back(chair);
  }
  return room;
}

[[maybe_unused]] const bool kRegistered = [] {
  const auto add = [](const std::string &name, const RoomDocument &document) {
    const auto room = std::make_shared<const RoomDocument>(document);
    const auto with = [room](void (*run)(benchmark::State &, const RoomDocument &)) {
      return [room, run](benchmark::State &state) { run(state, *room); };
    };
    benchmark::RegisterBenchmark(("usdz/" + name).c_str(), with(whole));
    benchmark::RegisterBenchmark(("usdz-without-file/" + name).c_str(), with(withoutFile));
    benchmark::RegisterBenchmark(("usdz-checksum-and-write/" + name).c_str(), with(checksumAndWrite));
  };
  for (const vantorel::benchmarks::Room &room : vantorel::benchmarks::rooms())
    add(room.name, vantorel::readRoom(room.text));
  for (std::size_t count : {1'000, 10'000, 100'000})
    add(std::to_string(count) + "-elements", building(count));
  return true;
}();

}  // namespace
