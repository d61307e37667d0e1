#pragma once
#include <QHash>
#include <QMainWindow>
#include <QPointer>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "commit/CommitContext.h"
#include "commit/DiskCommitter.h"
#include "core/AddFile.h"
#include "core/ExifDateReader.h"
#include "core/ListContext.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "formats/IniFile.h"
#include "lang/MessageCatalog.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "rename/ActionContext.h"
#include "shell/MainWindowSettings.h"
#include "shell/Startup.h"
#include "shell/WindowPreview.h"
#include "shell/WindowState.h"
#include "ui/common/QtFrontEnd.h"
#include "ui/mainwindow/MainWindowNames.h"
#include "ui/mainwindow/PumpingProgress.h"
#include "ui/rename/ActionDialogWindow.h"

class QAbstractItemView;
class QActionGroup;
class QComboBox;
class QLabel;
class QListView;
class QMenu;
class QStackedWidget;
class QTableView;
class QToolBar;

namespace nomra::open {
enum class OpenMode;
}

namespace nomra::ui {

class FileListModel;
class FrmOpenWindow;
class IconCellDelegate;
class ThumbnailCache;

// The three layouts of the list.
enum class ListView { Details, DetailsIcons, Icons };

// frmMain: a shell around the engine's list. Every command ends in the
// engine's refresh, and the command states it computes are the only ones
// this window shows.
class MainWindow final : public QMainWindow {
  Q_OBJECT
 public:
  struct Services {
    platform::Platform& system;
    core::ExifDateReader& exifDates;
    shell::StartupPaths paths;
    std::string languageFile;  // "" runs without texts: design captions stay
    QString appTitle = QStringLiteral("Nomra");
    QString version;
  };

  explicit MainWindow(Services services, QWidget* parent = nullptr);
  ~MainWindow() override;

  // The list, the window's own state, the options and the script session,
  // and the contexts the engine's commands are handed.
  core::ListState& State() { return state_; }
  shell::WindowState& Window() { return window_; }
  core::ListOptions& Options() { return options_; }
  dialog::ScriptSession& Script() { return script_; }
  const core::StatusTexts& Texts() const { return texts_; }
  core::ListContext List() { return {state_, frontEnd_, preview_}; }
  rename::ActionContext Actions() { return {List(), texts_, script_, system_.Files()}; }
  commit::CommitContext Commit() { return {state_, system_.Files(), frontEnd_, options_, texts_}; }
  core::ListLoad& Load() { return load_; }
  QtFrontEnd& FrontEnd() { return frontEnd_; }
  const lang::MessageCatalog& Catalog() const { return catalog_; }
  FileListModel& ListModel() { return *listModel_; }
  ThumbnailCache& Thumbnails() { return *thumbnails_; }
  const shell::MainWindowSettings& Settings() const { return settings_; }

  // The engine's refresh, then the views, the detail fields, the command
  // states and the status text follow it.
  void RefreshPreview();

  // AddFile for each path in turn, with the cancel button live between
  // them, then a refresh. Paths that vanished are passed over.
  void AddPaths(const QStringList& paths);

  // The arguments of the start, in order, with their end mark: files and
  // folders are added, "/openfromfile=" loads a playlist; then a refresh.
  void RunCommandLine(const std::vector<std::string>& arguments);

  // The last steps of the start: show the window, then the start window
  // unless switched off.
  void ShowAtStart();

  // A tool button of the main bar by its key, as if clicked.
  void RunMainToolKey(const QString& key);
  // A drop-down entry: its key becomes the button's variant, then the button runs.
  void RunDropDownEntry(const QString& buttonKey, const QString& entryKey);

  // Every menu entry and tool button runs its command through the window's
  // dispatch tables, so a name without a command shows in these queries.
  // A name without a command, or one whose command isn't built yet, does nothing.
  void RunMenuCommand(const QString& name);
  void RunToolCommand(const QString& bar, const QString& key);
  bool HasMenuCommand(const QString& name) const;
  bool HasToolCommand(const QString& bar, const QString& key) const;
  // Menu entries go by name, tool buttons and drop-down entries by bar and key.
  bool IsNotYetBuilt(const QString& name) const { return notYetBuilt_.contains(name); }
  bool IsNotYetBuilt(const QString& bar, const QString& key) const;
  // The names of all menu entries and submenus the window has.
  QStringList MenuEntryNames() const { return menuActions_.keys(); }
  // The keys of a bar's buttons and of their drop-down entries.
  QStringList ToolKeys(const QString& bar) const;
  QString ToolVariant(const QString& buttonKey) const { return variants_.value(buttonKey); }

  // Menu entries by name ("mnuUndo", "mnuViewSortingSorted(3)") and tool
  // buttons by bar and key.
  QAction* MenuAction(const QString& name) const { return menuActions_.value(name); }
  QAction* ToolAction(const QString& bar, const QString& key) const;

  ListView CurrentView() const { return view_; }
  QAbstractItemView* ActiveListView() const;
  int IconSize() const;

  // The dialog of a renaming action by its script step type, modal.
  void OpenAction(int stepType);
  // The drop-down of "RunSelectedScript" rebuilt from the scripts folder.
  void FillScriptMenu();
  // The file name the "RunSelectedScript" button plays (its Tag).
  QString SelectedScriptFile() const { return selectedScriptFile_; }

