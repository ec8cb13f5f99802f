#include "ScanSummary.h"

#include "Printer.h"

#include <array>
#include <string_view>
#include <utility>

namespace vantorel {
namespace {

struct Count {
  std::string_view one, several;
  std::size_t number;
};

std::array<Count, 7> counts(const RoomDocument &room) {
  return {{{"wall", "walls", room.walls.size()},
           {"door", "doors", room.doors.size()},
           {"window", "windows", room.windows.size()},
           {"opening", "openings", room.openings.size()},
           {"floor", "floors", room.floors ? room.floors->size() : 0},
           {"object", "objects", room.objects.size()},
           {"section", "sections", room.sections ? room.sections->size() : 0}}};
}

std::string counted(const Count &count) {
  return std::to_string(count.number) + ' ' + std::string(count.number == 1 ? count.one : count.several);
}

std::string counted(int number, std::string_view one, std::string_view several) {
  return counted({one, several, static_cast<std::size_t>(number)});
}

}  // namespace

std::string jsonText(const ScanSummary &summary) {
  std::string text = R"({"room":)" + jsonString(summary.room) + R"(,"ios":)" + jsonString(summary.ios) +
                     R"(,"seconds":)" + secondsText(summary.seconds) + R"(,"updates":)" +
                     std::to_string(summary.updates) + R"(,"instructions":)" +
                     std::to_string(summary.instructions);
  for (const Count &count : counts(summary.document))
    text += ',' + jsonString(count.several) + ':' + std::to_string(count.number);
  text += R"(,"folder":)" + jsonString(summary.folder) + R"(,"files":[)";
  for (const auto &[name, bytes] : summary.files)
    text += R"({"name":)" + jsonString(name) + R"(,"bytes":)" + std::to_string(bytes) + "},";
  if (text.back() == ',') text.pop_back();
  return text + "]}\n";
}

std::string readableText(const ScanSummary &summary) {
  std::string text = "Scanned " + summary.room + " in " + secondsText(summary.seconds) + " s on iOS " +
                     summary.ios + ": " + counted(summary.updates, "update", "updates") + ", " +
                     counted(summary.instructions, "instruction", "instructions") + ".\n";
  std::string separator = "  ";
  for (const Count &count : counts(summary.document)) text += std::exchange(separator, ", ") + counted(count);
  text += "\nSaved in " + summary.folder + ":\n";
  for (const auto &[name, bytes] : summary.files)
    text += "  " + name + "  " + std::to_string(bytes) + " bytes\n";
  return text;
}

}  // namespace vantorel
