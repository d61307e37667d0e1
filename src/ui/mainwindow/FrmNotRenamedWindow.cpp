#include "ui/mainwindow/FrmNotRenamedWindow.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "commit/ReportRowText.h"
#include "dialog/DialogState.h"
#include "lang/LanguageKeys.h"
#include "ui/common/DialogBinder.h"
#include "ui/common/DialogButtons.h"
#include "ui/common/DialogTexts.h"
#include "ui/common/NamedControls.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui {

namespace {

// The controls, each named once for its widget and its input of the model.
constexpr char kNotRenamedList[] = "lstNotRenamed";
constexpr char kRenamedList[] = "lstRenamed";
constexpr char kChoiceLabel[] = "lblSelAction";
constexpr char kNoActionOption[] = "optNoAction";
constexpr char kRemoveRenamedOption[] = "optRemoveRenamed";
constexpr char kChoiceGroup[] = "choice";

}  // namespace

FrmNotRenamedWindow::FrmNotRenamedWindow(const commit::CommitResult& result, const lang::MessageCatalog& catalog,
                                         QWidget* parent)
    : QDialog(parent) {
  setObjectName(kName);
  setWindowTitle("Not renamed");
  resize(720, 420);
  auto* layout = new QVBoxLayout(this);
  auto* notRenamed = new QTreeWidget(this);
  notRenamed->setObjectName(kNotRenamedList);
  notRenamed->setColumnCount(2);
  notRenamed->setHeaderLabels({"No.", "Message"});
  notRenamed->setRootIsDecorated(false);
  notRenamed->setWordWrap(true);
  for (const commit::ReportRow& row : result.notRenamed) {
    auto* item = new QTreeWidgetItem(notRenamed);
    item->setText(0, QString::number(row.number));
    item->setText(1, ToQString(commit::ReportRowText(row, catalog)));
    item->setToolTip(1, item->text(1));
    item->setData(0, Qt::UserRole, ToQString(row.rowKey));
  }
  notRenamed->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  layout->addWidget(notRenamed, 3);

  auto* renamed = new QListWidget(this);
  renamed->setObjectName(kRenamedList);
  for (const std::string& key : result.renamed) renamed->addItem(ToQString(key));
  layout->addWidget(renamed, 1);

  AddNamedLabel(*layout, *this, kChoiceLabel, "What should happen with the renamed files:");
  noAction_ = new QRadioButton("Leave them in the list", this);
  noAction_->setObjectName(kNoActionOption);
  noAction_->setChecked(true);
  removeRenamed_ = new QRadioButton("Remove them from the list", this);
  removeRenamed_->setObjectName(kRemoveRenamedOption);
  layout->addWidget(noAction_);
  layout->addWidget(removeRenamed_);

  QPushButton* ok = AddOkCancelRow(*this, *layout);
  connect(ok, &QPushButton::clicked, this, [this] {
    choice_ =
        removeRenamed_->isChecked() ? commit::NotRenamedChoice::RemoveRenamed : commit::NotRenamedChoice::NoAction;
    if (session_ != nullptr) {
      ReadWidgetsIntoModel(model_, *this);
      dialog::StoreDialogState(model_, model_.Name(), dialog::kSettingsMode, *session_, *fileSystem_);
    }
    accept();
  });
  for (const char* name : {kChoiceLabel, kNotRenamedList}) model_.AddNoValue(name);
  model_.AddList(kRenamedList, {}, false);
  model_.AddOption(kNoActionOption, kChoiceGroup);
  model_.AddOption(kRemoveRenamedOption, kChoiceGroup);
  for (const char* name : {"cmdOK", "cmdCancel"}) model_.AddNoValue(name);

  LocaliseDialog(*this, catalog, parent, QString());
}

void FrmNotRenamedWindow::RememberChoiceIn(const dialog::ScriptSession& session, platform::FileSystem& fileSystem,
                                           core::FrontEnd& frontEnd) {
  session_ = &session;
  fileSystem_ = &fileSystem;
  ReadWidgetsIntoModel(model_, *this);
  dialog::RestoreDialogState(model_, model_.Name(), dialog::kSettingsMode, session, fileSystem, frontEnd);
  ShowModelInWidgets(model_, *this);
}

}  // namespace nomra::ui
