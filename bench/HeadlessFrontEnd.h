#pragma once
#include <string>

#include "core/FrontEnd.h"

namespace nomra::bench {

// A front end that shows nothing: what the engine costs on its own.
class HeadlessFrontEnd final : public core::FrontEnd {
 public:
  core::Answer Ask(const core::Message&) override { return core::Answer::No; }
  void ShowPlainMessage(const std::string&) override {}
  std::string AskInput(const core::Message&, const std::string& preset) override { return preset; }
  void ShowFault(const std::string&) override {}
  void SetStatusText(const std::string& text) override { last = text; }
  void Pump() override {}
  void SetBusy(bool) override {}
  std::string last;
};

}  // namespace nomra::bench
