#include "vantorel/vantorel.h"

#include "Check.h"

#include <filesystem>

extern "C" void standin_refuse_merges(bool isRefused);

namespace {

const std::string kSeparator = "_|+++++AMBER_WREN+++++|_";

std::size_t count(const std::string &text, const std::string &part) {
  std::size_t found = 0;
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
  return found;
}

}  // namespace

void mergeScene(const std::string &home) {
  const std::string folder = home + "/Documents/merged/home/";
  const std::string rooms = heard.snapshot + kSeparator + "no room" + kSeparator + heard.snapshot;
  const auto merge = [](const std::string &texts) { mergeScans(texts.c_str(), "merged", "home"); };
  expectPrinted("Data is empty.\nStructure data is empty.", [&] { merge("no room"); });
  standin_refuse_merges(true);
  const std::string lines = printed("Merging Error.", [&] { merge(rooms); });
  expect(lines.find("\nData is empty.\n") == 36 && lines.ends_with("\nMerging Error.\n"),
         "a room, no room, a room and a failure were told");
  expect(!std::filesystem::exists(folder), "a failed merge leaves nothing");
  standin_refuse_merges(false);
  merge(rooms);
  waitUntil([&] { return std::filesystem::exists(folder + "scan.plist"); });
  const std::string json = fileText(folder + "scan.json");
  expect(json.starts_with("{\n  \"doors\" : [") && count(json, "\"walls\" : [") == 3,
         "scan.json is pretty and sorted and holds two rooms");
  expect(fileText(folder + "scan.usdz") == "stand-in structure", "scan.usdz is there");
  expect(fileText(folder + "scan.plist") == "stand-in metadata", "scan.plist is there");
}
