#pragma once
#include <QDialog>
#include <QTimer>

#include "lang/MessageCatalog.h"

namespace nomra::ui {

// frmStart: the product name and version while the program starts; it
// closes itself on its timer or by its button.
class FrmStartWindow final : public QDialog {
  Q_OBJECT
 public:
  static constexpr int kShowMilliseconds = 2500;

  FrmStartWindow(const lang::MessageCatalog& catalog, const QString& appTitle, const QString& version,
                 QWidget* parent = nullptr);

  QTimer& Zeit1() { return timer_; }

 private:
  QTimer timer_;
};

}  // namespace nomra::ui
