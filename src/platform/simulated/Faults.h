#pragma once

#include <array>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Which of the platform's calls fail. Any thread.
class Faults {
 public:
  /// After `skip` more calls of `call` the next `count` fail. Gives a message for an unknown name.
  std::optional<std::string> plan(std::string_view call, std::uint32_t count, std::uint32_t skip);
  /// Counts one call; true when it is to fail.
  bool hits(std::string_view call);
  /// Counts one call; throws PlatformError when it is to fail.
  void check(std::string_view call);
  void reset();

 private:
  struct Plan {
    std::uint32_t skip = 0, count = 0;
  };

  static constexpr std::array kCalls = {
      std::string_view("documentsDirectory"),
      std::string_view("createDirectory"),
      std::string_view("writeFile"),
      std::string_view("removeFile"),
      std::string_view("readFile"),
      std::string_view("encodeRoom"),
      std::string_view("exportRoom"),
      std::string_view("encodeStructure"),
      std::string_view("exportStructure"),
      std::string_view("buildStructure"),
      std::string_view("archive"),
      std::string_view("unarchive"),
      std::string_view("unarchiveNone"),
      std::string_view("screenshot"),
      std::string_view("recording"),
      std::string_view("loadView"),
      std::string_view("loadRootView"),
  };

  static std::optional<std::size_t> indexOf(std::string_view call);

  std::mutex mutex_;
  std::array<Plan, kCalls.size()> plans_{};
};

}  // namespace vantorel
