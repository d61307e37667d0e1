#!/usr/bin/env bash
# Takes a picture of Nomra's window on a virtual screen, with a sample
# folder listed, so its look can be checked without a display.
#
#   scripts/screenshot.sh [--view Icons|DetailsIcons|Details] [--lang English|Deutsch] [OUTPUT.png]
#
# OUTPUT defaults to /tmp/nomra-screenshot.png. The program is taken from
# $NOMRA_BUILD_DIR/bin/nomra, else build/bin/nomra; build it first.
set -euo pipefail
cd "$(dirname "$0")/.."

OUTPUT=/tmp/nomra-screenshot.png
VIEW=""
LANGUAGE=English
while [ $# -gt 0 ]; do
  case "$1" in
    --view) VIEW=${2:?--view needs Icons, DetailsIcons or Details}; shift 2 ;;
    --lang) LANGUAGE=${2:?--lang needs a language name}; shift 2 ;;
    -h|--help) sed -n '2,8p' "$0"; exit 0 ;;
    *) OUTPUT=$1; shift ;;
  esac
done
case "$VIEW" in
  ""|Icons|DetailsIcons|Details) ;;
  *) echo "unknown view: $VIEW (Icons, DetailsIcons or Details)" >&2; exit 2 ;;
esac

BUILD_DIR=${NOMRA_BUILD_DIR:-build}
PROGRAM=$BUILD_DIR/bin/nomra
if [ ! -x "$PROGRAM" ]; then
  echo "no program at $PROGRAM: build it first (./nomra.sh or cmake --build $BUILD_DIR)" >&2
  exit 1
fi

# Debian packages by name; only the missing ones are installed.
PACKAGES=(xvfb x11-utils imagemagick fonts-dejavu-core)
install_missing() {
  local p missing=()
  for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ "${#missing[@]}" -eq 0 ] && return 0
  echo "Installing missing packages: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -ne 0 ] && sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
install_missing

WORK=$(mktemp -d /tmp/nomra-screenshot.XXXXXX)
XVFB_PID=""
NOMRA_PID=""
# Ends what this script started, by its own ids; a killed child's non-zero
# status must not stop the clean-up half way.
cleanup() {
  set +e
  if [ -n "$NOMRA_PID" ]; then kill "$NOMRA_PID" 2>/dev/null; wait "$NOMRA_PID" 2>/dev/null; fi
  if [ -n "$XVFB_PID" ]; then kill "$XVFB_PID" 2>/dev/null; wait "$XVFB_PID" 2>/dev/null; fi
  rm -rf "$WORK"
}
trap cleanup EXIT

# A small folder like a user's: notes, music by name only, two photos, and
# folders inside folders.
make_sample() {
  local root=$1
  mkdir -p "$root/Documents/Notes" "$root/Music/Album 2019" "$root/Photos/Holiday"
  printf 'Shopping list\nmilk\nbread\n' >"$root/Documents/shopping list.txt"
  printf 'Meeting on Monday at 10.\n' >"$root/Documents/Notes/meeting notes.txt"
  printf 'Ideas for the garden.\n' >"$root/Documents/Notes/garden_ideas.TXT"
  printf 'readme\n' >"$root/README.txt"
  local n
  for n in "01 - Opening Theme" "02 - Long Road Home" "03 - A Song With A Rather Long Title (Live)"; do
    : >"$root/Music/Album 2019/$n.mp3"
  done
  : >"$root/Music/single_track.MP3"
  convert -size 320x240 gradient:skyblue-seagreen -fill gold -draw "circle 250,60 280,60" \
    "$root/Photos/Holiday/IMG_0001.jpg"
  convert -size 240x320 gradient:orange-purple -fill white -draw "rectangle 40,200 200,280" \
    "$root/Photos/IMG_0002.jpg"
}

DATA=$WORK/data
SAMPLE=$WORK/Sample
mkdir -p "$DATA"
make_sample "$SAMPLE"
{
  printf '[Settings]\r\nlng=%s\r\nsplash=0\r\nbtnbarMain=1\r\nbtnbarScript=1\r\n' "$LANGUAGE"
  [ -n "$VIEW" ] && printf 'PreviewStyle=%s\r\n' "$VIEW"
} >"$DATA/settings.nrp"

# Xvfb picks a free display itself and writes its number once it takes
# clients, so two runs side by side don't race for one.
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$WORK/display" >"$WORK/xvfb.log" 2>&1 &
XVFB_PID=$!
for _ in $(seq 150); do
  [ -s "$WORK/display" ] && break
  kill -0 "$XVFB_PID" 2>/dev/null || break
  sleep 0.1
done
if [ ! -s "$WORK/display" ]; then
  echo "Xvfb did not start:" >&2
  cat "$WORK/xvfb.log" >&2
  exit 1
fi
DISPLAY=:$(tr -d '[:space:]' <"$WORK/display")
export DISPLAY

NOMRA_DATA_DIR=$DATA QT_QPA_PLATFORM=xcb "$PROGRAM" "$SAMPLE" >"$WORK/nomra.log" 2>&1 &
NOMRA_PID=$!

# The window is there once it is mapped; a moment more lets the pictures
# load and the list paint.
shown=no
for _ in $(seq 100); do
  if ! kill -0 "$NOMRA_PID" 2>/dev/null; then
    echo "Nomra ended before its window showed:" >&2
    cat "$WORK/nomra.log" >&2
    exit 1
  fi
  if xwininfo -root -tree 2>/dev/null | grep -q '"Nomra'; then
    shown=yes
    break
  fi
  sleep 0.2
done
[ "$shown" = yes ] || { echo "no Nomra window after 20 s" >&2; cat "$WORK/nomra.log" >&2; exit 1; }
sleep 2

mkdir -p "$(dirname "$OUTPUT")"
import -window root "$OUTPUT"
echo "$OUTPUT"
