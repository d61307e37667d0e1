#pragma once
#include <optional>
#include <string>

namespace nomra::core {

// Reads the date a camera stored in a JPEG file's Exif data, in the list's
// date form. The loader asks it for every ".jpg" and ".jpeg" file when
// EXIF dates are to be loaded.
class ExifDateReader {
 public:
  virtual ~ExifDateReader() = default;
  virtual std::optional<std::string> ReadExifDate(const std::string& path) = 0;
};

// Until the Exif reader is built, no file yields a date.
class NoExifDates final : public ExifDateReader {
 public:
  std::optional<std::string> ReadExifDate(const std::string&) override { return std::nullopt; }
};

}  // namespace nomra::core
