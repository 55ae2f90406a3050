#!/usr/bin/env bash
# Checks the sources' format, then builds and runs every test: the plain build, then the same suite under
# AddressSanitizer and UndefinedBehaviorSanitizer, then the static analyser.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
jobs=$(nproc)
# The tests must not lean on the calling shell's locale (the stand-in compares and looks up
# texts as the simulated device's language says): run them under a fresh container's.
export LANG=C.UTF-8 LC_ALL=

"$top/tools/setup.sh"  # the Debian packages, the formatter among them

echo "== format (.clang-format)"
"$top/tools/format-check.sh"

echo "== build"
"$top/tools/build.sh" "$top/build"
echo "== tests"
(cd "$top/build" && ctest --output-on-failure -j"$jobs")

echo "== tests under AddressSanitizer and UndefinedBehaviorSanitizer"
"$top/tools/build.sh" "$top/build-sanitize" -DTESSARIN_SANITIZE=ON -DTESSARIN_BENCH=OFF
# GNUstep keeps its class tables and caches for the life of the process: leak reports would be about them.
export ASAN_OPTIONS=detect_leaks=0:abort_on_error=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
(cd "$top/build-sanitize" && ctest --output-on-failure -j"$jobs")

echo "== static analysis"
"$top/tools/analyze.sh"

echo "== device-build check (the bundle's sources as the iOS build compiles them)"
"$top/tools/device-check.sh"
