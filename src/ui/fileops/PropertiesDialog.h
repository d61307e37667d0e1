#pragma once
#include <QDialog>
#include <QString>

#include "lang/MessageCatalog.h"
#include "platform/FileSystem.h"

class QLabel;

namespace nomra::ui {

// Nomra's own properties window of one file: path, type, size, the three
// times, owner and permissions, the same on every desktop.
class PropertiesDialog final : public QDialog {
  Q_OBJECT
 public:
  PropertiesDialog(const platform::FileProperties& properties, const lang::MessageCatalog& catalog,
                   QWidget* parent = nullptr);

  // The value shown beside a label ("lblSize"), for tests.
  QString Value(const QString& labelName) const;
};

}  // namespace nomra::ui
