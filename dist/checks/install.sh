#!/usr/bin/env bash
# Installs a build tree into a throw-away root under the prefix /usr and
# checks that the installed nomra-cli finds its program folder in
# share/nomra/ there, not in the build tree it came from.
#   dist/checks/install.sh BUILD_DIR
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT

DESTDIR="$root/stage" cmake --install "$build" --prefix /usr >"$root/install.log"
prefix="$root/stage/usr"

fail() { echo "FAIL: $*" >&2; exit 1; }
for file in bin/nomra-cli share/nomra/English.lng share/nomra/Deutsch.lng share/nomra/settings.nrp \
            share/nomra/structures.nrp share/bash-completion/completions/nomra-cli; do
  [ -f "$prefix/$file" ] || fail "$file is not installed"
done
[ -x "$prefix/bin/nomra-cli" ] || fail "bin/nomra-cli is not executable"
if [ -f "$build/bin/nomra" ]; then
  [ -x "$prefix/bin/nomra" ] || fail "bin/nomra is not installed"
  for file in share/applications/org.nomra.Nomra.desktop share/metainfo/org.nomra.Nomra.metainfo.xml \
              share/icons/hicolor/scalable/apps/org.nomra.Nomra.svg share/icons/hicolor/16x16/apps/org.nomra.Nomra.png \
              share/icons/hicolor/256x256/apps/org.nomra.Nomra.png; do
    [ -f "$prefix/$file" ] || fail "$file is not installed"
  done
  # The window answers --help without a display.
  env -u DISPLAY -u WAYLAND_DISPLAY "$prefix/bin/nomra" --help | grep -q '^Usage: nomra ' || fail "nomra --help"
fi

version=$("$prefix/bin/nomra-cli" --version)
echo "$version"
grep -qxF "program folder: $prefix/share/nomra/" <<<"$version" || fail "the program folder is not share/nomra/"
grep -qxF "language files: Deutsch.lng English.lng" <<<"$version" || fail "the language files were not found"

# A run on a real folder, with a data folder of its own.
mkdir -p "$root/files" "$root/data"
echo one >"$root/files/a b.txt"
out=$(NOMRA_DATA_DIR="$root/data" HOME="$root" "$prefix/bin/nomra-cli" --edit 'c d.txt' "$root/files")
echo "$out"
grep -qF 'c d.txt' <<<"$out" || fail "nomra-cli did not show the pending name"
# The first start copied the shipped files from the installed program folder.
cmp -s "$root/data/structures.nrp" "$prefix/share/nomra/structures.nrp" || fail "no first-run copy of structures.nrp"
grep -q "^btnbarMain=1" "$root/data/settings.nrp" || fail "no first-run copy of settings.nrp"

# Without its program folder the program says where it searched.
rm -rf "$prefix/share/nomra"
version=$("$prefix/bin/nomra-cli" --version)
grep -qF "language files: none; searched $prefix/bin/ $prefix/share/nomra/" <<<"$version" ||
  fail "a missing program folder is not named: $version"
echo "installed layout works"
