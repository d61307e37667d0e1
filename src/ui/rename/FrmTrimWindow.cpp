#include "ui/rename/FrmTrimWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "actions/FrmTrim.h"
#include "actions/PositionPicker.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/QtLocalisation.h"
#include "ui/rename/ActionWidgets.h"
#include "ui/rename/FrmPosWindow.h"

namespace nomra::ui {

FrmTrimWindow::FrmTrimWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmTrim>(), std::move(services)) {
  setWindowTitle("Trim");
  auto* grid = new QGridLayout;
  const QStringList captions{"Keep the &first characters:", "Keep the &last characters:",
                             "Keep the characters f&rom ... to:", "Take the &short name",
                             "Limit folder and name to (characters):"};
  for (int index = 1; index <= captions.size(); ++index) {
    QRadioButton* option = NamedRadio(*this, ControlArrayMember("opt1", index), captions[index - 1]);
    grid->addWidget(option, index - 1, 0);
    connect(option, &QRadioButton::toggled, this, &FrmTrimWindow::FollowChoice);
  }
  grid->addLayout(NumberBoxWithBar(*this, "txtPos(0)", "VScrollPos(0)", 1, 200, 201), 0, 1);
  grid->addLayout(NumberBoxWithBar(*this, "txtPos(1)", "VScrollPos(1)", 1, 200, 201), 1, 1);
  auto* range = new QHBoxLayout;
  range->addLayout(NumberBoxWithBar(*this, "txtFrom", "VScrollFrom", 1, 200, 201));
  range->addLayout(NumberBoxWithBar(*this, "txtTo", "VScrollTo", 1, 200, 201));
  grid->addLayout(range, 2, 1);
  grid->addLayout(NumberBoxWithBar(*this, "txtMaxPath", "VScrollMaxPath", 1, 237, 257), 4, 1);
  QPushButton* getPos = NamedButton(*this, "cmdGetPos", "...");
  grid->addWidget(getPos, 0, 2);
  InputArea().addLayout(grid);
  connect(getPos, &QPushButton::clicked, this, &FrmTrimWindow::cmdGetPos);
  FinishBuilding();
}

void FrmTrimWindow::AfterInputsShown() { FollowChoice(); }

void FrmTrimWindow::FollowChoice() {
  auto& trim = static_cast<actions::FrmTrim&>(Action());
  FollowEnabling([&trim](std::string_view key) { return trim.IsEnabled(key); });
}

void FrmTrimWindow::cmdGetPos() {
  PickRangeInto(*this,
                {"opt1(1)", "opt1(2)", "VScrollPos(0)", "txtPos(0)", "VScrollPos(1)", "txtPos(1)", "VScrollFrom",
                 "txtFrom", "VScrollTo", "txtTo"},
                PendingStems(), Services().catalog);
}

}  // namespace nomra::ui
