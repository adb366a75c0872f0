# shellcheck shell=bash disable=SC2154
# A 32-bit Debian with Wine in build/debian32, where the 32-bit server can be tried. Debian's 32-bit Wine stands beside the
# 64-bit one only where every library of both has the same version, which is not so on every machine. Sourced by ./dev.

debian32="$root/build/debian32"

# can_have_debian32: whether there is one, or one can be made; says why not.
can_have_debian32() {
  if [ "$(id -u)" -ne 0 ]; then
    echo "only root can run a 32-bit Debian"
  elif ! unshare --mount --pid --fork --kill-child true 2>/dev/null; then
    echo "this machine allows no name spaces, which a 32-bit Debian is run in"
  elif ! (need_packages debian32) >"$root/build/debian32-packages.log" 2>&1; then
    echo "debootstrap cannot be installed: $(tail -n 1 "$root/build/debian32-packages.log")"
  else
    return 0
  fi
  return 1
}

# in_debian32 FOLDER COMMAND...: runs it there. What it mounts and what it starts is gone when it ends, however it ends.
in_debian32() {
  local folder=$1
  shift
  # shellcheck disable=SC2016 # It is the inner shell that expands these.
  unshare --mount --pid --fork --kill-child bash -c '
    mount -t proc proc "$1/proc" && exec chroot "$1" /usr/bin/env -i HOME=/root LC_ALL=C.UTF-8 \
      PATH=/usr/sbin:/usr/bin:/sbin:/bin "${@:2}"' bash "$folder" "$@"
}

# make_debian32: once; half of one is not kept.
make_debian32() {
  local log="$root/build/debian32.log"
  [ ! -e "$debian32/made" ] || return 0
  echo "Making a 32-bit Debian with Wine in build/debian32 (1.7 GB, about two minutes)"
  rm -rf "$debian32" "$debian32.part"
  if ! unshare --mount --pid --fork --kill-child debootstrap --arch=i386 --variant=minbase \
      --include=wine,wine32,python3 bookworm "$debian32.part" >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -rf "$debian32.part"
    return 1
  fi
  touch "$debian32.part/made"
  mv "$debian32.part" "$debian32"
}

# test_on_debian32: the tests of the 32-bit server, run there; ends with a line "PASSED FAILED SKIPPED".
test_on_debian32() {
  make_debian32 || return 1
  # Where the tree lies here, because the tests know where their files are.
  local there="$debian32$root"
  rm -rf "$there"
  mkdir -p "$there"
  tar -C "$root" -cf - docs/automation.md tests/automation tests/golden tools/results.py tools/windows \
    build/windows32/bin build/windows32/tests/automation/server/KOBTraduction32.tlb | tar -C "$there" -xf -
  in_debian32 "$debian32" "$root/tools/windows/tests32.py" "$root/build/windows32"
}

# build_tests32: what tools/windows/tests32.py runs.
build_tests32() {
  build_preset windows32 KOBTraductionServer kobscript automation_host_object_test automation_registration_test \
    automation_server_test script_golden_test
}
