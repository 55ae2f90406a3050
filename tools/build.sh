#!/usr/bin/env bash
# Builds everything into a build folder: tools/build.sh [folder] [extra cmake options...]
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
dir=${1:-$top/build}
shift || true
"$top/tools/setup.sh"
cmake -S "$top" -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
cmake --build "$dir" -j"$(nproc)"
