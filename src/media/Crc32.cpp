#include "media/Crc32.h"

#include <cstdio>

#ifdef NOMRA_HAVE_ISAL
#include <isa-l/crc.h>
#endif

namespace nomra::media {

std::uint32_t Crc32Update(std::uint32_t crc, const unsigned char* bytes, std::size_t length) {
#ifdef NOMRA_HAVE_ISAL
  // ISA-L picks the widest carry-less multiply the processor has when it is
  // loaded; it inverts before and after as zlib does, so values chain alike.
  return crc32_gzip_refl(crc, bytes, length);
#else
  return Crc32Portable(crc, bytes, length);
#endif
}

bool Crc32UsesVectorLibrary() {
#ifdef NOMRA_HAVE_ISAL
  return true;
#else
  return false;
#endif
}

std::string Crc32Hex(std::uint32_t crc) {
  char text[9];
  std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(crc));
  return text;
}

std::string Crc32Decimal(std::uint32_t crc) { return std::to_string(Crc32Signed(crc)); }

}  // namespace nomra::media
