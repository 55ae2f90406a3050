#!/usr/bin/env python3
"""Differential test of the property-list writers against independent readers.

plist_interop (C++) writes seeded random values with each of our writers: plain
property lists and keyed archives, binary and XML. Every file must read the same
with Python's plistlib, with libplist's plistutil (converting it to a binary file,
which our reader then reads) and with our readers; values an XML document cannot
carry must be refused by our XML writers, and plistlib's writer must not be able to
write them readably either.

Where a reader cannot hold a value at all, the test checks the reader says so rather
than skipping the file:
- plistlib's dates are Python datetimes, years 1 to 9999: beyond them it must refuse
  the file (binary or XML), never read another date.
- libplist 2.2 reads XML dates of four-digit years only, and keeps dates in integer
  seconds and microseconds, so NaN and infinite dates have no meaning to it: those
  files are left out of the plistutil comparison.

Usage: plist_interop.py <path to plist_interop> [seed] [count]
"""
import datetime
import json
import os
import plistlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

REFERENCE = datetime.datetime(2001, 1, 1)


class OutOfRange(Exception):
    """A value plistlib cannot represent."""


def double(bits):
    return float("nan") if bits == "nan" else struct.unpack(">d", bytes.fromhex(bits))[0]


def canonical(obj, uids):
    """A plistlib object in plist_interop's JSON form, dates as ISO text."""
    if isinstance(obj, bool):
        return {"b": obj}
    if isinstance(obj, int):
        return {"i": str(obj)}
    if isinstance(obj, float):
        return {"r": "nan" if obj != obj else struct.pack(">d", obj).hex()}
    if isinstance(obj, datetime.datetime):
        return {"dt": obj.isoformat()}
    if isinstance(obj, str):
        return {"s": obj}
    if isinstance(obj, bytes):
        return {"x": obj.hex()}
    if isinstance(obj, plistlib.UID):
        return {"u": str(obj.data)}
    if isinstance(obj, list):
        return {"a": [canonical(x, uids) for x in obj]}
    if isinstance(obj, dict):
        # plistlib leaves an XML archive's {"CF$UID": n} as a dictionary.
        uid = obj.get("CF$UID")
        if uids and len(obj) == 1 and isinstance(uid, int) and not isinstance(uid, bool) and uid >= 0:
            return {"u": str(uid)}
        return {"k": [[k, canonical(v, uids)] for k, v in obj.items()]}
    raise TypeError(type(obj))


def as_plistlib_reads(expect):
    """The expected JSON as canonical() gives what plistlib reads; OutOfRange when it cannot."""
    if "d" in expect:
        try:
            # How plistlib's binary reader makes a date; its XML reader agrees for whole seconds.
            return {"dt": (REFERENCE + datetime.timedelta(seconds=double(expect["d"]))).isoformat()}
        except (OverflowError, ValueError):
            raise OutOfRange()
    if "a" in expect:
        return {"a": [as_plistlib_reads(x) for x in expect["a"]]}
    if "k" in expect:
        return {"k": [[k, as_plistlib_reads(v)] for k, v in expect["k"]]}
    return expect


def python_value(v):
    """The expected JSON as a value for plistlib's writer; OutOfRange when it has none."""
    if "b" in v:
        return v["b"]
    if "i" in v:
        return int(v["i"])
    if "r" in v:
        return double(v["r"])
    if "d" in v:
        return datetime.datetime.fromisoformat(as_plistlib_reads(v)["dt"])
    if "s" in v:
        return v["s"]
    if "x" in v:
        return bytes.fromhex(v["x"])
    if "a" in v:
        return [python_value(x) for x in v["a"]]
    return {k: python_value(x) for k, x in v["k"]}


def dates_in(v):
    if "d" in v:
        yield double(v["d"])
    for x in v.get("a", []):
        yield from dates_in(x)
    for _, x in v.get("k", []):
        yield from dates_in(x)


def libplist_holds(entry, path):
    if any(d != d or d in (float("inf"), float("-inf")) for d in dates_in(entry["expect"])):
        return False
    if path.endswith(".xml"):
        with open(path, "rb") as f:
            return re.search(rb"<date>(-|[0-9]{5})", f.read()) is None
    return True


