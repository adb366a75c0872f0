#!/usr/bin/env bash
# tools/packages.sh installs only what is missing, and says what to install where it cannot.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
twins=$(mktemp -d)
trap 'rm -rf "$twins"' EXIT

# Twins of the programs that it calls: "present" is the only package that is installed.
twin() {
  printf '#!/bin/sh\n%s\n' "$2" >"$twins/$1"
  chmod +x "$twins/$1"
}
# shellcheck disable=SC2016
twin dpkg-query 'case "$*" in *present) echo "install ok installed" ;; *) exit 1 ;; esac'
# shellcheck disable=SC2016
twin apt-get 'echo "$*" >>"'"$twins"'/asked"'
twin sudo 'exit 1'

# run UID GROUP: need_packages as that user; prints what it says, keeps its status.
run() {
  twin id "echo $1"
  status=0
  : >"$twins/asked"
  said=$(PATH="$twins:$PATH" bash -c ". '$here/../../tools/packages.sh'
    packages=([old]='present' [new]='present absent')
    need_packages $2" 2>&1) || status=$?
}
expect() {
  [ "$2" = "$3" ] || { echo "$1: expected '$3', found '$2'"; exit 1; }
}

run 0 old
expect "nothing is missing: status" "$status" 0
expect "nothing is missing: nothing is said" "$said" ""
expect "nothing is missing: nobody is asked" "$(cat "$twins/asked")" ""

run 0 new
expect "root: status" "$status" 0
expect "root: only what is missing is installed" "$(grep install "$twins/asked")" \
  "install -y -qq --no-install-recommends absent"

run 1000 new
expect "no root: status" "$status" 3
expect "no root: nobody is asked" "$(cat "$twins/asked")" ""
case "$said" in
  *"apt-get install"*" absent"*) ;;
  *) echo "no root: it does not say what to install: $said"; exit 1 ;;
esac

twin apt-get 'echo "no such package"; exit 100'
run 0 new
expect "a failed installation: status" "$status" 3
