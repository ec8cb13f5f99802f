#pragma once

#include <cstdlib>
#include <memory>

namespace vantorel {

struct FreeText {
  void operator()(char *text) const { std::free(text); }
};

/// A text that the library allocated and that its receiver frees.
using DeviceText = std::unique_ptr<char, FreeText>;

}  // namespace vantorel
