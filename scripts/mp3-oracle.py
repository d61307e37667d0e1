#!/usr/bin/python3
"""What mutagen reads from MP3 files, as flat JSON, for the MP3 reader's tests.

  scripts/mp3-oracle.py FILE           print FILE's values as one JSON object
  scripts/mp3-oracle.py --write FILE...  write FILE.json beside each FILE

The values are mutagen's own: its MPEG stream info, the ID3v2 frames as
stored (translate=False, so a TYER stays a TYER), and the ID3v1 record
parsed by mutagen's ParseID3v1. Besides, the first frame header's own
bitrate: mutagen's bitrate for a file with a Xing header is the average, and
the reader takes the first frame's header as it stands.
"""

import json
import struct
import sys

import mutagen.id3
import mutagen.mp3
from mutagen.id3._id3v1 import ParseID3v1

# The ID3v2 frames the tests compare, and their names in version 2.2.
TEXT_FRAMES = {"TIT2": "TT2", "TPE1": "TP1", "TALB": "TAL", "TYER": "TYE", "TDRC": None, "TRCK": "TRK", "TCON": "TCO",
               "TCOM": "TCM"}


def first_frame_header(path, offset):
    """The bitrate and padding bit of the four header bytes at offset."""
    with open(path, "rb") as f:
        f.seek(offset)
        (word,) = struct.unpack(">I", f.read(4))
    version = [2.5, None, 2, 1][(word >> 19) & 3]
    layer = 4 - ((word >> 17) & 3)
    index = (word >> 12) & 15
    table = mutagen.mp3.MPEGFrame._MPEGFrame__BITRATE[(version, layer)]
    return table[index] * 1000, (word >> 9) & 1


def stream_values(path):
    info = mutagen.mp3.MP3(path).info
    bitrate, padding = first_frame_header(path, info.frame_offset)
    return {
        "mpeg_version": info.version,
        "layer": info.layer,
        "bitrate": info.bitrate,
        "bitrate_mode": str(info.bitrate_mode).split(".")[-1],
        "sample_rate": info.sample_rate,
        "length": info.length,
        "channel_mode": info.mode,
        "frame_offset": info.frame_offset,
        "first_frame_bitrate": bitrate,
        "first_frame_padding": padding,
    }


def id3v2_values(path):
    try:
        tag = mutagen.id3.ID3(path, translate=False, load_v1=False)
    except mutagen.id3.ID3NoHeaderError:
        return {"id3v2": False}
    out = {"id3v2": True, "id3v2_major": tag.version[1], "id3v2_size": tag.size}
    for name, old_name in TEXT_FRAMES.items():
        frame = tag.get(name) or (tag.get(old_name) if old_name else None)
        if frame is not None:
            out[name] = "\u0000".join(str(t) for t in frame.text)
            out[name + "_encoding"] = int(frame.encoding)
    # The first comment in file order; mutagen keys comments by description.
    comments = tag.getall("COMM") or tag.getall("COM")
    if comments:
        out["COMM"] = "\u0000".join(comments[0].text)
        out["COMM_lang"] = comments[0].lang
        out["COMM_desc"] = comments[0].desc
        out["COMM_count"] = len(comments)
        out["COMM_encoding"] = int(comments[0].encoding)
    pictures = tag.getall("APIC")
    if pictures:
        out["APIC_bytes"] = len(pictures[0].data)
    return out


def id3v1_values(path):
    with open(path, "rb") as f:
        f.seek(0, 2)
        size = f.tell()
        if size < 128:
            return {"id3v1": False}
        f.seek(size - 128)
        record = f.read(128)
    frames = ParseID3v1(record, v2_version=3)
    if frames is None:
        return {"id3v1": False}
    out = {"id3v1": True}
    for name, key in (("TIT2", "v1_title"), ("TPE1", "v1_artist"), ("TALB", "v1_album"), ("TYER", "v1_year"),
                      ("TRCK", "v1_track"), ("TCON", "v1_genre")):
        out[key] = str(frames[name].text[0]) if name in frames else ""
    out["v1_comment"] = frames["COMM"].text[0] if "COMM" in frames else ""
    return out


def values(path):
    out = {}
    out.update(stream_values(path))
    out.update(id3v2_values(path))
    out.update(id3v1_values(path))
    return out


def main(argv):
    if len(argv) >= 2 and argv[0] == "--write":
        for path in argv[1:]:
            with open(path + ".json", "w", encoding="utf-8") as f:
                json.dump(values(path), f, indent=1, sort_keys=True)
                f.write("\n")
        return 0
    if len(argv) == 1:
        json.dump(values(argv[0]), sys.stdout, indent=1, sort_keys=True)
        sys.stdout.write("\n")
        return 0
    sys.stderr.write(__doc__)
    return 2


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
