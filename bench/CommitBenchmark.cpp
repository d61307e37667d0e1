// Times the whole-list commit against the plain rename(2) loop that does the
// same renames (the floor), and against mmv when it is installed, in the
// same run and on the same fixtures:
//   1. N files renamed in one folder (f000000.dat -> g000000.dat),
//   2. the same spread over 100 folders,
//   3. a permutation of N files in one folder made of swaps and 3-cycles.
// Each fixture is built again before each measured run (untimed); the median
// of 3 runs is printed.
//
//   nomra-bench-commit [--files N] [--dir PATH] [--keep]
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "BenchList.h"
#include "commit/RenameFiles.h"
#include "core/AddFile.h"

namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point from) { return std::chrono::duration<double>(Clock::now() - from).count(); }

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

std::string Numbered(const char* format, int number) {
  char text[64];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

std::string Quoted(const std::string& text) {
  std::string out = "'";
  for (char c : text) {
    if (c == '\'') out += "'\\''";
    else out += c;
  }
  return out + "'";
}

// One file of a fixture: where it lies and the name it is to take.
struct Move {
  std::string folder;  // ends with '/'
  std::string from;    // name
  std::string to;      // name
};

struct Fixture {
  std::string title;
  std::string root;  // walked by AddFile; removed and built again per run
  std::vector<std::string> folders;
  std::vector<Move> moves;
  // Cycles of the permutation as indices into moves: moves[c[i]].to is
  // moves[c[i+1]].from, the last one takes the first one's name. Empty for
  // a plain mapping, whose targets are all free.
  std::vector<std::vector<int>> cycles;
  bool permutation = false;
  std::string mmvFolder;  // where mmv runs; empty: mmv is not measured
  std::string mmvFrom, mmvTo;
  double target = 0;  // at most this times the floor
};

Fixture PlainOneFolder(const std::string& root, int files) {
  Fixture fixture;
  fixture.title = "plain mapping, one folder";
  fixture.root = root + "/one";
  const std::string folder = fixture.root + "/";
  fixture.folders.push_back(folder);
  for (int i = 0; i < files; ++i) fixture.moves.push_back({folder, Numbered("f%06d.dat", i), Numbered("g%06d.dat", i)});
  fixture.mmvFolder = fixture.root;
  fixture.mmvFrom = "f*.dat";
  fixture.mmvTo = "g#1.dat";
  fixture.target = 1.3;
  return fixture;
}

Fixture PlainSpread(const std::string& root, int files, int folders) {
  Fixture fixture;
  fixture.title = "plain mapping, " + std::to_string(folders) + " folders";
  fixture.root = root + "/spread";
  for (int f = 0; f < folders; ++f) fixture.folders.push_back(fixture.root + Numbered("/d%03d/", f));
  for (int i = 0; i < files; ++i) {
    fixture.moves.push_back(
        {fixture.folders[static_cast<std::size_t>(i % folders)], Numbered("f%06d.dat", i), Numbered("g%06d.dat", i)});
  }
  fixture.mmvFolder = fixture.root;
  fixture.mmvFrom = "d*/f*.dat";
  fixture.mmvTo = "d#1/g#2.dat";
  fixture.target = 1.3;
  return fixture;
}

// Blocks of 2 (a swap) and 3 (a rotation) in turn; the sizes near the end
// are chosen so that no file is left over alone.
Fixture Permutation(const std::string& root, int files) {
  Fixture fixture;
  fixture.title = "permutation of swaps and 3-cycles, one folder";
  fixture.root = root + "/perm";
  fixture.permutation = true;
  fixture.target = 1.4;
  const std::string folder = fixture.root + "/";
  fixture.folders.push_back(folder);
  for (int i = 0; i < files; ++i) fixture.moves.push_back({folder, Numbered("p%06d.dat", i), {}});
  int start = 0;
  bool swap = true;
  while (files - start >= 2) {
    const int left = files - start;
    int size = swap ? 2 : 3;
    if (left == 2 || left == 4) size = 2;
    else if (left == 3) size = 3;
    std::vector<int> cycle;
    for (int k = 0; k < size; ++k) cycle.push_back(start + k);
    for (int k = 0; k < size; ++k) {
      Move& move = fixture.moves[static_cast<std::size_t>(cycle[static_cast<std::size_t>(k)])];
      move.to = fixture.moves[static_cast<std::size_t>(cycle[static_cast<std::size_t>((k + 1) % size)])].from;
    }
    fixture.cycles.push_back(std::move(cycle));
    start += size;
    swap = !swap;
  }
  // A single file left over keeps its name.
  for (int i = start; i < files; ++i)
    fixture.moves[static_cast<std::size_t>(i)].to = fixture.moves[static_cast<std::size_t>(i)].from;
  return fixture;
}

// Each file holds its own first name, so that a permutation can be checked.
void Build(const Fixture& fixture) {
  std::filesystem::remove_all(fixture.root);
  std::filesystem::create_directories(fixture.root);
  for (const std::string& folder : fixture.folders) std::filesystem::create_directories(folder);
  for (const Move& move : fixture.moves) {
    const std::string path = move.folder + move.from;
    const int fd = open(path.c_str(), O_CREAT | O_WRONLY | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) {
      std::perror(path.c_str());
      std::exit(1);
    }
    if (fixture.permutation &&
        write(fd, move.from.data(), move.from.size()) != static_cast<ssize_t>(move.from.size())) {
      std::perror(path.c_str());
    }
    close(fd);
  }
  sync();
}

// Every target exists; a plain mapping leaves no source behind; after a
// permutation each file holds the first name of the file that had to move there.
bool Check(const Fixture& fixture, const char* who) {
  int missing = 0;
  int leftOver = 0;
  int wrong = 0;
  for (const Move& move : fixture.moves) {
    const std::string target = move.folder + move.to;
    if (fixture.permutation) {
      const int fd = open(target.c_str(), O_RDONLY | O_CLOEXEC);
      if (fd < 0) {
        ++missing;
        continue;
      }
      char content[64];
      const ssize_t got = read(fd, content, sizeof content);
      close(fd);
      if (got < 0 || std::string(content, static_cast<std::size_t>(got)) != move.from) ++wrong;
    } else {
      struct stat info {};
      if (stat(target.c_str(), &info) != 0) ++missing;
      if (stat((move.folder + move.from).c_str(), &info) == 0) ++leftOver;
    }
  }
  if (missing + leftOver + wrong == 0) return true;
  std::printf("  CHECK FAILED (%s): %d targets missing, %d sources left, %d files with the wrong content\n", who,
              missing, leftOver, wrong);
  return false;
}

double TimeFloor(const Fixture& fixture) {
  const auto start = Clock::now();
  if (fixture.cycles.empty()) {
    for (const Move& move : fixture.moves) {
      if (rename((move.folder + move.from).c_str(), (move.folder + move.to).c_str()) != 0) std::perror("rename");
    }
  } else {
    // One temporary name per cycle: the last file steps aside, the others
    // move up one place, the one aside takes the first name.
    for (const std::vector<int>& cycle : fixture.cycles) {
      const Move& last = fixture.moves[static_cast<std::size_t>(cycle.back())];
      const std::string aside = last.folder + last.from + ".cycle-tmp";
      if (rename((last.folder + last.from).c_str(), aside.c_str()) != 0) std::perror("rename");
      for (std::size_t k = cycle.size() - 1; k-- > 0;) {
        const Move& move = fixture.moves[static_cast<std::size_t>(cycle[k])];
        if (rename((move.folder + move.from).c_str(), (move.folder + move.to).c_str()) != 0) std::perror("rename");
      }
      if (rename(aside.c_str(), (last.folder + last.to).c_str()) != 0) std::perror("rename");
    }
  }
  return Seconds(start);
}

struct NomraRun {
  double seconds = 0;
  bool ok = true;
};

NomraRun TimeNomra(const Fixture& fixture, const std::string& dataFolder) {
  nomra::bench::BenchList list;
  list.options.protocolRenames = false;
  list.options.dataFolder = dataFolder;
  list.options.loadExifDates = false;

  std::string path = fixture.root;
  nomra::core::AddFile(list.load, path);

  std::unordered_map<std::string, const std::string*> targets;
  targets.reserve(fixture.moves.size());
  for (const Move& move : fixture.moves) targets.emplace(move.folder + move.from, &move.to);
  int set = 0;
  list.state.list.ForEach([&](nomra::core::FileEntry& row) {
    const auto found = targets.find(row[nomra::core::kColPath] + row[nomra::core::kColOldName]);
    if (found == targets.end()) return;
    row[nomra::core::kColNewName] = *found->second;
    ++set;
  });
  list.preview.Refresh();

  NomraRun run;
  if (set != static_cast<int>(fixture.moves.size())) {
    std::printf("  Nomra: %d rows loaded, %d of %zu names set\n", list.state.list.Count(), set, fixture.moves.size());
    run.ok = false;
  }
  const auto start = Clock::now();
  const nomra::commit::CommitResult result = nomra::commit::mdlRenameFiles(list.Commit(), nomra::commit::kWholeList);
  run.seconds = Seconds(start);
  if (!result.notRenamed.empty()) {
    std::printf("  Nomra: %zu rows not renamed, first: %s\n", result.notRenamed.size(),
                result.notRenamed.front().Describe().c_str());
    run.ok = false;
  }
  return run;
}

std::optional<double> TimeMmv(const Fixture& fixture, const std::string& log) {
  const std::string command = "cd " + Quoted(fixture.mmvFolder) + " && mmv " + Quoted(fixture.mmvFrom) + " " +
                              Quoted(fixture.mmvTo) + " </dev/null >" + Quoted(log) + " 2>&1";
  const auto start = Clock::now();
  const int status = std::system(command.c_str());
  const double seconds = Seconds(start);
  if (status != 0) {
    std::printf("  mmv failed (status %d), see %s\n", status, log.c_str());
    return std::nullopt;
  }
  return seconds;
}

bool MmvInstalled() { return std::system("command -v mmv >/dev/null 2>&1") == 0; }

void PrintLine(const char* who, double seconds, std::size_t files) {
  std::printf("  %-18s %8.3f s  %10.0f renames/s\n", who, seconds, static_cast<double>(files) / seconds);
}

constexpr int kRuns = 3;

bool RunCase(const Fixture& fixture, const std::string& dataFolder, bool mmv, const std::string& mmvLog) {
  std::printf("\n%s: %zu files\n", fixture.title.c_str(), fixture.moves.size());
  bool ok = true;
  std::vector<double> floorTimes, nomraTimes, mmvTimes;
  for (int run = 0; run < kRuns; ++run) {
    Build(fixture);
    floorTimes.push_back(TimeFloor(fixture));
    ok = Check(fixture, "floor") && ok;

    Build(fixture);
    const NomraRun nomraRun = TimeNomra(fixture, dataFolder);
    nomraTimes.push_back(nomraRun.seconds);
    ok = nomraRun.ok && ok;
    ok = Check(fixture, "Nomra") && ok;

    if (mmv && !fixture.mmvFolder.empty()) {
      Build(fixture);
      if (const auto seconds = TimeMmv(fixture, mmvLog)) {
        mmvTimes.push_back(*seconds);
        ok = Check(fixture, "mmv") && ok;
      }
    }
  }
  const std::size_t files = fixture.moves.size();
  const double floor = Median(floorTimes);
  const double nomra = Median(nomraTimes);
  PrintLine("floor (rename(2))", floor, files);
  PrintLine("Nomra", nomra, files);
  if (!mmvTimes.empty()) PrintLine("mmv", Median(mmvTimes), files);
  else if (!mmv) std::printf("  mmv: not installed (apt-get install mmv)\n");
  else if (fixture.mmvFolder.empty())
    std::printf("  mmv: not measured (no single mmv pattern expresses this permutation)\n");
  std::printf("  ratio Nomra/floor: %.2f (target at most %.2f)%s\n", nomra / floor, fixture.target,
              nomra / floor <= fixture.target ? "" : "  MISSED");
  if (!mmvTimes.empty()) std::printf("  ratio mmv/floor:   %.2f\n", Median(mmvTimes) / floor);
  return ok;
}

}  // namespace

