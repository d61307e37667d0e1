#include "media/ExifInfos.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <string_view>

#include "base/Cp1252.h"
#include "media/FilePieces.h"

namespace nomra::media {

namespace {

// The Exif APP1 segment lies in the first 64 KiB of nearly every JPEG (the
// segment itself can't be longer); the search reads on only when it isn't.
constexpr std::size_t kHead = 64 * 1024;
// Every 32-bit value of the file is a signed number to the old program: one
// of 2^31 or above ends the walk, as its arithmetic failed there.
constexpr std::int64_t kLargest = 0x7FFFFFFF;
constexpr std::int32_t kExifIfdPointer = 34665;
constexpr std::int32_t kMakerNote = 37500;
constexpr std::int32_t kDateTimeOriginal = 36867;

// The file as the reader asks for it: the first 64 KiB held whole, any
// other part read where it lies through a small block cache.
class ExifFile {
 public:
  explicit ExifFile(platform::InputFile& file) : file_(file), pieces_(file), size_(file.Size()) {}

  std::uint64_t Size() const { return size_; }

  // Reads the head; false when the read fails.
  bool ReadHead() {
    head_.resize(static_cast<std::size_t>(std::min<std::uint64_t>(size_, kHead)));
    std::size_t done = 0;
    while (done < head_.size()) {
      const std::int64_t got = file_.ReadAt(done, head_.data() + done, head_.size() - done);
      if (got < 0) return false;
      if (got == 0) break;
      done += static_cast<std::size_t>(got);
    }
    head_.resize(done);
    return true;
  }

  // The first FF E1 pair whose FF lies at 2 or later, or 0 when there is
  // none. Reads on past the head only as far as the search goes.
  std::optional<std::uint64_t> FindSegment() {
    if (const auto found = FindPair(head_, 0)) return *found;
    if (head_.size() < kHead || size_ <= head_.size()) return 0;
    std::string chunk(kHead, '\0');
    // Each chunk starts on the last byte of the one before, so a pair that
    // straddles the two is seen.
    std::uint64_t start = head_.size() - 1;
    while (start + 1 < size_) {
      const std::int64_t got = file_.ReadAt(start, chunk.data(), chunk.size());
      if (got < 0) return std::nullopt;
      if (got < 2) break;
      if (const auto found = FindPair(std::string_view(chunk.data(), static_cast<std::size_t>(got)), start)) {
        return *found;
      }
      start += static_cast<std::uint64_t>(got) - 1;
    }
    return 0;
  }

  // Exactly `count` bytes at `offset`, or nothing when the file ends
  // before. The view lasts until the next call.
  std::optional<std::string_view> Bytes(std::int64_t offset, std::int64_t count) {
    if (offset < 0 || count < 0) return std::nullopt;
    const auto from = static_cast<std::uint64_t>(offset);
    const auto length = static_cast<std::uint64_t>(count);
    if (from <= head_.size() && length <= head_.size() - from) {
      return std::string_view(head_).substr(static_cast<std::size_t>(from), static_cast<std::size_t>(length));
    }
    if (from > size_ || length > size_ - from) return std::nullopt;
    auto got = pieces_.Exact(from, static_cast<std::size_t>(length));
    if (!got) return std::nullopt;
    scratch_ = std::move(*got);
    return std::string_view(scratch_);
  }

 private:
  static std::optional<std::uint64_t> FindPair(std::string_view bytes, std::uint64_t at) {
    std::size_t i = at < 2 ? static_cast<std::size_t>(2 - at) : 0;
    while ((i = bytes.find('\xFF', i)) != std::string_view::npos && i + 1 < bytes.size()) {
      if (static_cast<unsigned char>(bytes[i + 1]) == 0xE1) return at + i;
      ++i;
    }
    return std::nullopt;
  }

  platform::InputFile& file_;
  FilePieces pieces_;
  std::uint64_t size_;
  std::string head_;
  std::string scratch_;
};

// Numbers in the file's byte order. A 32-bit one of 2^31 or more is a
// failure, as it was to the old program's signed arithmetic.
class Numbers {
 public:
  Numbers(ExifFile& file, bool intel) : file_(file), intel_(intel) {}

