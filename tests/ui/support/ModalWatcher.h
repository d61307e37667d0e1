#pragma once
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QWidget;

namespace nomra::ui::testing {

// Stands in for the person in front of a modal dialog: while it lives, every
// modal dialog that opens is recorded and handed to the handler, which
// answers it. Without a handler the dialog is closed as with Escape, so a
// command that opens a dialog where none was expected can't hang a test.
class ModalWatcher final : public QObject {
  Q_OBJECT
 public:
  using Handler = std::function<void(QWidget& modal)>;

  ModalWatcher();

  void SetHandler(Handler handler) { handler_ = std::move(handler); }

  // The object name of each dialog seen, in order ("QMessageBox" for an unnamed box).
  const QStringList& Seen() const { return seen_; }
  // The texts of the message boxes seen.
  const QStringList& MessageTexts() const { return messageTexts_; }

 private:
  void Look();

  QTimer timer_;
  int baseLoopLevel_;
  Handler handler_;
  QPointer<QWidget> handled_;
  QStringList seen_;
  QStringList messageTexts_;
};

// Closes a dialog as the Escape key would.
void Dismiss(QWidget& modal);

}  // namespace nomra::ui::testing