int main(int argc, char** argv) {
  int files = 100000;
  std::string root = (std::filesystem::temp_directory_path() / "nomra-bench-commit").string();
  bool keep = false;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--files" && i + 1 < argc) files = std::atoi(argv[++i]);
    else if (arg == "--dir" && i + 1 < argc) root = argv[++i];
    else if (arg == "--keep") keep = true;
    else {
      std::fprintf(stderr, "usage: nomra-bench-commit [--files N] [--dir PATH] [--keep]\n");
      return 2;
    }
  }
  if (files < 1) files = 1;
  std::filesystem::create_directories(root);
  root = std::filesystem::canonical(root).string();
  const std::string dataFolder = root + "/data/";
  std::filesystem::create_directories(dataFolder);
  const std::string mmvLog = root + "/mmv.log";

  const bool mmv = MmvInstalled();
  std::printf("commit of %d empty files under %s, median of %d runs, fixture rebuilt before each run\n", files,
              root.c_str(), kRuns);
  std::printf("renames/s counts files renamed, not rename(2) calls\n");
  if (!mmv) std::printf("mmv: not installed (apt-get install mmv)\n");

  bool ok = true;
  ok = RunCase(PlainOneFolder(root, files), dataFolder, mmv, mmvLog) && ok;
  ok = RunCase(PlainSpread(root, files, 100), dataFolder, mmv, mmvLog) && ok;
  ok = RunCase(Permutation(root, files), dataFolder, mmv, mmvLog) && ok;

  if (!keep) std::filesystem::remove_all(root);
  std::printf("\n%s\n", ok ? "all checks passed" : "SOME CHECKS FAILED");
  return ok ? 0 : 1;
}
