#!/usr/bin/env bash
# Fails, naming each file, when a C, C++ or Objective-C source is not laid out as
# .clang-format says. Fix one with: clang-format-14 -i FILE (or all: tools/format-check.sh --fix).
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
format=${CLANG_FORMAT:-clang-format-14}
command -v "$format" >/dev/null || format=clang-format
fix=0
[ "${1:-}" = "--fix" ] && fix=1

sources() {
  git ls-files -z -- '*.c' '*.cpp' '*.h' '*.hpp' '*.m' '*.mm'
}

if [ $fix -eq 1 ]; then
  sources | xargs -0 "$format" -i --style=file
  exit 0
fi

unformatted=0
while IFS= read -r -d '' file; do
  if ! "$format" --style=file "$file" | cmp -s - "$file"; then
    echo "not formatted: $file"
    unformatted=$((unformatted + 1))
  fi
done < <(sources)
if [ $unformatted -gt 0 ]; then
  echo "$unformatted file(s) out of format: run tools/format-check.sh --fix" >&2
  exit 1
fi
echo "every source is formatted"
