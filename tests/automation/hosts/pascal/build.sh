#!/usr/bin/env bash
# Builds the Pascal host for 64-bit Windows: build.sh FOLDER. Debian's compiler can, but brings no units for it: they are
# compiled from its sources, as far as the program needs them, into the same folder.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
folder=$1
sources=$(printf '%s\n' /usr/share/fpcsrc/*/ | tail -n 1)
[ -d "$sources" ] || { echo "build.sh: the package fpc-source is missing" >&2; exit 1; }
mkdir -p "$folder"

parts=(rtl/win64 rtl/win rtl/win/wininc rtl/inc rtl/x86_64 rtl/objpas rtl/objpas/sysutils rtl/objpas/classes
       packages/rtl-objpas/src/inc packages/rtl-objpas/src/win packages/rtl-objpas/src/common
       packages/winunits-base/src packages/fcl-registry/src packages/fcl-base/src)
# Errors only, and GOTO, which the system unit uses.
options=(-n -Twin64 -Sg -O2 -v0e "-FU$folder" "-FE$folder" "-Fu$folder")
for part in "${parts[@]}"; do
  options+=("-Fi$sources$part")
done
log="$folder/build.log"
{
  [ -e "$folder/system.ppu" ] || ppcx64 "${options[@]}" -Us "${sources}rtl/win64/system.pp"
  for part in "${parts[@]}"; do
    options+=("-Fu$sources$part")
  done
  [ -e "$folder/sysinit.ppu" ] || ppcx64 "${options[@]}" "${sources}rtl/win64/sysinit.pp"
  ppcx64 "${options[@]}" "$here/client.pas"
} >"$log" 2>&1 || { grep -E 'Error|Fatal' "$log" >&2; exit 1; }
