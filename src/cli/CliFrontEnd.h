#pragma once
#include <ostream>
#include <string>

#include "core/FrontEnd.h"

namespace nomra::cli {

// The answer a message box gives when the user only presses Enter.
core::Answer DefaultAnswer(core::MessageStyle style);

// The engine's user on the command line: questions are answered from the
// options and written down, faults are printed and fail the run. Nothing is
// shown while working, so status texts, pumps and the hourglass do nothing.
class CliFrontEnd final : public core::FrontEnd {
 public:
  CliFrontEnd(std::ostream& messages, bool answerYes) : messages_(messages), answerYes_(answerYes) {}

  core::Answer Ask(const core::Message& message) override;
  void ShowPlainMessage(const std::string& text) override;
  std::string AskInput(const core::Message& prompt, const std::string& preset) override;
  void ShowFault(const std::string& text) override;
  // A full folder would give one line per file: not worth printing.
  void SetStatusText(const std::string&) override {}
  void Pump() override {}
  void SetBusy(bool) override {}

  bool FaultShown() const { return faultShown_; }

 private:
  std::ostream& messages_;
  bool answerYes_;
  bool faultShown_ = false;
};

}  // namespace nomra::cli