  std::optional<std::int64_t> U16(std::int64_t position) {
    const auto bytes = file_.Bytes(position, 2);
    if (!bytes) return std::nullopt;
    return Join(*bytes);
  }
  std::optional<std::int64_t> U32(std::int64_t position) {
    const auto bytes = file_.Bytes(position, 4);
    if (!bytes) return std::nullopt;
    const std::int64_t value = Join(*bytes);
    if (value > kLargest) return std::nullopt;
    return value;
  }
  std::int64_t Join(std::string_view bytes) const {
    std::int64_t value = 0;
    for (std::size_t k = 0; k < bytes.size(); ++k) {
      const auto byte = static_cast<unsigned char>(bytes[intel_ ? bytes.size() - 1 - k : k]);
      value = value * 256 + byte;
    }
    return value;
  }

 private:
  ExifFile& file_;
  bool intel_;
};

// Bytes per component of a TIFF type, 0 for a type out of 1 to 10.
std::int64_t UnitOf(std::int32_t type) {
  switch (type) {
    case 1:
    case 2:
    case 6:
    case 7: return 1;
    case 3:
    case 8: return 2;
    case 4:
    case 9: return 4;
    case 5:
    case 10: return 8;
    default: return 0;
  }
}

std::string DecimalBytes(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() * 3);
  for (const char c : bytes) out += std::to_string(static_cast<unsigned char>(c));
  return out;
}

std::string HexBytes(std::string_view bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += kDigits[byte >> 4];
    out += kDigits[byte & 0x0F];
  }
  return out;
}

void SetNumber(ExifEntry& entry, std::int64_t number) {
  entry.kind = ExifEntry::Kind::Number;
  entry.number = number;
}
void SetText(ExifEntry& entry, std::string text) {
  entry.kind = ExifEntry::Kind::Text;
  entry.bytes = std::move(text);
}

// The reads of one Load or one maker note. Values taken from offsets may
// together be no larger than the file: real files don't share value bytes,
// and a made one whose entries all point at one big value can't ask for
// gigabytes.
struct Walk {
  ExifFile& file;
  Numbers numbers;
  std::int64_t base;
  std::uint64_t valueBudget;

  std::optional<std::string_view> Value(std::int64_t offset, std::int64_t count) {
    if (static_cast<std::uint64_t>(count) > valueBudget) return std::nullopt;
    valueBudget -= static_cast<std::uint64_t>(count);
    return file.Bytes(base + offset, count);
  }

  // Tag, type and count of the entry at `position`, each kept as it is
  // read; false at the first that can't be.
  bool Head(std::int64_t position, ExifEntry& entry) {
    const auto tag = numbers.U16(position);
    if (!tag) return false;
    entry.tag = static_cast<std::int32_t>(*tag);
    const auto type = numbers.U16(position + 2);
    if (!type) return false;
    entry.dataType = static_cast<std::int32_t>(*type);
    const auto count = numbers.U32(position + 4);
    if (!count) return false;
    entry.count = static_cast<std::int32_t>(*count);
    return true;
  }

  // The value of a directory entry; false at a failure.
  bool ReadValue(std::int64_t position, ExifEntry& entry) {
    const std::int64_t unit = UnitOf(entry.dataType);
    if (unit == 0) return true;
    const std::int64_t size = unit * entry.count;
    if (size > kLargest) return false;
    const std::int64_t field = position + 8;
    if (size <= 4) {
      switch (entry.dataType) {
        case 1:
        case 6: {
          const auto bytes = file.Bytes(field, 4);
          if (!bytes) return false;
          SetText(entry, HexBytes(*bytes));
          return true;
        }
        case 2:
        case 7: {
          const auto bytes = file.Bytes(field, 4);
          if (!bytes) return false;
          SetText(entry, std::string(*bytes));
          return true;
        }
        case 3:
        case 8: {
          const auto first = numbers.U16(field);
          const auto second = numbers.U16(field + 2);
          if (!first || !second) return false;
          SetNumber(entry, *first + *second);
          return true;
        }
        case 4:
        case 9: {
          const auto value = numbers.U32(field);
          if (!value) return false;
          SetNumber(entry, *value);
          return true;
        }
        default: return true;  // a rational with no component: no value
      }
    }
    const auto offset = numbers.U32(field);
    if (!offset) return false;
    entry.offset = static_cast<std::int32_t>(*offset);
    if (entry.dataType == 5 || entry.dataType == 10) {
      const auto numerator = numbers.U32(base + *offset);
      const auto denominator = numbers.U32(base + *offset + 4);
      if (!numerator || !denominator) return false;
      SetText(entry, std::to_string(*numerator) + "/" + std::to_string(*denominator));
      return true;
    }
    // Text takes Count bytes; the number types give the decimal text of
    // one byte per component, Count bytes from the offset.
    const auto bytes = Value(*offset, entry.count);
    if (!bytes) return false;
    if (entry.dataType == 2 || entry.dataType == 7) {
      SetText(entry, std::string(*bytes));
    } else {
      SetText(entry, DecimalBytes(*bytes));
    }
    return true;
  }

