// Times what a person waits for in the window: the start up to the first
// painted list, empty and with a large folder tree from the command line,
// and a refresh of the large list including its repaint.
//
//   nomra-bench-gui [--quick] [--files N] [--folders F] [--runs R] [--dir PATH] [--keep]
//
// Runs on the offscreen platform unless QT_QPA_PLATFORM names another one.
#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "BenchTree.h"
#include "core/ExifDateReader.h"
#include "core/FileEntry.h"
#include "platform/Platform.h"
#include "shell/CommandLine.h"
#include "shell/Startup.h"
#include "ui/mainwindow/MainWindow.h"

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

using nomra::bench::MakeTree;

// The peak resident size so far, from the kernel's own account.
double PeakResidentMiB() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.rfind("VmHWM:", 0) == 0) return std::atof(line.c_str() + 6) / 1024.0;
  }
  return -1;
}

// Notes the moment the watched widget is first painted.
class FirstPaintWatch final : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_) {
      painted_ = true;
      at_ = Clock::now();
    }
    return QObject::eventFilter(watched, event);
  }
  bool Painted() const { return painted_; }
  Clock::time_point At() const { return at_; }

 private:
  bool painted_ = false;
  Clock::time_point at_;
};

// A fresh data folder for each window, with settings that keep the start
// window away and pick English, as a user's second start would.
class DataFolder {
 public:
  DataFolder() {
    path_ = std::filesystem::temp_directory_path() / ("nomra-bench-gui-data-" + std::to_string(getpid()));
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
    std::ofstream(path_ / "settings.nrp")
        << "[Settings]\r\nlng=English\r\nsplash=0\r\nbtnbarMain=1\r\nbtnbarScript=1\r\n";
  }
  ~DataFolder() { std::filesystem::remove_all(path_); }
  std::string Path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

// The English file beside the executable when the build copied it there,
// else the one in the sources.
std::string LanguageFile(const nomra::shell::StartupPaths& paths) {
  const std::string besideProgram = paths.appFolder + "English.lng";
  if (std::filesystem::exists(besideProgram)) return besideProgram;
  return std::string(NOMRA_SOURCE_LANG_DIR) + "/English.lng";
}

struct StartTimes {
  double construct = 0;  // MainWindow's constructor
  double load = 0;       // the command line's AddFile
  double refresh = 0;    // RefreshPreview after the load
  double toPaint = 0;    // show() up to the first paint of the list
  double total = 0;      // constructor up to the first paint
  int rows = 0;
};

struct Services {
  std::unique_ptr<nomra::platform::Platform> system = nomra::platform::MakeSystemPlatform();
  nomra::core::NoExifDates exifDates;
};

// A window with the data folder it was started on; the window goes first.
struct OpenWindow {
  std::unique_ptr<DataFolder> data;
  std::unique_ptr<nomra::ui::MainWindow> window;
  void Close() {
    window.reset();
    data.reset();
  }
};

// One start as the program does it: window, command line, refresh, show,
// then events until the list has painted. An empty root means no arguments.
StartTimes TimeStart(Services& services, const std::string& root, OpenWindow& open) {
  open.Close();
  open.data = std::make_unique<DataFolder>();
  const nomra::shell::StartupPaths paths =
      nomra::shell::PrepareStartup(services.system->Files(), services.system->Locations(), open.data->Path());
  const std::string language = LanguageFile(paths);
  StartTimes times;

  const auto start = Clock::now();
  auto window = std::make_unique<nomra::ui::MainWindow>(nomra::ui::MainWindow::Services{
      *services.system, services.exifDates, paths, language, QStringLiteral("Nomra"), QString()});
  const auto built = Clock::now();
  std::vector<std::string> arguments;
  if (!root.empty()) arguments.push_back(root);
  arguments.push_back("");
  nomra::shell::RunCommandLine(arguments, window->Load(), nomra::shell::CommandLineSwitches{});
  const auto loaded = Clock::now();
  window->RefreshPreview();
  const auto refreshed = Clock::now();

  FirstPaintWatch watch;
  window->ActiveListView()->viewport()->installEventFilter(&watch);
  window->show();
  QElapsedTimer guard;
  guard.start();
  while (!watch.Painted() && guard.elapsed() < 30000) {
    QApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  window->ActiveListView()->viewport()->removeEventFilter(&watch);
  if (!watch.Painted()) std::fprintf(stderr, "the list was never painted within 30 s\n");

  times.construct = Milliseconds(start, built);
  times.load = Milliseconds(built, loaded);
  times.refresh = Milliseconds(loaded, refreshed);
  times.toPaint = Milliseconds(refreshed, watch.At());
  times.total = Milliseconds(start, watch.At());
  times.rows = window->State().list.Count();
  open.window = std::move(window);
  return times;
}

struct StartSummary {
  StartTimes median;
  int rows = 0;
};

StartSummary MedianStart(Services& services, const std::string& root, int runs, OpenWindow& last) {
  std::vector<double> construct, load, refresh, toPaint, total;
  StartSummary summary;
  // One untimed start warms the caches of fonts, icons and the file system.
  TimeStart(services, root, last);
  for (int run = 0; run < runs; ++run) {
    const StartTimes t = TimeStart(services, root, last);
    construct.push_back(t.construct);
    load.push_back(t.load);
    refresh.push_back(t.refresh);
    toPaint.push_back(t.toPaint);
    total.push_back(t.total);
    summary.rows = t.rows;
  }
  summary.median = {Median(construct), Median(load), Median(refresh), Median(toPaint), Median(total), summary.rows};
  return summary;
}

// RefreshPreview followed by a synchronous repaint of the list, as the user
// sees it after every command.
double TimeRefreshAndRepaint(nomra::ui::MainWindow& window) {
  const auto start = Clock::now();
  window.RefreshPreview();
  window.ActiveListView()->viewport()->repaint();
  return Milliseconds(start, Clock::now());
}

// Every row gets a new pending name that differs from the last refresh's,
// so that each refresh pushes a history level.
void MakeEveryRowPending(nomra::core::FileList& list, int round) {
  const std::string suffix = round % 2 == 0 ? "_a" : "_b";
  list.ForEach(
      [&](nomra::core::FileEntry& row) { row[nomra::core::kColNewName] = row[nomra::core::kColOldName] + suffix; });
}

struct RefreshSummary {
  double unchanged = 0;
  double pending = 0;
  int changedCount = 0;
  int undoLevels = 0;
};

RefreshSummary TimeRefreshes(nomra::ui::MainWindow& window, int runs) {
  RefreshSummary summary;
  std::vector<double> unchanged;
  TimeRefreshAndRepaint(window);
  for (int run = 0; run < runs; ++run) unchanged.push_back(TimeRefreshAndRepaint(window));

  std::vector<double> pending;
  MakeEveryRowPending(window.State().list, 0);
  TimeRefreshAndRepaint(window);
  for (int run = 0; run < runs; ++run) {
    MakeEveryRowPending(window.State().list, run + 1);
    pending.push_back(TimeRefreshAndRepaint(window));
  }
  summary.unchanged = Median(unchanged);
  summary.pending = Median(pending);
  summary.changedCount = window.State().changedCount;
  summary.undoLevels = window.State().undoLevels;
  return summary;
}

void PrintStart(const char* what, const StartSummary& s, int runs) {
  std::printf("%-34s %8.1f ms  (rows %d, median of %d)\n", what, s.median.total, s.rows, runs);
  std::printf("  %-32s %8.1f ms\n", "constructing MainWindow", s.median.construct);
  if (s.rows > 0) std::printf("  %-32s %8.1f ms\n", "command line (AddFile)", s.median.load);
  std::printf("  %-32s %8.1f ms\n", "RefreshPreview", s.median.refresh);
  std::printf("  %-32s %8.1f ms\n", "show() to first paint", s.median.toPaint);
}

// The offscreen platform says on every window that it can't pass size
// hints on; that line would bury the table.
void DropPlatformNotes(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.contains(QLatin1String("propagateSizeHints"))) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

}  // namespace

int main(int argc, char** argv) {
  // A benchmark needs no screen; a given platform (e.g. xcb) still wins.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(DropPlatformNotes);
  QApplication app(argc, argv);

  int files = 100000;
  int folders = 1000;
  int runs = 5;
  int refreshRuns = 10;
  bool keep = false;
  std::string root;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--quick") {
      files = 10000;
      folders = 100;
      runs = 3;
    } else if (arg == "--files" && i + 1 < argc) {
      files = std::atoi(argv[++i]);
    } else if (arg == "--folders" && i + 1 < argc) {
      folders = std::atoi(argv[++i]);
    } else if (arg == "--runs" && i + 1 < argc) {
      runs = std::max(1, std::atoi(argv[++i]));
    } else if (arg == "--dir" && i + 1 < argc) {
      root = argv[++i];
    } else if (arg == "--keep") {
      keep = true;
    }
  }
  if (root.empty()) {
    root = (std::filesystem::temp_directory_path() / ("nomra-bench-gui-tree-" + std::to_string(files))).string();
  }
  const bool madeTree = !std::filesystem::exists(root);
  if (madeTree) MakeTree(root, files, folders);

  Services services;
  OpenWindow open;

  std::printf("platform: %s, tree: %d empty files in %d folders under %s\n",
              qPrintable(QGuiApplication::platformName()), files, folders, root.c_str());
  std::printf("%s\n", std::string(72, '-').c_str());

  const StartSummary empty = MedianStart(services, std::string(), runs, open);
  PrintStart("start to first paint, empty list", empty, runs);
  open.Close();

  const StartSummary full = MedianStart(services, root, runs, open);
  PrintStart("start to first paint, from argv", full, runs);
  std::printf("  %-32s %8.1f MiB (VmHWM after the runs above)\n", "peak resident size", PeakResidentMiB());

  nomra::ui::MainWindow& window = *open.window;
  const RefreshSummary refresh = TimeRefreshes(window, refreshRuns);
  std::printf("RefreshPreview + repaint, rows %d (median of %d, target under 150 ms)\n", window.State().list.Count(),
              refreshRuns);
  std::printf("  %-32s %8.1f ms  %s\n", "no pending change", refresh.unchanged,
              refresh.unchanged < 150 ? "ok" : "OVER TARGET");
  std::printf("  %-32s %8.1f ms  %s  (changed %d, undo levels %d)\n", "every row pending", refresh.pending,
              refresh.pending < 150 ? "ok" : "OVER TARGET", refresh.changedCount, refresh.undoLevels);
  std::printf("  %-32s %8.1f MiB\n", "peak resident size", PeakResidentMiB());

  open.Close();
  if (madeTree && !keep) std::filesystem::remove_all(root);
  return 0;
}
