#pragma once
#include <QString>
#include <QStringList>
#include <QVariant>
#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/ExifDateReader.h"
#include "core/FrontEnd.h"
#include "platform/Platform.h"
#include "support/TempFolder.h"
#include "ui/mainwindow/MainWindow.h"
#include "ui/support/ModalWatcher.h"

class QAction;
class QAbstractItemModel;
class QTableView;

// Failures show Qt strings as text.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace nomra::ui::testing {

// The shipped language files, where they lie in the source tree.
std::string EnglishFile();
std::string GermanFile();

// Waits, letting events through, until the condition holds or two seconds passed.
bool WaitFor(const std::function<bool()>& condition);

// A question the window asked through its front end.
struct AskedQuestion {
  core::Message message;
  QString caption;
  QString text;
};

// Nomra's real main window over real files in temporary folders: the program
// folder, the data folder with the settings file, and a folder of files to
// list. Questions are answered from a script; modal dialogs that nobody
// expected are closed and make the test fail.
class WindowTest : public ::testing::Test {
 protected:
  void TearDown() override;

  // Opens and shows the window over the settings written so far; "" runs
  // without a language file.
  MainWindow& Open(const std::string& languageFile = EnglishFile());
  void WriteSettings(const std::string& text) const;
  std::string SettingsPath() const { return data.Path() + "settings.nrp"; }

  // Writes the files (each holding its own name) and adds them through the
  // window, in this order; a name need not be UTF-8. Returns their full paths.
  std::vector<std::string> AddFiles(const std::vector<std::string>& names);

  // What the details view shows: its model, rows from 1.
  QTableView& Details() const;
  QAbstractItemModel& Shown() const;
  int ShownRows() const;
  QVariant Shown(int position, int column, int role = Qt::DisplayRole) const;
  // The position of the row whose old name this is, 0 when none shows it.
  int PositionOf(const QString& oldName) const;

  // The pending name of a row, as an action would write it; the caller refreshes.
  void SetNewName(int position, const std::string& name);

  QAction* MainTool(const QString& key) const;
  QAction* Menu(const QString& name) const;
  QString Label(const QString& objectName) const;
  // A text of the window's language file.
  QString LanguageText(const char* section, const char* key, const std::vector<std::string>& arguments = {}) const;
  // Status text 1 with the three counts, as the status panel should show it.
  QString CountsText(int files, int folders, int changed) const;

  std::deque<core::Answer> answers;  // taken in order; when none is left, No
  std::vector<AskedQuestion> asked;
  std::vector<std::string> faults;

  nomra::testing::TempFolder app;
  nomra::testing::TempFolder data;
  nomra::testing::TempFolder files;
  std::unique_ptr<platform::Platform> system = platform::MakeSystemPlatform();
  core::NoExifDates exifDates;
  ModalWatcher modals;
  // The dialogs a test opens on purpose, by object name.
  QStringList expectedModals;
  std::unique_ptr<MainWindow> window;
};

}  // namespace nomra::ui::testing
