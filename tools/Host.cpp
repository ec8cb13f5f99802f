#include "Host.h"

#include "vantorel/simulated_device.h"

#include "Arguments.h"
#include "DeviceCommands.h"
#include "DeviceText.h"
#include "Files.h"
#include "LibraryCalls.h"
#include "StateEvents.h"

#include <istream>

namespace vantorel {
namespace {

constexpr int kEnd = std::istream::traits_type::eof();
constexpr std::size_t kLongestLine = std::size_t{1} << 28U;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The next line without its end. One that never ends breaks the stream and throws ScriptError.
std::string readLine(std::istream &script) {
  std::string line;
  for (int c = 0; (c = script.get()) != kEnd && c != '\n';) {
    line += static_cast<char>(c);
    if (line.size() <= kLongestLine) continue;
    script.setstate(std::ios::failbit);
    throw ScriptError("the line is too long: expected at most 256 MiB");
  }
  return line;
}

/// Throws what the device answers, if it does.
void expectDone(char *answer) {
  if (const DeviceText refusal{answer}) throw ScriptError(refusal.get());
}

void expectPlayed() {
  const DeviceText played(vantorelDeviceState("recording.playedEvents"));
  if (std::string_view(played.get()) == "0") throw ScriptError("no event of the recording was played");
}

void hearFiles(const std::string &folder) {
  for (const auto &[path, bytes] : fileSizes(folder))
    Listening::hear("file", path, EventValue::json(std::to_string(bytes)));
}

}  // namespace

Host::Host(Printer &printer, std::string documents)
    : printer_(printer), listening_(printer), documents_(std::move(documents)) {
  expectDone(vantorelDeviceSetDocumentsDirectory(documents_.c_str()));
}

void Host::record(const std::string &path) const { expectDone(vantorelDeviceRecord(path.c_str())); }

bool Host::runScript(std::istream &script) {
  bool isGood = true;
  std::size_t lines = 0;
  while (printer_.isGood() && script.peek() != kEnd) isGood &= runLine(script, ++lines);
  return finish(lines) && isGood;
}

bool Host::runLine(std::istream &script, std::size_t number) {
  return attempt(number, [&] {
    std::string line = readLine(script);
    if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    const Words words = splitWords(line);
    if (words.empty()) return;
    const bool setsRecording = words.size() > 1 && words[0] == "device" && words[1] == "recording";
    if (setsRecording) expectPlayed();  // the one before
    runNamed(words);
    if (setsRecording) recordingLine_ = number;
  });
}

bool Host::finish(std::size_t lines) const {
  const bool isWhole = attempt(lines, [] { expectDone(vantorelDeviceRecord(nullptr)); });
  return attempt(recordingLine_, expectPlayed) && isWhole;
}

template <typename Action>
bool Host::attempt(std::size_t number, Action action) {
  try {
    action();
    return true;
  } catch (const std::exception &error) {
    const std::string message = "line " + std::to_string(number) + ": " + error.what();
    Listening::hear("error", std::nullopt, EventValue::text(message));
    return false;
  }
}

void Host::runNamed(const Words &words) const {
  try {
    run(words);
  } catch (const ArgumentError &error) {
    const bool isDevice = words[0] == "device" && words.size() > 1;
    throw ScriptError((isDevice ? "device " + words[1] : words[0]) + ": " + error.what());
  }
}

void Host::run(const Words &words) const {
  struct Command {
    std::string_view name;
    std::size_t least, most;
    void (*run)(const Words &words, const std::string &documents);
  };
  static constexpr Command kCommands[] = {
      {"advance", 1, 1,
       [](const Words &line, const std::string &) {
         expectDone(vantorelDeviceAdvance(numberArgument(line[1], kFromZero)));
       }},
      {"settle", 0, 0, [](const Words &, const std::string &) { expectDone(vantorelDeviceSettle()); }},
      {"state", 0, 1,
       [](const Words &line, const std::string &) {
         line.size() > 1 ? hearProperty(line[1]) : hearProperties();
       }},
      {"files", 0, 0, [](const Words &, const std::string &documents) { hearFiles(documents); }},
      {"device", 0, 17, [](const Words &line, const std::string &) { runDeviceCommand(line); }},
  };
  for (const Command &command : kCommands) {
    if (command.name != words[0]) continue;
    expectArguments(words, command.least, command.most);
    return command.run(words, documents_);
  }
  if (!callLibrary(words)) throw ScriptError("unknown command " + quotedWord(words[0]));
}

}  // namespace vantorel
