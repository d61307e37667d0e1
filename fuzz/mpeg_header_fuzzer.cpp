// The frame search over any bytes: the first four give the file size the
// frame count is worked out with, the next four the base the position counts
// from, the rest is the search window.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "Mp3Values.h"
#include "media/MpegHeaderSearch.h"

namespace {

std::int32_t Int32At(const std::uint8_t* data) {
  std::uint32_t value = 0;
  std::memcpy(&value, data, sizeof value);
  return static_cast<std::int32_t>(value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 8) return 0;
  nomra::media::MpegHeader header;
  header.fileSize = Int32At(data);
  const std::int32_t base = Int32At(data + 4);
  const std::string_view window(reinterpret_cast<const char*>(data + 8), size - 8);
  nomra::media::SearchMpegHeader(window, base, header);
  // Text of every field, as the tag columns show them.
  nomra::fuzz::sink = nomra::media::VersionText(header.version).size() + nomra::media::LayerText(header.layer).size() +
                      nomra::media::ChannelModeText(header.channelMode).size() +
                      nomra::media::EmphasisText(header.emphasis).size();
  return 0;
}
