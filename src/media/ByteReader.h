#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace nomra::media {

// Bytes a reader may look at, and no others: every access says whether the
// byte is there, so a length or an offset taken from a damaged file can
// never lead a read outside the buffer.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Size() const { return bytes_.size(); }
  bool Holds(std::size_t offset, std::size_t count) const {
    return offset <= bytes_.size() && count <= bytes_.size() - offset;
  }
  std::optional<std::uint8_t> Byte(std::size_t offset) const {
    if (offset >= bytes_.size()) return std::nullopt;
    return static_cast<std::uint8_t>(bytes_[offset]);
  }
  // The bytes from `offset` on, `count` of them, or nothing when the buffer
  // ends before.
  std::optional<std::string_view> Bytes(std::size_t offset, std::size_t count) const {
    if (!Holds(offset, count)) return std::nullopt;
    return bytes_.substr(offset, count);
  }

 private:
  std::string_view bytes_;
};

}  // namespace nomra::media
