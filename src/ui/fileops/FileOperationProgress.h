#pragma once
#include <QDialog>
#include <QString>

#include "core/Progress.h"
#include "lang/MessageCatalog.h"

class QLabel;
class QProgressBar;

namespace nomra::ui {

// The progress of a copy, move or deletion, with a Cancel button that stops
// the operation before its next file. It shows itself only when the work
// takes longer than a moment, so a single small file flashes nothing.
class FileOperationProgress final : public QDialog, public core::Progress {
  Q_OBJECT
 public:
  FileOperationProgress(const lang::MessageCatalog& catalog, QWidget* parent = nullptr);

  void Begin(const core::ProgressStep& task) override;
  bool Tick(const core::ProgressStep& step) override;
  void End() override;

  bool Cancelled() const { return cancelled_; }
  // What the dialog says at present, for tests.
  QString StepText() const;
  QString FileText() const;
  int Value() const;

 private:
  const lang::MessageCatalog& catalog_;
  QLabel* step_ = nullptr;
  QLabel* file_ = nullptr;
  QProgressBar* bar_ = nullptr;
  qint64 shownAfter_ = 0;  // msecs since epoch at which the dialog appears
  bool cancelled_ = false;
};

}  // namespace nomra::ui
