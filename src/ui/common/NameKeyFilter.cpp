#include "ui/common/NameKeyFilter.h"

#include <QKeyEvent>

#include "base/FileNames.h"

namespace nomra::ui {

bool NameKeyFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && (!active_ || active_())) {
    const QString text = static_cast<QKeyEvent*>(event)->text();
    for (const char32_t character : text.toUcs4()) {
      if (base::IsForbiddenNameCharacter(character)) return true;
    }
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace nomra::ui
