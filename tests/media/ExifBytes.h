#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// JPEG files with an Exif segment, built byte by byte in either byte order,
// so a test shows exactly the bytes it means (Exif 2.3, section 4.5;
// TIFF 6.0, section 2).

namespace nomra::testing {

enum TiffType : std::uint16_t {
  kByte = 1,
  kAscii = 2,
  kShort = 3,
  kLong = 4,
  kRational = 5,
  kSByte = 6,
  kUndefined = 7,
  kSShort = 8,
  kSLong = 9,
  kSRational = 10,
};

class ExifBytes {
 public:
  explicit ExifBytes(bool intel) : intel_(intel) {}

  bool Intel() const { return intel_; }

  std::string U16(std::uint32_t value) const {
    std::string out(2, '\0');
    out[intel_ ? 0 : 1] = static_cast<char>(value & 0xFF);
    out[intel_ ? 1 : 0] = static_cast<char>((value >> 8) & 0xFF);
    return out;
  }
  std::string U32(std::uint32_t value) const {
    std::string out(4, '\0');
    for (int k = 0; k < 4; ++k)
      out[static_cast<std::size_t>(intel_ ? k : 3 - k)] = static_cast<char>((value >> (8 * k)) & 0xFF);
    return out;
  }
  std::string Rational(std::uint32_t numerator, std::uint32_t denominator) const {
    return U32(numerator) + U32(denominator);
  }

  // One directory entry: its value bytes as they stand in the file; four
  // or fewer go into the entry (NULs after them), more into the data area.
  // `pointsTo` makes the value the offset of that directory.
  struct Entry {
    Entry(std::uint16_t t, std::uint16_t ty, std::uint32_t c, std::string v, int to = -1)
        : tag(t), type(ty), count(c), value(std::move(v)), pointsTo(to) {}
    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    std::string value;
    int pointsTo = -1;
    // The value field as written, whatever the value's length says.
    std::optional<std::uint32_t> rawField;
  };
  struct Directory {
    Directory(std::vector<Entry> e, int n = -1) : entries(std::move(e)), next(n) {}
    std::vector<Entry> entries;
    int next = -1;                         // a directory's index, or none
    std::optional<std::uint32_t> rawNext;  // a next-directory field as written
  };

  Entry Ascii(std::uint16_t tag, const std::string& text) const {
    return {tag, kAscii, static_cast<std::uint32_t>(text.size() + 1), text + '\0'};
  }
  Entry Short(std::uint16_t tag, std::uint16_t value) const { return {tag, kShort, 1, U16(value)}; }
  Entry Long(std::uint16_t tag, std::uint32_t value) const { return {tag, kLong, 1, U32(value)}; }
  Entry Rat(std::uint16_t tag, std::uint32_t n, std::uint32_t d) const { return {tag, kRational, 1, Rational(n, d)}; }
  Entry Pointer(std::uint16_t tag, int directory) const { return {tag, kLong, 1, U32(0), directory}; }

  // The TIFF header ("II*\0" or "MM\0*") with the directories in order
  // behind it, the first one as IFD0, and their data behind them.
  std::string Tiff(const std::vector<Directory>& directories, std::string header = "") const {
    if (header.empty()) header = intel_ ? std::string("II") + U16(42) : std::string("MM") + U16(42);
    std::vector<std::uint32_t> at;
    std::uint32_t position = 8;
    for (const Directory& d : directories) {
      at.push_back(position);
      position += static_cast<std::uint32_t>(2 + 12 * d.entries.size() + 4);
    }
    std::string body, data;
    for (std::size_t k = 0; k < directories.size(); ++k) {
      const Directory& d = directories[k];
      body += U16(static_cast<std::uint32_t>(d.entries.size()));
      for (const Entry& e : d.entries) {
        body += U16(e.tag) + U16(e.type) + U32(e.count);
        if (e.rawField) {
          body += U32(*e.rawField);
        } else if (e.pointsTo >= 0) {
          body += U32(at[static_cast<std::size_t>(e.pointsTo)]);
        } else if (e.value.size() <= 4) {
          body += e.value + std::string(4 - e.value.size(), '\0');
        } else {
          body += U32(position + static_cast<std::uint32_t>(data.size()));
          data += e.value;
          if (data.size() % 2) data += '\0';
        }
      }
      body += U32(d.rawNext ? *d.rawNext : d.next >= 0 ? at[static_cast<std::size_t>(d.next)] : 0);
    }
    return header.substr(0, 4) + U32(8) + body + data;
  }

  // A JPEG: SOI, `before` (whole segments), the Exif APP1 around `tiff`, a
  // quantisation table and EOI.
  static std::string Jpeg(const std::string& tiff, const std::string& before = "") {
    const std::size_t length = 2 + 6 + tiff.size();
    std::string out = "\xFF\xD8" + before + "\xFF\xE1";
    out += static_cast<char>((length >> 8) & 0xFF);
    out += static_cast<char>(length & 0xFF);
    out += std::string("Exif\0\0", 6) + tiff;
    out += std::string("\xFF\xDB\x00\x43\x00", 5) + std::string(64, '\x10') + "\xFF\xD9";
    return out;
  }
  // A segment of a JPEG: marker, big-endian length, payload.
  static std::string Segment(unsigned char marker, const std::string& payload) {
    const std::size_t length = payload.size() + 2;
    std::string out = "\xFF";
    out += static_cast<char>(marker);
    out += static_cast<char>((length >> 8) & 0xFF);
    out += static_cast<char>(length & 0xFF);
    return out + payload;
  }

 private:
  bool intel_;
};

}  // namespace nomra::testing
