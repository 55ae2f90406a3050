#!/usr/bin/env bash
# Takes one key out of one language in a copy of the resources: the check must fail and say
# which key that language lacks.
#   check_names_a_gap.sh STRINGS_CHECK SOURCE_ROOT
set -euo pipefail
check=$1
root=$2
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
cp -R "$root/resources/." "$copy/"
language=de
key=OKAY
grep -v "^\"$key\" = " "$root/resources/$language.lproj/Localizable.strings" >"$copy/$language.lproj/Localizable.strings"
if output=$("$check" "$root" "$copy"); then
  echo "the check passed although $language lacks \"$key\""
  exit 1
fi
echo "$output"
expected="strings check: $language: Localizable.strings lacks the key \"$key\""
if ! grep -qF "$expected" <<<"$output"; then
  echo "the check did not say: $expected"
  exit 1
fi
