#!/usr/bin/env bash
# Formats each manual page as man would and fails on any warning of groff,
# or on a page without its name, synopsis and options.
#   dist/checks/man-pages.sh PAGE...
set -euo pipefail
fail() { echo "FAIL: $*" >&2; exit 1; }
for page in "$@"; do
  program=$(basename "$page" .1)
  warnings=$(LC_ALL=C.UTF-8 groff -man -Tutf8 -ww -z "$page" 2>&1) || fail "groff failed on $page"
  [ -z "$warnings" ] || fail "groff warns on $page: $warnings"
  text=$(LC_ALL=C.UTF-8 MANWIDTH=80 groff -man -Tutf8 -P-cbou "$page" 2>/dev/null)
  for heading in NAME SYNOPSIS DESCRIPTION "SEE ALSO"; do
    grep -q "^$heading" <<<"$text" || fail "$page has no $heading"
  done
  grep -q "^ *$program - rename many files" <<<"$text" || fail "$page does not name $program"
  grep -q -- "--help" <<<"$text" || fail "$page does not list --help"
done
echo "manual pages format without warnings: $*"
