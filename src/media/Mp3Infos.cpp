#include "media/Mp3Infos.h"

#include <array>
#include <cerrno>
#include <limits>

#include "base/AsciiSearch.h"
#include "base/Cp1252.h"
#include "media/FilePieces.h"
#include "media/Id3Text.h"
#include "media/Id3v2Walk.h"
#include "media/MpegHeaderSearch.h"

namespace nomra::media {

namespace {

constexpr std::size_t kRecordLength = 128;
constexpr std::size_t kSearchWindow = 8192;
constexpr std::size_t kTitle = 3, kArtist = 33, kAlbum = 63, kYear = 93, kComment = 97, kGenre = 127;
constexpr std::size_t kTextField = 30, kYearField = 4;

// ID3_Elements: the frame each element number stands for.
constexpr std::array<std::string_view, 23> kElementIds = {
    "TALB", "TPE1", "TBPM", "COMM", "TCOM", "TCOP", "TENC", "TCON", "TLEN", "TEXT", "TMED", "TOAL",
    "TOPE", "TIT2", "TRCK", "WXXX", "WOAF", "WOAR", "WOAS", "WORS", "WPAY", "WPUB", "TYER"};

// The size field of the tag header as four 7-bit groups; high bits that
// shouldn't be there count with them.
std::int32_t TagSize(std::string_view header) {
  const auto byte = [&header](std::size_t k) {
    return static_cast<std::int32_t>(static_cast<unsigned char>(header[k]));
  };
  return byte(6) * 2097152 + byte(7) * 16384 + byte(8) * 128 + byte(9);
}

std::string PreferV2(const std::string& v2, const std::string& v1) { return v2.empty() ? v1 : v2; }

}  // namespace

std::string VersionText(std::uint8_t version) {
  switch (version) {
    case 0: return "MPEG 2.5";
    case 2: return "MPEG 2.0";
    case 3: return "MPEG 1.0";
    default: return "";
  }
}

std::string LayerText(std::uint8_t layer) {
  switch (layer) {
    case 1: return "Layer III";
    case 2: return "Layer II";
    case 3: return "Layer I";
    default: return "";
  }
}

std::string ChannelModeText(std::uint8_t channelMode) {
  switch (channelMode) {
    case 0: return "Stereo";
    case 1: return "Joint Stereo";
    case 2: return "Dual Channel (2 Mono channels)";
    case 3: return "Single Channel (Mono)";
    default: return "";
  }
}

std::string EmphasisText(std::uint8_t emphasis) {
  switch (emphasis) {
    case 0: return "None";
    case 1: return "50/15 ms";
    case 2: return "reserved";
    case 3: return "CIT J.17";
    default: return "";
  }
}

bool Mp3Infos::GetFileInfos(platform::FileSystem& files, const std::string& path) {
  *this = Mp3Infos();
  int error = 0;
  const auto file = files.OpenForReading(path, error);
  // Only a path that leads nowhere is no file; one that is there but can't
  // be read (a folder, no permission) gives nothing, and no word.
  if (!file) return error != ENOENT && error != ENOTDIR;
  Read(*file);
  return true;
}

void Mp3Infos::Read(platform::InputFile& input) {
  *this = Mp3Infos();
  FilePieces file(input);
  const std::uint64_t length = file.Size();
  if (length < kRecordLength) return;
  auto record = file.Exact(length - kRecordLength, kRecordLength);
  if (!record) return;
  v1_.bytes = std::move(*record);
  v1_.present = base::ToUpperAscii(std::string_view(v1_.bytes).substr(0, 3)) == "TAG";

  auto buffer = file.Exact(0, kSearchWindow);
  if (!buffer) return;
  if (length > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())) return;
  header_.fileSize = static_cast<std::int32_t>(length);
  std::int32_t base = 0;
  if (buffer->compare(0, 3, "ID3") == 0) {
    hasV2_ = true;
    v2Version_ = static_cast<unsigned char>((*buffer)[3]);
    v2Size_ = TagSize(*buffer);
    Id3v2Walked walked = WalkId3v2Frames(file, v2Size_);
    frames_ = std::move(walked.frames);
    genreText_ = std::move(walked.genreText);
    if (!walked.sizesHeld) return;
    const std::int32_t behindTag = v2Size_ + 11;
    header_.fileSize -= behindTag;
    base = behindTag;
    buffer = file.Exact(static_cast<std::uint64_t>(behindTag - 1), kSearchWindow);
    if (!buffer) return;
  }
  SearchMpegHeader(*buffer, base, header_);
}

