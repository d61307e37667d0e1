#!/usr/bin/env bash
# Lays out every C++ file as .clang-format says.
#   scripts/format.sh          rewrite the files in place
#   scripts/format.sh --check  change nothing; list the files that differ and fail
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files '*.h' '*.cpp' 2>/dev/null || find src tests bench -name '*.h' -o -name '*.cpp')
if [[ "${1:-}" == "--check" ]]; then
  differing=()
  for file in "${files[@]}"; do
    if ! clang-format --style=file "$file" | cmp -s - "$file"; then differing+=("$file"); fi
  done
  if ((${#differing[@]})); then
    printf 'Not laid out as .clang-format says (run scripts/format.sh):\n' >&2
    printf '  %s\n' "${differing[@]}" >&2
    exit 1
  fi
  echo "All ${#files[@]} C++ files are laid out as .clang-format says"
else
  clang-format -i --style=file "${files[@]}"
fi
