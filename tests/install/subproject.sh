#!/usr/bin/env bash
# A host application takes in the tree $ORLIN as a part, by add_subdirectory and by FetchContent: what it compiles of its
# own and of the library builds, and no test, benchmark, program, file to install or warning is forced on it.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

for fetch in OFF ON; do
  tree=$work/$fetch
  "$CMAKE" -S "$ORLIN/tests/install/subproject" -B "$tree" -DORLIN="$ORLIN" -DORLIN_QT=OFF -DFETCH=$fetch \
    >"$work/log" 2>&1 || fail "$(<"$work/log")"
  "$CMAKE" --build "$tree" --target host_objects orlin_notes >"$work/log" 2>&1 || fail "$(<"$work/log")"
  commands=$tree/compile_commands.json
  grep -q component.cpp "$commands" || fail "The library is not built."
  ! grep -E 'Wall|Wconversion|Werror|(tests|bench)/[^ ]*_(test|bench)\.cpp|/app/' "$commands" >&2 &&
    ! grep -rsE 'add_test|file\(INSTALL' "$tree" --include={CTestTestfile,cmake_install}.cmake >&2 ||
    fail "That is forced on the host."
done
