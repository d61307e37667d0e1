#include "ui/rename/FrmRenumberWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "actions/FrmRenumber.h"
#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"
#include "ui/rename/ActionWidgets.h"

namespace nomra::ui {

namespace {

constexpr char kSection[] = "frmRenumber";

}  // namespace

FrmRenumberWindow::FrmRenumberWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmRenumber>(), std::move(services)) {
  setWindowTitle("Renumber");
  WithoutApply();
  auto* found = new QGridLayout;
  QComboBox* ends = NamedCombo(*this, "erkNum");
  AddLabelledWidget(*found, 0, "lblDetected", "Numbers found:", *ends);
  InputArea().addLayout(found);
  // The numbers found at each end: kept for the dialog, not shown.
  for (const char* hidden : {"vorListe", "anListe"}) NamedList(*this, hidden)->hide();

  auto* filesFrame = new QGroupBox("Files", this);
  filesFrame->setObjectName("FrameFiles");
  auto* files = new QGridLayout(filesFrame);
  AddLabelledWidget(*files, 0, "lblOrdered", "In &numbering order:", *NamedList(*this, "lstFilesSorted"));
  auto* moves = new QVBoxLayout;
  QPushButton* up = NamedButton(*this, "cmdUp", "Up");
  QPushButton* down = NamedButton(*this, "cmdDown", "Down");
  QPushButton* leaveOut = NamedButton(*this, "cmdL2R", ">");
  QPushButton* takeIn = NamedButton(*this, "cmdR2L", "<");
  for (QPushButton* button : {up, down, leaveOut, takeIn}) moves->addWidget(button);
  files->addLayout(moves, 1, 1);
  AddLabelledWidget(*files, 2, "lblUnassigned", "Without a num&ber:", *NamedList(*this, "lstFilesUnsorted"));
  InputArea().addWidget(filesFrame);

  auto* numbering = new QGroupBox("New numbers", this);
  numbering->setObjectName("FrameNumbering");
  auto* grid = new QGridLayout(numbering);
  AddLabelledText(*grid, *this, 0, "lblInitVal", "&Start value:", "txtInit");
  AddLabelledText(*grid, *this, 1, "lblInc", "Incr&ement:", "txtInc");
  AddLabelledWidget(*grid, 2, "lblFillUp", "&Width:", *NamedCombo(*this, "cmbAnzahl"));
  grid->addWidget(NamedRadio(*this, "optPrefix", "As &prefix"), 3, 0);
  grid->addWidget(NamedRadio(*this, "optSuffix", "As su&ffix"), 3, 1);
  QCheckBox* replace = NamedCheck(*this, "chkReplace", "Replace the &rest of the name with:");
  grid->addWidget(replace, 4, 0);
  QLineEdit* rest = NamedEdit(*this, "txtRepName");
  rest->installEventFilter(new NameKeyFilter(this));
  grid->addWidget(rest, 4, 1);
  InputArea().addWidget(numbering);

  const auto renumber = [this] { return &static_cast<actions::FrmRenumber&>(Action()); };
  connect(ends, &QComboBox::activated, this,
          [this, renumber](int row) { Change([=] { renumber()->ChooseEnd(row); }); });
  connect(up, &QPushButton::clicked, this, [this, renumber] { Change([=] { renumber()->MoveUp(); }); });
  connect(down, &QPushButton::clicked, this, [this, renumber] { Change([=] { renumber()->MoveDown(); }); });
  connect(leaveOut, &QPushButton::clicked, this, [this, renumber] { Change([=] { renumber()->LeaveOutOfSeries(); }); });
  connect(takeIn, &QPushButton::clicked, this, [this, renumber] { Change([=] { renumber()->TakeIntoSeries(); }); });
  for (const char* list : {"lstFilesSorted", "lstFilesUnsorted"}) {
    connect(findChild<QListWidget*>(list), &QListWidget::currentRowChanged, this, &FrmRenumberWindow::FollowSelection);
  }
  connect(replace, &QCheckBox::toggled, this, &FrmRenumberWindow::FollowSelection);
  FinishBuilding();
}

void FrmRenumberWindow::AfterLocalised() {
  std::vector<std::pair<std::string, QString>> widths{{"", "auto"}};
  for (int w = 1; w <= 15; ++w) widths.push_back({"", QString::number(w)});
  FillCombo(*findChild<QComboBox*>("cmbAnzahl"), Services().catalog, kSection, widths);
}

void FrmRenumberWindow::AfterInputsShown() {
  // The ends found, in the language's words; the model keeps its own keys.
  auto& renumber = static_cast<actions::FrmRenumber&>(Action());
  std::vector<std::pair<std::string, QString>> ends;
  for (const std::string& end : renumber.Model().At("erkNum").rows) ends.push_back({end, ToQString(end)});
  QComboBox* combo = findChild<QComboBox*>("erkNum");
  if (combo->count() == static_cast<int>(ends.size())) {
    FillCombo(*combo, Services().catalog, kSection, ends);
    combo->setCurrentIndex(renumber.Model().Number("erkNum"));
  }
  FollowSelection();
}

void FrmRenumberWindow::Change(const std::function<void()>& operation) {
  auto& renumber = static_cast<actions::FrmRenumber&>(Action());
  ReadWidgetsIntoModel(renumber.Model(), *this);
  operation();
  // The lists are rebuilt whole: rows that changed places show so.
  for (const char* name : {"lstFilesSorted", "lstFilesUnsorted"}) {
    auto* list = findChild<QListWidget*>(name);
    const QSignalBlocker quiet(list);
    list->clear();
  }
  ShowModel();
  FollowSelection();
}

void FrmRenumberWindow::FollowSelection() {
  auto& renumber = static_cast<actions::FrmRenumber&>(Action());
  FollowEnabling([&renumber](std::string_view key) { return renumber.IsEnabled(key); });
}

}  // namespace nomra::ui