  // The value of a maker-note entry: the same places, the type switch of
  // the maker-note routine (text without its last byte, the first number
  // of a 16- or 32-bit array).
  bool ReadNoteValue(std::int64_t position, ExifEntry& entry) {
    const std::int64_t unit = UnitOf(entry.dataType);
    if (unit == 0) return true;
    const std::int64_t size = unit * entry.count;
    if (size > kLargest) return false;
    std::int64_t at = position + 8;
    if (size > 4) {
      const auto offset = numbers.U32(at);
      if (!offset) return false;
      entry.offset = static_cast<std::int32_t>(*offset);
      at = base + *offset;
    }
    switch (entry.dataType) {
      case 1:
      case 6: {
        if (size <= 4) {
          const auto bytes = file.Bytes(at, 4);
          if (!bytes) return false;
          SetText(entry, HexBytes(*bytes));
        } else {
          const auto bytes = Value(entry.offset, entry.count);
          if (!bytes) return false;
          SetText(entry, DecimalBytes(*bytes));
        }
        return true;
      }
      case 2:
      case 7: {
        // Count - 1 characters: a count of 0 asks for -1 of them and fails.
        if (entry.count < 1) return false;
        const auto bytes = size <= 4 ? file.Bytes(at, entry.count - 1) : Value(entry.offset, entry.count - 1);
        if (!bytes) return false;
        SetText(entry, std::string(*bytes));
        return true;
      }
      case 3:
      case 8: {
        const auto value = numbers.U16(at);
        if (!value) return false;
        SetNumber(entry, *value);
        return true;
      }
      case 4:
      case 9: {
        const auto value = numbers.U32(at);
        if (!value) return false;
        SetNumber(entry, *value);
        return true;
      }
      default: {
        if (size <= 4) return true;  // no component
        const auto numerator = numbers.U32(at);
        const auto denominator = numbers.U32(at + 4);
        if (!numerator || !denominator) return false;
        SetText(entry, std::to_string(*numerator) + "/" + std::to_string(*denominator));
        return true;
      }
    }
  }
};

// The Exif IFD pointer's value as the old program took it into a number:
// a number as it is, an empty value as 0, text only when it is all digits.
std::optional<std::int64_t> PointerOf(const ExifEntry& entry) {
  switch (entry.kind) {
    case ExifEntry::Kind::Empty: return 0;
    case ExifEntry::Kind::Number: return entry.number;
    case ExifEntry::Kind::Text: break;
  }
  if (entry.bytes.empty() || entry.bytes.size() > 10) return std::nullopt;
  std::int64_t value = 0;
  for (const char c : entry.bytes) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  if (value > kLargest) return std::nullopt;
  return value;
}

bool IsLeap(int year) { return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0; }

// Digits at `at`, at most `most` of them, as a number; `at` moves on.
std::optional<int> Digits(std::string_view text, std::size_t& at, std::size_t most) {
  std::size_t k = 0;
  int value = 0;
  while (at < text.size() && k < most && text[at] >= '0' && text[at] <= '9') {
    value = value * 10 + (text[at] - '0');
    ++at;
    ++k;
  }
  if (k == 0) return std::nullopt;
  return value;
}

