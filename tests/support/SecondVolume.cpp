#include "support/SecondVolume.h"

#include <sys/stat.h>
#include <unistd.h>

#include <exception>

#include "support/ScopedEnvironment.h"

namespace nomra::testing {

bool IsSecondVolumeBeside(const std::string& folder) {
  struct stat volume {};
  struct stat usual {};
  return stat(kSecondVolume, &volume) == 0 && stat(folder.c_str(), &usual) == 0 && volume.st_dev != usual.st_dev &&
         access(kSecondVolume, W_OK) == 0;
}

std::unique_ptr<TempFolder> FolderOnSecondVolume(const TempFolder& usual) {
  if (!IsSecondVolumeBeside(usual.Path())) return nullptr;
  ScopedEnvironment tmpdir("TMPDIR", kSecondVolume);
  try {
    return std::make_unique<TempFolder>();
  } catch (const std::exception&) {
    return nullptr;
  }
}

}  // namespace nomra::testing
