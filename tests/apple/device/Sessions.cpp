#include "Crossing.h"
#include "platform/simulated/SimulatedRoom.h"
#include "rooms/RoomWriter.h"

#include <algorithm>

using namespace vantorel;
using namespace vantorel::device;

namespace {

ARSession &arSession(void *session) { return *taken<ARSession>(session); }
RoomCaptureSession &captureSession(void *session) { return *taken<RoomCaptureSession>(session); }

bool copyMatrix(const std::optional<Float4x4> &matrix, float *elements) {
  if (matrix) std::ranges::copy(matrix->elements, elements);
  return matrix.has_value();
}

/// Tells a capture session's events as texts. Rooms go as texts, which is how they reach Foundation's decoder.
class Listener final : public RoomCaptureSessionDelegate {
 public:
  explicit Listener(device_callback events) : events_(events) {}

  void captureSessionDidStart(std::shared_ptr<RoomCaptureSession>) override { tell(DEVICE_DID_START, 0, {}); }
  void captureSessionDidUpdate(std::shared_ptr<CapturedRoom> room) override {
    tell(DEVICE_DID_UPDATE, *room);
  }
  void captureSessionDidAdd(std::shared_ptr<CapturedRoom> room) override { tell(DEVICE_DID_ADD, *room); }
  void captureSessionDidChange(std::shared_ptr<CapturedRoom> room) override {
    tell(DEVICE_DID_CHANGE, *room);
  }
  void captureSessionDidRemove(std::shared_ptr<CapturedRoom> room) override {
    tell(DEVICE_DID_REMOVE, *room);
  }
  void captureSessionDidProvide(Instruction instruction) override {
    tell(DEVICE_DID_PROVIDE, static_cast<int32_t>(instruction), {});
  }
  void captureSessionDidEnd(std::optional<std::string> error) override { tell(DEVICE_DID_END, 0, error); }

 private:
  void tell(int32_t kind, int32_t instruction, const std::optional<std::string> &text,
            const Uuid &identifier = {}) {
    const device_session_event event{kind, instruction, text ? text->c_str() : nullptr,
                                     text ? text->size() : 0, identifier.bytes.data()};
    events_(&event);
  }
  void tell(int32_t kind, const CapturedRoom &room) {
    tell(kind, 0, writeRoom(*dynamic_cast<const SimulatedRoom &>(room).document()), room.identifier());
  }

  Callback events_;
};

}  // namespace

// ---- AR sessions and world maps ----

void *device_ar_session_create() { return given<ARSession>(std::make_shared<SimulatedARSession>(parts())); }

void *device_ar_session_of_host() {
  return given(simulatedPlatform().arSession(simulatedPlatform().hostARSession()));
}

void device_ar_session_set_delegate(void *session, bool isThere) {
  static const auto delegate = std::make_shared<ARSessionDelegate>();
  arSession(session).setDelegate(isThere ? delegate : nullptr);
}

bool device_ar_session_transform(void *session, float *elements) {
  return copyMatrix(arSession(session).cameraTransform(), elements);
}

bool device_ar_session_projection(void *session, int32_t orientation, double width, double height,
                                  double zNear, double zFar, float *elements) {
  const auto turned = static_cast<InterfaceOrientation>(orientation);
  return copyMatrix(arSession(session).projectionMatrix({turned, width, height, zNear, zFar}), elements);
}

bool device_ar_session_is_tracking_normal(void *session) { return arSession(session).isTrackingNormal(); }

void device_ar_session_run(void *session, void *map) { arSession(session).run(taken<WorldMap>(map)); }

void device_ar_session_get_map(void *session, device_callback completion) {
  arSession(session).getCurrentWorldMap([completion = Callback(completion)](std::shared_ptr<WorldMap> map) {
    completion(given(std::move(map)));
  });
}

device_bytes device_map_archive(void *map, char **error) {
  device_bytes bytes{};
  *error = errorOf([&] { bytes = copied(taken<WorldMap>(map)->archivedData()); });
  return bytes;
}

void *device_map_unarchive(const void *bytes, size_t length) {
  const KnownSpace space = readArchive({static_cast<const char *>(bytes), length});
  return given<WorldMap>(std::make_shared<SimulatedWorldMap>(space, parts().faults));
}

// ---- Capture sessions ----

void *device_session_create(void *arSession) {
  return given(simulatedPlatform().makeRoomCaptureSession(taken<ARSession>(arSession)));
}

void *device_session_ar_session(void *session) { return given(captureSession(session).arSession()); }
void device_session_run(void *session, bool isCoachingEnabled) {
  captureSession(session).run({isCoachingEnabled});
}
void device_session_stop(void *session, bool pauseARSession) { captureSession(session).stop(pauseARSession); }

void *device_session_listen(void *session, device_callback events) {
  const std::shared_ptr<RoomCaptureSessionDelegate> listener = std::make_shared<Listener>(events);
  captureSession(session).setDelegate(listener);
  return given(listener);
}
