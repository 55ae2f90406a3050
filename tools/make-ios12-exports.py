#!/usr/bin/env python3
"""Writes the C++ library symbols iOS 12 exports, for tools/device-check.sh.

    tools/make-ios12-exports.py SDK_USR_LIB > tools/device-check/ios12-cxx-exports.txt

SDK_USR_LIB is the usr/lib folder of an iPhoneOS 12.4 SDK (or of its link stubs). Reads the
arm64 exports of libc++.1.tbd and libc++abi.tbd (text stubs, tapi-tbd v3 or v4) and prints
their names, one a line, sorted, without the leading underscore Mach-O adds, so that they
compare with what nm lists for an ELF object. Names only: nothing of the SDK's code."""
import os
import re
import sys


def arm64_exports(path):
    """Every name listed under an export block whose architectures or targets include arm64."""
    with open(path, errors="replace") as f:
        text = f.read()
    names = set()
    # A block starts at "- archs:" (v3) or "- targets:" (v4) inside "exports:"/"reexports:".
    blocks = re.split(r"\n\s*-\s+(?=archs:|targets:)", text)
    for block in blocks[1:]:
        head = re.match(r"(archs|targets):\s*\[([^\]]*)\]", block)
        if not head or not re.search(r"\barm64(-ios)?\b", head.group(2)):
            continue
        for field in re.finditer(r"(?:symbols|weak-def-symbols|weak-symbols):\s*\[([^\]]*)\]", block):
            for name in field.group(1).split(","):
                name = name.strip().strip("'\"")
                if name:
                    names.add(name[1:] if name.startswith("_") else name)
    return names


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = sys.argv[1]
    names = set()
    for stub in ("libc++.1.tbd", "libc++abi.tbd"):
        path = os.path.join(folder, stub)
        if not os.path.exists(path):
            sys.exit(f"{path}: missing")
        names |= arm64_exports(path)
    sys.stdout.write("".join(name + "\n" for name in sorted(names)))


main()
