// What docs/simulated-device.md promises of the device, as plain values that can be copied: time and queued
// work, faults, sessions, views and files.
#pragma once

#include "platform/simulated/Playback.h"
#include "walk/Rooms.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace vantorel::walk {

class Model;
using Time = std::int64_t;  ///< nanoseconds
inline constexpr Time kSecond = 1'000'000'000;

/// In the order in which work of equal time runs.
enum class Thread { delegate, completion, main };
const char *nameOf(Thread thread);

/// A session or view by its number; 0 is none.
using Id = std::size_t;
inline constexpr Id kHostARSession = 1;

inline const std::string kRoot, kDocuments = "/documents";
/// Without a slash at the end.
std::string temporaryFolder();

struct ModelARSession {
  bool hasFrame = false, hasDelegate = false;
  Time limitedUntil = 0;              ///< by a world map that is being recognised
  Float4x4 camera = kCameraAtOrigin;  ///< where no scan moves it
  std::shared_ptr<const Playback> scan;
  Time start = 0;
  std::optional<Time> stopped;  ///< how far the camera had walked
};

struct ModelSession {
  Id arSession = 0;
  bool hasDelegate = false;
  bool isRunning = false, isEnding = false, canResume = false, isCoaching = true;
  std::uint64_t run = 0;  ///< names its steps to come
  std::shared_ptr<const Playback> scan;
  std::size_t nextStep = 0;
  Time elapsed = 0, start = 0;
};

struct ModelView {
  std::string name;
  Id session = 0;  ///< that it keeps alive
  int subviews = 0;
  bool hidesSecond = false;
};

struct ModelFile {
  /// Of `other` only its being there counts.
  enum class Kind { text, structure, worldMap, other };
  Kind kind = Kind::other;
  std::string text{};  ///< when kind is text; of a structure its rooms' identifiers, a line each
  Float4x4 camera{};   ///< of a world map
};

struct Phone {
  // ---- Options ----
  int ios = 18, coaching = 2;
  bool hasLidar = true, hasMap = true;
  std::string torch = "present", window = "full", tracking = "auto";
  std::optional<Float4x4> camera, projection;
  bool isLit = false;

  // ---- Time: what is queued runs when time moves ----
  using Work = std::function<void(Model &)>;
  struct Event {
    Work work;
    bool isPeriodic = false;  ///< a poll, for which settling does not wait
    std::uint64_t group = 0;
  };
  using Key = std::tuple<Time, Thread, std::uint64_t>;
  Time now = 0;
  std::uint64_t arrivals = 0, groups = 0;
  std::map<Key, Event> events;
  void post(Thread thread, Work work, Time delay = 0, bool isPeriodic = false);
  bool isSettled() const;
  /// Whether something runs as soon as time moves.
  bool isDue() const { return !events.empty() && std::get<Time>(events.begin()->first) <= now; }

  // ---- Faults: after `skip` calls the next `count` fail ----
  struct Plan {
    std::uint32_t count = 0, skip = 0;
  };
  std::map<std::string, Plan> faults;
  /// Counts one call; true when it fails.
  bool fails(const std::string &call);

  // ---- Sessions; the first AR session is the host's ----
  std::vector<ModelARSession> arSessions{2};
  std::vector<ModelSession> sessions{1};
  std::shared_ptr<const Playback> nextScan;
  Id lastRun = 0;
  Id makeSession(Id arSession = 0);
  void run(Id session, bool isCoaching);
  void stop(Id session);
  bool interrupt(Id session);
  ModelARSession &arSessionOf(Id session) { return arSessions[sessions[session].arSession]; }
  void runAR(Id arSession, const std::optional<Float4x4> &initialMap);
  /// "none" before the first frame.
  std::string trackingOf(const ModelARSession &arSession) const;
  /// Nothing before the first frame.
  std::optional<Float4x4> pose(const ModelARSession &arSession) const;

  // ---- Views, from the back to the front; by number where the library keeps them ----
  std::vector<ModelView> views{1};
  std::vector<std::string> windowSubviews{"host"};
  std::vector<Id> controllerSubviews;
  Id newestScanView = 0;
  Id makeView(const std::string &name, Id session = 0);
  void insertAtBack(Id view) { controllerSubviews.insert(controllerSubviews.begin(), view); }
  void remove(Id view) { std::erase(controllerSubviews, view); }
  void arrangeWindow();

  // ---- Screen recorder ----
  bool isRecording = false;
  using RecorderAnswer = std::function<void(Model &, const std::string &error)>;  ///< empty: none
  void startRecording(RecorderAnswer answer);
  void stopRecording(const std::string &path, RecorderAnswer answer);

  // ---- Files ----
  std::map<std::string, ModelFile> files;
  std::set<std::string> folders{kRoot};
  bool exists(const std::string &path) const { return files.count(path) || folders.count(path); }
  bool createFolder(const std::string &path);
  bool write(const std::string &path, ModelFile file);
  /// Nothing: it fails; inside it nothing: there is no map in it.
  std::optional<std::optional<Float4x4>> unarchive(const ModelFile &file);

 private:
  void postSteps(Id session);
};

}  // namespace vantorel::walk
