#!/usr/bin/env python3
"""Draws the settings bundle's icons and the unlock-button page's images.

Each icon (the Settings entry icon and one per root page row) is a rounded square in the
row's colour with a simple white mark, 29 points. The button images are marks on a clear
background: the rings of the three buttons (70 points) and the fingerprints drawn inside
them (60 points). Everything is written as 8-bit RGBA PNG at 1x, 2x and 3x. Run from the
repository root:
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

# name -> (size in points, colour, mark) for the unlock buttons.
BUTTON_IMAGES = {
    "circle-white": (70, (255, 255, 255), "circle"),
    "circle-black": (70, (28, 28, 30), "circle"),
    "circle-gold": (70, (212, 175, 55), "circle"),
    "thumb-white": (60, (255, 255, 255), "print"),
    "thumb-black": (60, (28, 28, 30), "print"),
    "thumb-red": (60, (255, 45, 45), "print"),
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
    if mark == "circle":
        return 0.43 <= d <= 0.49
    if mark == "print":
        # Concentric ridges, open at the bottom like a fingertip's.
        ridge = any(abs(d - r) <= 0.025 for r in (0.08, 0.16, 0.24, 0.32, 0.40))
        return ridge and not (dy > 0.1 and abs(dx) < dy * 0.45)
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


def draw_mark(colour, mark, size):
    """The mark alone in the colour, on a clear background."""
    samples = 4
    rows = []
    for py in range(size):
        row = []
        for px in range(size):
            hits = 0
            for sy in range(samples):
                for sx in range(samples):
                    if in_mark(mark, (px + (sx + 0.5) / samples) / size, (py + (sy + 0.5) / samples) / size):
                        hits += 1
            row.append((*colour, round(255 * hits / (samples * samples))))
        rows.append(row)
    return png(size, size, rows)


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "..", "resources")
    for scale, suffix in ((1, ""), (2, "@2x"), (3, "@3x")):
        for name, (colour, mark) in ICONS.items():
            with open(os.path.join(out, f"{name}{suffix}.png"), "wb") as f:
                f.write(draw(colour, mark, BASE_SIZE * scale))
        for name, (points, colour, mark) in BUTTON_IMAGES.items():
            with open(os.path.join(out, f"{name}{suffix}.png"), "wb") as f:
                f.write(draw_mark(colour, mark, points * scale))


if __name__ == "__main__":
    main()
