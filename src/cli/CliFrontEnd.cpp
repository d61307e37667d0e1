#include "cli/CliFrontEnd.h"

namespace nomra::cli {

namespace {

bool IsQuestion(MessageStyle style) {
  return style == MessageStyle::YesNo || style == MessageStyle::YesNoDefaultNo ||
         style == MessageStyle::YesNoCancelDefaultNo ||
         style == MessageStyle::YesNoWarningDefaultNo;
}

const char* AnswerName(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "Ok";
    case Answer::Cancel:
      return "Cancel";
    case Answer::Yes:
      return "Yes";
    case Answer::No:
      return "No";
  }
  return "?";
}

}  // namespace

Answer DefaultAnswer(MessageStyle style) {
  switch (style) {
    case MessageStyle::YesNo:
      return Answer::Yes;
    case MessageStyle::YesNoDefaultNo:
    case MessageStyle::YesNoCancelDefaultNo:
    case MessageStyle::YesNoWarningDefaultNo:
      return Answer::No;
    case MessageStyle::OkWarning:
    case MessageStyle::OkStop:
    case MessageStyle::OkInformation:
      return Answer::Ok;
  }
  return Answer::Ok;
}

Answer CliFrontEnd::Ask(const Message& message) {
  const bool question = IsQuestion(message.style);
  const Answer answer = question && answerYes_ ? Answer::Yes : DefaultAnswer(message.style);
  // Until the language texts are read, the key names the message.
  messages_ << (question ? "question " : "message ") << message.textKey << ": answered " << AnswerName(answer)
            << '\n';
  return answer;
}

void CliFrontEnd::ShowPlainMessage(const std::string& text) { messages_ << "message: " << text << '\n'; }

// Nobody is there to type: the preset answer stands, as if OK were pressed.
std::string CliFrontEnd::AskInput(const Message& prompt, const std::string& preset) {
  messages_ << "input " << prompt.textKey << ": answered \"" << preset << "\"\n";
  return preset;
}

void CliFrontEnd::ShowFault(const std::string& text) {
  messages_ << "nomra-cli: " << text << '\n';
  faultShown_ = true;
}

}  // namespace nomra::cli
