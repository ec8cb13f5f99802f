/*
 * Vantorel: room scanning for Unity apps on iOS, as plain C functions.
 *
 * Conventions
 *  (1) Texts in are NUL-terminated UTF-8, read during the call and never kept. Ill-formed UTF-8 is repaired
 *      (U+FFFD), never refused. A null pointer is not allowed.
 *  (2) Texts out, as results or to the two text callbacks, are fresh heap copies. The host frees each one with
 *      the C library's free(), which on Windows is that of msvcrt.dll and not of the Universal C Runtime. An empty
 *      text is one NUL byte, never a null pointer.
 *  (3) Booleans are one byte. Only bit 0 counts on the way in, so 2 means false; results are 0 or 1.
 *  (4) Functions run on the thread that calls them: call from the main thread. Only initializeVTL and disposeVTL
 *      do their work later, on the main queue; a merge, a scan that starts from a world map, and the end of a
 *      screen recording go on there after the call.
 *  (5) Callbacks are plain function pointers, registered before initializeVTL. Room updates and everything the
 *      host itself asked for arrive on the main thread; instructions arrive on the platform's delegate thread,
 *      and the end of a scan that is stopped with a world map on one of its completion threads.
 *  (6) There are no error codes. An operation whose state does not fit does nothing; a failure prints one line to
 *      the console. Only trySaveRoomPlanExperience reports back.
 *  (7) Lengths are metres; matrices are named where they leave the library.
 *
 * What it does not do: it draws nothing of its own, keeps no settings, reads no environment variable, and never
 * writes into a scan folder that exists.
 */
#ifndef VANTOREL_VANTOREL_H
#define VANTOREL_VANTOREL_H

#include <stdint.h>

