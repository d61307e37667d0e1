#include "platform/posix/PosixOpenFile.h"

#include <unistd.h>

#include <cerrno>

namespace nomra::platform {

int PosixOpenFile::Sync(bool dataOnly) {
  const int result = dataOnly ? fdatasync(fd_.Get()) : fsync(fd_.Get());
  return result == 0 ? 0 : errno;
}

}  // namespace nomra::platform
