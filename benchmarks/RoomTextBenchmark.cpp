// Reading and writing room documents, beside what well-known libraries need for the same text.
#include "Rooms.h"
#include "rooms/RoomReader.h"
#include "rooms/RoomWriter.h"

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <simdjson.h>

#include <cstdint>
#include <string>

namespace {

void countBytes(benchmark::State &state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * static_cast<std::int64_t>(state.iterations()));
}

void read(benchmark::State &state, const std::string &text) {
  for (auto _ : state) benchmark::DoNotOptimize(vantorel::readRoom(text));
  countBytes(state, text.size());
}

/// Into a document tree, from a text that is padded already and with a parser whose memory is kept.
void readSimdjson(benchmark::State &state, const std::string &text) {
  simdjson::padded_string padded(text);
  simdjson::dom::parser parser;
  for (auto _ : state) benchmark::DoNotOptimize(parser.parse(padded).error());
  countBytes(state, text.size());
}

void writeDocument(benchmark::State &state, const vantorel::RoomDocument &room) {
  std::size_t size = 0;
  for (auto _ : state) {
    std::string written = vantorel::writeRoom(room);
    benchmark::DoNotOptimize(written.data());
    size = written.size();
  }
  countBytes(state, size);
}

void write(benchmark::State &state, const std::string &text) {
  writeDocument(state, vantorel::readRoom(text));
}

/// What RapidJSON is given below.
void writeWithoutCoreModel(benchmark::State &state, const std::string &text) {
  vantorel::RoomDocument room = vantorel::readRoom(text);
  room.coreModel.reset();
  writeDocument(state, room);
}

/// Without coreModel, which RapidJSON would escape character by character.
void writeRapidJson(benchmark::State &state, const std::string &text) {
  rapidjson::Document document;
  document.Parse(text.data(), text.size());
  document.RemoveMember("coreModel");
  std::size_t size = 0;
  for (auto _ : state) {
    rapidjson::StringBuffer buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
    writer.SetIndent(' ', 2);
    document.Accept(writer);
    benchmark::DoNotOptimize(buffer.GetString());
    size = buffer.GetSize();
  }
  countBytes(state, size);
}

[[maybe_unused]] const bool kRegistered = [] {
  for (const vantorel::benchmarks::Room &room : vantorel::benchmarks::rooms()) {
    auto add = [&](const char *name, void (*run)(benchmark::State &, const std::string &)) {
      benchmark::RegisterBenchmark((name + ("/" + room.name)).c_str(), run, room.text);
    };
    add("read", read);
    add("read-simdjson", readSimdjson);
    add("write", write);
    add("write-without-core-model", writeWithoutCoreModel);
    add("write-without-core-model-rapidjson", writeRapidJson);
  }
  return true;
}();

}  // namespace
