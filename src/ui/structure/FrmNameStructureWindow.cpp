#include "ui/structure/FrmNameStructureWindow.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NamedControls.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/RunShowingFault.h"
#include "ui/common/TextConversion.h"
#include "ui/structure/StructureTagList.h"

namespace nomra::ui {

namespace {

QTreeWidget* MakeStructureList(QWidget& parent) {
  // The first head takes the list's own text.
  const QString name = QStringLiteral("lstStructures");
  auto* list = new QTreeWidget(&parent);
  list->setObjectName(name);
  list->setColumnCount(2);
  list->setHeaderLabels({"Name", "Structure"});
  list->setProperty(kHeaderTagsProperty, QStringList{name, "lstColHead02"});
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->setSelectionMode(QAbstractItemView::SingleSelection);
  list->setAllColumnsShowFocus(true);
  list->setColumnWidth(0, 200);
  return list;
}

// A tag list under its label, as one column of the editor.
QVBoxLayout* LabelledTagList(QWidget& parent, const char* labelName, const char* label, StructureTagList& list) {
  auto* column = new QVBoxLayout;
  AddNamedLabel(*column, parent, labelName, label)->setBuddy(&list);
  column->addWidget(&list, 1);
  return column;
}

}  // namespace

FrmNameStructureWindow::FrmNameStructureWindow(ActionWindowServices services)
    : QDialog(services.mainWindow), services_(std::move(services)), editor_(services_.context, services_.catalog) {
  setObjectName("frmNameStructure");
  setWindowTitle("Name structures");
  setModal(true);
  resize(720, 560);
  auto* layout = new QVBoxLayout(this);
  frameMain_ = BuildFrameMain();
  frameEdit_ = BuildFrameEdit();
  layout->addWidget(frameMain_, 1);
  layout->addWidget(frameEdit_, 1);
  preview_ = AddStructurePreview(*this, *layout);

  const ActionButtons buttons = AddActionButtonRow(*this, *layout);
  connect(buttons.apply, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdApply);
  connect(buttons.ok, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdOK);

  LocaliseDialog(*this, services_.catalog, services_.mainWindow, services_.appTitle);
  editor_.Load();
  elements_->ShowChoices(editor_.Elements());
  functions_->ShowChoices(editor_.Functions());
  ShowEditor();

  connect(structures_, &QTreeWidget::currentItemChanged, this, [this] {
    if (showing_) return;
    editor_.Choose(structures_->indexOfTopLevelItem(structures_->currentItem()));
    ShowEditor();
  });
  connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
    editor_.SetName(ToEngineText(text));
    ShowEditor();
  });
  // Typing and dropping a tag both edit the text.
  connect(structure_, &QLineEdit::textEdited, this, [this](const QString& text) {
    editor_.SetStructure(ToEngineText(text));
    ShowEditor();
  });
  connect(preview_.row, &QScrollBar::valueChanged, this, [this](int row) {
    if (showing_) return;
    editor_.SetPreviewRow(row);
    ShowEditor();
  });
}

QGroupBox* FrmNameStructureWindow::BuildFrameMain() {
  auto* frame = new QGroupBox("Stored structures", this);
  frame->setObjectName("frameMain");
  auto* layout = new QVBoxLayout(frame);
  structures_ = MakeStructureList(*frame);
  layout->addWidget(structures_, 1);
  auto* row = new QHBoxLayout;
  connect(AddNamedButton(*row, *frame, "cmdStructureAdd", "&New"), &QPushButton::clicked, this,
          &FrmNameStructureWindow::cmdStructureAdd);
  edit_ = AddNamedButton(*row, *frame, "cmdStructureEdit", "&Edit");
  delete_ = AddNamedButton(*row, *frame, "cmdStructureDel", "&Delete");
  row->addStretch(1);
  layout->addLayout(row);
  connect(edit_, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdStructureEdit);
  connect(delete_, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdStructureDel);
  return frame;
}

