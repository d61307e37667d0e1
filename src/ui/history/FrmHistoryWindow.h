#pragma once
#include <QDialog>

#include <functional>

#include "history/HistoryList.h"
#include "history/UndoRenamings.h"
#include "lang/MessageCatalog.h"
#include "platform/FileSystem.h"

class QPushButton;
class QTreeWidget;

namespace nomra::ui {

class QtFrontEnd;

// FrmHistory: the rename protocol, one row a rename, black while the new
// name exists and red when it doesn't, with the undo of chosen renames on
// disk and the deletion of the whole protocol. Questions and failures go
// through the window's front end.
class FrmHistoryWindow final : public QDialog {
  Q_OBJECT
 public:
  FrmHistoryWindow(platform::FileSystem& fileSystem, const std::string& dataFolder, QtFrontEnd& frontEnd,
                   const lang::MessageCatalog& catalog, const QString& appTitle, QWidget* mainWindow = nullptr);

  const history::HistoryList& List() const { return list_; }

 private:
  // Runs LoadHistory, UndoRenamings or cmdDeleteHistory and shows the rows
  // after it; a protocol that can't be read or written ends the command
  // with its message.
  void Run(const std::function<void()>& command);
  // The rows of lstFiles from the list, in its order, with its selection.
  void ShowRows();
  void ShowSortArrow();
  void TakeSelection();
  void EnableButtons();
  void SortByHead(int column);

  QtFrontEnd& frontEnd_;
  history::HistoryServices services_;
  history::HistoryList list_;
  QTreeWidget* files_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* delete_ = nullptr;
};

// Shows FrmHistory modally over the main window: what mnuHistory runs.
void ShowRenameHistory(QWidget* mainWindow, platform::FileSystem& fileSystem, const std::string& dataFolder,
                       QtFrontEnd& frontEnd, const lang::MessageCatalog& catalog, const QString& appTitle);

}  // namespace nomra::ui
