#!/usr/bin/env bash
# Nomra's one entry script.
#   ./nomra.sh [PATH]   install what is missing, build, start Nomra (with PATHs listed)
#   ./nomra.sh test     install what is missing, build, run every test
set -euo pipefail
cd "$(dirname "$0")"

BUILD_DIR=${NOMRA_BUILD_DIR:-build}

# Debian packages by name; only the missing ones are installed.
PACKAGES=(cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev libutf8proc-dev
          qt6-base-dev libqt6svg6 fonts-dejavu-core dosfstools fusefat locales libpcre2-dev
          clang-format lame id3v2 eyed3 python3-mutagen libtag1-dev imagemagick libimage-exiftool-perl exiv2 libexiv2-dev
          libisal-dev zlib1g-dev
          desktop-file-utils appstream help2man librsvg2-bin groff-base)

missing_packages() {
  local p
  for p in "${PACKAGES[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
      printf '%s\n' "$p"
    fi
  done
}

install_missing() {
  local missing
  mapfile -t missing < <(missing_packages)
  [ "${#missing[@]}" -eq 0 ] && return 0
  echo "Installing missing packages: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -ne 0 ] && sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

build() {
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build "$BUILD_DIR" --parallel "$(nproc)"
}

install_missing
build

if [ "${1:-}" = test ]; then
  ctest --test-dir "$BUILD_DIR" --output-on-failure --parallel "$(nproc)"
  exit
fi
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "Nomra is built. No display to show its window on; the command line works anywhere:" >&2
  exec "$BUILD_DIR/bin/nomra-cli" --help
fi
exec "$BUILD_DIR/bin/nomra" "$@"
