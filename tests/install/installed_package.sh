#!/usr/bin/env bash
# Installs the build in $BUILD into a folder of its own. The example of a host application, and a program that pkg-config
# helps to build, use what is there. Nothing but the interface may be exported.
set -euo pipefail

here=$(cd "${BASH_SOURCE[0]%/*}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

"$CMAKE" --install "$BUILD" --prefix "$work/first" >"$work/log" || fail "$(<"$work/log")"
mv "$work/first" "$work/installed"  # the package may be moved
headers=$work/installed/include/OrlinCustomDialogs
library=$(find "$work/installed" -name libOrlinCustomDialogs.so)
[[ $(readlink "$library") == libOrlinCustomDialogs.so.1 ]] || fail "The library has no version in its name."

# The example, with CMake.
"$CMAKE" -S "$EXAMPLE" -B "$work/example" -DCMAKE_PREFIX_PATH="$work/installed" >"$work/log" 2>&1 &&
  "$CMAKE" --build "$work/example" >"$work/log" 2>&1 || fail "$(<"$work/log")"
(cd "$work" && example/embed) | diff "$here/expected.txt" - || fail "The example said something else."

# A program, with pkg-config.
export PKG_CONFIG_PATH=${library%/*}/pkgconfig
read -ra flags <<<"$CXXFLAGS $(pkg-config --cflags --libs OrlinCustomDialogs)"
"$CXX" "$here/plain_program.cpp" -o "$work/plain_program" "${flags[@]}"
LD_LIBRARY_PATH=${library%/*} "$work/plain_program" "$(pkg-config --modversion OrlinCustomDialogs)" ||
  fail "The program that pkg-config helped to build failed."

# The command.
[[ $("$work/installed/bin/orlin-host" list) == *clsZoneFunctionsWillow* ]] || fail "orlin-host does not run."

# What the library exports is an entry point, or in its namespace and declared by a header. Symbols of standard templates
# are weak, and every program has its own.
nm -DC --defined-only "$library" | cut -d' ' -f2- | grep -v __odr_asan |
  sed -E 's/ (vtable for|typeinfo for|(non-)?virtual thunk to) / /' >"$work/symbols"
grep '^[TDBR]' "$work/symbols" | grep -vE '^. (orlin::|Dll(GetClassObject|CanUnloadNow|(Unr|R)egisterServer)$)' &&
  fail "The library exports these symbols from outside its namespace."
grep -E '^. orlin::(AnyControl|Control|Dialog|RowList|TextField)\b' "$work/symbols" && fail "The library exports these private classes."
names=$(sed -nE 's/^. orlin::(shown::)?(\w+).*/\2/p' "$work/symbols" | sort -u)
(($(wc -w <<<"$names") > 50)) || fail "The library does not export its classes."
for name in $names; do
  grep -qE "(class|struct) $name\b|\b$name\(" "$headers"/{,host/}*.h || fail "The library exports $name, which no header declares."
done
