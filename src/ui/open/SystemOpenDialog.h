#pragma once
#include <QFileDialog>
#include <QString>

#include <vector>

#include "lang/MessageCatalog.h"
#include "open/OpenCommand.h"

class QCheckBox;
class QLineEdit;

namespace nomra::ui {

// The open dialog of the system's kind, with a folder mode: Qt's own file
// dialog (not the desktop's, which can't carry a panel) with the panel
// FrameOpenDialog and its check boxes chkAll and chkSub below its controls.
// In the playlist mode it has no panel.
class SystemOpenDialog final : public QFileDialog {
  Q_OBJECT
 public:
  struct Setup {
    open::OpenMode mode = open::OpenMode::Files;
    std::vector<open::FilterRow> filters;
    int filterIndex = 1;  // 1-based row shown first
    QString folder;
    QString title;
    QString allFilesLabel;  // what the name field shows while chkAll is on
    bool allFiles = false;
    bool subFolders = false;
  };

  SystemOpenDialog(Setup setup, const lang::MessageCatalog& catalog, QWidget* parent = nullptr);

  // The panel and its boxes; null in the playlist mode.
  QWidget* Panel() const { return panel_; }
  QCheckBox* AllFilesBox() const { return allFiles_; }
  QCheckBox* SubFoldersBox() const { return subFolders_; }
  QLineEdit* NameField() const;

  bool AllFiles() const;
  bool SubFolders() const;

  // What the accepted dialog delivered: with chkAll on, the folder shown,
  // whatever the name field holds; otherwise the chosen files.
  open::OpenChoice Choice() const;

 public slots:
  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildPanel(const lang::MessageCatalog& catalog);
  void SetNameText(bool allFiles);
  void OnAllFilesToggled(bool on);
  void OnCurrentChanged(const QString& path);
  int ChosenFilterIndex() const;

  Setup setup_;
  QStringList nameFilters_;
  QWidget* panel_ = nullptr;
  QCheckBox* allFiles_ = nullptr;
  QCheckBox* subFolders_ = nullptr;
  QWidget* openButton_ = nullptr;
};

}  // namespace nomra::ui
