# shellcheck shell=bash disable=SC2154
# The stages of ./dev test. Sourced by ./dev.
#
# A stage is a function that ends by calling `counted PASSED FAILED SKIPPED`. One that ends in any other way has
# failed, and counts as one failure.

whole=no
stages=(lint suite asan no-gui headers consumer demo fidelity windows fuzz)
results="$root/build/results"

counted() {
  stage_passed=$1 stage_failed=$2 stage_skipped=$3
  echo "$1 $2 $3" >"$results/$stage.counts"
}

# stage_skip WHY: the whole stage counts as one skipped case.
stage_skip() {
  echo "skipped: $1"
  counted 0 0 1
}

# run_ctest PRESET: the suite of a build folder, its cases counted one by one.
run_ctest() {
  local preset=$1 cases="$root/build/$1/results" junit="$root/build/$1/ctest.xml" log="$results/ctest-$1.log" seconds=600
  # The longer properties take their time under the sanitizers.
  [ "$whole" = no ] || seconds=3600
  rm -rf "$cases" "$junit"
  mkdir -p "$cases"
  on_virtual_screen ctest --test-dir "build/$preset" --output-on-failure -j "$(nproc)" --timeout "$seconds" \
    --no-tests=error --output-junit "$junit" >"$log" 2>&1 ||
    grep -vE '^ *[0-9]+/[0-9]+ .* Passed |^ +Start +[0-9]+:|^\[ RUN  |^\[       OK |^\[-----' "$log" || true
  # shellcheck disable=SC2046
  counted $(tools/results.py "$junit" "$cases")
}

stage_lint() {
  configure_preset release
  ! have_packages windows || configure_preset windows64
  local counts="$results/lint.out" options=()
  rm -f "$counts"
  [ "$whole" = yes ] || options+=(--sample)
  tools/lint/lint.py "${options[@]}" --counts "$counts" || true
  # shellcheck disable=SC2046
  counted $(cat "$counts")
}

stage_suite() {
  build_preset release
  run_ctest release
}

stage_asan() {
  build_preset asan
  # No strict_string_checks: the X keyboard library copies names out of packets that end without a zero.
  # Large stacks of its own would be swept after every exception: the longer properties throw millions.
  local ASAN_OPTIONS="detect_stack_use_after_return=1:max_uar_stack_size_log=16:detect_leaks=1"
  local LSAN_OPTIONS="suppressions=$root/tools/leaks-of-others.txt:print_suppressions=0"
  local UBSAN_OPTIONS="print_stacktrace=1"
  export ASAN_OPTIONS LSAN_OPTIONS UBSAN_OPTIONS
  run_ctest asan
}

stage_no_gui() {
  build_preset no-gui
  run_ctest no-gui
  # What was built here needs the standard library and nothing else.
  local foreign
  foreign=$(objdump -p build/no-gui/kobtraduction/libKOBTraduction.so |
            awk '$1 == "NEEDED" && $2 !~ /^(libstdc\+\+|libgcc_s|libm|libc|ld-linux)/ {print $2}')
  if [ -n "$foreign" ]; then
    echo "FAILED: the component needs $foreign"
    counted "$stage_passed" $((stage_failed + 1)) "$stage_skipped"
  else
    counted $((stage_passed + 1)) "$stage_failed" "$stage_skipped"
  fi
}

stage_headers() {
  local log="$results/headers.log" all left
  configure_preset release
  cmake --build build/release --target kob_headers -- -k 0 >"$log" 2>&1 || grep -E 'error|FAILED' "$log" || true
  all=$(find build/release/tests/headers/alone -name '*.cpp' | wc -l)
  # What would still have to be compiled is what did not compile.
  left=$(ninja -C build/release -n kob_headers | grep -c 'Building CXX object tests/headers/') || true
  counted $((all - left)) "$left" 0
}

stage_consumer() {
  local counts="$results/consumer.out"
  rm -f "$counts"
  build_preset release
  tests/consumer/run.sh build/release build/consumer "$counts" || true
  # shellcheck disable=SC2046
  counted $(cat "$counts")
}

stage_demo() {
  build_preset release kobdemo
  rm -rf build/pictures "$results/demo.trad"
  on_virtual_screen build/release/bin/kobdemo --pictures build/pictures --model "$results/demo.trad"
  local pictures
  pictures=$(find build/pictures -name '*.png' | wc -l)
  [ "$pictures" -gt 0 ] || { echo "FAILED: no picture was taken"; return 1; }
  counted "$pictures" 0 0
}

