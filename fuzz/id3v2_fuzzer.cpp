// The whole reader over a file that starts with "ID3" and the input: the
// version, flags, size field and frames are the fuzzer's. A file shorter
// than the 8,192 bytes the reader takes at 0 is filled up with NULs, so the
// tag is always walked.
#include <cstddef>
#include <cstdint>
#include <string>

#include "Mp3Values.h"
#include "media/Mp3Infos.h"
#include "platform/MemoryInputFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string file = "ID3" + std::string(reinterpret_cast<const char*>(data), size);
  if (file.size() < 8192) file.resize(8192, '\0');
  nomra::platform::MemoryInputFile bytes(file);
  nomra::media::Mp3Infos infos;
  infos.Read(bytes);
  nomra::fuzz::sink = nomra::fuzz::AllValues(infos);
  return 0;
}
