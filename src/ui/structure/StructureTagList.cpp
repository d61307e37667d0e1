#include "ui/structure/StructureTagList.h"

#include <QMimeData>

#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

constexpr int kTagColumn = 1;

}  // namespace

StructureTagList::StructureTagList(const char* name, const char* head, QWidget* parent) : QTreeWidget(parent) {
  setObjectName(name);
  setColumnCount(2);
  setHeaderLabels({head, "Tag"});
  setProperty(kHeaderTagsProperty, QStringList{name, "lstColHeadTag"});
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setDragEnabled(true);
  setDragDropMode(QAbstractItemView::DragOnly);
  setColumnWidth(0, 220);
}

void StructureTagList::ShowChoices(const std::vector<structure::TagChoice>& choices) {
  clear();
  for (const structure::TagChoice& choice : choices) {
    addTopLevelItem(new QTreeWidgetItem({ToQString(choice.label), ToQString(choice.tag)}));
  }
}

QMimeData* StructureTagList::mimeData(const QList<QTreeWidgetItem*>& items) const {
  auto* data = new QMimeData;
  if (!items.isEmpty()) data->setText(items.front()->text(kTagColumn));
  return data;
}

}  // namespace nomra::ui
