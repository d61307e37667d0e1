#include "ui/rename/FrmNumberWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "actions/FrmNumber.h"
#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/NameKeyFilter.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"
#include "ui/rename/ActionWidgets.h"
#include "ui/rename/FrmPosWindow.h"

namespace nomra::ui {

namespace {

constexpr char kSection[] = "frmNumber";

// Number boxes take digits and backspace; "-" flips the sign and puts the
// caret at the end; left empty, a box holds 1.
class NumberKeyFilter final : public QObject {
 public:
  NumberKeyFilter(QObject* parent, std::function<bool()> signAllowed)
      : QObject(parent), signAllowed_(std::move(signAllowed)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit != nullptr && event->type() == QEvent::FocusOut) {
      QString text = edit->text();
      if (text.size() > 1) text = text.left(1) + text.mid(1).remove('-');
      if (text.isEmpty() || text == "-") text = "1";
      if (text != edit->text()) edit->setText(text);
    }
    if (edit == nullptr || event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->text() == "-") {
      if (signAllowed_()) {
        const QString text = edit->text();
        edit->setText(text.startsWith('-') ? text.mid(1) : "-" + text);
        edit->end(false);
      }
      return true;
    }
    const QString text = key->text();
    if (text.isEmpty() || text.front().isDigit() || !text.front().isPrint()) return false;
    return true;
  }

 private:
  std::function<bool()> signAllowed_;
};

}  // namespace

FrmNumberWindow::FrmNumberWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmNumber>(), std::move(services)) {
  setWindowTitle("Numbering");
  auto* numbers = new QGroupBox("Numbers", this);
  numbers->setObjectName("fraNumberOptions");
  auto* grid = new QGridLayout(numbers);
  QLineEdit* start = AddLabelledText(*grid, *this, 0, "lblInitVal", "&Start value:", "txtInit");
  QLineEdit* step = AddLabelledText(*grid, *this, 1, "lblInc", "&Increment:", "txtInc");
  QComboBox* system = NamedCombo(*this, "cmbNumberWith");
  AddLabelledWidget(*grid, 2, "lblNumberWith", "Number s&ystem:", *system);
  QLineEdit* shown = AddLabelledText(*grid, *this, 3, "lbl1", "Shown as:", "txtInitFormat");
  QComboBox* width = NamedCombo(*this, "cmbAnz");
  AddLabelledWidget(*grid, 4, "lblFillUp", "&Width:", *width);
  grid->addWidget(NamedCheck(*this, "chkRandom", "Ra&ndom order"), 5, 1);
  InputArea().addWidget(numbers);

  auto* place = new QGroupBox("Position", this);
  place->setObjectName("fraPosition");
  auto* placeGrid = new QGridLayout(place);
  placeGrid->addWidget(NamedRadio(*this, "optPrefix", "As p&refix"), 0, 0);
  placeGrid->addWidget(NamedRadio(*this, "optSuffix", "As s&uffix"), 1, 0);
  placeGrid->addWidget(NamedRadio(*this, "optInsertAt", "At p&osition:"), 2, 0);
  placeGrid->addLayout(NumberBoxWithBar(*this, "txtPos", "VScroll1", 0, 200, 200), 2, 1);
  QPushButton* getPos = NamedButton(*this, "cmdGetPos", "...");
  placeGrid->addWidget(getPos, 2, 2);
  placeGrid->addWidget(NamedCombo(*this, "cmbAlign"), 2, 3);
  InputArea().addWidget(place);

  auto* name = new QGroupBox("Name", this);
  name->setObjectName("fraReplace");
  auto* nameGrid = new QGridLayout(name);
  nameGrid->addWidget(NamedCheck(*this, "chkReplace", "Replace the na&me with:"), 0, 0);
  QLineEdit* replaceName = NamedEdit(*this, "txtRepName");
  replaceName->installEventFilter(new NameKeyFilter(this));
  nameGrid->addWidget(replaceName, 0, 1);
  nameGrid->addWidget(NamedCheck(*this, "chkIntChr", "Separa&tor:"), 1, 0);
  nameGrid->addWidget(NamedCombo(*this, "cmbIChr"), 1, 1);
  InputArea().addWidget(name);

  start->installEventFilter(new NumberKeyFilter(this, [system] { return system->currentIndex() != 1; }));
  step->installEventFilter(new NumberKeyFilter(this, [] { return true; }));
  connect(start, &QLineEdit::textEdited, this, &FrmNumberWindow::StartEdited);
  connect(shown, &QLineEdit::textEdited, this, &FrmNumberWindow::ShownStartEdited);
  connect(system, &QComboBox::activated, this, &FrmNumberWindow::SystemChosen);
  connect(getPos, &QPushButton::clicked, this, &FrmNumberWindow::cmdGetPos);
  for (QRadioButton* option : findChildren<QRadioButton*>()) {
    connect(option, &QRadioButton::toggled, this, &FrmNumberWindow::FollowChoices);
  }
  for (QCheckBox* check : findChildren<QCheckBox*>()) {
    connect(check, &QCheckBox::toggled, this, &FrmNumberWindow::FollowChoices);
  }
  FinishBuilding();
}

