#include "ui/open/SystemOpenDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "ui/common/FormNames.h"
#include "ui/common/QtLocalisation.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

constexpr char kNoTextTag[] = "NO";

// Qt reads a filter's patterns from its last brackets, split at blanks; the
// list's rows join several patterns with ";", as the system's dialogs do.
QString QtNameFilter(const open::FilterRow& row) {
  QString text = ToQString(row.text);
  const QString ownBrackets = " (" + ToQString(row.pattern) + ")";
  if (text.endsWith(ownBrackets)) text.chop(ownBrackets.size());
  const QString patterns = ToQString(row.pattern).replace(';', ' ');
  return text + " (" + patterns + ")";
}

}  // namespace

SystemOpenDialog::SystemOpenDialog(Setup setup, const lang::MessageCatalog& catalog, QWidget* parent)
    : QFileDialog(parent), setup_(std::move(setup)) {
  setObjectName("OpenFilesDialog");
  setOption(QFileDialog::DontUseNativeDialog, true);
  setFileMode(QFileDialog::ExistingFiles);
  setAcceptMode(QFileDialog::AcceptOpen);
  setWindowTitle(setup_.title);
  for (const open::FilterRow& row : setup_.filters) nameFilters_ << QtNameFilter(row);
  setNameFilters(nameFilters_);
  if (setup_.filterIndex >= 1 && setup_.filterIndex <= nameFilters_.size()) {
    selectNameFilter(nameFilters_[setup_.filterIndex - 1]);
  }
  setDirectory(setup_.folder);
  if (auto* buttons = findChild<QDialogButtonBox*>("buttonBox")) openButton_ = buttons->button(QDialogButtonBox::Open);
  if (openButton_ != nullptr) openButton_->installEventFilter(this);

  if (setup_.mode == open::OpenMode::Files) {
    BuildPanel(catalog);
    if (setup_.allFiles) {
      SetNameText(true);
      if (openButton_ != nullptr) openButton_->setEnabled(true);
    }
  }
  connect(this, &QFileDialog::currentChanged, this, &SystemOpenDialog::OnCurrentChanged);
  // Going to another folder keeps the folder mode's text in the field.
  connect(this, &QFileDialog::directoryEntered, this, [this] {
    if (AllFiles() && NameField() != nullptr && NameField()->text().isEmpty()) SetNameText(true);
  });
}

void SystemOpenDialog::BuildPanel(const lang::MessageCatalog& catalog) {
  panel_ = new QWidget(this);
  panel_->setObjectName("FrameOpenDialog");
  auto* row = new QHBoxLayout(panel_);
  row->setContentsMargins(0, 4, 0, 0);
  allFiles_ = new QCheckBox("All files of the folder", panel_);
  allFiles_->setObjectName("chkAll");
  subFolders_ = new QCheckBox("Include subfolders", panel_);
  subFolders_->setObjectName("chkSub");
  // The boxes say what those of Nomra's own open dialog say.
  allFiles_->setProperty(kTagProperty, QStringLiteral("chkAllFiles|") + kOpenDialogName);
  subFolders_->setProperty(kTagProperty, QStringLiteral("chkSubFolders|") + kOpenDialogName);
  row->addWidget(allFiles_);
  row->addWidget(subFolders_);
  row->addStretch(1);
  if (auto* grid = qobject_cast<QGridLayout*>(layout())) {
    grid->addWidget(panel_, grid->rowCount(), 0, 1, grid->columnCount());
  } else if (layout() != nullptr) {
    layout()->addWidget(panel_);
  }
  LocaliseWidget(*panel_, kOpenDialogName, catalog, lang::CaptionSources{});

  allFiles_->setChecked(setup_.allFiles);
  subFolders_->setChecked(setup_.subFolders);
  subFolders_->setEnabled(setup_.allFiles);
  connect(allFiles_, &QCheckBox::toggled, this, &SystemOpenDialog::OnAllFilesToggled);
}

QLineEdit* SystemOpenDialog::NameField() const { return findChild<QLineEdit*>("fileNameEdit"); }

bool SystemOpenDialog::AllFiles() const { return allFiles_ != nullptr && allFiles_->isChecked(); }

bool SystemOpenDialog::SubFolders() const { return subFolders_ != nullptr && subFolders_->isChecked(); }

void SystemOpenDialog::SetNameText(bool allFiles) {
  if (QLineEdit* field = NameField()) field->setText(allFiles ? setup_.allFilesLabel : QString());
}

// A switch made by picking a file leaves the file's name in the field: the
// panel's tag tells this change from one by the user.
void SystemOpenDialog::OnAllFilesToggled(bool on) {
  subFolders_->setEnabled(on);
  if (panel_->property(kTagProperty).toString() != QLatin1String(kNoTextTag)) SetNameText(on);
  panel_->setProperty(kTagProperty, QString());
  if (on && openButton_ != nullptr) openButton_->setEnabled(true);
}

void SystemOpenDialog::OnCurrentChanged(const QString& path) {
  if (!AllFiles() || path.isEmpty() || !QFileInfo(path).isFile()) return;
  panel_->setProperty(kTagProperty, QString(QLatin1String(kNoTextTag)));
  allFiles_->setChecked(false);
  // Qt leaves the field alone while it has the focus; the label must not
  // stay there as if it were a file's name.
  if (QLineEdit* field = NameField(); field != nullptr && field->text() == setup_.allFilesLabel) {
    field->setText(QFileInfo(path).fileName());
  }
}

// Qt switches the button off while the name field names no file; in the
// folder mode the field holds the label, and the folder is what is opened.
bool SystemOpenDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == openButton_ && event->type() == QEvent::EnabledChange && !openButton_->isEnabled() && AllFiles()) {
    openButton_->setEnabled(true);
  }
  return QFileDialog::eventFilter(watched, event);
}

void SystemOpenDialog::accept() {
  if (AllFiles()) {
    // Qt would look for a file named like the label.
    QDialog::accept();
    return;
  }
  QFileDialog::accept();
}

int SystemOpenDialog::ChosenFilterIndex() const {
  const int index = static_cast<int>(nameFilters_.indexOf(selectedNameFilter()));
  return index < 0 ? 1 : index + 1;
}

open::OpenChoice SystemOpenDialog::Choice() const {
  open::OpenChoice choice;
  choice.mode = setup_.mode;
  choice.allFiles = AllFiles();
  choice.subFolders = SubFolders();
  choice.filterIndex = setup_.mode == open::OpenMode::Files ? ChosenFilterIndex() : setup_.filterIndex;
  if (choice.allFiles) {
    choice.paths.push_back(ToEngineText(directory().absolutePath()));
  } else {
    for (const QString& path : selectedFiles()) choice.paths.push_back(ToEngineText(path));
  }
  return choice;
}

}  // namespace nomra::ui
