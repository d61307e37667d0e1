#pragma once
#include <QLabel>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>

#include "core/FrontEnd.h"
#include "lang/MessageCatalog.h"

namespace nomra::ui {

// The engine's questions and messages as Qt message boxes, with texts from
// the language file. Tests hand it an answerer instead of a person.
class QtFrontEnd final : public core::FrontEnd {
 public:
  using Answerer =
      std::function<core::Answer(const core::Message& message, const QString& caption, const QString& text)>;

  QtFrontEnd(const lang::MessageCatalog& catalog, QString appTitle);

  void SetParentWindow(QWidget* window) { window_ = window; }
  void SetStatusLabel(QLabel* label) { status_ = label; }
  // Replaces the message box, e.g. with scripted answers in tests.
  void SetAnswerer(Answerer answerer) { answerer_ = std::move(answerer); }

  core::Answer Ask(const core::Message& message) override;
  // A question whose text the caller has put together from several keys.
  core::Answer AskText(const core::Message& message, const QString& text);
  void ShowPlainMessage(const std::string& text) override;
  std::string AskInput(const core::Message& prompt, const std::string& preset) override;
  // Replaces the input box in tests: the answer for a prompt and preset.
  using InputAnswerer = std::function<std::string(const core::Message& prompt, const std::string& preset)>;
  void SetInputAnswerer(InputAnswerer answerer) { inputAnswerer_ = std::move(answerer); }
  void ShowFault(const std::string& text) override;
  void SetStatusText(const std::string& text) override;
  void Pump() override;
  void SetBusy(bool busy) override;

  // The text and caption a message shows, placeholders filled.
  QString TextOf(const core::Message& message) const;
  QString CaptionOf(const core::Message& message) const;

 private:
  const lang::MessageCatalog& catalog_;
  QString appTitle_;
  QPointer<QWidget> window_;
  QPointer<QLabel> status_;
  Answerer answerer_;
  InputAnswerer inputAnswerer_;
  int busyDepth_ = 0;
};

}  // namespace nomra::ui