void FrmNumberWindow::AfterLocalised() {
  const lang::MessageCatalog& catalog = Services().catalog;
  FillCombo(*findChild<QComboBox*>("cmbNumberWith"), catalog, kSection,
            {{"cmbNumberWith-1", "Decimal (1, 2, 3)"},
             {"cmbNumberWith-2", "Hexadecimal (9, A, B)"},
             {"cmbNumberWith-3", "Upper-case letters (A, B, C)"},
             {"cmbNumberWith-4", "Lower-case letters (a, b, c)"}});
  FillCombo(*findChild<QComboBox*>("cmbAlign"), catalog, kSection,
            {{"cmbAlign-1", "from the left"}, {"cmbAlign-2", "from the right"}});
  std::string blank = catalog.GetText(kSection, "cmbBlank");
  std::vector<std::pair<std::string, QString>> separators{{"", "<" + ToQString(blank.empty() ? "blank" : blank) + ">"}};
  for (const char* item : {" - ", "-", " _ ", "_", " # ", "#", " + ", "+", " . ", "."})
    separators.push_back({"", item});
  FillCombo(*findChild<QComboBox*>("cmbIChr"), catalog, kSection, separators);
  std::vector<std::pair<std::string, QString>> widths{{"", "auto"}};
  for (int w = 1; w <= 15; ++w) widths.push_back({"", QString::number(w)});
  FillCombo(*findChild<QComboBox*>("cmbAnz"), catalog, kSection, widths);
}

void FrmNumberWindow::AfterInputsShown() { FollowChoices(); }

void FrmNumberWindow::FollowChoices() {
  auto& number = static_cast<actions::FrmNumber&>(Action());
  // Inserting at a position leaves no room for a name in place of the stem.
  if (findChild<QRadioButton*>("optInsertAt")->isChecked()) findChild<QCheckBox*>("chkReplace")->setChecked(false);
  FollowEnabling([&number](std::string_view key) { return number.IsEnabled(key); });
  const bool otherSystem = findChild<QComboBox*>("cmbNumberWith")->currentIndex() > 0;
  findChild<QLineEdit*>("txtInitFormat")->setVisible(otherSystem);
  findChild<QLabel*>("lbl1")->setVisible(otherSystem);
}

void FrmNumberWindow::StartEdited() {
  auto& number = static_cast<actions::FrmNumber&>(Action());
  ReadWidgetsIntoModel(number.Model(), *this);
  number.StartValueEdited();
  findChild<QLineEdit*>("txtInitFormat")->setText(ToQString(number.Model().Text("txtInitFormat")));
}

void FrmNumberWindow::ShownStartEdited() {
  auto& number = static_cast<actions::FrmNumber&>(Action());
  ReadWidgetsIntoModel(number.Model(), *this);
  number.ShownStartEdited();
  findChild<QLineEdit*>("txtInit")->setText(ToQString(number.Model().Text("txtInit")));
}

void FrmNumberWindow::SystemChosen() {
  auto& number = static_cast<actions::FrmNumber&>(Action());
  ReadWidgetsIntoModel(number.Model(), *this);
  number.SystemChosen();
  findChild<QLineEdit*>("txtInit")->setText(ToQString(number.Model().Text("txtInit")));
  findChild<QLineEdit*>("txtInitFormat")->setText(ToQString(number.Model().Text("txtInitFormat")));
  FollowChoices();
}

void FrmNumberWindow::cmdGetPos() {
  const bool fromRight = findChild<QComboBox*>("cmbAlign")->currentIndex() == 1;
  const auto picked = FrmPosWindow::Pick(fromRight ? actions::PickMode::Last : actions::PickMode::First, PendingStems(),
                                         true, Services().catalog, this);
  if (!picked) return;
  ShowPickedNumber(*this, "VScroll1", "txtPos", picked->fromRight ? picked->picked.last : picked->picked.first, true);
  findChild<QComboBox*>("cmbAlign")->setCurrentIndex(picked->fromRight ? 1 : 0);
}

}  // namespace nomra::ui
