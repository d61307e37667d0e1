#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "media/Mp3Infos.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// Bytes of MP3 files made to order, so each test shows the one flaw or
// field it is about.

// An MPEG audio frame header followed by zero bytes, `length` in all.
inline std::string AudioBytes(std::string header4, std::size_t length) {
  header4.resize(length, '\0');
  return header4;
}

// The common frame: MPEG 1 layer III, 128 kbit/s, 44.1 kHz, joint stereo,
// protection bit 1.
inline const std::string kFrame128 = std::string("\xFF\xFB\x90\x64", 4);

// An ID3v1 record of 128 bytes. `comment` is taken as 30 raw bytes.
inline std::string Id3v1(const std::string& title, const std::string& artist, const std::string& album,
                         const std::string& year, std::string comment, unsigned char genre,
                         const std::string& marker = "TAG") {
  const auto field = [](std::string text, std::size_t width) {
    text.resize(width, '\0');
    return text;
  };
  comment.resize(30, '\0');
  return field(marker, 3) + field(title, 30) + field(artist, 30) + field(album, 30) + field(year, 4) + comment +
         std::string(1, static_cast<char>(genre));
}

// An ID3v2 frame with a version 2.3 header: the id, the size big-endian,
// two flag bytes, the data.
inline std::string Frame23(const std::string& id, const std::string& data) {
  const std::uint32_t size = static_cast<std::uint32_t>(data.size());
  std::string out = id;
  out += static_cast<char>((size >> 24) & 0xFF);
  out += static_cast<char>((size >> 16) & 0xFF);
  out += static_cast<char>((size >> 8) & 0xFF);
  out += static_cast<char>(size & 0xFF);
  out += std::string(2, '\0');
  return out + data;
}

// A syncsafe size as four 7-bit groups.
inline std::string Syncsafe(std::uint32_t size) {
  std::string out(4, '\0');
  for (int k = 3; k >= 0; --k) {
    out[static_cast<std::size_t>(k)] = static_cast<char>(size & 0x7F);
    size >>= 7;
  }
  return out;
}

// An ID3v2 tag of `version` whose size field says `size` (the bytes behind
// the header), holding `body` and then NUL padding up to that size.
inline std::string Id3v2Tag(int version, const std::string& body, std::uint32_t size, char flags = 0) {
  std::string tag = "ID3";
  tag += static_cast<char>(version);
  tag += '\0';
  tag += flags;
  tag += Syncsafe(size);
  std::string padded = body;
  if (padded.size() < size) padded.resize(size, '\0');
  return tag + padded;
}

inline std::string Id3v2Tag(int version, const std::string& body) {
  return Id3v2Tag(version, body, static_cast<std::uint32_t>(body.size()) + 64);
}

// Writes the bytes under the fixture's name and reads it as Nomra does.
inline media::Mp3Infos ReadFixture(const TempFolder& folder, const std::string& name, const std::string& bytes) {
  platform::PosixFileSystem files;
  media::Mp3Infos infos;
  infos.GetFileInfos(files, folder.WriteFile(name, bytes));
  return infos;
}

}  // namespace nomra::testing
