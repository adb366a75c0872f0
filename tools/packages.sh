# shellcheck shell=bash disable=SC2154
# The Debian 12 packages that each group of verbs needs, and installing what is missing of them. Sourced by ./dev.

declare -A packages=(
  [build]="g++ cmake ninja-build ccache qt6-base-dev qt6-tools-dev libqt6opengl6-dev
           qt6-l10n-tools libcli11-dev libpugixml-dev"
  [screen]="xvfb xauth fonts-dejavu-core"
  [test]="libgtest-dev libgmock-dev librapidcheck-dev libicu-dev pkg-config python3 git unicode-data xdotool x11-utils
          groff-base clang-14 libclang-rt-14-dev"
  [lint]="clang-14 clang-format-14 clang-tidy-14 shellcheck python3 git unicode-data"
  [fuzz]="clang-14 libclang-rt-14-dev llvm-14"
  [windows]="g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine wine64 googletest fp-compiler
             fpc-source python3"
  [debian32]="debootstrap"
  [bench]="libbenchmark-dev gettext"
)

# missing_packages GROUP...: the packages of these groups that are not installed, one per line.
missing_packages() {
  local group package
  for group in "$@"; do
    for package in ${packages[$group]}; do
      dpkg-query -W -f='${Status}\n' "$package" 2>/dev/null | grep -q '^install ok installed$' || echo "$package"
    done
  done | sort -u
}

# have_packages GROUP...: whether all of them are installed.
have_packages() {
  [ -z "$(missing_packages "$@")" ]
}

# need_packages GROUP...: installs what is missing, or says what to install and ends with status 3.
need_packages() {
  local missing as_root=() log
  missing=$(missing_packages "$@" | tr '\n' ' ')
  missing=${missing% }
  [ -n "$missing" ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if ! sudo -n true 2>/dev/null; then
      echo "Some packages are missing, and installing them needs root. Please run:" >&2
      echo "  sudo apt-get install --no-install-recommends $missing" >&2
      exit 3
    fi
    as_root=(sudo -n)
  fi
  echo "Installing: $missing"
  log=$(mktemp)
  # shellcheck disable=SC2086
  if ! { "${as_root[@]}" apt-get update -qq &&
         "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
           apt-get install -y -qq --no-install-recommends $missing; } </dev/null >"$log" 2>&1; then
    cat "$log" >&2
    rm -f "$log"
    echo "The packages could not be installed: $missing" >&2
    exit 3
  fi
  rm -f "$log"
}