// The date parser: "Y-M-D", alone or with "H:M" or "H:M:S" after blanks,
// blanks around it, a real day of years 100 to 9999 and a real time.
bool IsDate(std::string_view text) {
  std::size_t at = 0;
  const auto blanks = [&] {
    const std::size_t from = at;
    while (at < text.size() && text[at] == ' ') ++at;
    return at > from;
  };
  blanks();
  const auto year = Digits(text, at, 4);
  if (!year || at >= text.size() || text[at++] != '-') return false;
  const auto month = Digits(text, at, 2);
  if (!month || at >= text.size() || text[at++] != '-') return false;
  const auto day = Digits(text, at, 2);
  if (!day) return false;
  static constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (*year < 100 || *month < 1 || *month > 12 || *day < 1) return false;
  const int last = kDays[static_cast<std::size_t>(*month - 1)] + (*month == 2 && IsLeap(*year) ? 1 : 0);
  if (*day > last) return false;
  if (!blanks() || at == text.size()) return at == text.size();
  const auto hour = Digits(text, at, 2);
  if (!hour || *hour > 23 || at >= text.size() || text[at++] != ':') return false;
  const auto minute = Digits(text, at, 2);
  if (!minute || *minute > 59) return false;
  if (at < text.size() && text[at] == ':') {
    ++at;
    const auto second = Digits(text, at, 2);
    if (!second || *second > 59) return false;
  }
  blanks();
  return at == text.size();
}

std::optional<std::uint64_t> Whole(std::string_view text) {
  if (text.empty() || text.size() > 18) return std::nullopt;
  std::uint64_t value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + static_cast<std::uint64_t>(c - '0');
  }
  return value;
}

}  // namespace

std::string ExifEntry::Value() const {
  switch (kind) {
    case Kind::Number: return std::to_string(number);
    case Kind::Text: return base::DecodeCp1252(bytes);
    case Kind::Empty: break;
  }
  return "";
}

void ExifInfos::SetPicFile(platform::FileSystem& files, const std::string& path) {
  files_ = &files;
  picFile_ = path;
}

void ExifInfos::Reset() {
  loaded_ = false;
  intel_ = false;
  tiffBase_ = -1;
  makerNoteOffset_ = -1;
  entries_.clear();
}

bool ExifInfos::Load(platform::FileSystem& files, const std::string& path) {
  if (picFile_.empty()) SetPicFile(files, path);
  Reset();
  int error = 0;
  const auto file = files.OpenForReading(picFile_, error);
  if (!file) return false;
  return Read(*file);
}

bool ExifInfos::Read(platform::InputFile& input) {
  Reset();
  ExifFile file(input);
  if (!file.ReadHead()) return false;
  const auto start = file.Bytes(0, 2);
  if (!start) return false;
  // Either of FF and D8 in its place is start enough.
  if (static_cast<unsigned char>((*start)[0]) != 0xFF && static_cast<unsigned char>((*start)[1]) != 0xD8) {
    return false;
  }
  const auto found = file.FindSegment();
  if (!found) return false;
  const auto segment = static_cast<std::int64_t>(*found);
  const auto exif = file.Bytes(segment + 4, 4);
  if (!exif || *exif != "Exif") return false;
  const std::int64_t base = segment + 10;
  if (base > kLargest) return false;
  // Byte order: "II" is told by its first byte alone; anything else is
  // Motorola order, and the 42 isn't looked at.
  const auto order = file.Bytes(base, 1);
  if (!order) return false;
  intel_ = static_cast<unsigned char>((*order)[0]) == 0x49;
  Walk walk{file, Numbers(file, intel_), base, file.Size()};
  const auto first = walk.numbers.U32(base + 4);
  if (!first) return false;
  tiffBase_ = base;
  loaded_ = true;

  // IFD0 and the directories chained behind it, then once the Exif IFD,
  // whose next-directory field is not read. A chain that comes back to a
  // directory it read ends there, and so does one whose directories
  // together would be larger than the file (they would have to overlap).
  std::set<std::int64_t> visited;
  std::uint64_t directoryBudget = file.Size();
  bool inSub = false;
  std::int64_t subOffset = 0;
  std::int64_t offset = *first;
  for (;;) {
    const std::int64_t position = base + offset;
    if (position > kLargest) return false;
    const auto n = walk.numbers.U16(position);
    if (!n) return false;
    const auto bytesOfDirectory = static_cast<std::uint64_t>(2 + 12 * *n + 4);
    if (!inSub) {
      // A directory that runs past the end is read up to there, as any.
      const bool inFile = static_cast<std::uint64_t>(position) + bytesOfDirectory <= file.Size();
      if (inFile && bytesOfDirectory > directoryBudget) return false;
      directoryBudget -= std::min(bytesOfDirectory, directoryBudget);
      visited.insert(offset);
    }
    const std::size_t firstEntry = entries_.size();
    entries_.resize(firstEntry + static_cast<std::size_t>(*n));
    for (std::int64_t i = 0; i < *n; ++i) {
      const std::int64_t at = position + 2 + 12 * i;
      ExifEntry& entry = entries_[firstEntry + static_cast<std::size_t>(i)];
      if (!walk.Head(at, entry) || !walk.ReadValue(at, entry)) return false;
      if (entry.tag == kExifIfdPointer) {
        const auto pointer = PointerOf(entry);
        if (!pointer) return false;
        subOffset = *pointer;
      } else if (entry.tag == kMakerNote) {
        makerNoteOffset_ = entry.offset;
      }
    }
    std::int64_t next = 0;
    if (!inSub) {
      const auto read = walk.numbers.U32(position + 2 + 12 * *n);
      if (!read) return false;
      next = *read;
      if (visited.contains(next)) next = 0;
    }
    if (next == 0) {
      if (inSub) return true;
      inSub = true;
      if (subOffset == 0) return true;
      next = subOffset;
    }
    offset = next;
  }
}

