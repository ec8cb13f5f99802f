#include "Printer.h"

#include "RoomCounts.h"
#include "base/Utf8.h"
#include "rooms/RoomReader.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>
#include <cstdint>
#include <ostream>

namespace vantorel {
namespace {

std::string valueText(const EventValue &value) {
  return value.isJson ? value.content : jsonString(value.content);
}

std::string padded(std::string_view text, std::size_t width) {
  std::string column(text);
  if (column.size() < width) column.resize(width, ' ');
  return column + ' ';
}

std::string bare(const std::string &quoted) { return quoted.substr(1, quoted.size() - 2); }

/// At most `kLongest` bytes of a value, cut between characters.
std::string shortened(const EventValue &value) {
  constexpr std::size_t kLongest = 100;
  std::string text = valueText(value);
  if (text.size() <= kLongest) return text;
  std::size_t end = kLongest;
  while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
  return text.substr(0, end) + "... (" + std::to_string(value.content.size()) + " bytes)";
}

std::string snapshotText(const EventValue &value) {
  try {
    return shortCounts(readRoom(value.content)) + std::to_string(value.content.size()) + " bytes";
  } catch (const RoomReadError &) {
    return shortened(value);
  }
}

}  // namespace

bool LinePrinter::isGood() const {
  const std::lock_guard lock(mutex_);
  return out_.good();
}

void LinePrinter::print(const Event &event) {
  const std::string text = line(event) + '\n';
  const std::lock_guard lock(mutex_);
  out_ << text << std::flush;
}

std::string JsonPrinter::line(const Event &event) const {
  return R"({"time":)" + secondsText(event.seconds) + R"(,"thread":)" + jsonString(event.thread) +
         R"(,"event":)" + jsonString(event.kind) + R"(,"name":)" +
         (event.name ? jsonString(*event.name) : "null") + R"(,"value":)" + valueText(event.value) + '}';
}

std::string ReadablePrinter::line(const Event &event) const {
  std::string line = padded(secondsText(event.seconds), 7) + padded(event.thread, 10) + padded(event.kind, 8);
  if (event.name) line += bare(jsonString(*event.name)) + ' ';
  if (event.name == "VTLRoomSnapshot") {
    line += snapshotText(event.value);
  } else if (event.kind == "error") {
    line += event.value.content;
  } else if (event.kind != "callback" || !event.value.isJson) {
    line += shortened(event.value);
  }
  while (line.back() == ' ') line.pop_back();
  return line;
}

std::string jsonString(std::string_view text) {
  const std::string repaired = repairedUtf8(text);
  rapidjson::StringBuffer buffer;
  rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
  writer.String(repaired.data(), static_cast<rapidjson::SizeType>(repaired.size()));
  return {buffer.GetString(), buffer.GetSize()};
}

std::string secondsText(double seconds) {
  constexpr std::int64_t kSecond = 1'000'000'000;
  const std::int64_t nanoseconds = std::llround(seconds * static_cast<double>(kSecond));
  std::string fraction = std::to_string(kSecond + nanoseconds % kSecond).substr(1);
  while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  return std::to_string(nanoseconds / kSecond) + (fraction.empty() ? "" : "." + fraction);
}

}  // namespace vantorel
