/*
 * The border between the C++ and the Swift of the iPhone's platform, as plain C.
 *
 * Conventions
 *  (1) vantorel_swift_... is written in Swift and called by C++; vantorel_core_... is written in C++ and called by
 *      Swift. No error crosses in flight: Swift catches its own, and a C++ exception ends the process here.
 *  (2) A vantorel_swift_handle is a Swift object, retained once for C++ wherever it is handed over (as a result or
 *      as an argument of vantorel_core_...), which gives it back once with vantorel_swift_release. As an argument
 *      of vantorel_swift_... it is borrowed for the call.
 *  (3) A `context` is an object of C++ that belongs to Swift, which gives it back once with vantorel_core_drop when
 *      nothing in Swift can use it any more.
 *  (4) A `work` is a context that Swift runs once with vantorel_core_run before it gives it back.
 *  (5) Texts into Swift are NUL-terminated UTF-8 and read during the call. Texts and bytes out of Swift go to
 *      vantorel_core_text with the `text`, `bytes` or `error` that was handed in, before the call returns.
 *  (6) A function that can fail returns false then, with the platform's description in `error`. What it makes goes
 *      to vantorel_core_object with the `object` that was handed in, before the call returns.
 *  (7) A `completion` is a context. What Swift finds out later goes to vantorel_core_complete with it, once, on
 *      whatever thread the platform chose.
 *  (8) Main thread, unless "any thread" is said.
 */
