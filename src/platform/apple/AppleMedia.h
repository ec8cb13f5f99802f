// What is shown over the host's view, and the films of it.
#pragma once

#include "platform/Presenter.h"
#include "platform/ScreenRecorder.h"

#include <queue>
#include <utility>

namespace vantorel::apple {

/// Shows one thing after another. Never destroyed.
class ApplePresenter final : public Presenter {
 public:
  void present(Presentation kind, const std::string &content) override;

 private:
  void showNext();

  std::queue<std::pair<Presentation, std::string>> waiting_;
  bool isShowing_ = false;
};

class AppleScreenRecorder final : public ScreenRecorder {
 public:
  void start(Completion completion) override;
  void stop(const std::string &path, Completion completion) override;
};

}  // namespace vantorel::apple
