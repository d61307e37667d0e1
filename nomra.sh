#!/usr/bin/env bash
# Nomra's one entry script.
#   ./nomra.sh          install what is missing, build, start Nomra
#   ./nomra.sh test     install what is missing, build, run every test
set -euo pipefail
cd "$(dirname "$0")"

BUILD_DIR=${NOMRA_BUILD_DIR:-build}

# Debian packages by name; only the missing ones are installed.
PACKAGES=(cmake ninja-build g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev libutf8proc-dev)

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

case "${1:-}" in
  test)
    ctest --test-dir "$BUILD_DIR" --output-on-failure --parallel "$(nproc)"
    ;;
  "")
    # Until the window exists, starting Nomra shows what the command line offers.
    exec "$BUILD_DIR/bin/nomra-cli" --help
    ;;
  *)
    echo "usage: ./nomra.sh [test]" >&2
    exit 2
    ;;
esac
