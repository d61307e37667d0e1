#pragma once
#include <string>
#include <vector>

namespace nomra::core {

// Message box styles by their numbers, used throughout the program.
enum class MessageStyle : int {
  YesNo = 36,                   // question mark
  YesNoDefaultNo = 292,         // question mark, No is the default
  YesNoCancelDefaultNo = 547,   // question mark, No is the default
  YesNoWarningDefaultNo = 308,  // exclamation mark, No is the default
  OkWarning = 48,
  OkStop = 16,
  OkInformation = 64,
};

enum class Answer : int { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// A question or message named by its language keys (section "Messages");
// the front end looks the texts up and fills "%1", "%2" with the arguments.
struct Message {
  std::string textKey;     // e.g. "MsgText21"
  std::string captionKey;  // e.g. "MsgCap03"; empty for the program's name
  MessageStyle style = MessageStyle::OkInformation;
  std::vector<std::string> arguments;
};

// The one way the engine talks to the user. The GUI implements it with Qt,
// tests with scripted answers, the command line from its options.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  virtual Answer Ask(const Message& message) = 0;
  // A plain message box: the text alone, the default caption, OK.
  virtual void ShowPlainMessage(const std::string& text) = 0;
  // An input box with the message's text as its prompt and caption as its
  // title, the preset answer filled in; "" when the user cancels.
  virtual std::string AskInput(const Message& prompt, const std::string& preset) = 0;
  // A run-time fault ended a command: what stopped and where.
  virtual void ShowFault(const std::string& text) = 0;
  virtual void SetStatusText(const std::string& text) = 0;
  // Lets pending user events through; the only re-entrance, at fixed points.
  virtual void Pump() = 0;
  // The hourglass during long work, the normal pointer after it.
  virtual void SetBusy(bool busy) = 0;
};

}  // namespace nomra::core
