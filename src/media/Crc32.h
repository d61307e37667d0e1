#pragma once
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/FileSystem.h"
#include "platform/InputFile.h"

namespace nomra::media {

// The CRC-32 of gzip, zip and PNG (reflected polynomial 0xEDB88320, all ones
// before the first byte, inverted after the last), the same value as zlib's
// crc32. Values chain as zlib's do: start from 0 and pass each result back in
// with the next bytes; the value of the empty input is 0.
std::uint32_t Crc32Update(std::uint32_t crc, const unsigned char* bytes, std::size_t length);

// The same value from tables alone, eight bytes a step, for a build without
// the vectorised library. It is compiled into every build, so the tests hold
// both ways to zlib wherever they run.
std::uint32_t Crc32Portable(std::uint32_t crc, const unsigned char* bytes, std::size_t length);

// Whether Crc32Update runs on the vectorised library in this build.
bool Crc32UsesVectorLibrary();

// The CRC-32 of the bytes a file held when it was opened (Size()), read once
// from front to back; a file that reports no size, as a device, is read to
// its end. Nothing when a read fails, with its errno in `error`: a file that
// could be read only in part has no checksum, never a wrong one.
std::optional<std::uint32_t> FileCrc32(platform::InputFile& file, int& error);

// Opens the file and takes its CRC-32. Nothing when it can't be opened
// (missing, a folder, no permission) or read, with the errno in `error`;
// the name structure turns that into a fault at the row that asked.
std::optional<std::uint32_t> FileCrc32(platform::FileSystem& files, const std::string& path, int& error);

// The checksum as the signed 32-bit number it is shown as in decimal: a
// value with the top bit set is negative.
constexpr std::int32_t Crc32Signed(std::uint32_t crc) { return static_cast<std::int32_t>(crc); }

// <CRC32>: upper-case hexadecimal without leading zeros ("CBF43926", "1F",
// "0" for an empty file).
std::string Crc32Hex(std::uint32_t crc);

// <CRC32_D>: the signed decimal form ("-873187034" for "123456789").
std::string Crc32Decimal(std::uint32_t crc);

}  // namespace nomra::media
