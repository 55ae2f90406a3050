#!/usr/bin/env bash
# Builds everything into a build folder: tools/build.sh [folder] [extra cmake options...]
# Quiet when it works; on failure shows the end of the build log.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
dir=${1:-$top/build}
shift || true
"$top/tools/setup.sh"
mkdir -p "$dir"
log="$dir/build.log"
echo "Building in $dir ..." >&2
if ! { cmake -S "$top" -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" && cmake --build "$dir" -j"$(nproc)"; } >"$log" 2>&1; then
  tail -n 60 "$log" >&2
  echo "Build failed; the whole log is $log" >&2
  exit 1
fi
