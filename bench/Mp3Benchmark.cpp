// Times the MP3 reader against the reads it cannot avoid (the floor) and
// against TagLib, in the same run, on the same 2,000 real MP3 files, with
// the page cache warm:
//   floor:  open, fstat, the last 128 bytes, the first 8,192 and the 8,192
//           behind the ID3v2 tag (the bytes Nomra reads), close;
//   TagLib: TagLib::MPEG::File with its tags and audio properties (Average
//           and Fast read styles), title, artist, length, bitrate;
//   Nomra:  Mp3Infos::GetFileInfos with the POSIX file system, Id3Artist,
//           Id3SongTitle, Mp3Length.
// The files are lame encodings made by scripts/make-mp3-fixtures.sh (five
// bodies: CBR 128k, VBR, mono, 48 kHz, MPEG 2) behind ID3v2.3 tags built
// here with varied texts (Latin-1 and UTF-16), frames and padding, half of
// them with an ID3v1 record. Each line is the median of 5 runs; the ways
// take turns in each run. Every title Nomra reads is compared with
// TagLib's, and a difference fails the benchmark.
//
//   nomra-bench-mp3 [--files N] [--dir PATH] [--keep]
#include <fcntl.h>
#include <sys/stat.h>
#include <taglib/mpegfile.h>
#include <taglib/tag.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "FileSetBench.h"
#include "media/Mp3Infos.h"
#include "platform/posix/PosixFileSystem.h"
#include "structure/FileTagSteps.h"
#include "structure/StructureEngine.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 5;
constexpr double kTargetOverTagLib = 2.0;

std::string Syncsafe(std::uint32_t size) {
  std::string out(4, '\0');
  for (int k = 3; k >= 0; --k, size >>= 7) out[static_cast<std::size_t>(k)] = static_cast<char>(size & 0x7F);
  return out;
}

std::string Frame(const std::string& id, const std::string& data) {
  const auto size = static_cast<std::uint32_t>(data.size());
  std::string out = id;
  for (int shift = 24; shift >= 0; shift -= 8) out += static_cast<char>((size >> shift) & 0xFF);
  return out + std::string(2, '\0') + data;
}

// Latin-1 bytes as a frame's text, or as UTF-16 with its byte order mark.
std::string Text(const std::string& latin1, bool utf16) {
  if (!utf16) return std::string(1, '\0') + latin1;
  std::string out = "\x01\xFF\xFE";
  for (char c : latin1) out += std::string{c, '\0'};
  return out;
}

std::string Id3v1(const std::string& title, const std::string& artist, int track) {
  const auto field = [](std::string text, std::size_t width) {
    text.resize(width, '\0');
    return text;
  };
  std::string comment = field("bench", 28);
  comment += '\0';
  comment += static_cast<char>(track);
  return "TAG" + field(title, 30) + field(artist, 30) + field("Bench album", 30) + "2024" + comment + "\x0D";
}

// The title file k carries, in Latin-1: what both readers must give back.
std::string TitleOf(int k) { return "Title " + std::to_string(k) + (k % 2 ? " caf\xE9" : " song"); }

std::string TagOf(int k) {
  const bool utf16 = k % 3 == 0;
  std::string body = Frame("TIT2", Text(TitleOf(k), utf16)) +
                     Frame("TPE1", Text("Artist " + std::to_string(k % 97), utf16)) +
                     Frame("TALB", Text("Album " + std::to_string(k % 31), utf16)) +
                     Frame("TYER", Text(std::to_string(1970 + k % 50), false)) +
                     Frame("TRCK", Text(std::to_string(1 + k % 20), false)) +
                     Frame("TCON", Text("(" + std::to_string(k % 80) + ")", false));
  if (k % 4 == 0) body += Frame("COMM", std::string("\0eng\0", 5) + "A comment on file " + std::to_string(k));
  body += std::string(static_cast<std::size_t>((k % 5) * 512), '\0');
  return "ID3\x03" + std::string(2, '\0') + Syncsafe(static_cast<std::uint32_t>(body.size())) + body;
}

std::vector<std::string> MakeFiles(const std::string& folder, int count) {
  const std::string fixtures = folder + "fixtures/";
  const std::string command =
      "bash '" NOMRA_SOURCE_DIR "/scripts/make-mp3-fixtures.sh' '" + fixtures + "' >'" + folder + "fixtures.log' 2>&1";
  if (std::system(command.c_str()) != 0)
    nomra::bench::Fail("make-mp3-fixtures.sh failed, see " + folder + "fixtures.log");
  std::vector<std::string> bodies;
  for (const char* name : {"lame_cbr128.mp3", "lame_vbr_v2_xing.mp3", "lame_cbr64_mono.mp3", "lame_cbr128_48k.mp3",
                           "lame_mpeg2_22k_joint.mp3"}) {
    bodies.push_back(nomra::bench::ReadFile(fixtures + name));
    if (bodies.back().empty()) nomra::bench::Fail(std::string("no ") + name);
  }
  fs::remove_all(fixtures);
  std::vector<std::string> paths;
  const std::string files = folder + "files/";
  fs::create_directories(files);
  for (int k = 0; k < count; ++k) {
    std::string bytes = TagOf(k) + bodies[static_cast<std::size_t>(k) % bodies.size()];
    if (k % 2 == 0) bytes += Id3v1(TitleOf(k).substr(0, 30), "Artist " + std::to_string(k % 97), 1 + k % 20);
    paths.push_back(files + "track" + std::to_string(k) + ".mp3");
    std::ofstream(paths.back(), std::ios::binary) << bytes;
  }
  return paths;
}

