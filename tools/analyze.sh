#!/usr/bin/env bash
# Runs clang's static analyser over the product's sources (the bundle and SpringBoard's
# half); fails on any finding.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
objc_header=$(find /usr/lib/gcc -path '*/include/objc/objc.h' | head -n1)
gcc_include=$(dirname "$(dirname "$objc_header")")
common=(-std=c++17 -DTESSARIN_SIMULATED=1 -I"$top/prefs" -I"$top/springboard" -I"$top")
objc=(-x objective-c++ -fobjc-runtime=gcc -fblocks -fexceptions -fobjc-exceptions
      -fconstant-string-class=NSConstantString -DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1
      -D_NATIVE_OBJC_EXCEPTIONS -isystem "$top/platform/include" -isystem /usr/include/GNUstep
      -idirafter "$gcc_include")
status=0
count=0
while IFS= read -r -d '' source; do
  case "$source" in
    *.mm) flags=("${objc[@]}" "${common[@]}") ;;
    *) flags=(-x c++ "${common[@]}") ;;
  esac
  count=$((count + 1))
  out=$(clang++ --analyze -Xanalyzer -analyzer-output=text "${flags[@]}" "$source" -o /dev/null 2>&1 \
        | grep -E '^/[^ ]+:[0-9]+:[0-9]+: (warning|error):' || true)
  if [ -n "$out" ]; then echo "$out"; status=1; fi
done < <(find "$top/prefs" "$top/springboard" \( -name '*.mm' -o -name '*.cpp' \) -print0 | sort -z)
if [ $status -eq 0 ]; then echo "static analysis: $count sources, no findings"; fi
exit $status
