# shellcheck shell=bash disable=SC2154
# What every verb of ./dev may count on, whatever shell it was started from. Sourced by ./dev.

export LC_ALL=C.UTF-8
unset LANGUAGE
# A bare container may have no home; the compiler cache and the toolkit want one.
if [ -z "${HOME:-}" ] || [ ! -w "$HOME" ]; then
  export HOME="$root/build/home"
  mkdir -p "$HOME"
fi
if [ -z "${XDG_RUNTIME_DIR:-}" ] || [ ! -w "$XDG_RUNTIME_DIR" ]; then
  export XDG_RUNTIME_DIR="$root/build/runtime"
  mkdir -p "$XDG_RUNTIME_DIR"
  chmod 700 "$XDG_RUNTIME_DIR"
fi
# Lets the compiler cache work with precompiled headers.
export CCACHE_SLOPPINESS=pch_defines,time_macros

# configure_preset PRESET: quiet unless it fails. Tests and benchmarks are left out where their packages are missing.
configure_preset() {
  local preset=$1 options=() log="build/$1.configure.log"
  mkdir -p build
  have_packages test || options+=(-DKOB_TESTS=OFF)
  have_packages bench || options+=(-DKOB_BENCH=OFF)
  if ! cmake --preset "$preset" "${options[@]}" >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
}

# build_preset PRESET [TARGET...]: configures and builds, quiet unless it fails.
build_preset() {
  local preset=$1 log="build/$1.build.log" targets=()
  shift
  [ $# -eq 0 ] || targets=(--target "$@")
  configure_preset "$preset"
  echo "Building build/$preset ${*:-}"
  if ! cmake --build "build/$preset" "${targets[@]}" >"$log" 2>&1; then
    grep -vE '^\[[0-9]+/[0-9]+\] ' "$log" | tail -n 200 >&2
    return 1
  fi
}

# on_virtual_screen COMMAND...: under a display of its own that nobody sees.
on_virtual_screen() {
  env -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1920x1200x24" "$@"
}
