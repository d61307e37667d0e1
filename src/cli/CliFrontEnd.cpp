#include "cli/CliFrontEnd.h"

namespace nomra::cli {

namespace {

bool IsQuestion(core::MessageStyle style) {
  return style == core::MessageStyle::YesNo || style == core::MessageStyle::YesNoDefaultNo ||
         style == core::MessageStyle::YesNoCancelDefaultNo || style == core::MessageStyle::YesNoWarningDefaultNo;
}

const char* AnswerName(core::Answer answer) {
  switch (answer) {
    case core::Answer::Ok: return "Ok";
    case core::Answer::Cancel: return "Cancel";
    case core::Answer::Yes: return "Yes";
    case core::Answer::No: return "No";
  }
  return "?";
}

}  // namespace

core::Answer DefaultAnswer(core::MessageStyle style) {
  switch (style) {
    case core::MessageStyle::YesNo: return core::Answer::Yes;
    case core::MessageStyle::YesNoDefaultNo:
    case core::MessageStyle::YesNoCancelDefaultNo:
    case core::MessageStyle::YesNoWarningDefaultNo: return core::Answer::No;
    case core::MessageStyle::OkWarning:
    case core::MessageStyle::OkStop:
    case core::MessageStyle::OkInformation: return core::Answer::Ok;
  }
  return core::Answer::Ok;
}

core::Answer CliFrontEnd::Ask(const core::Message& message) {
  const bool question = IsQuestion(message.style);
  const core::Answer answer = question && answerYes_ ? core::Answer::Yes : DefaultAnswer(message.style);
  // Until the language texts are read, the key names the message.
  messages_ << (question ? "question " : "message ") << message.textKey << ": answered " << AnswerName(answer) << '\n';
  return answer;
}

void CliFrontEnd::ShowPlainMessage(const std::string& text) { messages_ << "message: " << text << '\n'; }

// Nobody is there to type: the preset answer stands, as if OK were pressed.
std::string CliFrontEnd::AskInput(const core::Message& prompt, const std::string& preset) {
  messages_ << "input " << prompt.textKey << ": answered \"" << preset << "\"\n";
  return preset;
}

void CliFrontEnd::ShowFault(const std::string& text) {
  messages_ << "nomra-cli: " << text << '\n';
  faultShown_ = true;
}

}  // namespace nomra::cli
