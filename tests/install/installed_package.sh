#!/usr/bin/env bash
# Installs the build in $BUILD into a folder of its own. The example of a host application, and programs for each
# component on either library, built with CMake and with pkg-config, use what is there. Nothing but the interface may be
# exported.
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

# Each header alone, where the host's own headers of the same short names stand in front of ours.
for folder in "$headers" "$SOURCE/platform" "$SOURCE/hosts"; do
  (cd "$folder" && find . -name '*.h' | cut -c3-)
done >"$work/names"
while IFS= read -r name; do
  mkdir -p "$work/own/$(dirname "$name")"
  echo "#error the host's own $name" >"$work/own/$name"
  [[ $name != */* ]] || echo "${name#*/}" >>"$work/names"
done <"$work/names"
flags=(-std=c++20 -fPIC -fsyntax-only "-I$work/own" "-I$work/installed/include")
[[ ! -d $headers/hosts/qt ]] || read -ra flags <<<"${flags[*]} $(pkg-config --cflags Qt6Widgets)"
for header in $(cd "$headers/.." && find . -name '*.h' | cut -c3-); do
  "$CXX" -x c++ "${flags[@]}" - <<<"#include \"$header\"" || fail "$header does not compile alone."
done

# The example, with CMake.
build_with_cmake() {
  "$CMAKE" -S "$1" -B "$2" -DCMAKE_PREFIX_PATH="$work/installed" >"$work/log" 2>&1 &&
    "$CMAKE" --build "$2" >"$work/log" 2>&1 || fail "$(<"$work/log")"
}
build_with_cmake "$SOURCE/examples/embed" "$work/example"
(cd "$work" && example/embed) | diff "$here/expected.txt" - || fail "The example said something else."

# Programs that use the components: CMake builds them to hold the library, pkg-config both ways.
export PKG_CONFIG_PATH=${library%/*}/pkgconfig LD_LIBRARY_PATH=${library%/*} QT_QPA_PLATFORM=offscreen
version=$(pkg-config --modversion OrlinCustomDialogs)
check_program() {
  local loads=OrlinCustomDialogs
  readelf -d "$1" | grep 'NEEDED.*libOrlinCustomDialogs' >/dev/null || loads+=-static
  [[ $loads == "$2" ]] || fail "$1 stands on the wrong library."
  (cd "$work" && "$1" "$version" >log) || fail "$1 failed." "$(<"$work/log")"
}
build_with_pkg_config() {
  local program=$1 core flags libraries
  shift
  read -ra flags <<<"$CXXFLAGS $(pkg-config --cflags "${@:-OrlinCustomDialogs}")"
  "$CXX" -c "$here/$program.cpp" -o "$work/$program.o" "${flags[@]}"
  for core in OrlinCustomDialogs OrlinCustomDialogs-static; do
    read -ra libraries <<<"$CXXFLAGS $(pkg-config --define-variable=core=$core --libs "${@:-$core}")"
    "$CXX" "$work/$program.o" -o "$work/$program" "${libraries[@]}"
    check_program "$work/$program" $core
  done
}
build_with_cmake "$here/components" "$work/components"
check_program "$work/components/script_program" OrlinCustomDialogs-static
build_with_pkg_config plain_program
build_with_pkg_config script_program OrlinCustomDialogs-platform OrlinCustomDialogs-script
if [[ -d $headers/hosts/qt ]]; then
  check_program "$work/components/window_program" OrlinCustomDialogs-static
  build_with_pkg_config window_program OrlinCustomDialogs-platform OrlinCustomDialogs-qt
fi

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
