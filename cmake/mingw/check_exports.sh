#!/usr/bin/env bash
# check_exports.sh DLL LIBRARY: a host for Windows finds the entry points, every public class and all else that LIBRARY,
# the same for this machine, exports, and none of the inside.
set -euo pipefail

headers=$(cd "${BASH_SOURCE[0]%/*}/../.." && pwd)/include/OrlinCustomDialogs
# Names without parameters: a std::size_t is another type there.
names() { sed -E 's/\[abi:\w+\]//; s/\(.*//' | sort -u; }
exported=$(x86_64-w64-mingw32-objdump -p "$1" |
  sed -nE '/Ordinal\/Name Pointer/,/^$/s/^\s*\[ *[0-9]+\] (.* )?(\w+)$/\2/p' |
  x86_64-w64-mingw32-c++filt | names)
missing=$(comm -13 <(echo "$exported") <(nm -DC --defined-only "$2" | sed -nE 's/^\w+ T //p' | names))
failed=0
fail() { echo "$1" >&2 && failed=1; }

[[ -z $missing ]] || fail "These are exported for this machine alone: $missing"

classes=$(sed -nE 's/^class (cls\w+).*/\1/p' "$headers"/*.h)
(($(wc -w <<<"$classes") > 20)) || fail "The headers declare no public classes?"
for name in DllGetClassObject DllCanUnloadNow DllRegisterServer DllUnregisterServer $classes; do
  grep -qE "^(orlin::)?$name\b" <<<"$exported" || fail "$1 does not export $name"
done

for name in $(sed -E 's/^(vtable|typeinfo|typeinfo name) for //; s/^orlin::(\w+).*/\1/' <<<"$exported" | sort -u); do
  grep -qE "(class|struct) $name\b|\b$name\(" "$headers"/{,host/}*.h || fail "$1 exports $name, which no header declares"
done
exit $failed
