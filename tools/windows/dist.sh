# shellcheck shell=bash disable=SC2154
# Building and looking at what goes to Windows. Sourced by ./dev.

# build_for_windows: both servers into dist/.
build_for_windows() {
  local preset processor from to
  for preset in windows64 windows32; do
    build_preset "$preset" KOBTraductionServer
    processor=x86_64
    [ "$preset" = windows64 ] || processor=i686
    from=build/$preset to=dist/$preset
    tools/windows/check_library.py "$from/bin/KOBTraduction.dll" "$processor" bindings/automation/KOBTraduction.idl \
      >"build/$preset.check.log" || { cat "build/$preset.check.log" >&2; return 1; }
    mkdir -p "$to"
    cp "$from/bin/KOBTraduction.dll" "$from/bin/KOBTraduction.Automation.manifest" \
      "$from/bindings/automation/KOBTraduction.tlb" "$to/"
  done
  ls -l dist/windows64 dist/windows32
}
