#pragma once
#include <QObject>

namespace nomra::ui {

// Swallows the keys of the nine characters that never stand in a file name
// ("\ / : ? * < > |" and the double quote) in the fields it watches; every
// other key, "." included, types as usual.
class NameKeyFilter final : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace nomra::ui
