// The EXIF reader over the input as a whole file: the segment search, the
// header, the directory walk and every value, then the maker-note routine
// at the offset tag 37500 gave, as a later caller would run it.
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "media/ExifInfos.h"
#include "platform/MemoryInputFile.h"

namespace {
volatile std::size_t sink = 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  nomra::platform::MemoryInputFile bytes(input);
  nomra::media::ExifInfos infos;
  infos.Read(bytes);
  if (infos.Loaded() && infos.MakerNoteOffset() >= 0) {
    infos.ProcessMakerNote(bytes, infos.TiffBase() + infos.MakerNoteOffset());
  }
  std::size_t total = 0;
  for (const std::string& text :
       {infos.ExifImageW(), infos.ExifImageH(), infos.ExifImageWH(), infos.ExifXResolution(), infos.ExifYResolution(),
        infos.ExifXYResolution(), infos.ExifMake(), infos.ExifModel(), infos.ExifImageNumber(),
        infos.ExifImageDescription(), infos.ExifDate(), infos.Tag(0)}) {
    total += text.size();
  }
  std::set<std::int32_t> tags;
  for (const nomra::media::ExifEntry& entry : infos.Entries()) {
    total += entry.Value().size();
    tags.insert(entry.tag);
  }
  for (const std::int32_t tag : tags) total += infos.MakerNoteTag(tag).size();
  sink = total;
  return 0;
}
