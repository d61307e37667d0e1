#include "ui/rename/FrmReplaceWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "actions/FrmReplace.h"
#include "actions/PositionPicker.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/rename/ActionWidgets.h"
#include "ui/rename/FrmPosWindow.h"

namespace nomra::ui {

namespace {

constexpr char kSection[] = "frmReplace";

}  // namespace

FrmReplaceWindow::FrmReplaceWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmReplace>(), std::move(services)) {
  setWindowTitle("Replace");
  auto* what = new QGroupBox("Replace", this);
  what->setObjectName("FrameWhat");
  auto* grid = new QGridLayout(what);
  grid->addWidget(NamedRadio(*this, "opttxt2Repl", "&Text:"), 0, 0);
  QLineEdit* find = NamedEdit(*this, "txtToRep");
  QCheckBox* regex = NamedCheck(*this, "chkRegExp", "Regular expressio&n ($1 names a group)");
  find->installEventFilter(new NameKeyFilter(this, [regex] { return !regex->isChecked(); }));
  grid->addWidget(find, 0, 1, 1, 3);
  grid->addWidget(regex, 1, 1, 1, 3);

  grid->addWidget(NamedRadio(*this, "optChr2Repl", "Characters by p&osition"), 2, 0);
  auto* position = new QGroupBox("Position", this);
  position->setObjectName("FramePos");
  auto* positions = new QGridLayout(position);
  positions->addWidget(NamedRadio(*this, "optChrFirst", "&First"), 0, 0);
  positions->addLayout(NumberBoxWithBar(*this, "txtPos(0)", "VScroll1(0)", 1, 200, 201), 0, 1);
  positions->addWidget(NamedRadio(*this, "optChrLast", "&Last"), 1, 0);
  positions->addLayout(NumberBoxWithBar(*this, "txtPos(1)", "VScroll1(1)", 1, 200, 201), 1, 1);
  positions->addWidget(NamedRadio(*this, "optChrFromTo", "Ran&ge"), 2, 0);
  positions->addLayout(NumberBoxWithBar(*this, "txtFrom", "VScrollVon", 1, 200, 201), 2, 1);
  positions->addLayout(NumberBoxWithBar(*this, "txtTo", "VScrollBis", 1, 200, 201), 2, 2);
  QPushButton* getPos = NamedButton(*this, "cmdGetPos", "...");
  positions->addWidget(getPos, 0, 2);
  grid->addWidget(position, 3, 0, 1, 4);

  grid->addWidget(NamedRadio(*this, "optFollowingChr", "&Each of these characters:"), 4, 0);
  grid->addWidget(NamedRadio(*this, "optAllChrExcept", "All characters e&xcept these:"), 5, 0);
  grid->addWidget(NamedCombo(*this, "cmbRemove"), 4, 1, 1, 3);
  grid->addWidget(NamedCheck(*this, "chkExceptions", "Except&ions:"), 5, 1);
  grid->addWidget(NamedEdit(*this, "txtExceptions"), 5, 2, 1, 2);
  InputArea().addWidget(what);

  auto* how = new QGroupBox("Replace with", this);
  how->setObjectName("frameReplaceBy");
  auto* howGrid = new QGridLayout(how);
  howGrid->addWidget(NamedRadio(*this, "optReplace", "&Replace with:"), 0, 0);
  QLineEdit* with = NamedEdit(*this, "txtRepBy");
  with->installEventFilter(new NameKeyFilter(this, [regex] { return !regex->isChecked(); }));
  howGrid->addWidget(with, 0, 1);
  QPushButton* entries = NamedButton(*this, "cmdSelectEntry", ">");
  auto* popup = new QMenu(entries);
  QAction* blank = popup->addAction("Insert a &blank");
  blank->setObjectName("mnuContextBlank");
  connect(blank, &QAction::triggered, this, [with] { with->insert("<Blank>"); });
  connect(entries, &QPushButton::clicked, this,
          [entries, popup] { popup->popup(entries->mapToGlobal(QPoint(0, entries->height()))); });
  howGrid->addWidget(entries, 0, 2);
  howGrid->addWidget(NamedRadio(*this, "optRemove", "Re&move"), 1, 0);
  InputArea().addWidget(how);

  for (QRadioButton* option : findChildren<QRadioButton*>()) {
    connect(option, &QRadioButton::toggled, this, &FrmReplaceWindow::analyzeOptBtn);
  }
  for (QCheckBox* check : findChildren<QCheckBox*>()) {
    connect(check, &QCheckBox::toggled, this, &FrmReplaceWindow::analyzeOptBtn);
  }
  connect(getPos, &QPushButton::clicked, this, &FrmReplaceWindow::cmdGetPos);
  FinishBuilding();
}

void FrmReplaceWindow::AfterLocalised() {
  FillCombo(*findChild<QComboBox*>("cmbRemove"), Services().catalog, kSection,
            {{"cmbremove1", "Letters"}, {"cmbremove2", "Digits"}, {"cmbremove3", "Special characters"}});
}

void FrmReplaceWindow::AfterInputsShown() { analyzeOptBtn(); }

void FrmReplaceWindow::analyzeOptBtn() {
  auto& replace = static_cast<actions::FrmReplace&>(Action());
  FollowEnabling([&replace](std::string_view key) { return replace.IsEnabled(key); });
}

void FrmReplaceWindow::cmdGetPos() {
  const auto number = [this](const char* name) { return findChild<QLineEdit*>(name)->text().toInt(); };
  // A range given backwards is turned round first.
  if (number("txtFrom") > number("txtTo")) {
    const QString from = findChild<QLineEdit*>("txtFrom")->text();
    findChild<QLineEdit*>("txtFrom")->setText(findChild<QLineEdit*>("txtTo")->text());
    findChild<QLineEdit*>("txtTo")->setText(from);
  }
  PickRangeInto(*this,
                {"optChrFirst", "optChrLast", "VScroll1(0)", "txtPos(0)", "VScroll1(1)", "txtPos(1)", "VScrollVon",
                 "txtFrom", "VScrollBis", "txtTo"},
                PendingStems(), Services().catalog);
}

}  // namespace nomra::ui
