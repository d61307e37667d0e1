#!/usr/bin/env bash
# Fuzzes the MP3 reader with libFuzzer: builds the targets of fuzz/ with
# clang in build-fuzz (NOMRA_FUZZ=ON: coverage, AddressSanitizer and
# UndefinedBehaviorSanitizer), then runs each for SECONDS on its stored
# corpus. New inputs go to build-fuzz/scratch-corpus/TARGET, never into the
# repository; a crash is written to build-fuzz/findings/TARGET/TIME/.
#   scripts/fuzz.sh [SECONDS] [TARGET...]   (default 60 seconds, all targets)
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
targets=("$@")
((${#targets[@]})) || targets=(mpeg_header_fuzzer id3v1_fuzzer id3v2_fuzzer exif_fuzzer)
build=${NOMRA_FUZZ_BUILD_DIR:-build-fuzz}

if ! command -v clang++ >/dev/null; then
  echo "fuzz.sh: clang++ is missing (Debian: clang, libfuzzer-14-dev)" >&2
  exit 1
fi
launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DNOMRA_FUZZ=ON -DNOMRA_BUILD_GUI=OFF -DNOMRA_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null
cmake --build "$build" --target "${targets[@]}"

summary=()
status=0
for target in "${targets[@]}"; do
  scratch="$build/scratch-corpus/$target"
  findings="$build/findings/$target/$(date +%Y%m%d-%H%M%S)"
  log="$build/fuzz-$target.log"
  mkdir -p "$scratch" "$findings"
  echo "== $target: $seconds s"
  # The first folder takes the new inputs; the stored corpus is only read.
  set +e
  "$build/bin/$target" -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="$findings/" \
    "$scratch" "fuzz/corpus/$target" >"$log" 2>&1
  code=$?
  set -e
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  found=$(find "$findings" -type f)
  if ((code != 0)) || [ -n "$found" ]; then
    status=1
    summary+=("$target: ${runs:-?} runs in $seconds s, FOUND (exit $code): ${found:-see $log}")
    grep -m1 -A30 -E "ERROR: (AddressSanitizer|libFuzzer)|runtime error" "$log" || true
  else
    summary+=("$target: ${runs:-?} runs in $seconds s, nothing found")
  fi
done
printf '%s\n' "${summary[@]}"
exit "$status"
