// Merging many rooms that lie side by side, and writing what came out.
#include "Rooms.h"
#include "rooms/BuildStructure.h"
#include "rooms/MetadataPlist.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"
#include "rooms/UsdzWriter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace vantorel;

using Rooms = std::vector<std::shared_ptr<const RoomDocument>>;

/// Gives a copy of a room a place and identifiers of its own.
class Copy {
 public:
  Copy(const RoomDocument &room, std::uint32_t number, float x, float z)
      : room_(room), number_(number), x_(x), z_(z) {
    for (auto *list : {&room_.walls, &room_.doors, &room_.windows, &room_.openings}) change(*list);
    change(room_.objects);
    if (room_.floors) change(*room_.floors);
    if (!room_.sections) return;
    for (Section &section : *room_.sections) {
      section.center.x += x_;
      section.center.z += z_;
    }
  }

  std::shared_ptr<const RoomDocument> room() && {
    return std::make_shared<const RoomDocument>(std::move(room_));
  }

 private:
  void change(Uuid &identifier) const {
    for (std::size_t i = 0; i < 4; ++i) identifier.bytes[i] ^= static_cast<std::uint8_t>(number_ >> 8 * i);
  }

  template <typename Element>
  void change(std::vector<Element> &elements) const {
    for (Element &element : elements) {
      change(element.identifier);
      if (element.parentIdentifier && *element.parentIdentifier) change(**element.parentIdentifier);
      element.transform.elements[12] += x_;
      element.transform.elements[14] += z_;
    }
  }

  RoomDocument room_;
  std::uint32_t number_;
  float x_, z_;
};

/// This many rooms, `perRow` of them side by side: the first ten of the folder in turn, the same mix for all
/// counts.
Rooms laidOut(std::int64_t count, std::int64_t perRow) {
  constexpr float kStep = 12;  // metres, somewhat less than the largest flat takes
  static const std::vector<RoomDocument> kOriginals = [] {
    std::vector<RoomDocument> documents;
    for (const benchmarks::Room &room : benchmarks::rooms()) documents.push_back(readRoom(room.text));
    documents.resize(std::min<std::size_t>(documents.size(), 10));
    return documents;
  }();
  Rooms rooms;
  for (std::int64_t i = 0; i < count; ++i)
    rooms.push_back(Copy(kOriginals[static_cast<std::size_t>(i) % kOriginals.size()],
                         static_cast<std::uint32_t>(i), kStep * static_cast<float>(i % perRow),
                         kStep * static_cast<float>(i / perRow))
                        .room());
  return rooms;
}

Rooms inARow(std::int64_t count) { return laidOut(count, count); }

Rooms inASquare(std::int64_t count) {
  return laidOut(count, static_cast<std::int64_t>(std::ceil(std::sqrt(count))));
}

void build(const Rooms &rooms) { benchmark::DoNotOptimize(buildStructure(rooms)); }

void buildAndWrite(const Rooms &rooms) {
  const StructureDocument structure = buildStructure(rooms);
  benchmark::DoNotOptimize(writeStructure(structure));
  benchmark::DoNotOptimize(writeUsdz(structure.elements, "scan"));
  benchmark::DoNotOptimize(writeMetadataPlist(structure));
}

/// What merging at best could cost: each room's elements copied into one list.
void copyElements(const Rooms &rooms) {
  RoomDocument all;
  for (const auto &room : rooms) {
    const auto append = [](auto &to, const auto &from) { to.insert(to.end(), from.begin(), from.end()); };
    append(all.walls, room->walls);
    append(all.doors, room->doors);
    append(all.windows, room->windows);
    append(all.openings, room->openings);
    append(all.objects, room->objects);
  }
  benchmark::DoNotOptimize(all);
}

void run(benchmark::State &state, Rooms (*layOut)(std::int64_t), void (*work)(const Rooms &)) {
  const Rooms rooms = layOut(state.range(0));
  for (auto _ : state) work(rooms);
  state.SetComplexityN(state.range(0));
}

/// All of a host's merge but the files: texts read, merged, and written in three forms.
void runWhole(benchmark::State &state, Rooms (*layOut)(std::int64_t)) {
  std::vector<std::string> texts;
  for (const auto &room : layOut(state.range(0))) texts.push_back(writeRoom(*room));
  for (auto _ : state) {
    Rooms rooms;
    for (const auto &text : texts) rooms.push_back(std::make_shared<const RoomDocument>(readRoom(text)));
    buildAndWrite(rooms);
  }
  state.SetComplexityN(state.range(0));
}

[[maybe_unused]] const bool kRegistered = [] {
  const auto add = [](const char *name, auto... arguments) {
    benchmark::RegisterBenchmark(name, arguments...)
        ->Arg(10)
        ->Arg(30)
        ->Arg(100)
        ->Arg(300)
        ->Arg(1000)
        ->Unit(benchmark::kMillisecond)
        ->Complexity();
  };
  add("merge-row", run, inARow, build);
  add("merge-square", run, inASquare, build);
  add("merge-square-copy-alone", run, inASquare, copyElements);
  add("merge-and-write-row", run, inARow, buildAndWrite);
  add("merge-and-write-square", run, inASquare, buildAndWrite);
  add("merge-whole-row", runWhole, inARow);
  add("merge-whole-square", runWhole, inASquare);
  return true;
}();

}  // namespace
