#pragma once
#include <string>

namespace nomra::testing {

// A real FAT volume: an image made by mkfs.vfat (dosfstools) and mounted
// through FUSE by fusefat, as a camera card would be read. The kernel of a
// build machine may have no vfat of its own; FUSE needs no module of its own
// per file system.
class FatVolume {
 public:
  FatVolume() = default;
  ~FatVolume() { Unmount(); }
  FatVolume(const FatVolume&) = delete;
  FatVolume& operator=(const FatVolume&) = delete;

  // Makes the image and the mount point in `workFolder` (ending with the
  // separator) and mounts it. False, with Problem() saying why, when the
  // tools, /dev/fuse or the mount itself are not to be had.
  bool Mount(const std::string& workFolder);
  // Releases the mount: fusermount first, a lazy umount when that fails.
  // Nothing happens when nothing is mounted.
  void Unmount();

  // The mount point, ending with the separator.
  const std::string& Path() const { return mountPoint_; }
  const std::string& Problem() const { return problem_; }

 private:
  bool Fail(const std::string& problem);

  std::string workFolder_;
  std::string mountPoint_;
  std::string problem_;
  bool mounted_ = false;
};

}  // namespace nomra::testing
