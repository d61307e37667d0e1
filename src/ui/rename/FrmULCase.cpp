#include "ui/rename/FrmULCase.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "rename/CaseAction.h"
#include "ui/common/QtLocalisation.h"

namespace nomra::ui {

namespace {

// The dialog's own language section: the conversions are read as optOpt1 and on.
constexpr char kLanguageSection[] = "frmULCASE";
// The control array of the conversions and how many it has.
constexpr char kConversionOptions[] = "opt1";
constexpr int kConversions = 5;

QGroupBox* AddOptionGroup(QWidget& parent, const char* frameName, const QString& title, const char* name,
                          const QStringList& texts) {
  auto* frame = new QGroupBox(title, &parent);
  frame->setObjectName(frameName);
  auto* layout = new QVBoxLayout(frame);
  for (int index = 1; index <= texts.size(); ++index) {
    auto* option = new QRadioButton(texts[index - 1], frame);
    option->setObjectName(ControlArrayMember(name, index));
    layout->addWidget(option);
  }
  return frame;
}

}  // namespace

FrmULCase::FrmULCase(ActionWindowServices services)
    : ActionDialogWindow(std::make_unique<CaseDialog>(), std::move(services)) {
  setWindowTitle("Upper/lower case");
  auto* row = new QHBoxLayout;
  row->addWidget(AddOptionGroup(*this, "frameOpt", "Conversion", kConversionOptions,
                                {"&First letter upper case", "Each &word capitalized", "&UPPER CASE", "&lower case",
                                 "&Swap case"}));
  row->addWidget(AddOptionGroup(*this, "frameapply", "Apply to", "opt2",
                                {"&Name", "E&xtension", "Na&me and extension"}));
  InputArea().addLayout(row);
  FinishBuilding();
}

void FrmULCase::AfterLocalised() {
  for (int index = 1; index <= kConversions; ++index) {
    const std::string text =
        Services().catalog.GetText(kLanguageSection, "optOpt" + std::to_string(index));
    if (!text.empty()) findChild<QRadioButton*>(ControlArrayMember(kConversionOptions, index))->setText(QString::fromStdString(text));
  }
}

}  // namespace nomra::ui
