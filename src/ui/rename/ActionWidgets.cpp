#include "ui/rename/ActionWidgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>

#include "actions/PositionPicker.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

QLineEdit* NamedEdit(QWidget& parent, const QString& name) {
  auto* edit = new QLineEdit(&parent);
  edit->setObjectName(name);
  return edit;
}

QRadioButton* NamedRadio(QWidget& parent, const QString& name, const QString& caption) {
  auto* radio = new QRadioButton(caption, &parent);
  radio->setObjectName(name);
  return radio;
}

QCheckBox* NamedCheck(QWidget& parent, const QString& name, const QString& caption) {
  auto* check = new QCheckBox(caption, &parent);
  check->setObjectName(name);
  return check;
}

QComboBox* NamedCombo(QWidget& parent, const QString& name) {
  auto* combo = new QComboBox(&parent);
  combo->setObjectName(name);
  return combo;
}

QListWidget* NamedList(QWidget& parent, const QString& name) {
  auto* list = new QListWidget(&parent);
  list->setObjectName(name);
  return list;
}

QScrollBar* NamedSpinBar(QWidget& parent, const QString& name, int minimum, int maximum, QLineEdit& box, int top) {
  auto* bar = new QScrollBar(Qt::Vertical, &parent);
  bar->setObjectName(name);
  bar->setRange(minimum, maximum);
  bar->setFixedHeight(box.sizeHint().height());
  QObject::connect(bar, &QScrollBar::valueChanged, &box, [&box, top](int value) {
    box.setText(QString::number(top - value));
    box.setModified(true);
  });
  return bar;
}

QHBoxLayout* NumberBoxWithBar(QWidget& parent, const QString& box, const QString& bar, int minimum, int maximum,
                              int top) {
  auto* row = new QHBoxLayout;
  QLineEdit* edit = NamedEdit(parent, box);
  edit->setMaximumWidth(60);
  row->addWidget(edit);
  row->addWidget(NamedSpinBar(parent, bar, minimum, maximum, *edit, top));
  row->addStretch(1);
  return row;
}

void ShowPickedNumber(QWidget& window, const QString& bar, const QString& box, long value, bool fromZero) {
  window.findChild<QScrollBar*>(bar)->setValue(actions::SpinBarValue(value, fromZero));
  window.findChild<QLineEdit*>(box)->setText(QString::number(value));
}

void FillCombo(QComboBox& combo, const lang::MessageCatalog& catalog, const std::string& section,
               const std::vector<std::pair<std::string, QString>>& keysAndTexts) {
  const QSignalBlocker quiet(&combo);
  const int chosen = combo.currentIndex();
  combo.clear();
  for (const auto& [key, text] : keysAndTexts) {
    const std::string localised = key.empty() ? std::string() : catalog.GetText(section, key);
    combo.addItem(localised.empty() ? text : ToQString(localised));
  }
  combo.setCurrentIndex(chosen);
}

}  // namespace nomra::ui
