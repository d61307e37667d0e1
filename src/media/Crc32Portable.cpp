#include <array>

#include "media/Crc32.h"

namespace nomra::media {
namespace {

constexpr std::uint32_t kPolynomial = 0xEDB88320u;

// Table k gives the CRC of a byte followed by k zero bytes, so eight bytes
// are folded with eight independent look-ups instead of eight dependent ones.
using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

constexpr Tables MakeTables() {
  Tables tables{};
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1u) ? kPolynomial : 0u);
    tables[0][byte] = crc;
  }
  for (std::size_t k = 1; k < 8; ++k) {
    for (std::size_t byte = 0; byte < 256; ++byte) {
      const std::uint32_t previous = tables[k - 1][byte];
      tables[k][byte] = (previous >> 8) ^ tables[0][previous & 0xFFu];
    }
  }
  return tables;
}

constexpr Tables kTables = MakeTables();

// Four bytes as a little-endian word, whatever the machine's byte order.
std::uint32_t Word(const unsigned char* p) {
  return static_cast<std::uint32_t>(p[0]) | static_cast<std::uint32_t>(p[1]) << 8 |
         static_cast<std::uint32_t>(p[2]) << 16 | static_cast<std::uint32_t>(p[3]) << 24;
}

}  // namespace

std::uint32_t Crc32Portable(std::uint32_t crc, const unsigned char* bytes, std::size_t length) {
  crc = ~crc;
  for (; length >= 8; bytes += 8, length -= 8) {
    const std::uint32_t low = crc ^ Word(bytes);
    const std::uint32_t high = Word(bytes + 4);
    crc = kTables[7][low & 0xFFu] ^ kTables[6][(low >> 8) & 0xFFu] ^ kTables[5][(low >> 16) & 0xFFu] ^
          kTables[4][low >> 24] ^ kTables[3][high & 0xFFu] ^ kTables[2][(high >> 8) & 0xFFu] ^
          kTables[1][(high >> 16) & 0xFFu] ^ kTables[0][high >> 24];
  }
  for (; length > 0; ++bytes, --length) crc = (crc >> 8) ^ kTables[0][(crc ^ *bytes) & 0xFFu];
  return ~crc;
}

}  // namespace nomra::media