#if defined(_WIN32) && defined(VANTOREL_BUILD) /* only while the library itself is built */
#define VANTOREL_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VANTOREL_EXPORT __declspec(dllimport)
#else
#define VANTOREL_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#define VANTOREL_NOEXCEPT noexcept
extern "C" {
#else
#define VANTOREL_NOEXCEPT
#endif

/** One byte, bit 0 counts; see convention (3). */
typedef uint8_t vantorelBool;
typedef void (*vantorelCallback)(void);
/** The receiver owns the text and frees it. */
typedef void (*vantorelTextCallback)(const char *text);

/** The build's version record. */
extern VANTOREL_EXPORT const double VantorelVersionNumber;
extern VANTOREL_EXPORT const unsigned char VantorelVersionString[];

/* ---- Lifecycle and flags ---- */

/** Builds the platform's scan and AR views once and throws them away, so that the first scan starts faster.
 * Call it before startCaptureSession: during a scan it loses track of the views on the screen. */
VANTOREL_EXPORT void prepareVTLResources(void) VANTOREL_NOEXCEPT;
/** Places the library's view into the host's window; then VTLDidStart. Ignored while the library is present.
 */
VANTOREL_EXPORT void initializeVTL(void) VANTOREL_NOEXCEPT;
/** Stops everything and removes the views; then VTLDidEnd. A dispose before any initialise stops the process.
 */
VANTOREL_EXPORT void disposeVTL(void) VANTOREL_NOEXCEPT;
/** Hands over the host's own ARSession (a platform object, retained) for isVTLCustomXREnabled. */
VANTOREL_EXPORT void setVantorelXRSession(void *arSession) VANTOREL_NOEXCEPT;

/* Setters, despite their names. Each takes effect where it is next read. */
/** The host owns and renders the AR session (iOS 17): no view, no render thread. Default false. */
VANTOREL_EXPORT void isVTLCustomXREnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** Show the platform's own scan view instead of the plain camera view. Default false. */
VANTOREL_EXPORT void isVTLDefaultScanEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** The scan view shows its miniature model. Default true. */
VANTOREL_EXPORT void isVTLDefaultMiniatureModelEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** Stored for the host; nothing in the library reads it. Default false. */
VANTOREL_EXPORT void isVTLDefaultScanDataTransferEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** The platform's coaching overlay. Default true. */
VANTOREL_EXPORT void isVTLCoachingEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** Forward coaching words to VTLCaptureSessionInstruction. Default true. */
VANTOREL_EXPORT void isVTLInstructionEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** Stored for the host; nothing in the library reads it. Default false. */
VANTOREL_EXPORT void isVTLMultiRoomEnabled(vantorelBool value) VANTOREL_NOEXCEPT;
/** Stored for the host; nothing in the library reads it. Default false. */
VANTOREL_EXPORT void isVTLARWorldMapEnabled(vantorelBool value) VANTOREL_NOEXCEPT;

/* ---- Capture session ---- */

/** Builds a session and its view and runs it; then VTLCaptureSessionDidStart. A second start builds a second
 * session. */
VANTOREL_EXPORT void startCaptureSession(void) VANTOREL_NOEXCEPT;
/** iOS 17. Continues after stopCaptureSessionWithPause. */
VANTOREL_EXPORT void runCaptureSession(void) VANTOREL_NOEXCEPT;
/** Stops, removes the view and drops the rooms closed so far; then VTLCaptureSessionDidEnd. */
VANTOREL_EXPORT void stopCaptureSession(void) VANTOREL_NOEXCEPT;
/** iOS 17. Closes the current room; the library still counts as scanning. */
VANTOREL_EXPORT void stopCaptureSessionWithPause(vantorelBool pauseARSession) VANTOREL_NOEXCEPT;
/** Drops updates and instructions until resumed. The platform's session goes on. */
VANTOREL_EXPORT void pauseCaptureSessionScanning(void) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void resumeCaptureSessionScanning(void) VANTOREL_NOEXCEPT;
/** iOS 17. Closes the current room and starts the next one in the same space. */
VANTOREL_EXPORT void createNewRoomCaptureSession(void) VANTOREL_NOEXCEPT;
/** iOS 17. Starts a session from the world map in the file `path`: the file that a stop wrote, not its folder.
 * The scan begins, with VTLCaptureSessionDidStart, once the device has found itself in that space, which is
 * looked for once a second and without an end. Ignored while scanning, but not while an earlier start waits.
 */
VANTOREL_EXPORT void startCaptureSessionWithARWorldMap(const char *path) VANTOREL_NOEXCEPT;
/** iOS 17. Stops the session; then, on a thread of the platform's, writes the world map to the file `path` +
 * "WorldMap/scan", removes the view, and calls VTLCaptureSessionDidEnd. `path` is taken as it stands, so it ends
 * in a slash; the folder "WorldMap" must exist: a map that cannot be written stops the process. Without a map the
 * scan does not end; stopCaptureSession ends it. */
VANTOREL_EXPORT void stopCaptureSessionWithARWorldMap(const char *path) VANTOREL_NOEXCEPT;

/* ---- Saving and merging ---- */

/** Saves the last room into documents / directoryName / scanName ("scan.json", "scan.usdz"), unless that folder
 * exists. Without a room "scan.json" holds null and there is no model. With two or more closed rooms (iOS 17)
 * these and the current one are merged instead, as by mergeScans, and the session stops; wait for "scan.plist"
 * before stopCaptureSession, which forgets the closed rooms. */
VANTOREL_EXPORT void saveRoomPlanExperience(const char *directoryName,
                                            const char *scanName) VANTOREL_NOEXCEPT;
/** The same; 1 when all that was to be written is, or when a merge has begun; 0 when the folder existed or
 * something failed. */
VANTOREL_EXPORT vantorelBool trySaveRoomPlanExperience(const char *directoryName,
                                                       const char *scanName) VANTOREL_NOEXCEPT;
/** iOS 17. Merges rooms into one structure and writes "scan.json", "scan.usdz" and "scan.plist" into documents /
 * directoryName / scanName, later and unless that folder exists. `data` is room texts, as VTLRoomSnapshot gives
 * them, joined by "_|+++++AMBER_WREN+++++|_". There is no callback: look for the last file, "scan.plist". */
VANTOREL_EXPORT void mergeScans(const char *data, const char *directoryName,
                                const char *scanName) VANTOREL_NOEXCEPT;

/* ---- Media, sharing, torch ---- */

/** Silent without a torch, or when the camera refuses. */
VANTOREL_EXPORT void setFlashlightStatus(vantorelBool value) VANTOREL_NOEXCEPT;
/* What follows is told in full in docs/media.md. Paths are absolute, or file URLs. Nothing is shown for a path where
 * nothing is. Something shown while something else is waits until that is closed. */
/** Shows a file in the 3D preview. */
VANTOREL_EXPORT void vtl_QuickLook(const char *path) VANTOREL_NOEXCEPT;
/** Both: the share sheet with that file or folder. */
VANTOREL_EXPORT void vtl_shareFolder(const char *path) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void vtl_shareFile(const char *path) VANTOREL_NOEXCEPT;
/** Writes a JPEG of the screen into the documents folder, as the first free "screenshot-N.jpg". */
VANTOREL_EXPORT void screenshotVTL(void) VANTOREL_NOEXCEPT;
/** Share each screenshot when it is taken. Default false. */
VANTOREL_EXPORT void isNativeScreenshot(vantorelBool value) VANTOREL_NOEXCEPT;
/** Show each screenshot when it is taken, before it is shared. Default false. */
VANTOREL_EXPORT void isNativeScreenshotPreview(vantorelBool value) VANTOREL_NOEXCEPT;
/** The last screenshot's path, empty before the first. */
VANTOREL_EXPORT char *getVTLNativeScreenshotOutputURL(void) VANTOREL_NOEXCEPT;
/** The share sheet with the last screenshot. */
VANTOREL_EXPORT void screenshotShareVTL(void) VANTOREL_NOEXCEPT;
/** Films the screen, once the person agrees. */
VANTOREL_EXPORT void startScreenRecorderVTL(void) VANTOREL_NOEXCEPT;
/** Writes the film into the temporary folder, as "vantorel-recording-N.mp4", later. */
VANTOREL_EXPORT void stopScreenRecorderVTL(void) VANTOREL_NOEXCEPT;
/** Share each film when it is written. Default false. */
VANTOREL_EXPORT void isNativeScreenRecorder(vantorelBool value) VANTOREL_NOEXCEPT;
/** Show each film when it is written, before it is shared. Default false. */
VANTOREL_EXPORT void isNativeScreenRecorderPreview(vantorelBool value) VANTOREL_NOEXCEPT;
/** The last film's path, empty before the first; set on the main queue once the file is there. */
VANTOREL_EXPORT char *getVTLNativeScreenRecorderOutputURL(void) VANTOREL_NOEXCEPT;

/* ---- Queries ---- */

/** "Vantorel 1.3.0" */
VANTOREL_EXPORT char *getVantorelVersion(void) VANTOREL_NOEXCEPT;
/** The camera's pose in the host's convention, 16 numbers row by row as "[1.0, 0.0, ...]"; empty unless
 * scanning. */
VANTOREL_EXPORT char *getVTLARCameraMatrixRuntime(void) VANTOREL_NOEXCEPT;
/** The camera's projection (near 0.01 m, far 1000 m), likewise. */
VANTOREL_EXPORT char *getVTLARCameraProjectionMatrixRuntime(void) VANTOREL_NOEXCEPT;
/** Whether the device can reconstruct scenes (LiDAR). */
VANTOREL_EXPORT vantorelBool VantorelSupport(void) VANTOREL_NOEXCEPT;
/** The same, and iOS 17. */
VANTOREL_EXPORT vantorelBool MultiRoomSupport(void) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT vantorelBool ARWorldMapSupport(void) VANTOREL_NOEXCEPT;

/* ---- Callbacks: each setter fills a slot for the life of the process; a second call replaces the first ---- */

VANTOREL_EXPORT void setVTLDidStart(vantorelCallback callback) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void setVTLDidEnd(vantorelCallback callback) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void setVTLCaptureSessionDidStart(vantorelCallback callback) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void setVTLCaptureSessionDidEnd(vantorelCallback callback) VANTOREL_NOEXCEPT;
/** DidAdd, DidChange and DidRemove can be registered so that bindings keep their shape; they are never
 * called. */
VANTOREL_EXPORT void setVTLCaptureSessionDidAdd(vantorelCallback callback) VANTOREL_NOEXCEPT;
/** After each room that was not empty, behind its VTLRoomSnapshot; main thread. */
VANTOREL_EXPORT void setVTLCaptureSessionDidUpdate(vantorelCallback callback) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void setVTLCaptureSessionDidChange(vantorelCallback callback) VANTOREL_NOEXCEPT;
VANTOREL_EXPORT void setVTLCaptureSessionDidRemove(vantorelCallback callback) VANTOREL_NOEXCEPT;
/** "MoveCloseToWall", "MoveAwayFromWall", "SlowDown", "TurnOnLight", "Normal", "LowTexture" or "None";
 * delegate thread. */
VANTOREL_EXPORT void setVTLCaptureSessionInstruction(vantorelTextCallback callback) VANTOREL_NOEXCEPT;
/** The whole room as the platform's JSON, pretty-printed with sorted keys, at every update that is not empty and
 * not paused; main thread. */
VANTOREL_EXPORT void setVTLRoomSnapshot(vantorelTextCallback callback) VANTOREL_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
