#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"
#include "platform/InputFile.h"

namespace nomra::media {

// The first audio frame's header as the reader found it. The fields of a
// candidate the search refused stay until a later one overwrites them.
struct MpegHeader {
  std::int32_t fileSize = 0;  // the file's length, less the ID3v2 part and one byte
  std::uint8_t version = 0;   // 0 = 2.5, 1 = reserved, 2 = 2, 3 = 1
  std::uint8_t layer = 0;     // 1 = III, 2 = II, 3 = I
  bool crcProtected = false;  // the protection bit as it stands: 1 reads as protected
  std::int32_t bitrate = 0;   // bits per second
  std::int32_t frequency = 0;
  bool padding = false;
  bool privateBit = false;  // never set: the test that would set it cannot hold
  std::uint8_t channelMode = 0;
  std::uint8_t channelModeExtension = 0;
  bool copyright = false;
  bool original = false;
  std::uint8_t emphasis = 0;
  std::int32_t frameSize = 0;
  std::int32_t frames = 0;
  std::int32_t seconds = 0;
  std::int32_t headerPosition = 0;
};

std::string VersionText(std::uint8_t version);
std::string LayerText(std::uint8_t layer);
std::string ChannelModeText(std::uint8_t channelMode);
std::string EmphasisText(std::uint8_t emphasis);

// The 128 bytes at the end of a file, as read, whether they are a tag or
// the last audio bytes (present tells).
struct Id3v1Record {
  bool present = false;
  std::string bytes;  // all 128, or empty when the file is shorter
};

// The ID3v1 genre names, 0 to 148.
const char* Id3v1GenreName(int number);
inline constexpr int kId3v1GenreCount = 149;

// clsMP3Infos: one MP3 file's first audio frame header, ID3v1 record and
// ID3v2 frames, read once by GetFileInfos. The reader is light and keeps
// the old program's results on good and odd files alike; every read is
// bounded by what the file holds. Texts come out as UTF-8: the tag bytes
// are Windows-1252 after the byte rules ran.
class Mp3Infos {
 public:
  // Reads the file: false only when it doesn't exist; otherwise true with
  // whatever was found up to the first flaw.
  bool GetFileInfos(platform::FileSystem& files, const std::string& path);
  // The same over an open file (the fuzz targets pass bytes in memory).
  void Read(platform::InputFile& file);

  const MpegHeader& Header() const { return header_; }
  bool HasId3v1() const { return v1_.present; }
  bool HasId3v2() const { return hasV2_; }
  int Id3v2Version() const { return v2Version_; }
  std::int32_t Id3v2Size() const { return v2Size_; }

  // MP3_Length: the seconds as decimal text, "" below 1.
  std::string Mp3Length() const;
  // Bitrate in kbit/s.
  std::int32_t BitrateKbps() const { return header_.bitrate / 1000; }

  std::string Id3SongTitleV1() const;
  std::string Id3ArtistV1() const;
  std::string Id3AlbumV1() const;
  std::string Id3YearV1() const;
  std::string Id3CommentV1() const;
  std::string Id3TrackV1() const;
  std::string Id3GenreV1() const;

  // ID3_Elements(n): the frame of element n through the text cleaning; ""
  // for an element without a frame id or a frame not read.
  std::string Id3Element(int n) const;
  std::string Id3SongTitleV2() const { return V2Element(13); }
  std::string Id3ArtistV2() const { return V2Element(1); }
  std::string Id3AlbumV2() const { return V2Element(0); }
  std::string Id3YearV2() const { return V2Element(22); }
  std::string Id3CommentV2() const { return V2Element(3); }
  std::string Id3TrackV2() const { return V2Element(14); }
  std::string Id3GenreV2() const;

  // The values without a suffix: ID3v2's, else ID3v1's.
  std::string Id3SongTitle() const;
  std::string Id3Artist() const;
  std::string Id3Album() const;
  std::string Id3Year() const;
  std::string Id3Comment() const;
  std::string Id3Track() const;
  std::string Id3Genre() const;

  // Every frame read, keyed by its id in upper case: raw bytes as stored,
  // the comment's cleaned text. An id without a frame reads as empty.
  const std::map<std::string, std::string>& Frames() const { return frames_; }
  // The stored value of a frame id through the text cleaning, as UTF-8.
  std::string FrameText(std::string_view id) const;

 private:
  std::string V2Element(int n) const;
  std::string V1Field(std::size_t offset, std::size_t length) const;

  MpegHeader header_;
  Id3v1Record v1_;
  bool hasV2_ = false;
  int v2Version_ = 0;
  std::int32_t v2Size_ = 0;
  std::map<std::string, std::string> frames_;  // key: the id in upper case
  std::string genreText_;                      // raw bytes
};

}  // namespace nomra::media
