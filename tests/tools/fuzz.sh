#!/usr/bin/env bash
# tools/fuzz.sh: a finding, a reader that was hardly met and a build that failed are each seen.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# program PATH TEXT: a program of the folder that does this.
program() {
  mkdir -p "$folder/$(dirname "$1")"
  printf '#!/bin/sh\n%s\n' "$2" >"$folder/$1"
  chmod +x "$folder/$1"
}

# everything_well: twins of all programs that it calls, none of which finds anything.
everything_well() {
  rm -rf "${folder:?}"/*
  program build/fuzz/bin/kobfuzz_seeds ":"
  program build/fuzz/bin/kobfuzz_files 'echo "stat::number_of_executed_units: 70"'
  program build/fuzz/bin/kobfuzz_records 'echo "stat::number_of_executed_units: 30"'
  program build/fuzz/kobpersistence/libKOBPersistence.so.0.1.0 ":"
  program twins/llvm-profdata-14 ":"
  covered 10 0
}

# covered LINES MISSED: what the report says of each file of the reader, and of others.
covered() {
  program twins/llvm-cov-14 "for file in Bytes.h Checksum.cpp Container.cpp Container.h Loading.cpp RecordCheck.cpp \
      RecordCheck.h RecordReader.cpp RecordReader.h; do
    echo \"kobpersistence/\$file 1 1 1% 1 1 1% $1 $2 1%\"
  done
  echo 'kobpersistence/PosixStorage.cpp 1 1 1% 1 1 1% 5000 5000 0%'"
}

# run: its status in `status`, what it counted in `counts`, what it said in `said`.
run() {
  status=0
  said=$(PATH="$folder/twins:$PATH" bash -c "set -euo pipefail
    root='$folder'
    build_preset() { ${1:-true}; }
    . '$here/../../tools/fuzz.sh'
    run_fuzz 8 '$folder/counts'" 2>&1) || status=$?
  counts=$(cat "$folder/counts" 2>/dev/null || echo none)
}
expect() {
  [ "$2" = "$3" ] || { echo "$1: expected '$3', found '$2'"; echo "$said"; exit 1; }
}

everything_well
run
expect "all is well" "$counts ($status)" "3 0 0 (0)"
expect "executions are told" "$(grep -c '^files: 70 executions' <<<"$said")" 1

everything_well
program build/fuzz/bin/kobfuzz_files 'echo "ERROR: libFuzzer: deadly signal"; exit 77'
run
expect "a finding" "$counts ($status)" "2 1 0 (1)"
expect "a finding is told" "$(grep -c 'deadly signal' <<<"$said")" 1

everything_well
program build/fuzz/bin/kobfuzz_records 'exit 1'
run
expect "a finding among the records" "$counts ($status)" "2 1 0 (1)"

everything_well
covered 20 1
run
expect "just enough of the reader" "$counts ($status)" "3 0 0 (0)"

everything_well
covered 19 1
run
expect "too little of the reader" "$counts ($status)" "2 1 0 (1)"

everything_well
program twins/llvm-cov-14 ":"
run
expect "no report" "$counts ($status)" "2 1 0 (1)"

everything_well
run false
expect "a build that failed" "$counts ($status)" "none (1)"
