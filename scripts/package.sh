#!/usr/bin/env bash
# Builds Nomra's Debian package from a build tree and checks it: the files
# it holds, its Depends, what lintian says, and a run of the programs
# unpacked into a throw-away root.
#   scripts/package.sh [BUILD_DIR]   (default: $NOMRA_BUILD_DIR or build; the .deb goes to BUILD_DIR/package/)
# For a release, configure the build with the flags Debian hardens with:
#   cmake -S . -B build-deb -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
#         -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)" \
#         -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)"
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-${NOMRA_BUILD_DIR:-build}}")
fail() { echo "FAIL: $*" >&2; exit 1; }

cmake --build "$build" >/dev/null
rm -rf "$build/package"
cpack --config "$build/CPackConfig.cmake" -B "$build/package" -G DEB >"$build/package.log" ||
  { cat "$build/package.log" >&2; fail "cpack"; }
deb=$(find "$build/package" -maxdepth 1 -name 'nomra_*.deb' | head -1)
[ -n "$deb" ] || fail "no package was made"
echo "package: $deb"

info=$(dpkg-deb -I "$deb")
echo "$info"
depends=$(dpkg-deb -f "$deb" Depends)
for library in libc6 libstdc++6 libutf8proc libpcre2-8; do
  grep -q "$library" <<<"$depends" || fail "Depends lacks $library: $depends"
done
[ "$(dpkg-deb -f "$deb" Section)" = utils ] || fail "the section is not utils"
[ -n "$(dpkg-deb -f "$deb" Maintainer)" ] || fail "no maintainer"

contents=$(dpkg-deb -c "$deb" | awk '{print $6}')
expected=(./usr/bin/nomra-cli ./usr/share/nomra/English.lng ./usr/share/nomra/Deutsch.lng
          ./usr/share/nomra/settings.nrp ./usr/share/nomra/structures.nrp
          ./usr/share/bash-completion/completions/nomra-cli ./usr/share/doc/nomra/copyright
          ./usr/share/doc/nomra/changelog.Debian.gz ./usr/share/man/man1/nomra-cli.1.gz)
if [ -f "$build/bin/nomra" ]; then
  grep -q "libqt6widgets6" <<<"$depends" || fail "Depends lacks Qt: $depends"
  expected+=(./usr/bin/nomra ./usr/share/man/man1/nomra.1.gz ./usr/share/applications/org.nomra.Nomra.desktop
             ./usr/share/metainfo/org.nomra.Nomra.metainfo.xml
             ./usr/share/icons/hicolor/scalable/apps/org.nomra.Nomra.svg
             ./usr/share/icons/hicolor/48x48/apps/org.nomra.Nomra.png)
fi
for file in "${expected[@]}"; do
  grep -qxF "$file" <<<"$contents" || fail "the package lacks $file"
done
if grep -q "^\./usr/local\|^\./tmp\|^\./home" <<<"$contents"; then fail "files outside /usr"; fi

if command -v lintian >/dev/null; then
  # Errors fail the check; warnings are shown for a person to weigh.
  report=$(lintian --allow-root --tag-display-limit 0 "$deb" || true)
  echo "${report:-lintian: nothing to say}"
  if grep -q '^E:' <<<"$report"; then fail "lintian found errors"; fi
fi

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
dpkg-deb -x "$deb" "$root"
version=$("$root/usr/bin/nomra-cli" --version)
grep -qxF "program folder: $root/usr/share/nomra/" <<<"$version" || fail "unpacked nomra-cli: $version"
if [ -x "$root/usr/bin/nomra" ]; then
  env -u DISPLAY -u WAYLAND_DISPLAY "$root/usr/bin/nomra" --version | grep -qx "nomra $(dpkg-deb -f "$deb" Version | cut -d- -f1)" ||
    fail "unpacked nomra --version"
fi
echo "the package holds Nomra and its programs run: $deb"
