#pragma once
#include <QTreeWidget>

#include <vector>

#include "structure/TagChoices.h"

namespace nomra::ui {

// lstElements and lstFunctions of the structure editor: a label and its tag
// a row. Dragging a row carries its tag as plain text, which a text box
// inserts where it is dropped.
class StructureTagList final : public QTreeWidget {
  Q_OBJECT
 public:
  StructureTagList(const char* name, const char* head, QWidget* parent);

  void ShowChoices(const std::vector<structure::TagChoice>& choices);

 protected:
  QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override;
};

}  // namespace nomra::ui
