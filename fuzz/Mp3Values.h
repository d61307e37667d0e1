#pragma once
#include <cstddef>
#include <string>

#include "media/Mp3Infos.h"

namespace nomra::fuzz {

// Where the targets leave what they computed, so no call is optimised away.
inline volatile std::size_t sink = 0;

// Asks the reader for every value it gives, so each text rule runs over
// what the read left; returns the count of bytes.
inline std::size_t AllValues(const media::Mp3Infos& infos) {
  std::size_t bytes = infos.Mp3Length().size() + static_cast<std::size_t>(infos.BitrateKbps() != 0);
  for (const std::string& text :
       {infos.Id3SongTitleV1(), infos.Id3ArtistV1(),  infos.Id3AlbumV1(),     infos.Id3YearV1(),   infos.Id3CommentV1(),
        infos.Id3TrackV1(),     infos.Id3GenreV1(),   infos.Id3SongTitleV2(), infos.Id3ArtistV2(), infos.Id3AlbumV2(),
        infos.Id3YearV2(),      infos.Id3CommentV2(), infos.Id3TrackV2(),     infos.Id3GenreV2(),  infos.Id3SongTitle(),
        infos.Id3Artist(),      infos.Id3Album(),     infos.Id3Year(),        infos.Id3Comment(),  infos.Id3Track(),
        infos.Id3Genre()}) {
    bytes += text.size();
  }
  for (int n = -1; n <= 23; ++n) bytes += infos.Id3Element(n).size();
  for (const auto& [id, raw] : infos.Frames()) bytes += infos.FrameText(id).size() + raw.size();
  return bytes;
}

}  // namespace nomra::fuzz
