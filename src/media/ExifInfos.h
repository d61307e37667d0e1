#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/InputFile.h"

namespace nomra::media {

// One directory entry as the EXIF reader read it (TIFF 6.0, section 2).
struct ExifEntry {
  enum class Kind { Empty, Number, Text };

  std::int32_t tag = 0;
  bool makerNote = false;     // read by ProcessMakerNote
  std::int32_t dataType = 0;  // the TIFF type as stored, 1 to 10 when valid
  std::int32_t count = 0;
  std::int32_t offset = 0;  // from the TIFF header, when the value lies outside the entry
  Kind kind = Kind::Empty;
  std::int64_t number = 0;  // Kind::Number
  std::string bytes;        // Kind::Text: the bytes as the reader took them, NULs and all

  // The value as Tag gives it: a number as decimal text, text bytes as
  // Windows-1252 decoded to UTF-8, nothing for an empty value.
  std::string Value() const;
};

// clsMdlEXIF: the entries of a JPEG file's Exif segment (Exif 2.x, APP1),
// and the few values the name structures and the file list take from them.
// The reader is small and trusting, as the old program's was: it takes the
// first FF E1 byte pair after the file's second byte as the segment, reads
// IFD0, the directories chained behind it and then the Exif IFD, and stops
// at the first flaw, keeping what it read. Every read is bounded by the
// file; it never writes one.
class ExifInfos {
 public:
  // Binds the object to a file, as setting picFile did; Load reads it.
  void SetPicFile(platform::FileSystem& files, const std::string& path);

  // Reads the bound file; the path is taken only when none is bound yet, so
  // an object stays with its first file. True when the segment was found
  // and walked to its end; false for a file that can't be read, one
  // without the segment, and at any flaw (what was read before it stays).
  bool Load(platform::FileSystem& files, const std::string& path);
  // The same over an open file; binds no path.
  bool Read(platform::InputFile& file);

  // The segment was found and its first directory's offset read.
  bool Loaded() const { return loaded_; }

  // The value of the first entry with this tag (maker-note ones included),
  // or "". Tag(0) is the number of entries as decimal text. Loads the bound
  // file first when nothing is loaded.
  std::string Tag(std::int32_t id);

  // The value of the first maker-note entry with this tag, or "". Never
  // loads: nothing calls ProcessMakerNote on its own, so after Load this
  // is always "".
  std::string MakerNoteTag(std::int32_t id) const;

  // Reads a directory at `position` (from the start of the file) as a
  // maker note: plain TIFF entries in the file's byte order, values
  // located from the TIFF header, no next directory. Appends what it read
  // up to a flaw. Needs a loaded file; `file` is the same file again.
  void ProcessMakerNote(platform::InputFile& file, std::int64_t position);

  // Every entry of every directory walked, in the order read. A directory
  // that ends early leaves the rest of its entries blank (tag 0, empty),
  // as many as its count said; Tag(0) counts them too.
  const std::vector<ExifEntry>& Entries() const { return entries_; }

  // Where the values count from, the byte order, and the maker note's
  // offset as tag 37500 gave it (noted, never followed). -1 / 0 when unknown.
  std::int64_t TiffBase() const { return tiffBase_; }
  bool Intel() const { return intel_; }
  std::int64_t MakerNoteOffset() const { return makerNoteOffset_; }

  // The properties, "" on any failure.
  std::string ExifImageW() { return Tag(40962); }
  std::string ExifImageH() { return Tag(40963); }
  std::string ExifImageWH() { return ExifImageW() + " x " + ExifImageH(); }
  std::string ExifXResolution() { return Resolution(Tag(282)); }
  std::string ExifYResolution() { return Resolution(Tag(283)); }
  std::string ExifXYResolution() { return ExifXResolution() + " x " + ExifYResolution(); }
  std::string ExifMake() { return Tag(271); }
  std::string ExifModel() { return Tag(272); }
  std::string ExifImageNumber() { return Tag(37393); }
  std::string ExifImageDescription() { return Tag(270); }
  // EXIF_Date: DateTimeOriginal (36867) with its first two ":" made "-",
  // when the text up to its first NUL is a valid date and time, else "".
  // The NUL that ends the stored value stays at the end. DateTime (306)
  // is not looked at.
  std::string ExifDate();

  // A resolution as the properties give it: "n/d" divided and rounded
  // half to even, other text as it stands, "" when it can't be divided.
  static std::string Resolution(const std::string& value);
  // The date rule of ExifDate on a value.
  static std::string DateOf(const std::string& value);

 private:
  void Reset();

  platform::FileSystem* files_ = nullptr;
  std::string picFile_;
  bool loaded_ = false;
  bool intel_ = false;
  std::int64_t tiffBase_ = -1;
  std::int64_t makerNoteOffset_ = -1;
  std::vector<ExifEntry> entries_;
};

}  // namespace nomra::media
