#include "ui/common/NamedControls.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace nomra::ui {

QLabel* AddNamedLabel(QBoxLayout& layout, QWidget& parent, const QString& name, const QString& text) {
  auto* label = new QLabel(text, &parent);
  label->setObjectName(name);
  layout.addWidget(label);
  return label;
}

QLabel* AddLabelledWidget(QGridLayout& grid, int row, const QString& labelName, const QString& label, QWidget& widget) {
  auto* caption = new QLabel(label, widget.parentWidget());
  caption->setObjectName(labelName);
  caption->setBuddy(&widget);
  grid.addWidget(caption, row, 0);
  grid.addWidget(&widget, row, 1);
  return caption;
}

QLineEdit* AddLabelledText(QGridLayout& grid, QWidget& parent, int row, const QString& labelName, const QString& label,
                           const QString& textName) {
  auto* text = new QLineEdit(&parent);
  text->setObjectName(textName);
  AddLabelledWidget(grid, row, labelName, label, *text);
  return text;
}

QGroupBox* NamedOptionGroup(QWidget& parent, const QString& frameName, const QString& title,
                            const std::vector<std::pair<QString, QString>>& options) {
  auto* frame = new QGroupBox(title, &parent);
  frame->setObjectName(frameName);
  auto* layout = new QVBoxLayout(frame);
  for (const auto& [name, caption] : options) {
    auto* option = new QRadioButton(caption, frame);
    option->setObjectName(name);
    layout->addWidget(option);
  }
  return frame;
}

}  // namespace nomra::ui
