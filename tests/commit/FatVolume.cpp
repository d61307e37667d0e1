#include "commit/FatVolume.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <vector>

#include "support/TempFolder.h"

namespace nomra::testing {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kImageBytes = 16u << 20;  // FAT16 holds this size comfortably
constexpr long kFuseMagic = 0x65735546;

// mkfs.vfat lives in sbin, which a plain user's PATH often lacks.
std::string FindTool(const std::string& name) {
  std::string folders = std::getenv("PATH") != nullptr ? std::getenv("PATH") : "";
  folders += ":/usr/sbin:/sbin:/usr/bin:/bin";
  std::istringstream parts(folders);
  std::string folder;
  while (std::getline(parts, folder, ':')) {
    if (folder.empty()) continue;
    const std::string candidate = folder + "/" + name;
    if (access(candidate.c_str(), X_OK) == 0) return candidate;
  }
  return {};
}

struct ToolRun {
  int exitCode = -1;
  std::string output;  // stdout and stderr together

  std::string Describe() const {
    std::string text = "exit code " + std::to_string(exitCode);
    if (!output.empty()) text += ", said: " + output;
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
  }
};

// Output goes to a file rather than a pipe: fusefat leaves a daemon behind,
// which would hold a pipe open after the command itself has ended.
ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& outputPath) {
  ToolRun run;
  const pid_t child = fork();
  if (child < 0) {
    run.output = std::string("fork failed: ") + std::strerror(errno);
    return run;
  }
  if (child == 0) {
    const int out = open(outputPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (out >= 0) {
      dup2(out, STDOUT_FILENO);
      dup2(out, STDERR_FILENO);
      close(out);
    }
    std::vector<char*> argv;
    for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    execv(argv[0], argv.data());
    _exit(127);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  run.output = ReadWholeFile(outputPath);
  return run;
}

// A FUSE file system on the mount point, and not the folder it hides.
bool IsFuseMountPoint(const std::string& mountPoint) {
  struct statfs volume {};
  if (statfs(mountPoint.c_str(), &volume) != 0 || static_cast<long>(volume.f_type) != kFuseMagic) return false;
  struct stat inner {};
  struct stat outer {};
  return stat(mountPoint.c_str(), &inner) == 0 && stat((mountPoint + "..").c_str(), &outer) == 0 &&
         inner.st_dev != outer.st_dev;
}

}  // namespace

bool FatVolume::Fail(const std::string& problem) {
  problem_ = problem;
  return false;
}

bool FatVolume::Mount(const std::string& workFolder) {
  workFolder_ = workFolder;
  const std::string mkfs = FindTool("mkfs.vfat");
  if (mkfs.empty()) return Fail("mkfs.vfat was not found (Debian package dosfstools is not installed)");
  const std::string fusefat = FindTool("fusefat");
  if (fusefat.empty()) return Fail("fusefat was not found (Debian package fusefat is not installed)");
  const int fuse = open("/dev/fuse", O_RDWR | O_CLOEXEC);
  if (fuse < 0) return Fail(std::string("/dev/fuse cannot be opened: ") + std::strerror(errno));
  close(fuse);

  const std::string image = workFolder + "fat16.img";
  std::ofstream(image, std::ios::binary).close();
  std::error_code error;
  fs::resize_file(image, kImageBytes, error);
  if (error) return Fail("the image " + image + " cannot be made: " + error.message());
  const ToolRun formatted = RunTool({mkfs, "-F", "16", "-n", "NOMRA", image}, workFolder + "mkfs.out");
  if (formatted.exitCode != 0) return Fail("mkfs.vfat -F 16 failed: " + formatted.Describe());

  mountPoint_ = workFolder + "fat/";
  fs::create_directories(mountPoint_, error);
  if (error) return Fail("the mount point " + mountPoint_ + " cannot be made: " + error.message());
  const ToolRun mount = RunTool({fusefat, "-o", "rw+", image, mountPoint_}, workFolder + "fusefat.out");
  if (mount.exitCode != 0) return Fail("fusefat could not mount the image: " + mount.Describe());
  // fusefat mounts before it leaves its daemon behind; the wait only covers
  // a slow start of that daemon.
  for (int tries = 0; tries < 40 && !IsFuseMountPoint(mountPoint_); ++tries) {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  if (!IsFuseMountPoint(mountPoint_)) return Fail("fusefat ended well but nothing is mounted on " + mountPoint_);
  mounted_ = true;
  return true;
}

void FatVolume::Unmount() {
  if (!mounted_) return;
  mounted_ = false;
  for (const char* name : {"fusermount", "fusermount3"}) {
    const std::string tool = FindTool(name);
    if (!tool.empty() && RunTool({tool, "-u", mountPoint_}, workFolder_ + "unmount.out").exitCode == 0) return;
  }
  // Busy or without fusermount: the lazy unmount lets go as soon as it can,
  // so the temporary folder under the mount point can still be removed.
  const std::string umount = FindTool("umount");
  if (!umount.empty()) RunTool({umount, "-l", mountPoint_}, workFolder_ + "unmount.out");
}

}  // namespace nomra::testing
