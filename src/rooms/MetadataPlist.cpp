#include "rooms/MetadataPlist.h"

#include "rooms/UsdNames.h"

#include <string_view>
#include <vector>

namespace vantorel {
namespace {

/// Appends the values of a property list. All keys and strings are prim names, UUIDs and words of ours: there
/// is nothing to escape.
class Plist {
 public:
  explicit Plist(std::string &out) : out_(out) {}

  void begin(std::string_view container) {
    line("<" + std::string(container) + ">");
    ++depth_;
  }
  void end(std::string_view container) {
    --depth_;
    line("</" + std::string(container) + ">");
  }
  void key(std::string_view name) { element("key", name); }
  void integer(int value) { element("integer", std::to_string(value)); }
  void uuid(const Uuid &uuid) { element("string", uuid.text()); }

 private:
  void line(std::string_view text) { out_.append(depth_, '\t').append(text).append("\n"); }
  void element(std::string_view type, std::string_view text) {
    out_.append(depth_, '\t').append("<").append(type).append(">").append(text);
    out_.append("</").append(type).append(">\n");
  }

  std::string &out_;
  std::size_t depth_ = 0;
};

void writeUuids(Plist &plist, const std::vector<Uuid> &uuids) {
  plist.begin("array");
  for (const Uuid &uuid : uuids) plist.uuid(uuid);
  plist.end("array");
}

std::vector<Uuid> openingsOf(const StructureDocument &structure) {
  std::vector<Uuid> openings;
  openings.reserve(structure.elements.openings.size());
  for (const Surface &opening : structure.elements.openings) openings.push_back(opening.identifier);
  return openings;
}

std::vector<Uuid> roomsOf(const StructureDocument &structure) {
  std::vector<Uuid> rooms;
  rooms.reserve(structure.rooms.size());
  for (const auto &room : structure.rooms) rooms.push_back(identifierOf(*room));
  return rooms;
}

/// What has no mesh, under a key that is no mesh's name, since those end in a digit.
void writeOwnPart(Plist &plist, const StructureDocument &structure) {
  plist.key("vantorel");
  plist.begin("dict");
  plist.key("formatVersion");
  plist.integer(1);
  plist.key("openings");
  writeUuids(plist, openingsOf(structure));
  plist.key("replaced");
  plist.begin("dict");
  for (const auto &[replaced, kept] : structure.keptFor) {
    plist.key(replaced.text());
    plist.uuid(kept);
  }
  plist.end("dict");
  const std::vector<Uuid> rooms = roomsOf(structure);
  plist.key("rooms");
  writeUuids(plist, rooms);
  plist.key("structure");
  plist.uuid(structureIdentifier(rooms));
  plist.end("dict");
}

}  // namespace

std::string writeMetadataPlist(const StructureDocument &structure) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
      "<plist version=\"1.0\">\n";
  Plist plist(text);
  plist.begin("dict");
  for (const auto &[name, identifier] : meshNames(structure.elements)) {
    plist.key(name);
    plist.uuid(identifier);
  }
  writeOwnPart(plist, structure);
  plist.end("dict");
  return text + "</plist>\n";
}

}  // namespace vantorel
