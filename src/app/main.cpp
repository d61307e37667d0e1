// Nomra's window: finds the data folder, chooses the language, loads the
// main window, carries out the command line, and shows the window.
#include <QApplication>
#include <QMessageBox>

#include "core/CommandLine.h"
#include "core/ExifDateReader.h"
#include "core/Startup.h"
#include "lang/ChooseLanguage.h"
#include "platform/posix/PosixFileSystem.h"
#include "ui/common/LanguageDialog.h"
#include "ui/mainwindow/MainWindow.h"

namespace {

constexpr char kAppTitle[] = "Nomra";

// The language file to use, "" when the program has to end.
std::string PickLanguage(const nomra::StartupPaths& paths) {
  using namespace nomra::lang;
  const LanguageChoice choice = ChooseLanguage(paths.appFolder, paths.settingsPath);
  switch (choice.outcome) {
    case LanguageOutcome::Chosen:
      return choice.file;
    case LanguageOutcome::NoLanguageFiles:
      QMessageBox::critical(nullptr, kNoLanguageFilesCaption, QString::fromStdString(NoLanguageFilesText(kAppTitle)));
      return {};
    case LanguageOutcome::UserMustChoose: {
      nomra::ui::LanguageDialog dialog(paths.appFolder, paths.settingsPath, MessageCatalog(), QString());
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

  nomra::platform::PosixFileSystem fileSystem;
  nomra::NoExifDates exifDates;
  const nomra::StartupPaths paths = nomra::PrepareStartup(std::string());
  const std::string languageFile = PickLanguage(paths);
  if (languageFile.empty()) return 1;

  nomra::ui::MainWindow window({fileSystem, exifDates, paths, languageFile, kAppTitle, NOMRA_VERSION});
  // Qt has taken its own options out of argv; the rest is ours.
  window.RunCommandLine(nomra::ArgumentsFromArgv(argc, argv));
  window.ShowAtStart();
  return QApplication::exec();
}
