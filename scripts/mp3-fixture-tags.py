#!/usr/bin/python3
"""Tags copies of one MP3 with mutagen, and with ID3v2 bytes built by hand
for what no installed tagger writes (version 2.2, an extended header,
unsynchronisation).

  scripts/mp3-fixture-tags.py SOURCE.mp3 OUTDIR

SOURCE is an untagged lame encoding; every copy is named after its tag.
"""

import os
import random
import shutil
import struct
import sys

from mutagen.id3 import APIC, COMM, ID3, TALB, TCOM, TCON, TDRC, TIT2, TPE1, TRCK, TYER

LATIN1 = 0
UTF16 = 1


def picture_bytes(count):
    # Bytes no image decoder needs to accept: the readers only skip them.
    rng = random.Random(count)
    return bytes(rng.randrange(256) for _ in range(count))


def tag_copy(source, target, frames, version, padding):
    shutil.copyfile(source, target)
    tag = ID3()
    for frame in frames:
        tag.add(frame)
    tag.save(target, v2_version=version, v1=0, padding=lambda info: padding)


def mutagen_fixtures(source, out):
    tag_copy(source, os.path.join(out, "mutagen_v23_utf16_bom.mp3"), [
        TIT2(encoding=UTF16, text="Frühling à Paris"),
        TPE1(encoding=UTF16, text="Ärtist Ñame"),
        TALB(encoding=UTF16, text="Album ÿ"),
        TYER(encoding=UTF16, text="1999"),
        TRCK(encoding=UTF16, text="7/9"),
        TCON(encoding=UTF16, text="Jazz"),
        COMM(encoding=UTF16, lang="eng", desc="", text="Ein Kommentar"),
    ], 3, 1024)
    tag_copy(source, os.path.join(out, "mutagen_v23_latin1_padding4096.mp3"), [
        TIT2(encoding=LATIN1, text="Café del Mar"),
        TPE1(encoding=LATIN1, text="José González"),
        TALB(encoding=LATIN1, text="Veneer"),
        TYER(encoding=LATIN1, text="2003"),
        TRCK(encoding=LATIN1, text="4"),
        TCON(encoding=LATIN1, text="(20)Alternative"),
        COMM(encoding=LATIN1, lang="eng", desc="", text="Latin-1 comment"),
    ], 3, 4096)
    tag_copy(source, os.path.join(out, "mutagen_v24_latin1_small_frames.mp3"), [
        TIT2(encoding=LATIN1, text="Short title"),
        TPE1(encoding=LATIN1, text="Short artist"),
        TALB(encoding=LATIN1, text="Short album"),
        TDRC(encoding=LATIN1, text="2011"),
        TRCK(encoding=LATIN1, text="12"),
        TCON(encoding=LATIN1, text="Dance"),
        COMM(encoding=LATIN1, lang="eng", desc="", text="Below 128 bytes"),
    ], 4, 256)
    tag_copy(source, os.path.join(out, "mutagen_v23_apic_3000.mp3"), [
        TIT2(encoding=LATIN1, text="Small picture"),
        TPE1(encoding=LATIN1, text="Painter"),
        TALB(encoding=LATIN1, text="Gallery"),
        APIC(encoding=LATIN1, mime="image/png", type=3, desc="", data=picture_bytes(3000)),
        COMM(encoding=LATIN1, lang="eng", desc="", text="Behind the picture"),
    ], 3, 512)
    tag_copy(source, os.path.join(out, "mutagen_v23_apic_40000.mp3"), [
        TIT2(encoding=LATIN1, text="Big picture"),
        TPE1(encoding=LATIN1, text="Painter"),
        TALB(encoding=LATIN1, text="Gallery"),
        APIC(encoding=LATIN1, mime="image/png", type=3, desc="", data=picture_bytes(40000)),
        COMM(encoding=LATIN1, lang="eng", desc="", text="Behind the picture"),
    ], 3, 512)
    # mutagen writes the frames it doesn't rank by size: the composer, the
    # longest, comes behind both comments.
    tag_copy(source, os.path.join(out, "mutagen_v23_two_comments.mp3"), [
        TIT2(encoding=LATIN1, text="Two comments"),
        COMM(encoding=LATIN1, lang="eng", desc="", text="First comment"),
        COMM(encoding=LATIN1, lang="eng", desc="note", text="Second comment"),
        TYER(encoding=LATIN1, text="1987"),
        TCOM(encoding=LATIN1, text="A composer whose name is longer than both comments"),
    ], 3, 512)
    # mutagen ends every text with a NUL: three letters and that NUL make
    # four bytes whose last is a NUL.
    tag_copy(source, os.path.join(out, "mutagen_v23_three_letter_texts.mp3"), [
        TIT2(encoding=LATIN1, text="Sun"),
        TPE1(encoding=LATIN1, text="Abba"),
        TCON(encoding=LATIN1, text="Pop"),
    ], 3, 256)


def synchsafe(n):
    return bytes([(n >> 21) & 0x7F, (n >> 14) & 0x7F, (n >> 7) & 0x7F, n & 0x7F])


def frame23(fid, data):
    return fid.encode() + struct.pack(">IH", len(data), 0) + data


def frame22(fid, data):
    return fid.encode() + struct.pack(">I", len(data))[1:] + data


def unsynchronise(data):
    out = bytearray()
    for k, b in enumerate(data):
        out.append(b)
        following = data[k + 1] if k + 1 < len(data) else 0
        if b == 0xFF and (following >= 0xE0 or following == 0):
            out.append(0)
    return bytes(out)


def write_tagged(source, target, version, flags, body):
    with open(source, "rb") as f:
        audio = f.read()
    with open(target, "wb") as f:
        f.write(b"ID3" + bytes([version, 0, flags]) + synchsafe(len(body)) + body + audio)


def hand_built_fixtures(source, out):
    text = lambda s: b"\x00" + s.encode("latin-1")
    padding = bytes(200)
    write_tagged(source, os.path.join(out, "built_v22.mp3"), 2, 0,
                 frame22("TT2", text("Old title")) + frame22("TP1", text("Old artist")) +
                 frame22("TAL", text("Old album")) + frame22("TYE", text("1998")) +
                 frame22("COM", b"\x00eng\x00" + b"Old comment") + padding)
    # A version 2.3 extended header: its size (6), flags, padding size.
    extended = struct.pack(">IHI", 6, 0, len(padding))
    write_tagged(source, os.path.join(out, "built_v23_extended_header.mp3"), 3, 0x40,
                 extended + frame23("TIT2", text("Extended")) + frame23("TPE1", text("Header")) + padding)
    # The last frame holds 0xFF 0xFF, which unsynchronisation makes
    # 0xFF 0x00 0xFF; frame sizes count the bytes before it.
    frames = frame23("TPE1", text("Unsynchronised")) + frame23("TIT2", text("T\xff\xff Title"))
    write_tagged(source, os.path.join(out, "built_v23_unsynchronised.mp3"), 3, 0x80,
                 unsynchronise(frames) + padding)


def main(argv):
    if len(argv) != 2:
        sys.stderr.write(__doc__)
        return 2
    source, out = argv
    mutagen_fixtures(source, out)
    hand_built_fixtures(source, out)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
