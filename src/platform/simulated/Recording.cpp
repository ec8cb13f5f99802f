#include "platform/simulated/Recording.h"

#include "base/JsonWriter.h"
#include "platform/simulated/InstructionNames.h"
#include "rooms/JsonReading.h"
#include "rooms/JsonTypes.h"
#include "rooms/RoomTypes.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace vantorel {
namespace {

using Time = Playback::Time;

struct HeaderLine {
  std::string format;
  std::int64_t version = 0;
};

struct EventLine {
  double time = 0;  // seconds
  std::string event;
  std::optional<RoomReading> room;
  std::optional<bool> sameCoreModel, sent, atOnce;
  std::optional<Uuid> identifier;
  std::optional<Float4x4> camera;
  std::optional<std::string> name, description;
};

}  // namespace

template <>
inline constexpr JsonType json::typeOf<RoomReading>{
    .name = "a room", .inside = [](void *room) { return slotOf(json::at<RoomReading>(room)); }};

namespace {

using json::field;

constexpr json::Field kHeaderFields[] = {field<HeaderLine, &HeaderLine::format>("format"),
                                         field<HeaderLine, &HeaderLine::version>("version")};
constexpr JsonType kHeader = json::objectOf<kHeaderFields>("an object");

constexpr json::Field kEventFields[] = {
    field<EventLine, &EventLine::time>("time"),
    field<EventLine, &EventLine::event>("event"),
    field<EventLine, &EventLine::room>("room"),
    field<EventLine, &EventLine::sameCoreModel>("sameCoreModel"),
    field<EventLine, &EventLine::sent>("sent"),
    field<EventLine, &EventLine::atOnce>("atOnce"),
    field<EventLine, &EventLine::identifier>("identifier"),
    field<EventLine, &EventLine::camera>("camera"),
    field<EventLine, &EventLine::name>("name"),
    field<EventLine, &EventLine::description>("description"),
};
constexpr JsonType kEvent = json::objectOf<kEventFields>("an event, which is an object");

JsonSlot slotOf(HeaderLine &line) { return {&kHeader, &line}; }
JsonSlot slotOf(EventLine &line) { return {&kEvent, &line}; }

std::optional<std::string_view> writtenCoreModelOf(const HeaderLine &) { return std::nullopt; }
std::optional<std::string_view> writtenCoreModelOf(const EventLine &line) {
  return line.room ? line.room->writtenCoreModel : std::nullopt;
}

std::string secondsText(Time time) {
  std::string text;
  JsonWriter(text, JsonStyle::compact).number(static_cast<double>(time) / 1e9);
  return text;
}

/// Reads a recording line by line.
class RecordingReader {
 public:
  std::vector<std::shared_ptr<const RecordedRun>> read(std::string_view text);

 private:
  void readHeader(std::string_view line);
  void readEvent(std::string_view line);
  Time timeOf(const EventLine &line) const;
  void beginRun();
  void addEvent(EventLine &line, Playback::Step step);
  Playback::Seen seen(EventLine &line);
  void shareCoreModel(EventLine &line);
  Instruction instructionOf(const EventLine &line) const;
  [[noreturn]] void fail(const char *key, const std::string &reason) const;

  std::vector<std::shared_ptr<RecordedRun>> runs_;
  std::size_t number_ = 0;                        // of the line
  Time last_ = 0;                                 // of the line before in the run
  std::optional<Uuid> identifier_;                // named last in the run
  std::shared_ptr<const std::string> coreModel_;  // read last
};

std::vector<std::shared_ptr<const RecordedRun>> RecordingReader::read(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  while (!text.empty() || number_ == 0) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (++number_ > kMostRecordedLines) fail("", "a recording has at most 1000000 lines");
    number_ == 1 ? readHeader(line) : readEvent(line);
  }
  if (std::ranges::all_of(runs_, [](const auto &run) { return run->steps().empty(); }))
    fail("", "the recording ends without an event");
  return {runs_.begin(), runs_.end()};
}

