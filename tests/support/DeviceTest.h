// The doors of a user: the exported functions, on a simulated device that was just switched on.
#pragma once

#include "vantorel/simulated_device.h"

#include "rooms/RoomDocument.h"
#include "support/TestData.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel::testing {

using Lines = std::vector<std::string>;

/// The text of a `char *` result, which is freed.
std::string taken(char *text);

/// A room with that many walls and nothing else.
RoomDocument walledRoom(std::size_t walls);

/// A device with an empty documents folder of its own. All ten callbacks and the console are heard; texts for
/// the host are freed.
class DeviceTest : public ::testing::Test {
 protected:
  DeviceTest();
  ~DeviceTest() override;
  DeviceTest(const DeviceTest &) = delete;

  /// Switches it off and on: as in a new process, all ten callbacks registered and nothing heard.
  static void powerCycle();

  /// What came back since the last call: "main VTLDidStart", "delegate VTLCaptureSessionInstruction Normal",
  /// "main console LINE". Snapshots come without their text.
  static Lines heard();
  /// The texts of all snapshots since the power cycle.
  static Lines snapshots();

  /// JSON of a property or another name that the device knows.
  static std::string state(const char *name);
  /// "idle" or "scanning", then ", paused", and " running" while the platform's session runs.
  static std::string phase();

  static void advance(double seconds = 0);
  static void option(const char *name, const char *value);
  static void fail(const char *call, std::uint32_t count = 1, std::uint32_t skip = 0);
  /// The session reports this room: the delegate's part now, the main queue's with the next advance.
  void update(const RoomDocument &room);
  static void instruction(const char *name);
  static void end(const char *description);

  /// initializeVTL, and what it brings is not heard.
  static void initialize();
  /// startCaptureSession and its start event, likewise.
  static void start();

  std::string file(const std::string &path) const { return documents_.path() + "/" + path; }
  /// Below the documents folder, sorted; folders end in a slash.
  Lines files() const;
  void removeFiles() const;

 private:
  TemporaryFolder documents_, rooms_;
};

}  // namespace vantorel::testing