std::string Mp3Infos::Mp3Length() const {
  return header_.seconds < 1 ? std::string() : std::to_string(header_.seconds);
}

std::string Mp3Infos::V1Field(std::size_t offset, std::size_t length) const {
  if (!v1_.present) return "";
  return base::DecodeCp1252(StripNuls(std::string_view(v1_.bytes).substr(offset, length)));
}

std::string Mp3Infos::Id3SongTitleV1() const { return V1Field(kTitle, kTextField); }
std::string Mp3Infos::Id3ArtistV1() const { return V1Field(kArtist, kTextField); }
std::string Mp3Infos::Id3AlbumV1() const { return V1Field(kAlbum, kTextField); }
std::string Mp3Infos::Id3YearV1() const { return V1Field(kYear, kYearField); }

// A comment whose 30th byte is set behind a NUL as 29th holds the track
// there (ID3v1.1); track 0 can't be told from none.
static bool HoldsTrack(std::string_view comment) { return comment[29] != '\0' && comment[28] == '\0'; }

std::string Mp3Infos::Id3CommentV1() const {
  if (!v1_.present) return "";
  const std::string_view comment = std::string_view(v1_.bytes).substr(kComment, kTextField);
  return base::DecodeCp1252(StripNuls(HoldsTrack(comment) ? comment.substr(0, 28) : comment));
}

std::string Mp3Infos::Id3TrackV1() const {
  if (!v1_.present) return "";
  const std::string_view comment = std::string_view(v1_.bytes).substr(kComment, kTextField);
  if (!HoldsTrack(comment)) return "";
  return std::to_string(static_cast<unsigned char>(comment[29]));
}

std::string Mp3Infos::Id3GenreV1() const {
  if (!v1_.present) return "";
  return std::to_string(static_cast<unsigned char>(v1_.bytes[kGenre]));
}

std::string Mp3Infos::Id3Element(int n) const {
  if (n < 0 || n >= static_cast<int>(kElementIds.size())) return "";
  return FrameText(kElementIds[static_cast<std::size_t>(n)]);
}

std::string Mp3Infos::FrameText(std::string_view id) const {
  const auto found = frames_.find(base::ToUpperAscii(id));
  if (found == frames_.end()) return "";
  return base::DecodeCp1252(CleanFrameText(found->second));
}

std::string Mp3Infos::V2Element(int n) const { return hasV2_ ? Id3Element(n) : std::string(); }

std::string Mp3Infos::Id3GenreV2() const { return hasV2_ ? base::DecodeCp1252(genreText_) : std::string(); }

std::string Mp3Infos::Id3SongTitle() const { return PreferV2(Id3SongTitleV2(), Id3SongTitleV1()); }
std::string Mp3Infos::Id3Artist() const { return PreferV2(Id3ArtistV2(), Id3ArtistV1()); }
std::string Mp3Infos::Id3Album() const { return PreferV2(Id3AlbumV2(), Id3AlbumV1()); }
std::string Mp3Infos::Id3Year() const { return PreferV2(Id3YearV2(), Id3YearV1()); }
std::string Mp3Infos::Id3Comment() const { return PreferV2(Id3CommentV2(), Id3CommentV1()); }
std::string Mp3Infos::Id3Track() const { return PreferV2(Id3TrackV2(), Id3TrackV1()); }
std::string Mp3Infos::Id3Genre() const { return PreferV2(Id3GenreV2(), Id3GenreV1()); }

}  // namespace nomra::media