void ExifInfos::ProcessMakerNote(platform::InputFile& input, std::int64_t position) {
  if (!loaded_ || position < 0) return;
  ExifFile file(input);
  if (!file.ReadHead()) return;
  Walk walk{file, Numbers(file, intel_), tiffBase_, file.Size()};
  const auto n = walk.numbers.U16(position);
  if (!n) return;
  // The entries must lie in the file: a maker's own header read as a count
  // asks for more than there is, and the routine ends.
  if (static_cast<std::uint64_t>(position) + 2 + 12 * static_cast<std::uint64_t>(*n) > file.Size()) return;
  const std::size_t firstEntry = entries_.size();
  entries_.resize(firstEntry + static_cast<std::size_t>(*n));
  for (std::int64_t i = 0; i < *n; ++i) {
    const std::int64_t at = position + 2 + 12 * i;
    ExifEntry& entry = entries_[firstEntry + static_cast<std::size_t>(i)];
    entry.makerNote = true;
    if (!walk.Head(at, entry) || !walk.ReadNoteValue(at, entry)) return;
  }
}

std::string ExifInfos::Tag(std::int32_t id) {
  if (!loaded_ && !picFile_.empty() && files_ != nullptr) Load(*files_, picFile_);
  if (id == 0) return std::to_string(entries_.size());
  for (const ExifEntry& entry : entries_) {
    if (entry.tag == id) return entry.Value();
  }
  return "";
}

std::string ExifInfos::MakerNoteTag(std::int32_t id) const {
  if (!loaded_) return "";
  for (const ExifEntry& entry : entries_) {
    if (entry.makerNote && entry.tag == id) return entry.Value();
  }
  return "";
}

std::string ExifInfos::ExifDate() { return DateOf(Tag(kDateTimeOriginal)); }

std::string ExifInfos::DateOf(const std::string& value) {
  std::string text = value;
  int replaced = 0;
  for (char& c : text) {
    if (replaced == 2) break;
    if (c == ':') {
      c = '-';
      ++replaced;
    }
  }
  const std::string_view parsed = std::string_view(text).substr(0, text.find('\0'));
  return IsDate(parsed) ? text : std::string();
}

std::string ExifInfos::Resolution(const std::string& value) {
  const std::size_t slash = value.find('/');
  if (slash == std::string::npos) return value;
  const auto numerator = Whole(std::string_view(value).substr(0, slash));
  const auto denominator = Whole(std::string_view(value).substr(slash + 1));
  if (!numerator || !denominator || *denominator == 0) return "";
  std::uint64_t quotient = *numerator / *denominator;
  const std::uint64_t twice = (*numerator % *denominator) * 2;
  if (twice > *denominator || (twice == *denominator && quotient % 2 == 1)) ++quotient;
  return std::to_string(quotient);
}

}  // namespace nomra::media
