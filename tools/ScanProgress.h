#pragma once

#include "Printer.h"

#include <cstddef>
#include <iosfwd>
#include <mutex>
#include <string>

namespace vantorel {

/// Counts what comes back during a scan and, on a terminal, draws a bar.
class ScanProgress final : public Printer {
 public:
  ScanProgress(std::ostream &terminal, double seconds, bool showsBar);
  ~ScanProgress() override;
  void print(const Event &event) override;
  /// Takes the bar from the terminal, where something else is to follow.
  void clearBar();

  std::size_t updates() const { return updates_; }
  std::size_t instructions() const { return instructions_; }
  bool isSaved() const { return isSaved_; }
  /// The console's lines and the errors, separated by "; ".
  const std::string &remarks() const { return remarks_; }

 private:
  void count(const Event &event);
  void drawBar(double now);

  std::mutex mutex_;
  std::ostream &terminal_;
  double seconds_;
  bool showsBar_;
  std::size_t updates_ = 0, instructions_ = 0;
  bool isSaved_ = false;
  std::string remarks_;
};

}  // namespace vantorel
