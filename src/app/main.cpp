// Nomra's window: finds the data folder, chooses the language, loads the
// main window, carries out the command line, and shows the window.
#include <QApplication>
#include <QMessageBox>

#include <iostream>
#include <memory>
#include <vector>

#include "core/ExifDateReader.h"
#include "formats/IniFile.h"
#include "lang/ChooseLanguage.h"
#include "platform/Platform.h"
#include "settings/DataFolder.h"
#include "shell/CommandLine.h"
#include "shell/Startup.h"
#include "shell/WindowHelp.h"
#include "ui/common/LanguageDialog.h"
#include "ui/mainwindow/MainWindow.h"

namespace {

constexpr char kAppTitle[] = "Nomra";

// The language file to use; "" keeps the window's design captions.
std::string PickLanguage(nomra::platform::Platform& system, const nomra::shell::StartupPaths& paths) {
  nomra::platform::FileSystem& fileSystem = system.Files();
  using namespace nomra::lang;
  const nomra::formats::IniFile settingsFile(fileSystem, paths.settingsPath);
  const LanguageChoice choice = ChooseLanguage(paths.appFolder, settingsFile);
  switch (choice.outcome) {
    case LanguageOutcome::Chosen: return choice.file;
    case LanguageOutcome::NoLanguageFiles: {
      // The window still starts, in its design captions, so the files can
      // at least be looked at; the message says where the files were sought.
      const std::string text =
          NoLanguageFilesText(kAppTitle, nomra::settings::AppFolderCandidates(system.Locations().ExecutableFolder()));
      std::cerr << "nomra: " << text << '\n';
      QMessageBox::critical(nullptr, kNoLanguageFilesCaption, QString::fromStdString(text));
      return {};
    }
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
  // Before the application object, which needs a display.
  switch (nomra::shell::FindInfoRequest(std::vector<std::string>(argv + 1, argv + argc))) {
    case nomra::shell::InfoRequest::Help: nomra::shell::WriteWindowHelp(std::cout); return 0;
    case nomra::shell::InfoRequest::Version: std::cout << "nomra " << NOMRA_VERSION << '\n'; return 0;
    case nomra::shell::InfoRequest::None: break;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(kAppTitle);
  QApplication::setOrganizationName("NR-Software");
  QApplication::setApplicationVersion(NOMRA_VERSION);

  // The one place the window's program picks the system it runs on.
  const std::unique_ptr<nomra::platform::Platform> system = nomra::platform::MakeSystemPlatform();
  nomra::core::NoExifDates exifDates;
  const nomra::shell::StartupPaths paths =
      nomra::shell::PrepareStartup(system->Files(), system->Locations(), std::string());
  const std::string languageFile = PickLanguage(*system, paths);

  nomra::ui::MainWindow window({*system, exifDates, paths, languageFile, kAppTitle, NOMRA_VERSION});
  // Qt has taken its own options out of argv; the rest is ours.
  window.RunCommandLine(nomra::shell::ArgumentsFromArgv(argc, argv));
  window.ShowAtStart();
  return QApplication::exec();
}
