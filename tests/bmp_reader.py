"""bmp_reader.py TRELVO: has the program write its picture with "Crea BMP", and reads the file back.

Every pixel has to be the one of the kept picture, which comes as a PNG file, and which the program tells one by one;
what a running command only shows must not be there.
"""

import os
import struct
import subprocess
import sys
import tempfile
import zlib

WIDTHS = (37, 38, 39, 40)
HEIGHT = 30

DRAWING = """menu gestfile 1
menu opdis 1
leftlog 0 0
leftlog 600 300
key 27
menu opdis 7
leftlog 60 90
leftlog 450 375
menu opdis 1
leftlog 0 420
"""


def output_of(program, folder):
    script = DRAWING
    for width in WIDTHS:
        script += 'size %d %d\nmovelog 500 60\necho %d\n' % (width * 15, HEIGHT * 15, width)
        script += 'file "%d.bmp"\nmenu mnucreabmp\npicture "%d.png"\n' % (width, width)
        for name in ("pixel", "screenpixel"):
            script += "".join("%s %d %d\n" % (name, x, y) for y in range(HEIGHT) for x in range(width))
    run = subprocess.run([program, "--folder", folder, "--script", "-"], input=script, cwd=folder, check=True,
                         capture_output=True, encoding="utf-8")
    assert "error " not in run.stdout and "msgbox" not in run.stdout, run.stdout[:2000]
    return run.stdout.splitlines()


def told_pictures(output, name):
    """The pixels that the program tells, by width, in rows of (red, green, blue)."""
    pictures = {}
    for line in output:
        if line.isdigit():
            rows = pictures[int(line)] = [[None] * int(line) for _ in range(HEIGHT)]
        words = line.split()
        if words[0] == name:
            rows[int(words[2])][int(words[1])] = tuple(bytes.fromhex(words[4]))
    return pictures


def read_bmp(name):
    with open(name, "rb") as file:
        data = file.read()
    mark, size, _, start = struct.unpack_from("<2sIII", data)
    header, width, height, planes, bits, packing = struct.unpack_from("<IiiHHI", data, 14)
    assert (mark, size, header, planes, bits, packing) == (b"BM", len(data), 40, 1, 24, 0), data[:54]
    stride = (width * 3 + 3) // 4 * 4
    assert height > 0 and start >= 54 and size == start + stride * height, data[:54]

    def row(y):
        line = data[start + (height - 1 - y) * stride:][:width * 3]
        return [line[i:i + 3][::-1] for i in range(0, width * 3, 3)]

    return [[tuple(pixel) for pixel in row(y)] for y in range(height)]


def read_png(name):
    with open(name, "rb") as file:
        data = file.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    at, packed = 8, b""
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        body = data[at + 8:at + 8 + length]
        assert struct.unpack_from(">I", data, at + 8 + length)[0] == zlib.crc32(kind + body)
        if kind == b"IHDR":
            width, height, *form = struct.unpack(">IIBBBBB", body)
            assert form == [8, 2, 0, 0, 0]
        elif kind == b"IDAT":
            packed += body
        at += 12 + length
    rows = zlib.decompress(packed)
    stride = 1 + width * 3
    assert len(rows) == stride * height and not any(rows[::stride])
    return [[tuple(rows[y * stride + 1 + 3 * x:][:3]) for x in range(width)] for y in range(height)]


def main():
    program = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        output = output_of(program, folder)
        kept, shown = told_pictures(output, "pixel"), told_pictures(output, "screenpixel")
        for width in WIDTHS:
            picture = read_bmp(os.path.join(folder, "%d.bmp" % width))
            assert picture == kept[width], "width %d: not the kept picture" % width
            assert picture == read_png(os.path.join(folder, "%d.png" % width)), "width %d: not the PNG" % width
            assert picture != shown[width], "width %d: nothing was shown beside the kept picture" % width
            assert len({pixel for row in picture for pixel in row}) > 1, "width %d: an empty picture" % width
    print("%d pictures read back" % len(WIDTHS))


main()
