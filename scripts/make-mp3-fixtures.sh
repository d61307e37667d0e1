#!/usr/bin/env bash
# Makes real MP3 files for the MP3 reader's tests and benchmark: generated
# sound encoded by lame, tagged by lame, id3v2, eyeD3 and mutagen, and
# beside each NAME.mp3 a NAME.mp3.json with what mutagen reads from it.
#   scripts/make-mp3-fixtures.sh OUTDIR
# Every file's name tells what it is. No Debian tool writes a VBRI header
# (only Fraunhofer's encoders do), so there is no such file; the reader
# reads neither VBRI nor Xing headers anyway.
set -euo pipefail
scripts=$(cd "$(dirname "$0")" && pwd)
out=${1:?usage: make-mp3-fixtures.sh OUTDIR}
mkdir -p "$out"

# eyeD3 and mid3v2 run on the system's Python; mutagen is a Debian package
# there, so that Python runs the helpers too.
python=
for candidate in /usr/bin/python3 python3; do
  if "$candidate" -c 'import mutagen' 2>/dev/null; then
    python=$candidate
    break
  fi
done
missing=()
for tool in lame id3v2 eyeD3; do
  command -v "$tool" >/dev/null || missing+=("$tool")
done
[ -n "$python" ] || missing+=(python3-mutagen)
if ((${#missing[@]})); then
  echo "make-mp3-fixtures.sh: missing ${missing[*]} (./nomra.sh installs them)" >&2
  exit 1
fi

# Five seconds of two tones and a little noise, stereo, 44.1 kHz; the same
# bytes every run.
wav="$out/sound.wav"
"$python" - "$wav" <<'EOF'
import array, math, random, sys, wave
rate, seconds = 44100, 5
rng = random.Random(7)
samples = array.array("h")
for i in range(rate * seconds):
    t = i / rate
    v = 0.4 * math.sin(2 * math.pi * 440 * t) + 0.2 * math.sin(2 * math.pi * 659 * t) + 0.05 * (rng.random() * 2 - 1)
    samples.append(int(v * 32767))
    samples.append(int(-v * 16000))
with wave.open(sys.argv[1], "wb") as w:
    w.setnchannels(2)
    w.setsampwidth(2)
    w.setframerate(rate)
    w.writeframes(samples.tobytes())
EOF

encode() {
  local name=$1
  shift
  lame --quiet "$@" "$wav" "$out/$name"
}
encode lame_cbr128.mp3 -b 128
encode lame_cbr128_no_info_frame.mp3 -b 128 -t
encode lame_cbr64_mono.mp3 -b 64 -m m
encode lame_vbr_v2_xing.mp3 -V 2
encode lame_cbr128_48k.mp3 -b 128 --resample 48
encode lame_cbr128_32k.mp3 -b 128 --resample 32
encode lame_mpeg2_22k_joint.mp3 -b 64 -m j --resample 22.05
encode lame_mpeg2_22k_mono.mp3 -b 32 -m m --resample 22.05
encode lame_mpeg2_22k_stereo.mp3 -b 64 -m s --resample 22.05
encode lame_mpeg25_11k_joint.mp3 -b 32 -m j --resample 11.025
# lame's own tags: ID3v1 and a version 2.3 tag with UTF-16 text.
encode lame_cbr128_id3v1_id3v2_3_utf16.mp3 -b 128 --tt "Tïtle" --ta "Artist" --tl "Album" --ty 2004 \
  --tc "A comment" --tn 3/12 --tg Rock
rm "$wav"

plain="$out/lame_cbr128.mp3"
tagged() {
  cp "$plain" "$out/$1"
  printf '%s\n' "$out/$1"
}

# id3v2 (id3lib) writes ID3v1.1 and a version 2.3 tag in Latin-1.
id3v2 -t "Title é" -a "Artist" -A "Album" -y 2004 -c "A comment" -T 3/12 -g 17 \
  "$(tagged id3v2_id3v1_id3v2_3_latin1.mp3)" >/dev/null

# eyeD3 writes version 2.4 in UTF-8 or UTF-16, version 2.3 in UTF-16, and
# ID3v1.1 with a track; each tag has padding behind its frames.
eyed3() { eyeD3 --no-config --no-color -Q "$@" >/dev/null; }
eyed3 --to-v2.4 --encoding utf8 -t "Tïtle Ω" -a "Ärtist" -A "Album" --recording-date 2004 -n 3 -N 12 -G Rock \
  -c "A comment" "$(tagged eyed3_v24_utf8.mp3)"
eyed3 --to-v2.4 --encoding utf16 -t "Tïtle" -a "Ärtist" -A "Album" --recording-date 2004 -n 5 -G Rock \
  -c "A comment" "$(tagged eyed3_v24_utf16.mp3)"
eyed3 --to-v2.3 --encoding utf16 -t "Tïtle Ω" -a "Ärtist" -A "Album" --recording-date 2004 -n 5 -G Rock \
  -c "A comment" "$(tagged eyed3_v23_utf16.mp3)"
eyed3 -1 -t "Title" -a "Artist" -A "Album" --recording-date 1995 -n 7 -G Blues -c "V1.1 comment" \
  "$(tagged eyed3_v11_track.mp3)"
# A title of 200 bytes: a version 2.4 frame size above 127 is written in
# 7-bit groups.
eyed3 --to-v2.4 --encoding latin1 -a "Artist" -A "Album" -n 1 -c "Short" \
  -t "$(printf 'Long title %.0s' {1..18})and more" "$(tagged eyed3_v24_title200.mp3)"

# Pictures of about 3,000 and 40,000 bytes: PNGs of random pixels, which
# deflate can't shrink. eyeD3 writes frames in the order of their ids, so
# the picture (APIC) stands first.
"$python" - "$out" <<'EOF'
import os, random, struct, sys, zlib
def png(path, width, height):
    rng = random.Random(width)
    rows = b"".join(b"\0" + bytes(rng.randrange(256) for _ in range(width * 3)) for _ in range(height))
    chunk = lambda kind, data: struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    with open(path, "wb") as f:
        f.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
                chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))
png(os.path.join(sys.argv[1], "picture_small.png"), 31, 31)
png(os.path.join(sys.argv[1], "picture_big.png"), 120, 112)
EOF
eyed3 --to-v2.3 --encoding latin1 -t "Cover" -a "Painter" --add-image "$out/picture_small.png:FRONT_COVER" \
  "$(tagged eyed3_v23_apic_small.mp3)"
eyed3 --to-v2.3 --encoding latin1 -t "Cover" -a "Painter" --add-image "$out/picture_big.png:FRONT_COVER" \
  "$(tagged eyed3_v23_apic_big.mp3)"
rm "$out/picture_small.png" "$out/picture_big.png"

"$python" "$scripts/mp3-fixture-tags.py" "$plain" "$out"
"$python" "$scripts/mp3-oracle.py" --write "$out"/*.mp3