def main():
    if len(sys.argv) < 2:
        print(__doc__, file=sys.stderr)
        return 2
    tool = sys.argv[1]
    seed = sys.argv[2] if len(sys.argv) > 2 else "20261122"
    count = sys.argv[3] if len(sys.argv) > 3 else "150"
    plistutil = shutil.which("plistutil")
    if plistutil is None:
        print("plist_interop: plistutil is missing (Debian package libplist-utils; tools/setup.sh installs it)")
        return 1

    failures = []
    counts = dict(files=0, plistlib_same=0, plistlib_refused=0, plistutil_same=0, plistutil_left_out=0,
                  ours_same=0, refusals=0)
    with tempfile.TemporaryDirectory(prefix="plist-interop-") as work:
        subprocess.run([tool, "write", work, seed, count], check=True)
        with open(os.path.join(work, "manifest.jsonl"), encoding="utf-8") as f:
            entries = [json.loads(line) for line in f]

        converted = {"plist": [], "archive": []}
        for entry in entries:
            path = entry["file"]
            if path is None:
                # Refused by our XML writer: plistlib must not write it readably either.
                counts["refusals"] += 1
                try:
                    value = python_value(entry["value"])
                except OutOfRange:
                    continue  # a date plistlib has no value for
                try:
                    plistlib.loads(plistlib.dumps(value, fmt=plistlib.FMT_XML))
                    failures.append(f"refused by our XML writer, but plistlib writes and reads it: {entry['value']}")
                except Exception:
                    pass
                continue
            counts["files"] += 1
            name = os.path.basename(path)
            uids = entry["kind"] == "archive"

            try:
                expected = as_plistlib_reads(entry["expect"])
            except OutOfRange:
                expected = None
            try:
                with open(path, "rb") as f:
                    got = canonical(plistlib.load(f), uids)
            except Exception as e:  # plistlib raises whatever its parts raise
                got = None
                refusal = repr(e)
            if expected is None:
                if got is not None:
                    failures.append(f"{name}: plistlib read a date beyond its years: {got}")
                else:
                    counts["plistlib_refused"] += 1
            elif got is None:
                failures.append(f"{name}: plistlib refused it: {refusal}")
            elif got != expected:
                failures.append(f"{name}: plistlib reads\n  {got}\nwhere we wrote\n  {expected}")
            else:
                counts["plistlib_same"] += 1

            out = path + ".plistutil.bplist"
            run = subprocess.run([plistutil, "-i", path, "-o", out, "-f", "bin"], capture_output=True)
            if run.returncode != 0 or not os.path.exists(out):
                failures.append(f"{name}: plistutil refused it: {run.stderr.decode(errors='replace')}")
            elif not libplist_holds(entry, path):
                counts["plistutil_left_out"] += 1
            else:
                converted[entry["kind"]].append((out, entry))

        for kind, files in converted.items():
            for i in range(0, len(files), 200):
                batch = files[i:i + 200]
                run = subprocess.run([tool, "read", kind] + [p for p, _ in batch], capture_output=True, check=True)
                for (out, entry), line in zip(batch, run.stdout.decode("utf-8").split("\n")):
                    got = json.loads(line)
                    if got != entry["expect"]:
                        failures.append(f"{os.path.basename(entry['file'])}: through plistutil reads\n  {got}\n"
                                        f"where we wrote\n  {entry['expect']}")
                    else:
                        counts["plistutil_same"] += 1
        # Our own readers took every file back in plist_interop write (it fails otherwise).
        counts["ours_same"] = counts["files"]

    print(f"plist_interop (seed {seed}): {counts['files']} files written; plistlib read {counts['plistlib_same']} "
          f"the same and refused {counts['plistlib_refused']} (dates beyond its years); plistutil read "
          f"{counts['plistutil_same']} the same ({counts['plistutil_left_out']} left out: dates it cannot hold); "
          f"our readers read all {counts['ours_same']}; {counts['refusals']} values refused by the XML writers")
    for failure in failures[:20]:
        print("FAIL", failure)
    passed = 0 if failures else 1
    print(f"{passed} passed, {1 - passed} failed")
    return 0 if not failures else 1


if __name__ == "__main__":
    sys.exit(main())
