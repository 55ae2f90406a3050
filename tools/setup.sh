#!/usr/bin/env bash
# Installs the Debian packages the Linux build needs, when they are missing.
set -euo pipefail

packages=(clang cmake make libgnustep-base-dev gnustep-make libobjc-12-dev libblocksruntime-dev
          googletest libgtest-dev libbenchmark-dev libclang-rt-14-dev locales
          clang-format-14  # tools/format-check.sh
          clang-19 libc++-19-dev  # clang-19 and its libc++: tools/device-check.sh
          python3 libplist-utils  # plistlib and plistutil read what the plist writers write (PlistInterop)
          libcairo2-dev libpango1.0-dev fonts-inter fonts-noto-core fonts-noto-cjk)  # the host's pictures
missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  if [ "$(id -u)" -ne 0 ]; then sudo=sudo; else sudo=; fi
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
fi