QGroupBox* FrmNameStructureWindow::BuildFrameEdit() {
  auto* frame = new QGroupBox("Edit structure", this);
  frame->setObjectName("frameEdit");
  auto* layout = new QVBoxLayout(frame);
  auto* grid = new QGridLayout;
  name_ = AddLabelledText(*grid, *frame, 0, "lblName", "&Name:", "txtName");
  structure_ = AddLabelledText(*grid, *frame, 1, "lblStructure", "&Structure:", "txtStructure");
  layout->addLayout(grid);

  auto* lists = new QHBoxLayout;
  elements_ = new StructureTagList("lstElements", "Element", frame);
  functions_ = new StructureTagList("lstFunctions", "Function", frame);
  lists->addLayout(LabelledTagList(*frame, "lblAvailableElements", "E&lements:", *elements_));
  lists->addLayout(LabelledTagList(*frame, "lblAvailableFunctions", "F&unctions:", *functions_));
  layout->addLayout(lists, 1);

  auto* row = new QHBoxLayout;
  row->addStretch(1);
  structureOk_ = AddNamedButton(*row, *frame, "cmdStructureOK", "OK");
  QPushButton* cancel = AddNamedButton(*row, *frame, "cmdStructureCancel", "Cancel");
  layout->addLayout(row);
  connect(structureOk_, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdStructureOK);
  connect(cancel, &QPushButton::clicked, this, &FrmNameStructureWindow::cmdStructureCancel);
  return frame;
}

void FrmNameStructureWindow::ShowEditor() {
  showing_ = true;
  ShowStructureRows();
  ShowTextsAndPreviewRow(editor_.Model(), *this);
  frameMain_->setVisible(!editor_.Editing());
  frameEdit_->setVisible(editor_.Editing());
  edit_->setEnabled(editor_.EditEnabled());
  delete_->setEnabled(editor_.DeleteEnabled());
  structureOk_->setEnabled(editor_.StructureOkEnabled());
  showing_ = false;
}

void FrmNameStructureWindow::ShowStructureRows() {
  const std::vector<structure::StoredStructure>& stored = editor_.Structures();
  const QSignalBlocker block(structures_);
  structures_->clear();
  for (const structure::StoredStructure& row : stored) {
    structures_->addTopLevelItem(new QTreeWidgetItem({ToQString(row.name), ToQString(row.structure)}));
  }
  if (editor_.Chosen() >= 0) structures_->setCurrentItem(structures_->topLevelItem(editor_.Chosen()));
}

void FrmNameStructureWindow::cmdStructureAdd() {
  editor_.Add();
  ShowEditor();
  name_->setFocus();
  name_->selectAll();
}

void FrmNameStructureWindow::cmdStructureEdit() {
  editor_.Edit();
  ShowEditor();
  structure_->setFocus();
}

void FrmNameStructureWindow::cmdStructureDel() {
  editor_.Delete();
  ShowEditor();
}

void FrmNameStructureWindow::cmdStructureOK() {
  const bool stored = editor_.AcceptEdit();
  ShowEditor();
  if (stored) {
    structures_->setFocus();
  } else {
    FocusFailedStructure();
  }
}

void FrmNameStructureWindow::cmdStructureCancel() {
  editor_.CancelEdit();
  ShowEditor();
  structures_->setFocus();
}

bool FrmNameStructureWindow::RunApply() {
  bool passed = true;
  RunShowingFault(services_.context.User(), [&] { passed = editor_.Apply(); });
  if (services_.afterRun) services_.afterRun();
  ShowEditor();
  if (!passed) FocusFailedStructure();
  return passed;
}

void FrmNameStructureWindow::cmdApply() { RunApply(); }

void FrmNameStructureWindow::cmdOK() {
  if (RunApply() && !editor_.Editing()) accept();
}

void FrmNameStructureWindow::FocusFailedStructure() {
  structure_->setFocus();
  const auto& failure = editor_.LastFailure();
  if (!failure || failure->selectionStart < 1) return;
  const QString text = structure_->text();
  const int start = Utf16Position(text, failure->selectionStart - 1);
  structure_->setSelection(start, Utf16Position(text, failure->selectionStart - 1 + failure->selectionLength) - start);
}

void OpenNameStructure(const ActionWindowServices& services) {
  FrmNameStructureWindow dialog(services);
  dialog.exec();
}

}  // namespace nomra::ui
