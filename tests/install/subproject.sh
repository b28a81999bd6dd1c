#!/usr/bin/env bash
# Configures a host application that takes in the tree $ORLIN as a part: no test, no benchmark, no program of it and no
# warning may be forced on that application.
set -euo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$CMAKE" -S "$ORLIN/tests/install/subproject" -B "$work" -DORLIN="$ORLIN" -DORLIN_QT=OFF >"$work/log" 2>&1 ||
  { cat "$work/log" >&2 && exit 1; }
commands=$work/compile_commands.json
grep -q component.cpp "$commands" || { echo "The library is not built." >&2 && exit 1; }
! grep -E 'Wall|Wconversion|Werror|(tests|bench)/[^ ]*_(test|bench)\.cpp|/app/' "$commands" >&2 || exit 1
! grep -rs add_test "$work" --include=CTestTestfile.cmake >&2 || exit 1
