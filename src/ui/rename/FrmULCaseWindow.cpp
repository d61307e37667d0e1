#include "ui/rename/FrmULCaseWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>

#include "actions/FrmULCase.h"
#include "ui/common/NamedControls.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// The dialog's own language section: the conversions are read as optOpt1 and on.
constexpr char kLanguageSection[] = "frmULCASE";
// The control array of the conversions and how many it has.
constexpr char kConversionOptions[] = "opt1";
constexpr int kConversions = 5;

// A frame of options that form a control array: "opt2(1)", "opt2(2)", ...
QGroupBox* AddOptionGroup(QWidget& parent, const char* frameName, const QString& title, const char* name,
                          const QStringList& texts) {
  std::vector<std::pair<QString, QString>> options;
  for (int index = 1; index <= texts.size(); ++index)
    options.emplace_back(ControlArrayMember(name, index), texts[index - 1]);
  return NamedOptionGroup(parent, frameName, title, options);
}

}  // namespace

FrmULCaseWindow::FrmULCaseWindow(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<actions::FrmULCase>(), std::move(services)) {
  setWindowTitle("Upper/lower case");
  auto* row = new QHBoxLayout;
  row->addWidget(AddOptionGroup(
      *this, "frameOpt", "Conversion", kConversionOptions,
      {"&First letter upper case", "Each &word capitalized", "&UPPER CASE", "&lower case", "&Swap case"}));
  row->addWidget(
      AddOptionGroup(*this, "frameapply", "Apply to", "opt2", {"&Name", "E&xtension", "Na&me and extension"}));
  InputArea().addLayout(row);
  FinishBuilding();
}

void FrmULCaseWindow::AfterLocalised() {
  for (int index = 1; index <= kConversions; ++index) {
    const std::string text = Services().catalog.GetText(kLanguageSection, "optOpt" + std::to_string(index));
    if (!text.empty())
      findChild<QRadioButton*>(ControlArrayMember(kConversionOptions, index))->setText(ToQString(text));
  }
}

}  // namespace nomra::ui
