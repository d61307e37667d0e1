#include "ui/common/QtFrontEnd.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "lang/LanguageKeys.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

QMessageBox::Icon IconOf(MessageStyle style) {
  switch (style) {
    case MessageStyle::YesNo:
    case MessageStyle::YesNoDefaultNo:
    case MessageStyle::YesNoCancelDefaultNo:
      return QMessageBox::Question;
    case MessageStyle::YesNoWarningDefaultNo:
    case MessageStyle::OkWarning:
      return QMessageBox::Warning;
    case MessageStyle::OkStop:
      return QMessageBox::Critical;
    case MessageStyle::OkInformation:
      return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageStyle style) {
  switch (style) {
    case MessageStyle::YesNo:
    case MessageStyle::YesNoDefaultNo:
    case MessageStyle::YesNoWarningDefaultNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageStyle::YesNoCancelDefaultNo:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::StandardButton DefaultOf(MessageStyle style) {
  switch (style) {
    case MessageStyle::YesNo:
      return QMessageBox::Yes;
    case MessageStyle::YesNoDefaultNo:
    case MessageStyle::YesNoCancelDefaultNo:
    case MessageStyle::YesNoWarningDefaultNo:
      return QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

Answer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    case QMessageBox::Cancel:
      return Answer::Cancel;
    default:
      return Answer::Ok;
  }
}

}  // namespace

QtFrontEnd::QtFrontEnd(const lang::MessageCatalog& catalog, QString appTitle)
    : catalog_(catalog), appTitle_(std::move(appTitle)) {}

QString QtFrontEnd::TextOf(const Message& message) const {
  std::string text = catalog_.GetText(lang::kMessagesSection, message.textKey, message.arguments);
  // Without a language text the key still says which question this is.
  if (text.empty()) text = message.textKey;
  return ToQString(text);
}

QString QtFrontEnd::CaptionOf(const Message& message) const {
  if (message.captionKey.empty()) return appTitle_;
  const std::string caption = catalog_.GetText(lang::kMessagesSection, message.captionKey);
  return caption.empty() ? appTitle_ : ToQString(caption);
}

Answer QtFrontEnd::Ask(const Message& message) { return AskText(message, TextOf(message)); }

Answer QtFrontEnd::AskText(const Message& message, const QString& text) {
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
  Message plain;
  plain.style = MessageStyle::OkInformation;
  if (answerer_) {
    answerer_(plain, appTitle_, ToQString(text));
    return;
  }
  QMessageBox box(QMessageBox::NoIcon, appTitle_, ToQString(text), QMessageBox::Ok, window_);
  box.exec();
}

std::string QtFrontEnd::AskInput(const Message& prompt, const std::string& preset) {
  if (inputAnswerer_) return inputAnswerer_(prompt, preset);
  if (busyDepth_ > 0) QApplication::setOverrideCursor(Qt::ArrowCursor);
  bool ok = false;
  const QString answer = QInputDialog::getText(window_, CaptionOf(prompt), TextOf(prompt), QLineEdit::Normal,
                                               ToQString(preset), &ok);
  if (busyDepth_ > 0) QApplication::restoreOverrideCursor();
  return ok ? ToEngineText(answer) : std::string();
}

void QtFrontEnd::ShowFault(const std::string& text) {
  Message fault;
  fault.style = MessageStyle::OkStop;
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
