#pragma once
#include <QDialog>

#include <string>
#include <vector>

#include "core/FrontEnd.h"
#include "formats/IniFile.h"
#include "lang/MessageCatalog.h"
#include "open/PowerFilters.h"
#include "platform/FileSystem.h"
#include "ui/open/FileTypeIcons.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QToolBar;

namespace nomra::ui {

// Nomra's own open dialog: a folder's subfolders and files, a check list of
// filters that says which files show, and the two boxes that take a folder's
// files whatever is selected. cmdOpen stages what is to be opened and hides
// the dialog; the main window loads the staged paths.
class FrmOpenWindow final : public QDialog {
  Q_OBJECT
 public:
  // What each row of lstFiles carries: its key's bytes, and whether it is a folder.
  static constexpr int kKeyRole = Qt::UserRole;
  static constexpr int kFolderRole = Qt::UserRole + 1;
  // How far a row of DrvSel is indented in its list: the levels of the folder shown.
  static constexpr int kDepthRole = Qt::UserRole + 2;

  struct Services {
    platform::FileSystem& fileSystem;
    core::FrontEnd& frontEnd;
    const lang::MessageCatalog& catalog;
    formats::IniFile settingsFile;
  };

  explicit FrmOpenWindow(Services services, QWidget* parent = nullptr);

  // Before each showing: the boxes take the stored values, the texts the
  // language in force, and the folder where the dialog opens is shown.
  void Prepare(bool allFiles, bool subFolders, bool showHiddenFiles, const std::string& folder);

  // Shows a folder, or the nearest one above it that exists; "" shows the
  // locations.
  void setPath(const std::string& path);
  // txtPfad: the folder shown, "" at the locations.
  const std::string& CurrentFolder() const { return folder_; }
  bool AtLocations() const { return atLocations_; }

  bool AllFiles() const;
  bool SubFolders() const;
  const std::vector<open::PowerFilter>& Filters() const { return filters_; }
  // The staging list of the last cmdOpen, handed over once.
  std::vector<std::string> TakeStaged() { return std::move(staged_); }

  void SelectAllRows();
  void InvertSelection();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildLayout();
  QToolBar* BuildFilterBar();
  void Localise();
  void Add2lstFiles();
  void FillLocations();
  void FillFilterList();
  void OnLocationChosen(int index);
  void AddRow(const QIcon& icon, const QString& text, const std::string& key, bool folder);
  void OnFilterItemChanged(QListWidgetItem* item);
  void OnRowActivated(QListWidgetItem* item);
  void OnSelectionChanged();
  void OnAllFilesToggled(bool on);
  void FolderUp();
  void AddFilter();
  void EditFilter();
  void DeleteFilter();
  void UpdateFilterButtons();
  bool AskFilter(const QString& title, QString& text);
  void cmdOpen();

  Services services_;
  std::vector<open::PowerFilter> filters_;
  std::vector<std::string> staged_;
  FileTypeIcons icons_;
  bool showHiddenFiles_ = false;
  bool atLocations_ = false;
  std::string folder_;

  QComboBox* locations_ = nullptr;     // DrvSel
  QLineEdit* path_ = nullptr;          // txtPfad
  QListWidget* rows_ = nullptr;        // lstFiles
  QLineEdit* names_ = nullptr;         // txtFiles
  QListWidget* filterList_ = nullptr;  // lstFilters
  QToolBar* filterBar_ = nullptr;      // BtnBarFilter
  QAction* addFilter_ = nullptr;       // its buttons Add, EditMan and DelList
  QAction* editFilter_ = nullptr;
  QAction* deleteFilter_ = nullptr;
  QToolBar* navigation_ = nullptr;   // BtnBar
  QCheckBox* allFiles_ = nullptr;    // chkAllFiles
  QCheckBox* subFolders_ = nullptr;  // chkSubFolders
};

}  // namespace nomra::ui
