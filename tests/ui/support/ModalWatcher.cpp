#include "ui/support/ModalWatcher.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QThread>

namespace nomra::ui::testing {

ModalWatcher::ModalWatcher() : baseLoopLevel_(QThread::currentThread()->loopLevel()) {
  timer_.setInterval(10);
  connect(&timer_, &QTimer::timeout, this, &ModalWatcher::Look);
  timer_.start();
}

void ModalWatcher::Look() {
  QWidget* modal = QApplication::activeModalWidget();
  // A dialog is answered once; until it has gone it stays the active one.
  if (modal == nullptr || modal == handled_) return;
  // The dialog's exec() shows it before its event loop runs, and showing may
  // let a tick through; answered then, the loop would start after the dialog
  // had gone and wait for ever.
  if (QThread::currentThread()->loopLevel() <= baseLoopLevel_) return;
  handled_ = modal;
  seen_ << (modal->objectName().isEmpty() ? QString::fromLatin1(modal->metaObject()->className())
                                          : modal->objectName());
  if (auto* box = qobject_cast<QMessageBox*>(modal)) messageTexts_ << box->text();
  if (handler_) {
    handler_(*modal);
  } else {
    Dismiss(*modal);
  }
}

void Dismiss(QWidget& modal) {
  if (auto* box = qobject_cast<QMessageBox*>(&modal)) {
    // A box answers with its escape button, the one Escape would press.
    if (QAbstractButton* escape = box->escapeButton()) {
      escape->click();
      return;
    }
  }
  if (auto* dialog = qobject_cast<QDialog*>(&modal)) {
    dialog->reject();
  } else {
    modal.close();
  }
}

}  // namespace nomra::ui::testing
