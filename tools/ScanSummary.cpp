#include "ScanSummary.h"

#include "Printer.h"
#include "RoomCounts.h"

#include <utility>

namespace vantorel {

std::string jsonText(const ScanSummary &summary) {
  std::string text = R"({"room":)" + jsonString(summary.room) + R"(,"ios":)" + jsonString(summary.ios) +
                     R"(,"seconds":)" + secondsText(summary.seconds) + R"(,"updates":)" +
                     std::to_string(summary.updates) + R"(,"instructions":)" +
                     std::to_string(summary.instructions);
  for (const RoomCount &count : countsOf(summary.document))
    text += ',' + jsonString(count.several) + ':' + std::to_string(count.number);
  text += R"(,"folder":)" + jsonString(summary.folder) + R"(,"files":[)";
  for (const auto &[name, bytes] : summary.files)
    text += R"({"name":)" + jsonString(name) + R"(,"bytes":)" + std::to_string(bytes) + "},";
  if (text.back() == ',') text.pop_back();
  return text + "]}\n";
}

std::string readableText(const ScanSummary &summary) {
  std::string text = "Scanned " + summary.room + " in " + secondsText(summary.seconds) + " s on iOS " +
                     summary.ios + ": " + counted({"update", "updates", summary.updates}) + ", " +
                     counted({"instruction", "instructions", summary.instructions}) + ".\n";
  std::string separator = "  ";
  for (const RoomCount &count : countsOf(summary.document))
    text += std::exchange(separator, ", ") + counted(count);
  text += "\nSaved in " + summary.folder + ":\n";
  for (const auto &[name, bytes] : summary.files)
    text += "  " + name + "  " + std::to_string(bytes) + " bytes\n";
  return text;
}

}  // namespace vantorel
