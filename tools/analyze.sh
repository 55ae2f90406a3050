#!/usr/bin/env bash
# Runs clang's static analyser over the product's sources; fails on any finding.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
gcc_dir=$(dirname "$(dirname "$(find /usr/lib/gcc -path '*/include/objc/objc.h' | head -n1)")")
flags=(-fobjc-runtime=gcc -fblocks -fexceptions -fobjc-exceptions -fconstant-string-class=NSConstantString
       -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 -D_NATIVE_OBJC_EXCEPTIONS -DTESSARIN_SIMULATED=1
       -isystem "$top/platform/include" -isystem /usr/include/GNUstep -idirafter "$gcc_dir/include"
       -I"$top/prefs" -I"$top/springboard" -I"$top")
status=0
while IFS= read -r -d '' source; do
  case "$source" in
    *.mm) lang=(-x objective-c++ -std=c++17) ;;
    *.cpp) lang=(-x c++ -std=c++17) ;;
  esac
  out=$(clang++ --analyze -Xanalyzer -analyzer-output=text "${lang[@]}" "${flags[@]}" "$source" -o /dev/null 2>&1 \
        | grep -E 'warning:|error:' || true)
  if [ -n "$out" ]; then echo "$out"; status=1; fi
done < <(find "$top/prefs" "$top/springboard" -name '*.mm' -print0 -o -name '*.cpp' -print0)
if [ $status -eq 0 ]; then echo "static analysis: no findings"; fi
exit $status
