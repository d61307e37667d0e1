#pragma once
#include <cstdint>
#include <string_view>

#include "media/Mp3Infos.h"

namespace nomra::media {

// The search for the first audio frame in the 8192 bytes read at `base`
// (the first byte after an ID3v2 tag, counted from 1, or 0 without one),
// and the values worked out from its header. A read the buffer can't
// serve ends the search with what was set so far, as does a frame size of
// 0 before the frame count.
void SearchMpegHeader(std::string_view buffer, std::int32_t base, MpegHeader& header);

}  // namespace nomra::media
