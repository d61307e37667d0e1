#pragma once
#include <QObject>

#include <functional>

namespace nomra::ui {

// Swallows the keys of the nine characters that never stand in a file name
// ("\ / : ? * < > |" and the double quote) in the fields it watches; every
// other key, "." included, types as usual.
class NameKeyFilter final : public QObject {
  Q_OBJECT
 public:
  explicit NameKeyFilter(QObject* parent = nullptr, std::function<bool()> active = {})
      : QObject(parent), active_(std::move(active)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Whether the filter applies now; always without one (a regular
  // expression, for one, needs the characters the filter refuses).
  std::function<bool()> active_;
};

}  // namespace nomra::ui
