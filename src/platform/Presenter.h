#pragma once

#include <string>

namespace vantorel {

/// What is shown over the host's view, and what it is made of: a path, or for the last two a text.
enum class Presentation {
  preview,     ///< a model, in the 3D file preview
  screenshot,  ///< a picture that was just taken
  recording,   ///< a film that was just recorded
  shareFile,   ///< the share sheet, for a file or a folder
  shareText,
  shareLink,
};

/// Main thread.
class Presenter {
 public:
  virtual ~Presenter() = default;
  /// At once, or after what is being shown was closed. `content` is not empty, and a path exists.
  virtual void present(Presentation kind, const std::string &content) = 0;
};

}  // namespace vantorel
