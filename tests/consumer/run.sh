#!/usr/bin/env bash
# run.sh BUILD FOLDER COUNTS: installs BUILD below FOLDER and makes this project against it, by CMake and by
# pkg-config, and runs what came out. Writes "passed failed 0" to the file COUNTS.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(realpath "$1")
folder=$(realpath -m "$2")
counts=$(realpath -m "$3")
passed=0 failed=0

# check NAME COMMAND...
check() {
  local name=$1
  shift
  if "$@" >"$folder/log" 2>&1; then
    passed=$((passed + 1))
    echo "ok: $name"
  else
    failed=$((failed + 1))
    echo "FAILED: $name"
    tail -n 40 "$folder/log"
  fi
}

rm -rf "$folder"
mkdir -p "$folder"
first="$folder/first" prefix="$folder/moved"
cmake --install "$build" --prefix "$first" >"$folder/log" 2>&1 || { cat "$folder/log"; exit 1; }
# An installed tree does not remember where it was put first.
mv "$first" "$prefix"

# The README: what it types, which makes the translation file that its example reads, and that example.
awk '/^```console$/ {inside = 1; next} /^```$/ {inside = 0} inside && sub(/^\$ /, "")' "$here/../../README.md" \
  >"$folder/commands.sh"
ln -s "$here/../../docs" "$folder/docs"
awk '/^```cpp$/ {inside = 1; next} /^```$/ {if (inside) exit} inside' "$here/../../README.md" >"$folder/snippet.h"
export CMAKE_PREFIX_PATH="$prefix" QT_QPA_PLATFORM=offscreen
libraries=$(dirname "$(find "$prefix" -name 'libKOBTraduction.so')")
export PKG_CONFIG_PATH="$libraries/pkgconfig"

in_folder() { # COMMAND...
  (cd "$folder" && PATH="$prefix/bin:$PATH" "$@")
}
configure() { # FOLDER OPTION...
  local out=$1
  shift
  cmake -S "$here" -B "$folder/$out" -G Ninja "$@" && cmake --build "$folder/$out"
}
by_pkg_config() { # NAME SOURCE PACKAGE FLAG...
  local out=$1 source=$2 package=$3
  shift 3
  # shellcheck disable=SC2046
  g++ -std=c++20 -fPIC "$@" "$here/$source" -o "$folder/$out" $(pkg-config --cflags --libs "$package") \
    "-Wl,-rpath,$libraries"
}

check "CMake, the component alone, builds" configure core -DCONSUMER_QT=OFF -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
check "CMake, the component alone, runs" "$folder/core/core"
check "CMake, the persistence service without a toolkit, runs" in_folder core/file
check "CMake, with the Qt binding, builds" configure qt "-DCONSUMER_SNIPPET=$folder/snippet.h"
check "CMake, with the Qt binding, the component runs" "$folder/qt/core"
check "CMake, with the Qt binding, a form runs" "$folder/qt/form"
check "the commands of the README run" in_folder bash -e commands.sh
check "the example of the README runs" in_folder qt/readme
check "the command's manual and completion are installed" test -s "$prefix/share/man/man1/kobtrad.1" -a \
  -s "$prefix/share/bash-completion/completions/kobtrad"
check "pkg-config, the component alone, builds" by_pkg_config pc-core core.cpp kobtraduction
check "pkg-config, the component alone, runs" "$folder/pc-core"
check "pkg-config, the persistence service, builds" by_pkg_config pc-file file.cpp kobtraduction-persistence
check "pkg-config, the persistence service, runs" in_folder ./pc-file
check "pkg-config, with the Qt binding, builds" by_pkg_config pc-form form.cpp kobtraduction-qt
check "pkg-config, with the Qt binding, runs" "$folder/pc-form"
check "every installed header compiles where no toolkit is" "$here/every-header.sh" "$prefix" "-I$prefix/include"
check "the libraries carry their version" test -L "$libraries/libKOBTraduction.so.0" -a \
  -L "$libraries/libKOBPersistence.so.0" -a -L "$libraries/libKOBTraductionQt.so.0"

echo "$passed $failed 0" >"$counts"
[ "$failed" -eq 0 ]
