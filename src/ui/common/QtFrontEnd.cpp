#include "ui/common/QtFrontEnd.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "lang/LanguageKeys.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

QMessageBox::Icon IconOf(core::MessageStyle style) {
  switch (style) {
    case core::MessageStyle::YesNo:
    case core::MessageStyle::YesNoDefaultNo:
    case core::MessageStyle::YesNoCancelDefaultNo: return QMessageBox::Question;
    case core::MessageStyle::YesNoWarningDefaultNo:
    case core::MessageStyle::OkWarning: return QMessageBox::Warning;
    case core::MessageStyle::OkStop: return QMessageBox::Critical;
    case core::MessageStyle::OkInformation: return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(core::MessageStyle style) {
  switch (style) {
    case core::MessageStyle::YesNo:
    case core::MessageStyle::YesNoDefaultNo:
    case core::MessageStyle::YesNoWarningDefaultNo: return QMessageBox::Yes | QMessageBox::No;
    case core::MessageStyle::YesNoCancelDefaultNo: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default: return QMessageBox::Ok;
  }
}

QMessageBox::StandardButton DefaultOf(core::MessageStyle style) {
  switch (style) {
    case core::MessageStyle::YesNo: return QMessageBox::Yes;
    case core::MessageStyle::YesNoDefaultNo:
    case core::MessageStyle::YesNoCancelDefaultNo:
    case core::MessageStyle::YesNoWarningDefaultNo: return QMessageBox::No;
    default: return QMessageBox::Ok;
  }
}

core::Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return core::Answer::Yes;
    case QMessageBox::No: return core::Answer::No;
    case QMessageBox::Cancel: return core::Answer::Cancel;
    default: return core::Answer::Ok;
  }
}

}  // namespace

QtFrontEnd::QtFrontEnd(const lang::MessageCatalog& catalog, QString appTitle)
    : catalog_(catalog), appTitle_(std::move(appTitle)) {}

QString QtFrontEnd::TextOf(const core::Message& message) const {
  std::string text = catalog_.GetText(lang::kMessagesSection, message.textKey, message.arguments);
  // Without a language text the key still says which question this is.
  if (text.empty()) text = message.textKey;
  return ToQString(text);
}

QString QtFrontEnd::CaptionOf(const core::Message& message) const {
  if (message.captionKey.empty()) return appTitle_;
  const std::string caption = catalog_.GetText(lang::kMessagesSection, message.captionKey);
  return caption.empty() ? appTitle_ : ToQString(caption);
}

core::Answer QtFrontEnd::Ask(const core::Message& message) { return AskText(message, TextOf(message)); }

core::Answer QtFrontEnd::AskText(const core::Message& message, const QString& text) {
  const QString caption = CaptionOf(message);
  if (answerer_) return answerer_(message, caption, text);
  // A question waits for the user even while the pointer shows busy.
  if (busyDepth_ > 0) QApplication::setOverrideCursor(Qt::ArrowCursor);
  QMessageBox box(IconOf(message.style), caption, text, ButtonsOf(message.style), window_);
  box.setDefaultButton(DefaultOf(message.style));
  const int button = box.exec();
  if (busyDepth_ > 0) QApplication::restoreOverrideCursor();
  return AnswerOf(button);
}

void QtFrontEnd::ShowPlainMessage(const std::string& text) {
  core::Message plain;
  plain.style = core::MessageStyle::OkInformation;
  if (answerer_) {
    answerer_(plain, appTitle_, ToQString(text));
    return;
  }
  QMessageBox box(QMessageBox::NoIcon, appTitle_, ToQString(text), QMessageBox::Ok, window_);
  box.exec();
}

std::string QtFrontEnd::AskInput(const core::Message& prompt, const std::string& preset) {
  if (inputAnswerer_) return inputAnswerer_(prompt, preset);
  if (busyDepth_ > 0) QApplication::setOverrideCursor(Qt::ArrowCursor);
  bool ok = false;
  const QString answer =
      QInputDialog::getText(window_, CaptionOf(prompt), TextOf(prompt), QLineEdit::Normal, ToQString(preset), &ok);
  if (busyDepth_ > 0) QApplication::restoreOverrideCursor();
  return ok ? ToEngineText(answer) : std::string();
}

void QtFrontEnd::ShowFault(const std::string& text) {
  core::Message fault;
  fault.style = core::MessageStyle::OkStop;
  if (answerer_) {
    answerer_(fault, appTitle_, ToQString(text));
    return;
  }
  QMessageBox::critical(window_, appTitle_, ToQString(text));
}

void QtFrontEnd::SetStatusText(const std::string& text) {
  if (status_) status_->setText(ToQString(text));
}

void QtFrontEnd::Pump() { QCoreApplication::processEvents(); }

void QtFrontEnd::SetBusy(bool busy) {
  if (busy) {
    ++busyDepth_;
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else if (busyDepth_ > 0) {
    --busyDepth_;
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace nomra::ui
