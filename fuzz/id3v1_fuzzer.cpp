// The whole reader over a file that ends in an ID3v1 record: "TAG" and the
// input's first 125 bytes (NULs where it is shorter), with the rest of the
// input in front of it as the file's body.
#include <cstddef>
#include <cstdint>
#include <string>

#include "Mp3Values.h"
#include "media/Mp3Infos.h"
#include "platform/MemoryInputFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  constexpr std::size_t kRecordBody = 125;
  std::string record = "TAG" + input.substr(0, kRecordBody);
  record.resize(3 + kRecordBody, '\0');
  const std::string file = (size > kRecordBody ? input.substr(kRecordBody) : std::string()) + record;
  nomra::platform::MemoryInputFile bytes(file);
  nomra::media::Mp3Infos infos;
  infos.Read(bytes);
  nomra::fuzz::sink = nomra::fuzz::AllValues(infos);
  return 0;
}
