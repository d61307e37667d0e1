#pragma once
#include <QDialog>

#include "lang/MessageCatalog.h"

namespace nomra::ui {

// frmInfo: what this program is, its version and where it comes from.
class FrmInfoWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmInfoWindow(const lang::MessageCatalog& catalog, const QString& appTitle, const QString& version,
                const QString& menuCaption, QWidget* parent = nullptr);
};

}  // namespace nomra::ui
