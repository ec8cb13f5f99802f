/*
 * The simulated iPhone of the desktop library: what it is, what it sees, what fails, and its clock.
 * docs/simulated-device.md tells the whole story.
 *
 * Conventions
 *  (1) Everything here is called from the host's main thread, never from a callback, except vantorelDeviceThread
 *      and vantorelDeviceTime.
 *  (2) A `char *` result is null when all went well, else a message for the developer, which the host frees with
 *      free(). A refused call changes nothing. A null text counts as an empty one, except where null has a
 *      meaning. What vantorelDeviceState returns is freed the same way.
 *  (3) Time is virtual. It stands still until vantorelDeviceAdvance or vantorelDeviceSettle moves it; queued work
 *      runs nowhere else. Times are seconds since the power cycle.
 *  (4) None of these functions exists on an iPhone.
 */
#ifndef VANTOREL_SIMULATED_DEVICE_H
#define VANTOREL_SIMULATED_DEVICE_H

#include "vantorel/vantorel.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Power and time ---- */

/** As if the process had just started: threads joined, queued work dropped, callback slots empty, a new
 * plug-in, all options and faults at their defaults. The documents directory and the observer stay. */
VANTOREL_EXPORT void vantorelDevicePowerCycle(void) VANTOREL_NOEXCEPT;

/** Runs everything that is due in the next `seconds` (0: what is due now), in order of time; at equal times
 * delegate, completion, main, render. Not for callbacks; the clock ends at 1e9 s. */
VANTOREL_EXPORT char *vantorelDeviceAdvance(double seconds) VANTOREL_NOEXCEPT;

/** Advances until only periodic work is left, a running scan played to its end; gives up after 600 s. */
VANTOREL_EXPORT char *vantorelDeviceSettle(void) VANTOREL_NOEXCEPT;

VANTOREL_EXPORT double vantorelDeviceTime(void) VANTOREL_NOEXCEPT;

/** Which of the device's threads is calling: "main", "delegate", "completion" or "render". Static text. */
VANTOREL_EXPORT const char *vantorelDeviceThread(void) VANTOREL_NOEXCEPT;

/** 1: threads run freely instead of hand over hand, for race detectors; the order of events is then open.
 * Default 0. Takes effect at the next power cycle and stays. */
VANTOREL_EXPORT void vantorelDeviceSetFreeRunning(vantorelBool value) VANTOREL_NOEXCEPT;

/** 1: what ends the process on an iPhone crashes the simulated one alone, so that an editor lives on: the message
 * goes to standard error, all of the device's work is dropped, the functions of vantorel.h do nothing and answer
 * 0 or an empty text, and time is refused, until the power cycle. State "device.crash" is the message, else
 * null. Default 0. Takes effect at once and stays. */
VANTOREL_EXPORT void vantorelDeviceSetCrashContained(vantorelBool value) VANTOREL_NOEXCEPT;

/** Sleeps up to this long (real time) at every hand-over, drawn from `seed`, to show that results do not
 * depend on timing. 0: never (default). Takes effect at once and stays. */
VANTOREL_EXPORT void vantorelDeviceSetHandoverSleep(uint32_t microseconds, uint32_t seed) VANTOREL_NOEXCEPT;

/* ---- What comes out beside the callbacks ---- */

/** `kind` is "console" (name null, value the line) or "present": something is shown over the host's view (name
 * "share", "preview", "screenshot" or "recording", value the path or the text). The texts are valid during the
 * call only. Called on the thread where it happens. */
typedef void (*vantorelDeviceObserver)(const char *kind, const char *name, const char *value);

/** Null: console lines go to standard output, and nothing tells what is shown (default). */
VANTOREL_EXPORT void vantorelDeviceSetObserver(vantorelDeviceObserver observer) VANTOREL_NOEXCEPT;