#ifndef VANTOREL_SWIFT_H
#define VANTOREL_SWIFT_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define VANTOREL_SWIFT_NOEXCEPT noexcept
extern "C" {
#else
#define VANTOREL_SWIFT_NOEXCEPT
#endif

#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wnullability-extension"
#pragma clang assume_nonnull begin
#else
#define _Nullable
#define _Nonnull
#endif

typedef void *vantorel_swift_handle;

/* ---- Ownership and texts; any thread ---- */

void vantorel_swift_release(vantorel_swift_handle object);
/** A handle for an object that came from elsewhere. */
vantorel_swift_handle vantorel_swift_retain(void *object);

void vantorel_core_drop(void *context) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_run(void *work) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_text(void *text, const char *utf8, size_t length) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_object(void *object, vantorel_swift_handle found) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_complete(void *completion, vantorel_swift_handle _Nullable result) VANTOREL_SWIFT_NOEXCEPT;

/* ---- Device, console, files, queues; any thread ---- */

void vantorel_swift_console_print(const char *line);
/** What `#available(iOS 17.0, *)` says, so that the core and the Swift never disagree. */
bool vantorel_swift_is_ios17(void);
bool vantorel_swift_supports_scene_reconstruction(void);

bool vantorel_swift_documents_directory(void *text, void *error);
void vantorel_swift_temporary_directory(void *text);
bool vantorel_swift_file_exists(const char *path);
bool vantorel_swift_create_directory(const char *path, void *error);
bool vantorel_swift_read_file(const char *path, void *bytes, void *error);
bool vantorel_swift_remove_item(const char *path, void *error);
bool vantorel_swift_write_file(const char *path, const void *_Nullable bytes, size_t length, void *error);

void vantorel_swift_main_async(void *work);
void vantorel_swift_main_after(int64_t nanoseconds, void *work);
void vantorel_swift_start_thread(void *work);
/** Returns when the calling thread's run loop has nothing left that could fire. */
void vantorel_swift_run_current_run_loop(void);

/* ---- AVCaptureDevice; any thread ---- */

/** The default one for video, if there is any. */
vantorel_swift_handle _Nullable vantorel_swift_camera_default(void);
bool vantorel_swift_camera_has_torch(vantorel_swift_handle camera);
bool vantorel_swift_camera_lock(vantorel_swift_handle camera, void *error);
/** Between lock and unlock, with a torch. */
void vantorel_swift_camera_set_torch(vantorel_swift_handle camera, bool on);
void vantorel_swift_camera_unlock(vantorel_swift_handle camera);

/* ---- CADisplayLink; any thread ---- */

/** Holds the context until it is invalidated. */
vantorel_swift_handle vantorel_swift_link_create(void *context);
void vantorel_swift_link_add_to_current_run_loop(vantorel_swift_handle link, bool commonModes);
void vantorel_swift_link_set_frame_rate(vantorel_swift_handle link, float minimum, float maximum,
                                        float preferred);
void vantorel_swift_link_invalidate(vantorel_swift_handle link);
double vantorel_swift_link_timestamp(vantorel_swift_handle link);
double vantorel_swift_link_target_timestamp(vantorel_swift_handle link);

/** On the run loop's thread. */
void vantorel_core_link_fired(void *context, vantorel_swift_handle link) VANTOREL_SWIFT_NOEXCEPT;

/* ---- CapturedRoom; any thread ---- */

/** The lists of a room. */
enum {
  VANTOREL_SWIFT_WALLS,
  VANTOREL_SWIFT_DOORS,
  VANTOREL_SWIFT_OPENINGS,
  VANTOREL_SWIFT_WINDOWS,
  VANTOREL_SWIFT_OBJECTS
};
enum { VANTOREL_SWIFT_LOW = 1, VANTOREL_SWIFT_MEDIUM, VANTOREL_SWIFT_HIGH };
enum { VANTOREL_SWIFT_WALL = 1, VANTOREL_SWIFT_OPENING, VANTOREL_SWIFT_WINDOW, VANTOREL_SWIFT_DOOR };
enum { VANTOREL_SWIFT_TOP = 1, VANTOREL_SWIFT_RIGHT = 2, VANTOREL_SWIFT_BOTTOM = 4, VANTOREL_SWIFT_LEFT = 8 };

typedef struct vantorel_swift_uuid {
  uint8_t bytes[16];
} vantorel_swift_uuid;

/** Column by column. */
typedef struct vantorel_swift_float4x4 {
  float elements[16];
} vantorel_swift_float4x4;

/** One item of one of the lists. Zero stands for every case of a later system. */
typedef struct vantorel_swift_element {
  vantorel_swift_uuid identifier;
  vantorel_swift_float4x4 transform;
  float width, height, depth; /* metres */
  int32_t list;
  int32_t
      category; /* a surface's, see above; an object's 1 to 16, in the order of the platform's declaration */
  int32_t confidence;
  /* Surfaces only: */
  bool isOpen;
  uint32_t completedEdges; /* sum of the edges above */
  bool isCurved;
  double startAngle, endAngle; /* the measurement's number, in its own unit */
  float radius;                /* metres */
} vantorel_swift_element;

/** No object, door, opening, wall or window. */
bool vantorel_swift_room_is_empty(vantorel_swift_handle room);
vantorel_swift_uuid vantorel_swift_room_identifier(vantorel_swift_handle room);
bool vantorel_swift_room_json(vantorel_swift_handle room, void *text, void *error);
/** Hands every element of every list to vantorel_core_element, in order, before it returns. */
void vantorel_swift_room_content(vantorel_swift_handle room, void *content);
bool vantorel_swift_room_write_usdz(vantorel_swift_handle room, const char *path, void *error);
bool vantorel_swift_room_decode(const void *_Nullable bytes, size_t length, void *object, void *error);

void vantorel_core_element(void *content, const vantorel_swift_element *element) VANTOREL_SWIFT_NOEXCEPT;

/* ---- ARSession and RoomCaptureSession; any thread ---- */

/** A delegate that acts on nothing: the role is taken, and nobody else's delegate stays. */
void vantorel_swift_ar_session_set_idle_delegate(vantorel_swift_handle arSession);

/** With an AR session of its own when there is none, and always before iOS 17. */
vantorel_swift_handle vantorel_swift_capture_session_create(vantorel_swift_handle _Nullable arSession);
void vantorel_swift_capture_session_run(vantorel_swift_handle session, bool isCoachingEnabled);
void vantorel_swift_capture_session_stop(vantorel_swift_handle session);
/** iOS 17. */
void vantorel_swift_capture_session_stop_pausing(vantorel_swift_handle session, bool pauseARSession);
vantorel_swift_handle vantorel_swift_capture_session_ar_session(vantorel_swift_handle session);
/** The session does not retain its delegate. */
void vantorel_swift_capture_session_set_delegate(vantorel_swift_handle session,
                                                 vantorel_swift_handle delegate);
vantorel_swift_handle vantorel_swift_capture_delegate_create(void *context);

enum {
  VANTOREL_SWIFT_MOVE_CLOSE_TO_WALL,
  VANTOREL_SWIFT_MOVE_AWAY_FROM_WALL,
  VANTOREL_SWIFT_SLOW_DOWN,
  VANTOREL_SWIFT_TURN_ON_LIGHT,
  VANTOREL_SWIFT_NORMAL,
  VANTOREL_SWIFT_LOW_TEXTURE,
  VANTOREL_SWIFT_OTHER_INSTRUCTION
};

/** The events come on whatever thread the platform chose. */
void vantorel_core_session_did_start(void *context, vantorel_swift_handle session) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_session_did_update(void *context, vantorel_swift_handle room) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_session_did_add(void *context, vantorel_swift_handle room) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_session_did_change(void *context, vantorel_swift_handle room) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_session_did_remove(void *context, vantorel_swift_handle room) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_session_did_provide(void *context, int32_t instruction) VANTOREL_SWIFT_NOEXCEPT;
/** Null after a plain stop. */
void vantorel_core_session_did_end(void *context,
                                   const char *_Nullable errorDescription) VANTOREL_SWIFT_NOEXCEPT;

/* ---- The AR camera, world tracking and world maps; any thread ---- */

enum {
  VANTOREL_SWIFT_PORTRAIT = 1,
  VANTOREL_SWIFT_PORTRAIT_UPSIDE_DOWN,
  VANTOREL_SWIFT_LANDSCAPE_LEFT,
  VANTOREL_SWIFT_LANDSCAPE_RIGHT
};

typedef struct vantorel_swift_projection_request {
  int32_t orientation;                  /* see above; zero is unknown */
  double viewportWidth, viewportHeight; /* points */
  double zNear, zFar;                   /* metres */
} vantorel_swift_projection_request;

/** False before the first frame; `matrix` then stays as it was. */
bool vantorel_swift_ar_session_camera_transform(vantorel_swift_handle arSession,
                                                vantorel_swift_float4x4 *matrix);
/** Likewise. */
bool vantorel_swift_ar_session_projection_matrix(vantorel_swift_handle arSession,
                                                 const vantorel_swift_projection_request *request,
                                                 vantorel_swift_float4x4 *matrix);
bool vantorel_swift_ar_session_is_tracking_normal(vantorel_swift_handle arSession);
/** World tracking, without resetting anything. */
void vantorel_swift_ar_session_run(vantorel_swift_handle arSession, vantorel_swift_handle _Nullable worldMap);
/** Completes with the map, or null. */
void vantorel_swift_ar_session_get_current_world_map(vantorel_swift_handle arSession, void *completion);
bool vantorel_swift_world_map_archive(vantorel_swift_handle worldMap, void *bytes, void *error);
/** No object, and no failure, when the archive holds no map. */
bool vantorel_swift_world_map_unarchive(const void *_Nullable bytes, size_t length, void *object,
                                        void *error);

/* ---- StructureBuilder and CapturedStructure; iOS 17, any thread ---- */

/** Beautifies objects. */
vantorel_swift_handle vantorel_swift_structure_builder_create(void);
/** Completes with the structure, or null. */
void vantorel_swift_structure_builder_merge(vantorel_swift_handle builder,
                                            const vantorel_swift_handle _Nonnull *_Nullable rooms,
                                            size_t count, void *completion);
bool vantorel_swift_structure_json(vantorel_swift_handle structure, void *text, void *error);
bool vantorel_swift_structure_write_usdz(vantorel_swift_handle structure, const char *path,
                                         const char *metadataPath, void *error);

/* ---- Views ---- */

/** Points. */
typedef struct vantorel_swift_rect {
  double x, y, width, height;
} vantorel_swift_rect;

typedef struct vantorel_swift_camera_view_settings {
  vantorel_swift_rect frame;
  int32_t antialiasingMode; /* the platform's number */
  bool automaticallyUpdatesLighting, rendersCameraGrain, rendersMotionBlur;
  int32_t preferredFramesPerSecond;
} vantorel_swift_camera_view_settings;

/** Null when the first connected scene is no window scene or has no window. */
vantorel_swift_handle _Nullable vantorel_swift_first_window(void);
void vantorel_swift_window_clear_background(vantorel_swift_handle window);
void vantorel_swift_window_add_subview(vantorel_swift_handle window, vantorel_swift_handle controller);
void vantorel_swift_window_exchange_first_two_subviews(vantorel_swift_handle window);
vantorel_swift_handle _Nullable vantorel_swift_window_root_view_controller(vantorel_swift_handle window);

/** The library's own. */
vantorel_swift_handle vantorel_swift_view_controller_create(void);
/** The library's own controller has the core's camera view as a property `sceneView`. */
void vantorel_swift_view_controller_expose_scene_view(vantorel_swift_handle controller, void *context);
/** Retained once for Swift; null when there is none. */
vantorel_swift_handle _Nullable vantorel_core_scene_view(void *context) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_set_scene_view(void *context,
                                  vantorel_swift_handle _Nullable view) VANTOREL_SWIFT_NOEXCEPT;
/** Any view controller. False when there is no view then. */
bool vantorel_swift_view_controller_load_view(vantorel_swift_handle controller);
bool vantorel_swift_view_controller_make_transparent(vantorel_swift_handle controller);
vantorel_swift_rect vantorel_swift_view_controller_bounds(vantorel_swift_handle controller);
void vantorel_swift_view_controller_insert_at_back(vantorel_swift_handle controller,
                                                   vantorel_swift_handle view);
void vantorel_swift_view_controller_ignore_touches(vantorel_swift_handle controller);
void vantorel_swift_view_controller_dismiss_navigation(vantorel_swift_handle controller);

vantorel_swift_handle vantorel_swift_camera_view_create(void);
/** With an empty scene, on the given AR session. */
vantorel_swift_handle vantorel_swift_camera_view_create_on(
    vantorel_swift_handle arSession, const vantorel_swift_camera_view_settings *settings);

vantorel_swift_handle vantorel_swift_scan_view_create(void);
/** The view does not retain its delegate. */
vantorel_swift_handle vantorel_swift_scan_view_create_framed(vantorel_swift_rect frame, bool isModelEnabled,
                                                             vantorel_swift_handle delegate);
vantorel_swift_handle vantorel_swift_scan_view_capture_session(vantorel_swift_handle view);
vantorel_swift_handle vantorel_swift_scan_view_delegate_create(void *context);
/** These two come on whatever thread the platform chose. */
bool vantorel_core_scan_view_should_present(void *context) VANTOREL_SWIFT_NOEXCEPT;
void vantorel_core_scan_view_did_present(void *context) VANTOREL_SWIFT_NOEXCEPT;

size_t vantorel_swift_view_subview_count(vantorel_swift_handle view);
void vantorel_swift_view_hide_subview(vantorel_swift_handle view, size_t index);
/** Any thread: off the main thread it happens soon. */
void vantorel_swift_view_remove_from_superview(vantorel_swift_handle view);

/** The main screen's. */
vantorel_swift_rect vantorel_swift_screen_bounds(void);
/** Of the first window's scene, numbered as for a projection. */
int32_t vantorel_swift_interface_orientation(void);

/* ---- Media ---- */

/** A JPEG of what the window shows. */
bool vantorel_swift_window_jpeg(vantorel_swift_handle window, void *bytes, void *error);

/** Each shows its sheet over all that the window shows, and `closed` runs later on the main queue, when the sheet
 * is gone: closed by the person or the host, or never shown. */
void vantorel_swift_preview_file(vantorel_swift_handle _Nullable window, const char *path, void *closed);
void vantorel_swift_share_file(vantorel_swift_handle _Nullable window, const char *path, void *closed);
void vantorel_swift_share_text(vantorel_swift_handle _Nullable window, const char *text, void *closed);
/** What is no URL is shared as a text. */
void vantorel_swift_share_link(vantorel_swift_handle _Nullable window, const char *url, void *closed);

/** Without sound from the microphone. */
void vantorel_swift_recorder_start(void *context);
/** Writes the film in place of a file that is there. */
void vantorel_swift_recorder_stop(const char *path, void *context);
/** Once for each, on whatever thread the platform chose. Null when it succeeded. */
void vantorel_core_recorder_did_finish(void *context,
                                       const char *_Nullable errorDescription) VANTOREL_SWIFT_NOEXCEPT;

#ifdef __clang__
#pragma clang assume_nonnull end
#pragma clang diagnostic pop
#endif

#ifdef __cplusplus
}
#endif

#endif
