#include "platform/apple/AppleARSession.h"

namespace vantorel::apple {
namespace {

// The border's numbers are the port's.
static_assert(int(InterfaceOrientation::portrait) == VANTOREL_SWIFT_PORTRAIT);
static_assert(int(InterfaceOrientation::landscapeLeft) == VANTOREL_SWIFT_LANDSCAPE_LEFT);
static_assert(int(InterfaceOrientation::landscapeRight) == VANTOREL_SWIFT_LANDSCAPE_RIGHT);

/// What `read` has written, if it returned true.
template <typename Read>
std::optional<Float4x4> matrixFrom(Read read) {
  vantorel_swift_float4x4 matrix;
  if (!read(&matrix)) return std::nullopt;
  return Float4x4{std::to_array(matrix.elements)};
}

std::shared_ptr<WorldMap> wrapped(Handle map) {
  return map ? std::make_shared<AppleWorldMap>(std::move(map)) : nullptr;
}

}  // namespace

std::string AppleWorldMap::archivedData() const {
  return textFrom(
      [&](void *bytes, void *error) { return vantorel_swift_world_map_archive(handle(), bytes, error); });
}

std::shared_ptr<WorldMap> unarchivedWorldMap(std::string_view bytes) {
  Handle map;
  orThrow([&](void *error) {
    return vantorel_swift_world_map_unarchive(bytes.data(), bytes.size(), &map, error);
  });
  return wrapped(std::move(map));
}

void AppleARSession::setDelegate(std::weak_ptr<ARSessionDelegate>) {
  vantorel_swift_ar_session_set_idle_delegate(handle());
}

std::optional<Float4x4> AppleARSession::cameraTransform() {
  return matrixFrom(
      [&](auto *matrix) { return vantorel_swift_ar_session_camera_transform(handle(), matrix); });
}

std::optional<Float4x4> AppleARSession::projectionMatrix(const ProjectionRequest &request) {
  const vantorel_swift_projection_request values{.orientation = static_cast<int32_t>(request.orientation),
                                                 .viewportWidth = request.viewportWidth,
                                                 .viewportHeight = request.viewportHeight,
                                                 .zNear = request.zNear,
                                                 .zFar = request.zFar};
  return matrixFrom(
      [&](auto *matrix) { return vantorel_swift_ar_session_projection_matrix(handle(), &values, matrix); });
}

bool AppleARSession::isTrackingNormal() { return vantorel_swift_ar_session_is_tracking_normal(handle()); }

void AppleARSession::run(std::shared_ptr<WorldMap> initialWorldMap) {
  const auto map = initialWorldMap ? static_cast<AppleWorldMap &>(*initialWorldMap).handle() : nullptr;
  vantorel_swift_ar_session_run(handle(), map);
}

void AppleARSession::getCurrentWorldMap(std::function<void(std::shared_ptr<WorldMap>)> completion) {
  vantorel_swift_ar_session_get_current_world_map(
      handle(), asCompletion([completion = std::move(completion)](Handle map) {
        completion(wrapped(std::move(map)));
      }));
}

}  // namespace vantorel::apple
