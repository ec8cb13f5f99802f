#include "rooms/UsdzWriter.h"

#include "rooms/RoomMesh.h"
#include "rooms/StoredZip.h"
#include "rooms/UsdMesh.h"
#include "rooms/UsdNames.h"
#include "rooms/UsdText.h"

#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

constexpr std::string_view kAssembly = "kind = \"assembly\"";
constexpr std::string_view kGroup = "kind = \"group\"";
constexpr std::string_view kComponent = "kind = \"component\"";

struct Material {
  std::string_view color;
  std::string_view opacity;
};
constexpr Material kWhite{"(1, 1, 1)", "1"};
constexpr Material kInvisible{"(0, 0, 0)", "0"};  // as RoomPlan's doors and windows

/// An element without its shape.
struct Label {
  std::string name;      ///< of its prim
  std::string category;  ///< as RoomPlan spells it: "Wall", "Door(Isopen: True)"
  std::string uuid;
};

std::string categoryText(const EnumCase &category) {
  std::string text = usdCapitalized(category.name);
  if (!category.isOpen) return text;
  return text + (*category.isOpen ? "(Isopen: True)" : "(Isopen: False)");
}

Label labelOf(const Surface &surface, std::string_view stem, std::size_t index) {
  return {usdNumbered(stem, index), categoryText(surface.category), surface.identifier.text()};
}

Float4x4 translation(Float3 to) { return {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, to.x, to.y, to.z, 1}}; }

void writeMaterial(UsdText &usd, const std::string &name, const Material &material) {
  usd.beginPrim("Material", name);
  usd.line("token outputs:surface.connect = <" + usd.path() + "/surfaceShader.outputs:surface>");
  usd.beginPrim("Shader", "surfaceShader");
  usd.line("uniform token info:id = \"UsdPreviewSurface\"");
  usd.line("color3f inputs:diffuseColor = " + std::string(material.color));
  usd.line("float inputs:opacity = " + std::string(material.opacity));
  usd.line("token outputs:surface");
  usd.endPrim();
  usd.endPrim();
}

/// The element's mesh, and its material beside it.
void writeElement(UsdText &usd, const Label &label, const Mesh &mesh, const Float4x4 &transform,
                  const Material &material) {
  const std::string materialName = label.name + "_color";
  const std::string binding = "rel material:binding = <" + usd.path() + '/' + materialName + '>';
  usd.beginPrim(
      "Mesh", label.name,
      {"prepend apiSchemas = [\"MaterialBindingAPI\"]", "customData = {",
       "    string Category = " + usdQuoted(label.category), "    string UUID = \"" + label.uuid + '"', "}"});
  writeUsdMesh(usd, mesh);
  usd.line(binding);
  usd.transform(transform);
  usd.endPrim();
  writeMaterial(usd, materialName, material);
}

/// Where sections stand: on the first floor of their storey, else on the first of all.
class FloorHeights {
 public:
  explicit FloorHeights(const RoomDocument &room) {
    if (!room.floors) return;
    for (const Surface &floor : *room.floors) {
      const float height = floor.transform.at(3, 1);
      if (!first_) first_ = height;
      if (floor.story) byStorey_.emplace(*floor.story, height);
    }
  }

  float under(const Section &section) const {
    const auto height = byStorey_.find(section.story);
    return height != byStorey_.end() ? height->second : first_.value_or(section.center.y);
  }

 private:
  std::optional<float> first_;
  std::map<std::int64_t, float> byStorey_;
};

void writeSections(UsdText &usd, const RoomDocument &room) {
  if (!room.sections || room.sections->empty()) return;
  const FloorHeights floors(room);
  std::map<std::string, std::size_t> countOf;
  usd.beginPrim("Xform", "Section_grp", {kGroup});
  for (const Section &section : *room.sections) {
    const std::string stem = usdNameStem(section.label, "section");
    const std::string name = usdNumbered(stem, countOf[stem]++);
    usd.beginPrim("Xform", name, {kAssembly});
    usd.transform(translation(section.center));
    // The centre is half way up: as high again above it is the ceiling. The anchor lies on its back there.
    const float rise = section.center.y - floors.under(section);
    usd.beginPrim("Xform", name + "_centerTop");
    usd.transform({{1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, rise, 0, 1}});
    usd.endPrim();
    usd.endPrim();
  }
  usd.endPrim();
}

/// What is cut out of a wall, and the panels among it: those have a mesh, to be written in the wall's group.
struct WallContent {
  struct Panel {
    const Surface *surface;
    std::string_view stem;
    std::size_t index;
  };
  std::vector<const Surface *> openings;
  std::vector<Panel> panels;
};

