// Times the EXIF reader against the read it cannot avoid (the floor) and
// against Exiv2, in the same run, on the same 2,000 camera-like JPEGs, with
// the page cache warm:
//   floor:  open, the first 64 KiB (the bytes Nomra reads), close;
//   Exiv2:  Exiv2::ImageFactory::open and readMetadata, Make, Model and
//           DateTimeOriginal;
//   Nomra:  ExifInfos::Load with the POSIX file system, EXIF_Make,
//           EXIF_Model and EXIF_Date.
// The pictures are one noise image of ImageMagick (some 4 MB, so the
// scan data is a camera's size) tagged by exiftool like a camera's file
// (Make, Model, dates, exposure, a thumbnail), copied with a date of its
// own each. Each line is the median of 5 runs; the ways take turns in each
// run. Every date Nomra reads is compared with Exiv2's, and a difference
// fails the benchmark.
//
//   nomra-bench-exif [--files N] [--dir PATH] [--keep]
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exiv2/exiv2.hpp>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "FileSetBench.h"
#include "media/ExifInfos.h"
#include "platform/posix/PosixFileSystem.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 5;
constexpr char kDate[] = "2005:01:02 12:30:00";

void Shell(const std::string& command) {
  if (std::system(command.c_str()) != 0) nomra::bench::Fail("failed: " + command);
}

// A date of its own for file k, as many bytes as the one written.
std::string DateOf(int k) {
  char text[32];
  std::snprintf(text, sizeof text, "20%02d:%02d:%02d %02d:%02d:%02d", 5 + k % 15, 1 + k % 12, 1 + k % 28, k % 24,
                k % 60, (k / 60) % 60);
  return text;
}

std::vector<std::string> MakeFiles(const std::string& dir, int count) {
  const std::string picture = dir + "camera.jpg";
  const std::string thumb = dir + "thumb.jpg";
  Shell("convert -size 3600x2400 xc:gray +noise Gaussian -quality 90 -sampling-factor 1x1 '" + picture +
        "' && convert -size 160x120 xc:gray '" + thumb + "'");
  Shell(
      "exiftool -q -overwrite_original -Make='NIKON CORPORATION' -Model='NIKON D70' -Software='Ver.2.00'"
      " '-DateTimeOriginal=" +
      std::string(kDate) + "' '-CreateDate=" + kDate + "' '-ModifyDate=" + kDate +
      "' -ExposureTime=1/250 -FNumber=8 -ISO=200 -FocalLength=50 -Flash#=16 -ExposureCompensation=0"
      " -Orientation#=1 -XResolution=300 -YResolution=300 -ResolutionUnit=inches -ExifImageWidth=3600"
      " -ExifImageHeight=2400 '-ThumbnailImage<=" +
      thumb + "' '" + picture + "'");
  const std::string bytes = nomra::bench::ReadFile(picture);
  const std::size_t dateAt = bytes.find(std::string(kDate) + '\0');
  if (dateAt == std::string::npos || bytes.size() < 1000000) nomra::bench::Fail("the picture came out wrong");
  std::printf("picture: %zu bytes, first date at %zu\n", bytes.size(), dateAt);
  std::vector<std::string> paths;
  for (int k = 0; k < count; ++k) {
    std::string copy = bytes;
    // Every date of the file becomes the copy's own.
    for (std::size_t at = copy.find(kDate); at != std::string::npos; at = copy.find(kDate, at + 1)) {
      copy.replace(at, sizeof kDate - 1, DateOf(k));
    }
    paths.push_back(dir + "picture" + std::to_string(k) + ".jpg");
    std::ofstream(paths.back(), std::ios::binary) << copy;
  }
  return paths;
}

std::size_t FloorRead(const std::string& path) {
  static std::vector<char> head(64 * 1024);
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) nomra::bench::Fail("cannot open " + path);
  const ssize_t got = pread(fd, head.data(), head.size(), 0);
  close(fd);
  return got > 0 ? static_cast<std::size_t>(got) : 0;
}

