#!/usr/bin/env bash
# check_exports.sh DLL: a host for Windows finds the entry points and every public class in it.
set -euo pipefail

headers=$(cd "${BASH_SOURCE[0]%/*}/../.." && pwd)/include/OrlinCustomDialogs
exported=$(x86_64-w64-mingw32-objdump -p "$1" | sed -n '/Ordinal\/Name Pointer/,/^$/p' |
  grep -oE '[A-Za-z_][A-Za-z0-9_]*$' | x86_64-w64-mingw32-c++filt)

wanted=(DllGetClassObject DllCanUnloadNow DllRegisterServer DllUnregisterServer 'orlin::LibraryVersion\(')
for name in $(sed -nE 's/^class (cls\w+).*/\1/p' "$headers"/*.h); do
  wanted+=("orlin::$name(::|<)")
done
((${#wanted[@]} > 20)) || { echo "The headers declare no public classes?" >&2 && exit 1; }
missing=0
for name in "${wanted[@]}"; do
  grep -qE "\b$name" <<<"$exported" || { echo "$1 does not export $name" >&2 && missing=1; }
done
exit $missing
