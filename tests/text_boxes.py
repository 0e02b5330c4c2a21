#!/usr/bin/env python3
"""Paints texts at many angles, sizes and flags through the program, each with its frame, and compares the letters with
the measured box: no letter outside it, and the box no larger than its letters ask for."""
import math
import os
import struct
import subprocess
import sys
import tempfile

FRAME = (0, 128, 128)
PAPER = (255, 255, 255)
SLACK = 2.5  # pixels: smoothing, and the slant of italic letters beyond their cell


def read_bmp(path):
    """Pixels by row from the top, as (red, green, blue)."""
    data = open(path, "rb").read()
    start, = struct.unpack_from("<I", data, 10)
    width, height = struct.unpack_from("<ii", data, 18)
    assert struct.unpack_from("<H", data, 28)[0] == 24
    stride = (width * 3 + 3) // 4 * 4
    rows = []
    for y in range(height):
        row = data[start + (height - 1 - y) * stride:][:width * 3]
        rows.append([(row[i + 2], row[i + 1], row[i]) for i in range(0, width * 3, 3)])
    return rows


def pixels(rows, wanted):
    return [(x, y) for y, row in enumerate(rows) for x, color in enumerate(row) if wanted(color)]


def run(program, folder, text, angle, font):
    script = os.path.join(folder, "s.tsc")
    picture = os.path.join(folder, "p.bmp")
    with open(script, "w", encoding="utf-8") as out:
        out.write(f"""menu gestfile 1
menu aiutdis 4
menu aiutdis 5
menu aiutdis 7
dialog TipoLinea
color 255 255 255
press TipoLinea.Command4
press TipoLinea.Command1
end
menu mnutipolinea
menu opdis 1
leftlog 0 0
leftlog 3000 0
right 0 0
dialog zoomp
set zoomp.Text1.Text "1000%"
press zoomp.Command1
end
menu selezoom 4
menu opdis 4
dialog Gesttesto
font {font} 0 0 0
press Gesttesto.Command3
type Gesttesto.Text1 "{text}"
type Gesttesto.Text2 "{angle}"
press Gesttesto.Command1
end
leftlog 7500 4500
picture "{picture}"
""")
    subprocess.run([program, "--folder", folder, "--script", script], check=True, stdout=subprocess.DEVNULL)
    rows = read_bmp(picture)
    rows[0][0] = PAPER  # where the painting of a text leaves its own mark
    return rows


def along(points, angle):
    """Extent of points along the direction of the text and across it."""
    c, s = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    u = [x * c - y * s for x, y in points]
    v = [x * s + y * c for x, y in points]
    return min(u), max(u), min(v), max(v)


def check(program, text, angle, font):
    with tempfile.TemporaryDirectory() as folder:
        rows = run(program, folder, text, angle, font)
    frame = along(pixels(rows, lambda c: c == FRAME), angle)
    letters = along(pixels(rows, lambda c: c not in (FRAME, PAPER)), angle)
    name = f"{text!r} at {angle}, {font}"
    assert letters[0] >= frame[0] - SLACK and letters[1] <= frame[1] + SLACK, (name, "too wide", letters, frame)
    assert letters[2] >= frame[2] - SLACK and letters[3] <= frame[3] + SLACK, (name, "too high", letters, frame)
    assert letters[1] - letters[0] >= 0.8 * (frame[1] - frame[0]), (name, "box too wide", letters, frame)


def main():
    program = sys.argv[1]
    fonts = ['"Arial" 12', '"Arial" 30 bold', '"Courier New" 8 underline', '"Times New Roman" 20 strikeout']
    for number, angle in enumerate((0, 30, 45, 90, 137, 180, 225, 270, 300, -20, 400)):
        check(program, "Muro maestro", angle, fonts[number % len(fonts)])
        check(program, "Ag", angle, fonts[(number + 1) % len(fonts)])
    print("texts lie in their boxes")


main()
