#!/usr/bin/env bash
# tools/stages.sh: a stage that fails in any way is seen, and the last line is the sum.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# run STAGES: with stages of its own; the last line in `last`, the status in `status`.
run() {
  status=0
  last=$(bash -c "set -euo pipefail
    root='$folder'
    . '$here/../../tools/stages.sh'
    stage_good() { counted 3 0 1; }
    stage_bad() { counted 2 1 0; }
    stage_broken() { false; counted 1 0 0; }
    stage_lost() { :; }
    stage_late() { counted 5 0 0; false; counted 6 0 0; }
    stage_two_words() { counted 1 0 0; }
    stage_none() { counted 0 0 1; }
    run_stages --only $1" 2>&1 | tail -n 1) || status=$?
}
expect() {
  [ "$2" = "$3" ] || { echo "$1: expected '$3', found '$2'"; exit 1; }
}

run good,two-words
expect "all is well" "$last ($status)" "4 passed, 0 failed, 1 skipped (0)"
run good,bad
expect "a case failed" "$last ($status)" "5 passed, 1 failed, 1 skipped (1)"
run broken,good
expect "a command of a stage failed" "$last ($status)" "3 passed, 1 failed, 1 skipped (1)"
run late
expect "a command failed after something was counted" "$last ($status)" "5 passed, 1 failed, 0 skipped (1)"
run lost
expect "a stage counted nothing" "$last ($status)" "0 passed, 1 failed, 0 skipped (1)"
run none
expect "no test ran" "$last ($status)" "0 passed, 0 failed, 1 skipped (1)"
