#pragma once

#include <string_view>

namespace vantorel {

class Console {
 public:
  virtual ~Console() = default;
  /// Prints one line for the developer. Never fails; any thread.
  virtual void print(std::string_view line) = 0;
};

}  // namespace vantorel
