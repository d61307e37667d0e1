#!/usr/bin/env bash
# Lays out every C++ file as .clang-format says.
#   scripts/format.sh          rewrite the files in place
#   scripts/format.sh --check  change nothing; list the files that differ and fail
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t files < <(git ls-files --cached --others --exclude-standard '*.h' '*.cpp' 2>/dev/null || find src tests bench -name '*.h' -o -name '*.cpp')
if [[ "${1:-}" == "--check" ]]; then
  # One run over all files; it names every file it would change.
  mapfile -t differing < <(clang-format --style=file --dry-run "${files[@]}" 2>&1 |
                           sed -n 's/^\(.*\):[0-9]*:[0-9]*: warning: code should be clang-formatted.*/\1/p' | sort -u)
  if ((${#differing[@]})); then
    printf 'Not laid out as .clang-format says (run scripts/format.sh):\n' >&2
    printf '  %s\n' "${differing[@]}" >&2
    exit 1
  fi
  echo "All ${#files[@]} C++ files are laid out as .clang-format says"
else
  clang-format -i --style=file "${files[@]}"
fi