/** JSON of one value: a property of the controller by its name, or "window.subviews", "view.subviews",
 *  "captureSession.isRunning", "roomCaptureSessionConfig.isCoachingEnabled", "renderThreads", "device.torch",
 *  "screenRecorder.isRecording", "device.crash", "device.hasNextScan",
 *  "recording.playedEvents" (of the recording that was set last; null without one),
 *  "roomCaptureView.subviews" (hidden ones are marked); or what the library told the platform:
 *  "window.isClear", "rootView.isTransparent", "view.ignoresTouches", "navigationController.dismissals",
 *  "roomCaptureView.settings", "sceneView.settings", "displayLink.settings",
 *  "captureSession.usesHostARSession", "arSession.hasDelegate"; or, of the current session's AR session,
 *  "arSession.tracking" ("normal", "limited", "unavailable"; "none" before the first frame), "arSession.space"
 *  (its identifier as text), "arSession.initialWorldMap" (a short text; null unless it was run from one).
 *  With a null name: one object of the controller's 36 properties in their order. Null for an unknown name.
 */
VANTOREL_EXPORT char *vantorelDeviceState(const char *name) VANTOREL_NOEXCEPT;

/* ---- What the device is ---- */

/** Where scans are saved; created when absent. Default: the working directory. */
VANTOREL_EXPORT char *vantorelDeviceSetDocumentsDirectory(const char *path) VANTOREL_NOEXCEPT;

/** Options and their values:
 *    ios         a version, "16.0" or later
 *    lidar       on, off
 *    torch       present, absent, refused, nodevice
 *    window      full, bare (no root controller), empty (no host view), none
 *    coaching    how many subviews the platform's scan view has
 *    tracking    normal, limited, unavailable, auto (normal, or limited for 2 s after a run from a world map)
 *    map         present, none: whether AR sessions have a world map when one is due
 *    camera, projection   16 numbers, column by column, separated by blanks */
VANTOREL_EXPORT char *vantorelDeviceSetOption(const char *name, const char *value) VANTOREL_NOEXCEPT;

/** After `skip` more calls of the platform call `call`, the next `count` fail. docs/simulated-device.md lists
 * the calls. */
VANTOREL_EXPORT char *vantorelDeviceFail(const char *call, uint32_t count, uint32_t skip) VANTOREL_NOEXCEPT;

/* ---- What the session sees ---- */

/** The next run of a session scans the room in this file within `seconds`, at `rate` updates a second. */
VANTOREL_EXPORT char *vantorelDeviceSetRoom(const char *path, double seconds, double rate) VANTOREL_NOEXCEPT;

/** The next runs of a session play the runs of the recording in this file, in turn. docs/recordings.md. */
VANTOREL_EXPORT char *vantorelDeviceSetRecording(const char *path) VANTOREL_NOEXCEPT;

/** Records what sessions deliver in all runs that begin from now on; the file has its name once the recording
 * ends. Null ends the recording and answers with a message when not all of it could be written. Goes on
 * through a power cycle. */
VANTOREL_EXPORT char *vantorelDeviceRecord(const char *path) VANTOREL_NOEXCEPT;

/** These three happen at once on the delegate thread, before the call returns (in the free-running mode they
 * are only handed over by then); they reach the current session's delegate whether the session runs or not. */
VANTOREL_EXPORT char *vantorelDeviceDeliverUpdate(const char *path) VANTOREL_NOEXCEPT;
/** A case by its name, as "moveCloseToWall"; names of later systems are allowed. */
VANTOREL_EXPORT char *vantorelDeviceDeliverInstruction(const char *name) VANTOREL_NOEXCEPT;
/** Ends and stops the session; with a null description without an error. */
VANTOREL_EXPORT char *vantorelDeviceDeliverEnd(const char *description) VANTOREL_NOEXCEPT;

/** An AR session for setVantorelXRSession; the device's until the power cycle. */
VANTOREL_EXPORT void *vantorelDeviceARSession(void) VANTOREL_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