stage_fidelity() {
  # All forms take seconds; the share that is asked for holds for all of them, not for every sample.
  local corpus="$root/../shared/corpus/qt"
  [ -d "$corpus" ] || { stage_skip "there are no applications in ../shared/corpus/qt"; return; }
  build_preset release kobfidelity
  QT_QPA_PLATFORM=offscreen build/release/bin/kobfidelity "$corpus"/*/ >"$results/fidelity.log" ||
    { tail -n 40 "$results/fidelity.log"; return 1; }
  grep '^fidelity: ' "$results/fidelity.log"
  counted 1 0 0
}

stage_windows() {
  local log="$results/windows-packages.log" passed failed skipped
  if ! (need_packages windows) >"$log" 2>&1; then
    stage_skip "Wine and the compilers for Windows cannot be installed: $(tail -n 1 "$log")"
    return
  fi
  # Every run begins with a fresh copy of Wine's prefix.
  rm -rf "${KOB_WINEPREFIX:-$root/build/wine}"
  build_preset windows64
  build_preset release kobresave
  run_ctest windows64
  passed=$stage_passed failed=$stage_failed skipped=$stage_skipped
  if tools/windows/wine build/windows64/bin/kobwindowsleft.exe; then
    passed=$((passed + 1))
  else
    echo "FAILED: a test left a window open"
    failed=$((failed + 1))
  fi
  # Wine's own programs would stay for a while.
  WINEPREFIX=${KOB_WINEPREFIX:-$root/build/wine} wineserver -k || true
  # The other width is built, and looked into without running it.
  build_preset windows32 KOBTraductionServer
  tools/windows/check_library.py build/windows32/bin/KOBTraduction.dll i686 bindings/automation/KOBTraduction.idl \
    >"$results/windows32.out" || true
  grep FAILED "$results/windows32.out" || true
  run_tests32 >>"$results/windows32.out"
  # shellcheck disable=SC2046
  set -- $(grep -E '^[0-9]+ [0-9]+ [0-9]+$' "$results/windows32.out")
  counted $((passed + $1 + $4)) $((failed + $2 + $5)) $((skipped + $3 + $6))
}

# run_tests32: the 32-bit server under a Wine for it, in a whole run, or where that Wine is there already; ends with a
# line "PASSED FAILED SKIPPED".
run_tests32() {
  local log="$results/tests32.log" why
  if [ -x /usr/lib/wine/wine ]; then
    build_tests32 >&2
    tools/windows/tests32.py build/windows32 >"$log" 2>&1 || grep -v '^[0-9 ]*$' "$log" >&2
  elif [ "$whole" = no ] && [ ! -e "$debian32/made" ]; then
    echo "The 32-bit server was looked into; ./dev windows --test32 runs it." >&2
    echo "0 0 0"
    return
  elif ! why=$(can_have_debian32); then
    echo "skipped: the 32-bit server was looked into and not run: $why" >&2
    echo "0 0 1"
    return
  else
    build_tests32 >&2
    test_on_debian32 >"$log" 2>&1 || grep -v '^[0-9 ]*$' "$log" >&2
  fi
  grep -E '^[0-9]+ [0-9]+ [0-9]+$' "$log" | tail -n 1 | grep . || echo "0 1 0"
}

stage_fuzz() {
  local counts="$results/fuzz.out"
  rm -f "$counts"
  run_fuzz 60 "$counts" || true
  # shellcheck disable=SC2046
  counted $(cat "$counts")
}

stage_mutate() {
  tests/mutate/mutate
  counted 1 0 0
}

seconds_as_time() { printf '%d:%02d' $(($1 / 60)) $(($1 % 60)); }

# run_stage NAME: in a shell of its own, so that nothing that goes wrong in it ends the run.
run_stage() {
  local started=$SECONDS
  stage=$1
  echo
  echo "== $stage"
  rm -f "$results/$stage.counts"
  # Not in a condition: there, the shell would not end at the first command that fails.
  set +e
  (set -e; "stage_${stage//-/_}")
  local status=$? passed=0 failed=0 skipped=0
  set -e
  if [ -s "$results/$stage.counts" ]; then
    read -r passed failed skipped <"$results/$stage.counts"
  else
    status=1
  fi
  # A stage that has counted something may still fall over later.
  if [ "$status" -ne 0 ]; then
    echo "FAILED: the stage $stage did not come to its end"
    failed=$((failed + 1))
  fi
  line=$(printf '%-10s %8s %8s %8s %8s' "$stage" "$(seconds_as_time $((SECONDS - started)))" \
                "$passed" "$failed" "$skipped")
  echo "-- $stage: $passed passed, $failed failed, $skipped skipped in $(seconds_as_time $((SECONDS - started)))"
  table+=("$line")
  sum_passed=$((sum_passed + passed)) sum_failed=$((sum_failed + failed)) sum_skipped=$((sum_skipped + skipped))
}

run_stages() {
  local only="" begun=$SECONDS line stage table=() sum_passed=0 sum_failed=0 sum_skipped=0
  while [ $# -gt 0 ]; do
    case "$1" in
      --all) whole=yes; stages+=(mutate) ;;
      --only) only=${2:?--only takes stages, divided by commas}; shift ;;
      *) echo "./dev test: '$1' is not understood; see ./dev test --help" >&2; exit 2 ;;
    esac
    shift
  done
  [ -z "$only" ] || IFS=, read -r -a stages <<<"$only"
  for stage in "${stages[@]}"; do
    declare -F "stage_${stage//-/_}" >/dev/null || { echo "./dev test: there is no stage '$stage'" >&2; exit 2; }
  done
  # What was compiled in one clone of the tree need not be compiled again in the next.
  export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1
  # Properties try more cases in a whole run, and all form files are read.
  [ "$whole" = no ] || export RC_PARAMS="max_success=2000" KOB_WHOLE=1
  mkdir -p "$results"
  for stage in "${stages[@]}"; do
    run_stage "$stage"
  done
  echo
  printf '%-10s %8s %8s %8s %8s\n' stage time passed failed skipped
  printf '%s\n' "${table[@]}"
  printf '%-10s %8s\n' all "$(seconds_as_time $((SECONDS - begun)))"
  echo
  echo "$sum_passed passed, $sum_failed failed, $sum_skipped skipped"
  [ "$sum_failed" -eq 0 ] && [ "$sum_passed" -gt 0 ]
}