void RecordingReader::readHeader(std::string_view line) {
  HeaderLine header;
  try {
    header = readJson<HeaderLine>({.text = line, .what = "header"});
  } catch (const RoomReadError &) {
    header = {};
  }
  if (header.format != "vantorel-recording")
    fail("", "expected a recording, which begins with " + std::string(kRecordingHeader));
  if (header.version != 1)
    fail("version", "expected 1, got " + std::to_string(header.version) + ", which this version cannot play");
}

void RecordingReader::readEvent(std::string_view text) {
  if (text.find_first_not_of(" \t\r") == text.npos) return;
  auto line = readJson<EventLine>({.text = text, .what = "event", .line = number_});
  if (runs_.empty() || line.event == "run") beginRun();
  const Time time = timeOf(line);
  if (line.event == "run") {
    if (time != 0) fail("time", "a run begins at 0");
  } else if (line.atOnce.value_or(false) && time != last_) {
    fail("atOnce", "the line before has another time");
  } else {
    addEvent(line, {time, {}, line.sent.value_or(false), line.atOnce.value_or(false)});
  }
  if (line.camera) runs_.back()->look(time, *line.camera);
  last_ = time;
}

Time RecordingReader::timeOf(const EventLine &line) const {
  constexpr double kLongest = static_cast<double>(kLongestRun) / 1e9;
  if (!(line.time >= 0 && line.time <= kLongest)) fail("time", "expected 0 to 3600 seconds");
  const Time time = std::llround(line.time * 1e9);
  if (time < last_) fail("time", "goes back from " + secondsText(last_) + " to " + secondsText(time));
  return time;
}

void RecordingReader::beginRun() {
  runs_.push_back(std::make_shared<RecordedRun>());
  last_ = 0;
  identifier_.reset();
}

void RecordingReader::addEvent(EventLine &line, Playback::Step step) {
  Playback::Seen room;
  if (line.event == "update") {
    room = seen(line);
  } else if (line.event == "instruction") {
    step.event = instructionOf(line);
  } else if (line.event == "end") {
    step.event = Playback::End{line.description};
  } else {
    fail("event", "expected run, update, instruction or end");
  }
  runs_.back()->add(std::move(step), std::move(room));
}

Playback::Seen RecordingReader::seen(EventLine &line) {
  if (!line.room) fail("", "an update needs the key \"room\"");
  shareCoreModel(line);
  if (line.identifier) identifier_ = line.identifier;
  auto room = std::make_shared<const RoomDocument>(std::move(*line.room));
  const Uuid identifier = identifier_ ? *identifier_ : identifierOf(*room);
  return {std::move(room), identifier};
}

void RecordingReader::shareCoreModel(EventLine &line) {
  keepCoreModel(*line.room);
  auto &own = line.room->coreModel;
  if (line.sameCoreModel.value_or(false)) {
    if (own) fail("sameCoreModel", "the room has a coreModel of its own");
    if (!coreModel_) fail("sameCoreModel", "no update before has a coreModel");
    own = coreModel_;
  } else if (own) {
    coreModel_ = own;
  }
}

Instruction RecordingReader::instructionOf(const EventLine &line) const {
  if (!line.name || line.name->empty())
    fail("name", "an instruction needs the name of a case, as \"moveCloseToWall\"");
  return instructionNamed(*line.name);
}

void RecordingReader::fail(const char *key, const std::string &reason) const {
  throw RoomReadError(number_, 1, key, reason);
}

}  // namespace

void RecordedRun::add(Step step, Seen seen) {
  steps_.push_back(std::move(step));
  seen_.push_back(std::move(seen));
}

Float4x4 RecordedRun::cameraAt(Time time) const {
  const auto next = std::ranges::upper_bound(poses_, time, {}, &std::pair<Time, Float4x4>::first);
  return next == poses_.begin() ? kCameraAtOrigin : std::prev(next)->second;
}

std::vector<std::shared_ptr<const RecordedRun>> readRecording(std::string_view text) {
  return RecordingReader().read(text);
}

}  // namespace vantorel