std::size_t FloorRead(const std::string& path) {
  const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) nomra::bench::Fail("cannot open " + path);
  struct stat st {};
  fstat(fd, &st);
  char tail[128], head[8192], behind[8192];
  std::size_t got = static_cast<std::size_t>(pread(fd, tail, sizeof tail, st.st_size - 128));
  got += static_cast<std::size_t>(pread(fd, head, sizeof head, 0));
  if (std::memcmp(head, "ID3", 3) == 0) {
    const auto b = [&head](int k) { return static_cast<off_t>(static_cast<unsigned char>(head[k])); };
    const off_t tagEnd = 10 + (b(6) << 21) + (b(7) << 14) + (b(8) << 7) + b(9);
    got += static_cast<std::size_t>(pread(fd, behind, sizeof behind, tagEnd));
  }
  close(fd);
  return got;
}

std::size_t TagLibRead(const std::string& path, TagLib::AudioProperties::ReadStyle style, std::string* title) {
  TagLib::MPEG::File file(path.c_str(), true, style);
  if (!file.isValid() || !file.tag() || !file.audioProperties()) nomra::bench::Fail("TagLib cannot read " + path);
  if (title) *title = file.tag()->title().to8Bit(true);
  return file.tag()->title().size() + file.tag()->artist().size() +
         static_cast<std::size_t>(file.audioProperties()->lengthInSeconds() + file.audioProperties()->bitrate());
}

std::size_t NomraRead(nomra::platform::FileSystem& files, const std::string& path, std::string* title) {
  nomra::media::Mp3Infos infos;
  if (!infos.GetFileInfos(files, path)) nomra::bench::Fail("Nomra cannot read " + path);
  if (title) *title = infos.Id3SongTitle();
  return infos.Id3Artist().size() + infos.Id3SongTitle().size() + infos.Mp3Length().size();
}

// The structure a music collection is renamed by, evaluated as the list
// does for each row: the file tags read through the structure's readers.
std::size_t EvaluateSongName(const nomra::structure::FileTagSteps& readers, const std::string& path) {
  nomra::core::FileEntry row;
  row.key = path;
  row[nomra::core::kColNewName] = path.substr(path.rfind('/') + 1);
  return nomra::structure::EvaluateStructure(row, "<ID3_Artist> - <ID3_SongTitle><.EXT>", readers).size();
}

}  // namespace

int main(int argc, char** argv) {
  const nomra::bench::FileSetOptions options = nomra::bench::ParseFileSetOptions(argc, argv, "nomra-bench-mp3");
  const int count = options.count;
  const std::string& dir = options.folder;
  const bool keep = options.keep;
  const std::vector<std::string> paths = MakeFiles(dir, count);

  nomra::platform::PosixFileSystem files;
  // Every title alike, and a warm cache: one untimed pass of each way.
  int alike = 0;
  std::size_t sink = 0;
  for (const std::string& path : paths) {
    std::string nomraTitle, taglibTitle;
    sink += FloorRead(path) + NomraRead(files, path, &nomraTitle) +
            TagLibRead(path, TagLib::AudioProperties::Average, &taglibTitle);
    if (nomraTitle == taglibTitle) ++alike;
    else if (count - alike <= 3)
      std::printf("  title differs in %s: Nomra \"%s\", TagLib \"%s\"\n", path.c_str(), nomraTitle.c_str(),
                  taglibTitle.c_str());
  }

  const nomra::structure::FileTagSteps readers(files);
  std::vector<double> floor, average, fast, nomra, structure;
  for (int run = 0; run < kRuns; ++run) {
    floor.push_back(nomra::bench::TimeEach(paths, FloorRead, sink));
    average.push_back(nomra::bench::TimeEach(
        paths, [](const std::string& p) { return TagLibRead(p, TagLib::AudioProperties::Average, nullptr); }, sink));
    fast.push_back(nomra::bench::TimeEach(
        paths, [](const std::string& p) { return TagLibRead(p, TagLib::AudioProperties::Fast, nullptr); }, sink));
    nomra.push_back(nomra::bench::TimeEach(
        paths, [&files](const std::string& p) { return NomraRead(files, p, nullptr); }, sink));
    structure.push_back(nomra::bench::TimeEach(
        paths, [&readers](const std::string& p) { return EvaluateSongName(readers, p); }, sink));
  }

  std::printf("MP3 reading of %d real files (%s), median of %d runs, page cache warm\n", count, dir.c_str(), kRuns);
  const auto line = [count](const char* who, double seconds) {
    std::printf("  %-30s %8.1f ms  %10.0f files/s\n", who, seconds * 1000, count / seconds);
  };
  const double floorTime = nomra::bench::Median(floor), averageTime = nomra::bench::Median(average),
               fastTime = nomra::bench::Median(fast), nomraTime = nomra::bench::Median(nomra);
  line("floor (the same reads)", floorTime);
  line("TagLib, Average", averageTime);
  line("TagLib, Fast", fastTime);
  line("Nomra", nomraTime);
  line("<ID3_Artist> - <ID3_SongTitle>", nomra::bench::Median(structure));
  std::printf("  Nomra/floor: %.2f x the time\n", nomraTime / floorTime);
  const bool fastEnough = averageTime / nomraTime >= kTargetOverTagLib && fastTime / nomraTime >= kTargetOverTagLib;
  std::printf("  Nomra vs TagLib: %.1f x as fast (Average), %.1f x (Fast); target at least %.1f x%s\n",
              averageTime / nomraTime, fastTime / nomraTime, kTargetOverTagLib, fastEnough ? "" : "  MISSED");
  std::printf("  titles alike in Nomra and TagLib: %d of %d%s\n", alike, count, alike == count ? "" : "  CHECK FAILED");
  if (!keep) fs::remove_all(dir);
  return alike == count && sink > 0 ? 0 : 1;
}
