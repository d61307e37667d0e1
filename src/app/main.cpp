// Nomra's window: finds the data folder, chooses the language, loads the
// main window, carries out the command line, and shows the window.
#include <QApplication>
#include <QMessageBox>

#include <memory>

#include "core/ExifDateReader.h"
#include "formats/IniFile.h"
#include "lang/ChooseLanguage.h"
#include "platform/Platform.h"
#include "shell/CommandLine.h"
#include "shell/Startup.h"
#include "ui/common/LanguageDialog.h"
#include "ui/mainwindow/MainWindow.h"

namespace {

constexpr char kAppTitle[] = "Nomra";

// The language file to use, "" when the program has to end.
std::string PickLanguage(nomra::platform::FileSystem& fileSystem, const nomra::shell::StartupPaths& paths) {
  using namespace nomra::lang;
  const nomra::formats::IniFile settingsFile(fileSystem, paths.settingsPath);
  const LanguageChoice choice = ChooseLanguage(paths.appFolder, settingsFile);
  switch (choice.outcome) {
    case LanguageOutcome::Chosen: return choice.file;
    case LanguageOutcome::NoLanguageFiles:
      QMessageBox::critical(nullptr, kNoLanguageFilesCaption, QString::fromStdString(NoLanguageFilesText(kAppTitle)));
      return {};
    case LanguageOutcome::UserMustChoose: {
      nomra::ui::LanguageDialog dialog(paths.appFolder, settingsFile, MessageCatalog(), QString());
      dialog.exec();
      // Closing the choice without one still starts, in the first language found.
      return dialog.ChosenFile().empty() ? choice.candidates.front().path : dialog.ChosenFile();
    }
  }
  return {};
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(kAppTitle);
  QApplication::setOrganizationName("NR-Software");
  QApplication::setApplicationVersion(NOMRA_VERSION);

  // The one place the window's program picks the system it runs on.
  const std::unique_ptr<nomra::platform::Platform> system = nomra::platform::MakeSystemPlatform();
  nomra::core::NoExifDates exifDates;
  const nomra::shell::StartupPaths paths =
      nomra::shell::PrepareStartup(system->Files(), system->Locations(), std::string());
  const std::string languageFile = PickLanguage(system->Files(), paths);
  if (languageFile.empty()) return 1;

  nomra::ui::MainWindow window({*system, exifDates, paths, languageFile, kAppTitle, NOMRA_VERSION});
  // Qt has taken its own options out of argv; the rest is ours.
  window.RunCommandLine(nomra::shell::ArgumentsFromArgv(argc, argv));
  window.ShowAtStart();
  return QApplication::exec();
}
