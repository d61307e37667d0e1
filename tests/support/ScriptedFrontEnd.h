#pragma once
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/FrontEnd.h"

namespace nomra::testing {

// A front end whose answers are given in advance; it remembers every
// question, fault and status text it was shown.
class ScriptedFrontEnd final : public core::FrontEnd {
 public:
  std::deque<core::Answer> answers;  // taken in order; when none is left, No
  std::vector<core::Message> asked;
  std::vector<std::string> faults;
  std::vector<std::string> statusTexts;
  std::vector<std::string> plainMessages;
  std::deque<std::string> inputs;  // answers of input boxes, in order; when none is left, ""
  std::vector<std::string> inputPresets;
  int pumps = 0;
  int busyDepth = 0;
  // Runs during a pump, as a click on the cancel button would.
  std::function<void()> onPump;

  core::Answer Ask(const core::Message& message) override {
    asked.push_back(message);
    if (answers.empty()) return core::Answer::No;
    const core::Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void ShowPlainMessage(const std::string& text) override { plainMessages.push_back(text); }
  std::string AskInput(const core::Message& prompt, const std::string& preset) override {
    asked.push_back(prompt);
    inputPresets.push_back(preset);
    if (inputs.empty()) return "";
    std::string answer = inputs.front();
    inputs.pop_front();
    return answer;
  }
  void ShowFault(const std::string& text) override { faults.push_back(text); }
  void SetStatusText(const std::string& text) override { statusTexts.push_back(text); }
  void Pump() override {
    ++pumps;
    if (onPump) onPump();
  }
  void SetBusy(bool busy) override { busyDepth += busy ? 1 : -1; }
};

}  // namespace nomra::testing
