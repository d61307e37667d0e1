#pragma once
#include "core/FrontEnd.h"
#include "core/Progress.h"

namespace nomra::ui {

// The progress of loading the list: each tick lets the window's events
// through, so its cancel button is heard, and says stop once after a click.
class PumpingProgress final : public core::Progress {
 public:
  explicit PumpingProgress(core::FrontEnd& frontEnd) : frontEnd_(frontEnd) {}

  bool Tick(const core::ProgressStep&) override {
    frontEnd_.Pump();
    const bool stop = stopRequested_;
    stopRequested_ = false;
    return !stop;
  }

  // The cancel button: the next tick says stop.
  void RequestStop() { stopRequested_ = true; }
  void Reset() { stopRequested_ = false; }

 private:
  core::FrontEnd& frontEnd_;
  bool stopRequested_ = false;
};

}  // namespace nomra::ui
