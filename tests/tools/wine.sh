#!/usr/bin/env bash
# tools/windows/wine: the status and the words are the program's, and not those of Wine's server.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/prefix"
touch "$folder/prefix/made"

# run TEXT: with a twin of wine that does this; its status in `status`, its words in `output` and `errors`, how often it
# began in `begun`.
run() {
  : >"$folder/begun"
  printf '#!/bin/sh\necho >>"%s/begun"\n%s\n' "$folder" "$1" >"$folder/wine"
  chmod +x "$folder/wine"
  status=0
  output=$(PATH="$folder:$PATH" KOB_WINEPREFIX="$folder/prefix" "$here/../../tools/windows/wine" program.exe a \
    2>"$folder/errors") || status=$?
  errors=$(cat "$folder/errors")
  begun=$(wc -l <"$folder/begun")
}
expect() {
  [ "$2" = "$3" ] || { echo "$1: expected '$3', found '$2'"; exit 1; }
}

# shellcheck disable=SC2016
run 'echo "$*"; echo no such file >&2; exit 7'
expect "a program: status" "$status" 7
expect "a program: what it says" "$output/$errors" "program.exe a/no such file"
expect "a program: runs once" "$begun" 1

run 'printf "no such file\nwine client error:330: " >&2; exit 7'
expect "a complaint while the program ends" "$status/$errors/$begun" "7/no such file/1"

run 'echo "wine client error:330: write: Bad file descriptor" >&2'
expect "a whole complaint" "$status/$errors/$begun" "0//1"

lost="echo 'wine client error:0: recvmsg: Connection reset by peer' >&2; exit 1"
run "[ \$(wc -l <'$folder/begun') -gt 1 ] || { $lost; }"
expect "the server is lost before the program begins" "$status/$errors/$begun" "0//2"

run "[ \$(wc -l <'$folder/begun') -gt 1 ] || { echo 'wine client error:0: write: Broken pipe' >&2; exit 1; }"
expect "the server is lost in another way" "$status/$errors/$begun" "0//2"

run "$lost"
expect "the server is lost each time" "$status/$begun" "1/3"
expect "the server is lost each time: that is told" "$errors" \
  "wine client error:0: recvmsg: Connection reset by peer"
