#!/usr/bin/env bash
# Validates the desktop entry and the AppStream record, and checks the
# icons drawn from the SVG have the sizes their folders name.
#   dist/checks/desktop-files.sh DESKTOP_FILE METAINFO_FILE ICON_FOLDER
set -euo pipefail
desktop=$1 metainfo=$2 icons=$3
fail() { echo "FAIL: $*" >&2; exit 1; }

desktop-file-validate "$desktop" || fail "desktop-file-validate"
grep -qx 'Exec=nomra %F' "$desktop" || fail "Exec does not take files"
appstreamcli validate --no-net --explain "$metainfo" || fail "appstreamcli validate"
grep -qF '<launchable type="desktop-id">'"$(basename "$desktop")"'</launchable>' "$metainfo" ||
  fail "the AppStream record does not launch the desktop entry"

for size in 16 22 24 32 48 64 128 256; do
  png=$icons/${size}x${size}/org.nomra.Nomra.png
  [ -f "$png" ] || fail "no $png"
  # The PNG header holds width and height as big-endian words at byte 16.
  read -r width height < <(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4, $7*256+$8}')
  [ "$width" = "$size" ] && [ "$height" = "$size" ] || fail "$png is ${width}x$height"
done
echo "desktop entry, AppStream record and icons are valid"
