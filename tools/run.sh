#!/usr/bin/env bash
# The main job: builds everything, then runs the simulated Settings app on a device
# profile (default iphone-faceid-ios16) with the simulated SpringBoard answering.
#   tools/run.sh [profile] [host options...]
#   tools/run.sh --language de          (the simulated user's language: de, ja, ar, pt-BR, zh-Hans...)
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
"$top/tools/build.sh" "$top/build"
exec "$top/build/platform/host/tessarin-settings" "$@"
