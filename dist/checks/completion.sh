#!/usr/bin/env bash
# Sources the completion script in a bash of its own and completes words as
# a user's Tab would.
#   dist/checks/completion.sh COMPLETION_FILE
set -euo pipefail
script=$1
fail() { echo "FAIL: $*" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/a folder" && touch "$work/an item.txt"

# Prints what Tab offers for the words given, the last being the one typed.
complete_words() {
  (cd "$work" && bash --norc --noprofile -c '
    source "$1"; shift
    COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
    COMP_LINE="$*"; COMP_POINT=${#COMP_LINE}
    _nomra_cli
    printf "%s\n" "${COMPREPLY[@]}" | sort' bash "$script" "$@")
}

[ "$(complete_words nomra-cli --rep)" = $'--replace\n--replace-regex' ] ||
  fail "--rep gives: $(complete_words nomra-cli --rep)"
[ "$(complete_words nomra-cli --scope '')" = $'all\nselected\nunselected' ] || fail "--scope values"
[ "$(complete_words nomra-cli --sort ne)" = "new" ] || fail "--sort values"
[ "$(complete_words nomra-cli --data-dir a)" = "a folder" ] || fail "--data-dir offers files"
[ "$(complete_words nomra-cli --edit a)" = "" ] || fail "--edit is free text"
[ "$(complete_words nomra-cli hi)" = "history" ] || fail "the commands"
[ "$(complete_words nomra-cli --json an)" = "an item.txt" ] || fail "paths"
complete_words nomra-cli history --u | grep -qx -- --undo || fail "history --undo"
bash --norc --noprofile -c 'source "$1"; complete -p nomra-cli' bash "$script" | grep -q _nomra_cli ||
  fail "nomra-cli is not bound"
echo "bash completes nomra-cli"
