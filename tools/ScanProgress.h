#pragma once

#include "Printer.h"

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

  int updates() const { return updates_; }
  int instructions() const { return instructions_; }
  bool isSaved() const { return isSaved_; }
  /// The console's lines and the errors, separated by "; ".
  const std::string &remarks() const { return remarks_; }

 private:
  void count(const Event &event);
  void drawBar(double now);
  void clearBar();

  std::mutex mutex_;
  std::ostream &terminal_;
  double seconds_;
  bool showsBar_;
  int updates_ = 0, instructions_ = 0;
  bool isSaved_ = false;
  std::string remarks_;
};

}  // namespace vantorel
