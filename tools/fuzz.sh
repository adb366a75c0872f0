# shellcheck shell=bash disable=SC2154
# ./dev fuzz: the fuzzing programs for a time, and how much of the reader they met. Sourced by ./dev.
#
# Inputs that met something new stay in build/fuzz/corpus and are where the next run begins; an input that failed is
# kept in build/fuzz/findings.

# What a file meets on its way in.
reader_files=(Bytes.h Checksum.cpp Container.cpp Container.h Loading.cpp RecordCheck.cpp RecordCheck.h RecordReader.cpp
              RecordReader.h)
least_coverage=95

# fuzz_target NAME SECONDS LONGEST: one program for a time; how often it ran in `executions`, whether it found something
# in its status. An input may neither take long nor much memory: a file of some kilobytes has no reason to.
fuzz_target() {
  local folder="$root/build/fuzz" log="$root/build/fuzz/$1.log" status=0
  mkdir -p "$folder/corpus/$1" "$folder/findings"
  LLVM_PROFILE_FILE="$folder/profiles/$1.profraw" "$folder/bin/kobfuzz_$1" \
    -max_total_time="$2" -max_len="$3" -timeout=20 -rss_limit_mb=1024 -malloc_limit_mb=128 -print_final_stats=1 \
    -artifact_prefix="$folder/findings/$1-" "$folder/corpus/$1" "$folder/seeds/$1" >"$log" 2>&1 || status=$?
  executions=$(awk '$1 == "stat::number_of_executed_units:" {print $2}' "$log")
  echo "$1: ${executions:-0} executions, $(find "$folder/corpus/$1" -type f | wc -l) inputs kept"
  if [ "$status" -ne 0 ]; then
    grep -E 'FAILED|ERROR|SUMMARY|Test unit written' "$log" || tail -n 20 "$log"
    return 1
  fi
}

# Prints the lines of the reader that were met, file by file; fails below the least share.
reader_coverage() {
  local folder="$root/build/fuzz" library
  library=$(find "$folder/kobpersistence" -name 'libKOBPersistence.so.*' -type f | head -n 1)
  llvm-profdata-14 merge -o "$folder/profile" "$folder"/profiles/*.profraw
  llvm-cov-14 report "$library" -instr-profile="$folder/profile" >"$folder/coverage.txt"
  awk -v names="${reader_files[*]}" -v least="$least_coverage" '
    BEGIN {count = split(names, list, " "); for (i in list) wanted["kobpersistence/" list[i]] = 1}
    $1 in wanted {printf "  %-40s %4d lines, %s met\n", $1, $8, $10; lines += $8; missed += $9; files++}
    END {
      share = lines ? 100 * (lines - missed) / lines : 0
      printf "the reader: %d lines, %.1f%% met (at least %d%%)\n", lines, share, least
      exit !(files == count && share >= least)
    }' "$folder/coverage.txt"
}

# run_fuzz SECONDS [COUNTS]: all of it; in the file COUNTS, how many checks passed and failed.
run_fuzz() {
  local seconds=$1 counts=${2:-/dev/null} passed=0 failed=0 executions check folder="$root/build/fuzz"
  build_preset fuzz || return 1
  rm -rf "$folder/profiles" "$folder/seeds"
  mkdir -p "$folder/seeds/files" "$folder/seeds/records"
  LLVM_PROFILE_FILE=/dev/null "$folder/bin/kobfuzz_seeds" "$folder/seeds/files"
  local checks=("fuzz_target files $((seconds * 3 / 4)) 4096" "fuzz_target records $((seconds - seconds * 3 / 4)) 1024"
                reader_coverage)
  for check in "${checks[@]}"; do
    # shellcheck disable=SC2086
    if $check; then
      passed=$((passed + 1))
    else
      failed=$((failed + 1))
    fi
  done
  echo "$passed $failed 0" >"$counts"
  [ "$failed" -eq 0 ]
}
