#include "platform/simulated/RecordingWriter.h"

#include "base/Utf8.h"
#include "platform/simulated/InstructionNames.h"
#include "rooms/RoomWriter.h"

#include <string_view>

namespace vantorel {
namespace {

const char *nameOf(const Playback::Step &step) {
  constexpr const char *kNames[] = {"update", "instruction", "end"};  // in the variant's order
  return kNames[step.event.index()];
}

void writePose(JsonWriter &json, const Float4x4 &pose) {
  json.key("camera");
  json.beginArray();
  for (const float element : pose.elements) json.number(element);
  json.endArray();
}

void writeText(JsonWriter &json, std::string_view key, std::string_view text) {
  json.key(key);
  json.string(text);
}

void writeTrue(JsonWriter &json, std::string_view key) {
  json.key(key);
  json.boolean(true);
}

void writeDescription(JsonWriter &json, const std::optional<std::string> &description) {
  json.key("description");
  description ? json.string(repairedUtf8(*description)) : json.null();
}

}  // namespace

std::string RecordingWriter::runLine(const Camera &camera) {
  camera_ = kCameraAtOrigin;
  identifier_.reset();
  return line("run", 0, camera, [](JsonWriter &) {});
}

std::string RecordingWriter::eventLine(const Playback::Step &step, const Camera &camera,
                                       const Playback::Seen &seen) {
  return line(nameOf(step), step.due, camera, [&](JsonWriter &json) { writeMembers(json, step, seen); });
}

std::string RecordingWriter::line(const char *event, Playback::Time time, const Camera &camera,
                                  const Members &members) {
  std::string text;
  JsonWriter json(text, JsonStyle::compact);
  json.beginObject();
  json.key("time");
  json.number(static_cast<double>(time) / 1e9);
  writeText(json, "event", event);
  if (camera && *camera != camera_) writePose(json, camera_ = *camera);
  members(json);
  json.endObject();
  return text;
}

void RecordingWriter::writeMembers(JsonWriter &json, const Playback::Step &step, const Playback::Seen &seen) {
  if (step.isSent) writeTrue(json, "sent");
  if (step.isAtOnce) writeTrue(json, "atOnce");
  if (const auto *instruction = std::get_if<Instruction>(&step.event)) {
    writeText(json, "name", vantorel::nameOf(*instruction));
  } else if (const auto *end = std::get_if<Playback::End>(&step.event)) {
    writeDescription(json, end->description);
  } else if (seen.room) {
    writeSeen(json, seen);
  }
}

void RecordingWriter::writeSeen(JsonWriter &json, const Playback::Seen &seen) {
  const auto &[room, identifier] = seen;
  if (identifier != identifier_) writeText(json, "identifier", identifier.text());
  identifier_ = identifier;
  const bool hasLastModel = isLastModel(room->coreModel);
  if (hasLastModel) writeTrue(json, "sameCoreModel");
  json.key("room");
  json.rawValue(hasLastModel ? writeVisibleValues(*room) : writeRoom(*room, JsonStyle::compact));
  if (room->coreModel) coreModel_ = room->coreModel;
}

bool RecordingWriter::isLastModel(const std::shared_ptr<const std::string> &coreModel) const {
  return coreModel && coreModel_ && (coreModel == coreModel_ || *coreModel == *coreModel_);
}

}  // namespace vantorel
