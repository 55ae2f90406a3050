#!/usr/bin/env python3
"""Draws the settings bundle's icons: the Settings entry icon and one icon per root page row.

Each icon is a rounded square in the row's colour with a simple white mark, written as an
8-bit RGBA PNG at 1x, 2x and 3x (29, 58 and 87 pixels). Run from the repository root:
    python3 tools/make_icons.py
"""
import math
import os
import struct
import sys
import zlib

BASE_SIZE = 29

# name -> (background colour, mark)
ICONS = {
    "Tessarin": ((204, 45, 34), "lock"),
    "Enabled": ((52, 199, 89), "ring"),
    "Passcode": ((142, 142, 147), "dots"),
    "Session": ((88, 86, 214), "ring"),
    "WiFi": ((0, 122, 255), "arcs"),
    "Applications": ((255, 149, 0), "grid"),
    "Notifications": ((255, 59, 48), "dot"),
    "Folders": ((90, 200, 250), "grid"),
    "Switches": ((52, 199, 89), "bar"),
    "ControlCenter": ((142, 142, 147), "bar"),
    "CCSettings": ((88, 86, 214), "bar"),
    "SettingsPanes": ((142, 142, 147), "ring"),
    "CallerID": ((52, 199, 89), "dot"),
    "PowerDown": ((255, 59, 48), "ring"),
    "Button": ((204, 45, 34), "ring"),
    "Haptic": ((255, 45, 85), "arcs"),
    "Delay": ((255, 149, 0), "ring"),
    "AlertTitle": ((0, 122, 255), "bar"),
    "Logs": ((142, 142, 147), "lines"),
    "Reset": ((255, 59, 48), "dot"),
}


def png(width, height, pixels):
    """pixels: list of rows, each a list of (r, g, b, a)."""
    raw = bytearray()
    for row in pixels:
        raw.append(0)
        for r, g, b, a in row:
            raw += bytes((r, g, b, a))

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    header = struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(bytes(raw), 9))
            + chunk(b"IEND", b""))


def inside_rounded_square(x, y, size, radius):
    cx = min(max(x, radius), size - radius)
    cy = min(max(y, radius), size - radius)
    return (x - cx) ** 2 + (y - cy) ** 2 <= radius ** 2


def in_mark(mark, u, v):
    """u, v in [0, 1] across the icon; True where the white mark is."""
    dx, dy = u - 0.5, v - 0.5
    d = math.hypot(dx, dy)
    if mark == "ring":
        return 0.2 <= d <= 0.3
    if mark == "dot":
        return d <= 0.2
    if mark == "dots":
        return any(math.hypot(u - cx, dy) <= 0.08 for cx in (0.25, 0.5, 0.75))
    if mark == "bar":
        return abs(dy) <= 0.08 and abs(dx) <= 0.3 or math.hypot(u - 0.65, dy) <= 0.13
    if mark == "grid":
        return any(abs(u - cx) <= 0.1 and abs(v - cy) <= 0.1 for cx in (0.3, 0.7) for cy in (0.3, 0.7))
    if mark == "lines":
        return abs(dx) <= 0.28 and any(abs(v - cy) <= 0.05 for cy in (0.3, 0.5, 0.7))
    if mark == "arcs":
        r = math.hypot(u - 0.5, v - 0.78)
        up = v < 0.78 and abs(u - 0.5) < (0.78 - v) * 1.2
        return r <= 0.08 or (up and (0.25 <= r <= 0.33 or 0.45 <= r <= 0.53))
    if mark == "lock":
        body = abs(dx) <= 0.25 and 0.45 <= v <= 0.8
        shackle = v < 0.5 and 0.12 <= math.hypot(dx, v - 0.45) <= 0.2
        hole = math.hypot(dx, v - 0.6) <= 0.05
        return (body and not hole) or shackle
    return False


def draw(colour, mark, size):
    # Supersample 4x4 per pixel for smooth edges.
    samples = 4
    radius = size * 0.225
    rows = []
    for py in range(size):
        row = []
        for px in range(size):
            cover = white = 0
            for sy in range(samples):
                for sx in range(samples):
                    x = px + (sx + 0.5) / samples
                    y = py + (sy + 0.5) / samples
                    if inside_rounded_square(x, y, size, radius):
                        cover += 1
                        if in_mark(mark, x / size, y / size):
                            white += 1
            n = samples * samples
            if cover == 0:
                row.append((0, 0, 0, 0))
                continue
            t = white / cover
            r, g, b = (round(c + (255 - c) * t) for c in colour)
            row.append((r, g, b, round(255 * cover / n)))
        rows.append(row)
    return png(size, size, rows)


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "resources")
    for name, (colour, mark) in ICONS.items():
        for scale, suffix in ((1, ""), (2, "@2x"), (3, "@3x")):
            with open(os.path.join(out, f"{name}{suffix}.png"), "wb") as f:
                f.write(draw(colour, mark, BASE_SIZE * scale))


if __name__ == "__main__":
    main()
