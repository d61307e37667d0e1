#include "ui/support/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include "base/MessageText.h"
#include "core/FileEntry.h"
#include "ui/common/TextConversion.h"

namespace nomra::ui::testing {

std::string EnglishFile() { return std::string(NOMRA_LANG_DIR) + "/English.lng"; }
std::string GermanFile() { return std::string(NOMRA_LANG_DIR) + "/Deutsch.lng"; }

bool WaitFor(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 2000); }

void WindowTest::TearDown() { EXPECT_EQ(modals.Seen(), expectedModals) << "modal dialogs opened"; }

MainWindow& WindowTest::Open(const std::string& languageFile) {
  shell::StartupPaths paths;
  paths.appFolder = app.Path();
  paths.dataFolder = data.Path();
  paths.settingsPath = SettingsPath();
  paths.dataFolderUsable = true;
  window = std::make_unique<MainWindow>(
      MainWindow::Services{*system, exifDates, paths, languageFile, QStringLiteral("Nomra"), QStringLiteral("9.8.7")});
  window->FrontEnd().SetAnswerer([this](const core::Message& message, const QString& caption, const QString& text) {
    // A fault is a message without a key: the text says what stopped.
    if (message.textKey.empty()) {
      faults.push_back(text.toStdString());
      return core::Answer::Ok;
    }
    asked.push_back({message, caption, text});
    if (answers.empty()) return core::Answer::No;
    const core::Answer answer = answers.front();
    answers.pop_front();
    return answer;
  });
  window->show();
  QApplication::processEvents();
  return *window;
}

void WindowTest::WriteSettings(const std::string& text) const { data.WriteFile("settings.nrp", text); }

std::vector<std::string> WindowTest::AddFiles(const std::vector<std::string>& names) {
  std::vector<std::string> paths;
  QStringList qtPaths;
  for (const std::string& name : names) {
    paths.push_back(files.WriteFile(name, name));
    qtPaths << ToQString(paths.back());
  }
  window->AddPaths(qtPaths);
  return paths;
}

QTableView& WindowTest::Details() const { return *window->findChild<QTableView*>("lstFilesDetails"); }

QAbstractItemModel& WindowTest::Shown() const { return *Details().model(); }

int WindowTest::ShownRows() const { return Shown().rowCount(); }

QVariant WindowTest::Shown(int position, int column, int role) const {
  return Shown().data(Shown().index(position - 1, column), role);
}

int WindowTest::PositionOf(const QString& oldName) const {
  for (int position = 1; position <= ShownRows(); ++position) {
    if (Shown(position, core::kColOldName).toString() == oldName) return position;
  }
  return 0;
}

void WindowTest::SetNewName(int position, const std::string& name) {
  window->State().list.Item(position)[core::kColNewName] = name;
}

QAction* WindowTest::MainTool(const QString& key) const { return window->ToolAction("BtnBarMain", key); }

QAction* WindowTest::Menu(const QString& name) const { return window->MenuAction(name); }

QString WindowTest::Label(const QString& objectName) const {
  const auto* label = window->findChild<QLabel*>(objectName);
  return label == nullptr ? QStringLiteral("<no label %1>").arg(objectName) : label->text();
}

QString WindowTest::LanguageText(const char* section, const char* key,
                                 const std::vector<std::string>& arguments) const {
  return QString::fromStdString(window->Catalog().GetText(section, key, arguments));
}

QString WindowTest::CountsText(int files, int folders, int changed) const {
  const std::string pattern = window->Catalog().GetText("Messages", "MsgStat01");
  return QString::fromStdString(
      base::FormatMessage(pattern, {std::to_string(files), std::to_string(folders), std::to_string(changed)}));
}

}  // namespace nomra::ui::testing
