# shellcheck shell=bash disable=SC2154
# Building and looking at what goes to Windows. Sourced by ./dev.

# The entry points of a server, and the system's files that it may need.
server_exports="DllCanUnloadNow DllGetClassObject DllInstall DllRegisterServer DllUnregisterServer"
system_files="advapi32 comctl32 comdlg32 gdi32 kernel32 msvcrt ole32 oleaut32 shell32 user32 uxtheme"

# check_server TOOLS DLL: says what is wrong with a server; TOOLS is the prefix of its tool chain.
check_server() {
  local tools=$1 dll=$2 table exports file wrong=0
  table=$("$tools-objdump" -p "$dll")
  exports=$(sed -n '/Name Pointer\] Table$/,/^$/s/^\t\[.*\] //p' <<<"$table" | xargs)
  if [ "$exports" != "$server_exports" ]; then
    echo "$dll exports '$exports' and not '$server_exports'" >&2
    wrong=1
  fi
  while read -r file; do
    file=${file,,}
    [[ " $system_files " == *" ${file%.dll} "* ]] || { echo "$dll needs $file" >&2; wrong=1; }
  done < <(awk '/DLL Name:/ {print $3}' <<<"$table")
  return "$wrong"
}

# build_for_windows: both servers into dist/.
build_for_windows() {
  local preset processor from to
  for preset in windows64 windows32; do
    build_preset "$preset" KOBTraductionServer
    processor=x86_64
    [ "$preset" = windows64 ] || processor=i686
    from=build/$preset to=dist/$preset
    check_server "$processor-w64-mingw32" "$from/bin/KOBTraduction.dll"
    mkdir -p "$to"
    cp "$from/bin/KOBTraduction.dll" "$from/bin/KOBTraduction.Automation.manifest" \
      "$from/bindings/automation/KOBTraduction.tlb" "$to/"
  done
  ls -l dist/windows64 dist/windows32
}