std::string Exiv2Value(const Exiv2::ExifData& data, const char* key) {
  const auto found = data.findKey(Exiv2::ExifKey(key));
  return found == data.end() ? std::string() : found->toString();
}

std::size_t Exiv2Read(const std::string& path, std::string* date) {
  auto image = Exiv2::ImageFactory::open(path);
  image->readMetadata();
  const Exiv2::ExifData& data = image->exifData();
  const std::string taken = Exiv2Value(data, "Exif.Photo.DateTimeOriginal");
  if (date) *date = taken;
  return Exiv2Value(data, "Exif.Image.Make").size() + Exiv2Value(data, "Exif.Image.Model").size() + taken.size();
}

std::size_t NomraRead(nomra::platform::FileSystem& files, const std::string& path, std::string* date) {
  nomra::media::ExifInfos infos;
  if (!infos.Load(files, path)) nomra::bench::Fail("Nomra cannot read " + path);
  const std::string taken = infos.ExifDate();
  if (date) *date = taken;
  return infos.ExifMake().size() + infos.ExifModel().size() + taken.size();
}

}  // namespace

int main(int argc, char** argv) {
  const nomra::bench::FileSetOptions options = nomra::bench::ParseFileSetOptions(argc, argv, "nomra-bench-exif");
  const int count = options.count;
  const std::string& dir = options.folder;
  const bool keep = options.keep;
  const std::vector<std::string> paths = MakeFiles(dir, count);

  nomra::platform::PosixFileSystem files;
  // Every date alike, and a warm cache: one untimed pass of each way.
  // Exiv2 gives the date as stored; Nomra makes its first two ":" "-"
  // and keeps the NUL that ends it.
  int alike = 0;
  std::size_t sink = 0;
  for (const std::string& path : paths) {
    std::string nomraDate, exivDate;
    sink += FloorRead(path) + NomraRead(files, path, &nomraDate) + Exiv2Read(path, &exivDate);
    std::string expected = exivDate;
    for (int k = 0, colons = 0; k < static_cast<int>(expected.size()) && colons < 2; ++k) {
      if (expected[static_cast<std::size_t>(k)] == ':') {
        expected[static_cast<std::size_t>(k)] = '-';
        ++colons;
      }
    }
    if (nomraDate == expected + '\0') ++alike;
    else if (count - alike <= 3)
      std::printf("  date differs in %s: Nomra \"%s\", Exiv2 \"%s\"\n", path.c_str(), nomraDate.c_str(),
                  exivDate.c_str());
  }

  std::vector<double> floor, exiv2, nomra;
  for (int run = 0; run < kRuns; ++run) {
    floor.push_back(nomra::bench::TimeEach(paths, FloorRead, sink));
    exiv2.push_back(nomra::bench::TimeEach(
        paths, [](const std::string& p) { return Exiv2Read(p, nullptr); }, sink));
    nomra.push_back(nomra::bench::TimeEach(
        paths, [&files](const std::string& p) { return NomraRead(files, p, nullptr); }, sink));
  }

  std::printf("EXIF reading of %d camera-like JPEGs (%s), median of %d runs, page cache warm\n", count, dir.c_str(),
              kRuns);
  const auto line = [count](const char* who, double seconds) {
    std::printf("  %-34s %8.1f ms  %10.0f files/s\n", who, seconds * 1000, count / seconds);
  };
  const double floorTime = nomra::bench::Median(floor), exivTime = nomra::bench::Median(exiv2),
               nomraTime = nomra::bench::Median(nomra);
  line("floor (open, first 64 KiB, close)", floorTime);
  line("Exiv2 open + readMetadata", exivTime);
  line("Nomra Load", nomraTime);
  std::printf("  Nomra/floor: %.2f x the time; Nomra vs Exiv2: %.1f x as fast\n", nomraTime / floorTime,
              exivTime / nomraTime);
  std::printf("  dates alike in Nomra and Exiv2: %d of %d%s\n", alike, count, alike == count ? "" : "  CHECK FAILED");
  if (!keep) fs::remove_all(dir);
  return alike == count && sink > 0 ? 0 : 1;
}
