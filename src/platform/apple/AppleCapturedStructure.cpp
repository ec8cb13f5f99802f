#include "platform/apple/AppleCapturedStructure.h"

#include "platform/apple/AppleCapturedRoom.h"

namespace vantorel::apple {

std::string AppleCapturedStructure::jsonText() const {
  return textFrom(
      [&](void *text, void *error) { return vantorel_swift_structure_json(structure_.get(), text, error); });
}

void AppleCapturedStructure::writeUsdz(const std::string &path, const std::string &metadataPath) const {
  orThrow([&](void *error) {
    return vantorel_swift_structure_write_usdz(structure_.get(), path.c_str(), metadataPath.c_str(), error);
  });
}

void AppleStructureBuilder::capturedStructure(
    std::vector<std::shared_ptr<CapturedRoom>> rooms,
    std::function<void(std::shared_ptr<CapturedStructure>)> completion) {
  std::vector<vantorel_swift_handle> handles;
  for (const auto &room : rooms) handles.push_back(static_cast<AppleCapturedRoom &>(*room).handle());
  vantorel_swift_structure_builder_merge(
      builder_.get(), handles.data(), handles.size(),
      asCompletion([completion = std::move(completion)](Handle structure) {
        completion(structure ? std::make_shared<AppleCapturedStructure>(std::move(structure)) : nullptr);
      }));
}

}  // namespace vantorel::apple