/// The content of wall k at k; what names no wall of this room at the end.
std::vector<WallContent> contentByWall(const RoomDocument &room) {
  std::map<Uuid, std::size_t> wallOf;
  for (std::size_t k = 0; k < room.walls.size(); ++k) wallOf.emplace(room.walls[k].identifier, k);
  std::vector<WallContent> content(room.walls.size() + 1);
  const auto distribute = [&](const std::vector<Surface> &surfaces, std::string_view stem) {
    for (std::size_t i = 0; i < surfaces.size(); ++i) {
      const auto parent = surfaces[i].parentIdentifier.value_or(std::nullopt);
      const auto wall = parent ? wallOf.find(*parent) : wallOf.end();
      WallContent &of = content[wall == wallOf.end() ? room.walls.size() : wall->second];
      of.openings.push_back(&surfaces[i]);
      if (!stem.empty()) of.panels.push_back({&surfaces[i], stem, i});
    }
  };
  distribute(room.doors, kDoorStem);
  distribute(room.windows, kWindowStem);
  distribute(room.openings, {});
  return content;
}

void writePanels(UsdText &usd, const std::vector<WallContent::Panel> &panels) {
  for (const auto &[surface, stem, index] : panels)
    writeElement(usd, labelOf(*surface, stem, index), panelMesh(*surface), surface->transform, kInvisible);
}

/// Doors and windows that name no wall of the room get a group of their own.
void writeArchitecture(UsdText &usd, const RoomDocument &room) {
  const std::vector<WallContent> content = contentByWall(room);
  const std::vector<std::optional<Turn>> turns = convexCorners(room.walls);
  usd.beginPrim("Xform", "Arch_grp", {kGroup});
  for (std::size_t k = 0; k < room.walls.size(); ++k) {
    const Surface &wall = room.walls[k];
    usd.beginPrim("Xform", "Wall_" + std::to_string(k) + "_grp", {kComponent});
    writeElement(usd, labelOf(wall, kWallStem, k), wallMesh(wall, content[k].openings, turns[k]),
                 wall.transform, kWhite);
    writePanels(usd, content[k].panels);
    usd.endPrim();
  }
  if (!content.back().panels.empty()) {
    usd.beginPrim("Xform", "Unattached_grp", {kComponent});
    writePanels(usd, content.back().panels);
    usd.endPrim();
  }
  usd.endPrim();
}

void writeFloors(UsdText &usd, const RoomDocument &room) {
  if (!room.floors) return;
  for (std::size_t i = 0; i < room.floors->size(); ++i) {
    const Surface &floor = (*room.floors)[i];
    usd.beginPrim("Xform", i == 0 ? "Floor_grp" : usdNumbered("Floor_grp_", i), {kComponent});
    writeElement(usd, labelOf(floor, kFloorStem, i), floorMesh(floor), floor.transform, kWhite);
    usd.endPrim();
  }
}

/// The tables that chairs may name as their parent.
std::map<Uuid, const RoomObject *> tablesOf(const RoomDocument &room) {
  std::map<Uuid, const RoomObject *> tables;
  for (const RoomObject &object : room.objects)
    if (object.category.name == "table") tables.emplace(object.identifier, &object);
  return tables;
}

/// One group per category, sorted by name; each counts its objects in the order of the room.
void writeObjects(UsdText &usd, const RoomDocument &room) {
  if (room.objects.empty()) return;
  const std::map<Uuid, const RoomObject *> tables = tablesOf(room);
  usd.beginPrim("Xform", "Object_grp", {kGroup});
  for (const auto &[stem, objects] : objectsByStem(room)) {
    usd.beginPrim("Xform", stem + "_grp", {kComponent});
    for (std::size_t i = 0; i < objects.size(); ++i) {
      const RoomObject &object = *objects[i];
      const Label label{usdNumbered(stem, i), categoryText(object.category), object.identifier.text()};
      const auto parent = object.parentIdentifier.value_or(std::nullopt);
      const auto table = parent ? tables.find(*parent) : tables.end();
      const Mesh mesh = objectMesh(object, table == tables.end() ? nullptr : table->second);
      writeElement(usd, label, mesh, object.transform, kWhite);
    }
    usd.endPrim();
  }
  usd.endPrim();
}

/// Somewhat more than most rooms take.
std::size_t expectedModelSize(const RoomDocument &room) {
  constexpr std::size_t kBytesPerElement = 3800;
  return kBytesPerElement * (2 + room.walls.size() + room.doors.size() + room.windows.size() +
                             room.objects.size() + (room.floors ? room.floors->size() : 0));
}

}  // namespace

std::string writeUsdz(const RoomDocument &room, std::string_view name) {
  const std::string root = usdName(name, "scan");
  StoredZip package(root + ".usda");
  package.content().reserve(expectedModelSize(room));
  UsdText usd(package.content(), root);
  usd.beginPrim("Xform", root, {kAssembly});
  writeSections(usd, room);
  usd.beginPrim("Xform", "Mesh_grp", {kGroup});
  writeArchitecture(usd, room);
  writeFloors(usd, room);
  writeObjects(usd, room);
  usd.endPrim();
  usd.endPrim();
  return std::move(package).finish();
}

}  // namespace vantorel
