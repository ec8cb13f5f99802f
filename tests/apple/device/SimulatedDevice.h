/*
 * The simulated device as the stand-in frameworks see it: one engine, whether the core is on it directly or through the
 * iPhone's Swift. Plain C.
 *
 *  (1) A `void *` that is returned, or handed to a callback, is an object of the device that belongs to the caller, who
 *      gives it back once with device_drop.
 *  (2) Bytes and errors that are returned belong to the caller, who frees them. Bytes without an address: a failure,
 *      or nothing.
 *  (3) A callback is released once, when the device has no use for it any more.
 *  (4) Any thread, as far as the object's port in platform/ allows it.
 */
#ifndef SIMULATED_DEVICE_H
#define SIMULATED_DEVICE_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct device_callback {
  void *context;
  void (*call)(void *context, const void *argument);
  void (*release)(void *context);
} device_callback;

typedef struct device_bytes {
  char *bytes;
  size_t length;
} device_bytes;

typedef struct device_rect {
  double x, y, width, height;
} device_rect;

void device_drop(void *object);
/** Grows with every power cycle. */
uint64_t device_power_cycles(void);
bool device_has_lidar(void);
/** The error of a call that is to fail, by its name as in vantorelDeviceFail. */
char *device_check(const char *call);
/** For vantorelDeviceState. */
void device_note(const char *name, const char *json);

/* ---- Queues and threads ---- */

void device_main_async(device_callback work);
void device_main_after(int64_t nanoseconds, device_callback work);
bool device_is_main_thread(void);
void device_start_thread(device_callback entry);
void device_run_loop(void);

void *device_link_create(device_callback action);
void device_link_add(void *link, bool commonModes);
void device_link_set_rate(void *link, float minimum, float maximum, float preferred);
void device_link_invalidate(void *link);
double device_link_timestamp(void *link);
double device_link_target_timestamp(void *link);

/* ---- AR sessions and world maps; orientations are numbered as in platform/ARSession.h ---- */

void *device_ar_session_create(void);
/** What vantorelDeviceARSession stands for. */
void *device_ar_session_of_host(void);
void device_ar_session_set_delegate(void *session, bool isThere);
bool device_ar_session_transform(void *session, float *elements);
bool device_ar_session_projection(void *session, int32_t orientation, double width, double height,
                                  double zNear, double zFar, float *elements);
bool device_ar_session_is_tracking_normal(void *session);
void device_ar_session_run(void *session, void *map);
/** The argument is the map, or null. */
void device_ar_session_get_map(void *session, device_callback completion);
device_bytes device_map_archive(void *map, char **error);
/** Of bytes from device_map_archive. Fails never. */
void *device_map_unarchive(const void *bytes, size_t length);

/* ---- Capture sessions ---- */

enum {
  DEVICE_DID_START,
  DEVICE_DID_UPDATE,
  DEVICE_DID_ADD,
  DEVICE_DID_CHANGE,
  DEVICE_DID_REMOVE,
  DEVICE_DID_PROVIDE,
  DEVICE_DID_END
};

/** What a callback's argument points to, for the time of the call. */
typedef struct device_session_event {
  int32_t kind;
  int32_t instruction; /* as in platform/RoomCaptureSession.h */
  const char *text;    /* a room's, or an error's description, or null */
  size_t length;
  const uint8_t *identifier; /* of the room, 16 bytes */
} device_session_event;

/** On its own AR session when there is none. */
void *device_session_create(void *arSession);
void *device_session_ar_session(void *session);
void device_session_run(void *session, bool isCoachingEnabled);
void device_session_stop(void *session, bool pauseARSession);
/** Returns what has to live as long as the callback is to be called. */
void *device_session_listen(void *session, device_callback events);

/* ---- Rooms and structures, as texts ---- */

void device_room_identifier(const char *text, size_t length, uint8_t *identifier);
/** Returns the error. */
char *device_room_export(const char *text, size_t length, const char *path);

typedef struct device_structure {
  void *structure; /* null when it could not be built */
  const char *text;
  size_t length;
} device_structure;

/** The argument points to a device_structure. */
void device_structure_build(const device_bytes *texts, size_t count, device_callback completion);
/** Returns the error. */
char *device_structure_export(void *structure, const char *path, const char *metadataPath);

/* ---- Views ---- */

/** Null when there is none. */
void *device_window(void);
bool device_window_has_root(void *window);
void device_window_clear(void *window);
void device_window_add(void *window, void *controller);
void device_window_exchange(void *window);

void *device_controller_create(void);
bool device_controller_load_view(void *controller);
void device_controller_insert_at_back(void *controller, void *view);
void device_controller_ignore_touches(void *controller);
void device_controller_dismiss(void *controller);

typedef struct device_camera_view {
  device_rect frame;
  bool hasSession, hasDelegate;
  int32_t antialiasingMode;
  bool automaticallyUpdatesLighting, rendersCameraGrain, rendersMotionBlur;
  int32_t preferredFramesPerSecond;
} device_camera_view;

/** Made without settings. */
void *device_camera_view_create(void);
void device_camera_view_note(const device_camera_view *settings);
void *device_scan_view_create(void);
void device_scan_view_note(device_rect frame, bool isModelEnabled, bool hasDelegate);
void *device_scan_view_session(void *view);
size_t device_scan_view_subview_count(void *view);
void device_scan_view_hide_subview(void *view, size_t index);
void device_view_remove(void *view);

device_rect device_screen_bounds(void);
int32_t device_screen_orientation(void);
device_bytes device_screenshot(void);

/* ---- Media ---- */

/** Null when there is none. */
void *device_camera(void);
bool device_camera_has_torch(void *camera);
/** Returns the error. */
char *device_camera_lock(void *camera);
void device_camera_set_torch(void *camera, bool on);

/** The argument is the error's text, or null. */
void device_recorder_start(device_callback completion);
void device_recorder_stop(const char *path, device_callback completion);

/** `kind` as in vantorelDeviceObserver. */
void device_present(const char *kind, const char *content);

#ifdef __cplusplus
}
#endif

#endif