  // Puts the language's texts on the window again, e.g. after a new choice.
  void UseLanguage(const std::string& languageFile);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // Building.
  void BuildMenus();
  void BuildViewMenu(QMenu& menu);
  void BuildToolBars();
  void BuildCentral();
  void BuildStatusBar();
  QAction* AddMenuAction(QMenu& menu, const QString& name, const QString& designText,
                         const QKeySequence& shortcut = {});
  QMenu* AddSubMenu(QMenu& parent, const QString& name, const QString& designText);
  QAction* AddToolButton(QToolBar& bar, const QString& key, const QString& designTip);

  // Start.
  void LoadSettingsIntoWindow();
  void ApplyWindowPlacement();
  void setLngalt();
  // The texts of the language in force on every control, then the script
  // drop-down and the refresh.
  void ShowLanguageTexts();

  // Refresh parts.
  void ApplyCommandStates();
  void UpdateSortIndicators();
  void RestoreSelection();
  void SelectionHandler();
  void UpdateToolTips();

  // Commands.
  using Command = std::function<void()>;
  void BuildCommandTables();
  void ConnectCommands();
  void ConnectMenuEntry(QAction& action);
  void ConnectToolEntry(QAction& action, const QString& bar, const QString& key);
  // A button of a bar, or an entry of one of its buttons' drop-downs.
  QAction* ToolEntry(const QString& bar, const QString& key) const;
  void mnuOpenFile();
  void OpenFilesDialog(open::OpenMode mode);
  void ShowFrmOpen();
  // A load with the cancel button live: the flag starts clear and is cleared
  // after, a fault is shown, and the refresh follows.
  void RunLoad(const std::function<void()>& load);
  void takeChanges();
  void mnuEditMan();
  void mnuInfo();
  void mnuOptions();
  void mnuExperts();
  void mnuCopyText(int column);
  void CancelAction();
  void SetView(ListView view);
  void SetIconSizeEntry(int entry);
  void ToggleColumn(int entry);
  void SetGridLines(bool on);
  void OnRowDropped(int dragged, int target);
  void OnLabelEdited(int position, const QString& text);
  void OnIconLayoutChanged();
  void OnHeadClicked(int section);
  void ShowPopup(const QPoint& position);

  // Actions and scripts.
  ActionWindowServices ActionServices();
  void PlayScriptSteps();
  void mnuStartRecordScript();
  void mnuStopRecordScript();
  void EndRecording();
  void mnuStartRunScript();
  void RunSelectedScriptButton();
  void RunScriptFromCommandLine(const std::string& name);

  // Closing.
  void CollectLayout();
  void ApplyExpertMode();

  int SelectedPosition() const;
  void SetBusyLoading(bool loading);

  // The settings file, read and written whole at each call.
  formats::IniFile SettingsFile() const { return formats::IniFile(system_.Files(), paths_.settingsPath); }

  platform::Platform& system_;
  core::ExifDateReader& exifDates_;
  lang::MessageCatalog catalog_;
  QtFrontEnd frontEnd_;
  core::ListOptions options_;
  core::StatusTexts texts_;
  core::ListState state_;
  shell::WindowState window_;
  dialog::ScriptSession script_;
  shell::WindowPreview preview_{state_, window_, script_, frontEnd_, texts_};
  PumpingProgress progress_{frontEnd_};
  core::ListLoad load_{state_, system_.Files(), frontEnd_, progress_, exifDates_, options_, texts_};
  commit::DiskCommitter committer_{Commit()};
  shell::StartupPaths paths_;
  QString appTitle_;
  QString version_;
  shell::MainWindowSettings settings_;

  ThumbnailCache* thumbnails_ = nullptr;
  FileListModel* listModel_ = nullptr;
  QStackedWidget* views_ = nullptr;
  QTableView* details_ = nullptr;
  QListView* icons_ = nullptr;
  IconCellDelegate* iconCells_ = nullptr;
  QComboBox* applyTo_ = nullptr;
  QLabel* status_ = nullptr;
  QLabel* selectedScript_ = nullptr;
  QLabel* picture_ = nullptr;
  QLabel* detailCaptions_[kDetailFields] = {};  // lblDetail1 to lblDetail3
  QLabel* detailFields_[kDetailFields] = {};    // lbl2(1) to lbl2(3)
  QToolBar* mainBar_ = nullptr;
  QToolBar* leftBar_ = nullptr;
  QToolBar* scriptBar_ = nullptr;
  QMenu* popup_ = nullptr;
  QMenu* iconSizeMenu_ = nullptr;
  QActionGroup* viewGroup_ = nullptr;
  FrmOpenWindow* frmOpen_ = nullptr;  // made at its first use, kept as long as the window

  QHash<QString, QAction*> menuActions_;
  QHash<QString, QAction*> toolActions_;  // "bar/key"
  QHash<QString, QString> variants_;      // the Tag of the drop-down buttons
  QHash<QString, QString> baseToolTips_;  // tool tip without the variant
  QSet<QString> notYetBuilt_;             // commands whose dialog comes later

  // The dispatch tables, filled in one place (BuildCommandTables).
  QHash<QString, Command> menuCommands_;  // menu entry name
  // Numbered entries ("mnuViewPre(3)") share their family's command, which gets the number.
  QHash<QString, std::function<void(int)>> numberedMenuCommands_;
  QHash<QString, Command> toolCommands_;  // "bar/key", drop-down entries too

  ListView view_ = ListView::Details;
  int iconSizeEntry_ = 1;
  int lastSelectedIndex_ = 0;
  bool labelEditing_ = false;
  bool loading_ = false;
  QString selectedScriptFile_;
};

}  // namespace nomra::ui
