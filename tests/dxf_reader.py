"""dxf_reader.py TRELVO: has the program export a drawing, and reads the DXF file back with ezdxf.

Every coordinate, radius, colour, closed flag and text has to be the one that the program itself tells of its objects.
Ends with status 77 where ezdxf is not installed.
"""

import os
import random
import re
import struct
import subprocess
import sys
import tempfile

try:
    from ezdxf import recover
except ImportError:
    print("python3-ezdxf is missing: the DXF file cannot be read back")
    sys.exit(77)

PALETTE = [(0, 0, 0), (0, 0, 128), (0, 128, 0), (0, 128, 128), (128, 0, 0), (128, 0, 128), (128, 128, 0),
           (192, 192, 192), (128, 128, 128), (0, 0, 255), (0, 255, 0), (0, 255, 255), (255, 0, 0), (255, 0, 255),
           (255, 255, 0), (255, 255, 255)]
DXF_COLOURS = [0, 166, 3, 51, 1, 6, 3, 9, 8, 5, 2, 4, 1, 230, 2, 0]


def rgb(red, green, blue):
    return red | green << 8 | blue << 16


NUMBER_OF = {rgb(*colour): number for colour, number in zip(PALETTE, DXF_COLOURS)}


def single(value):
    return struct.unpack("f", struct.pack("f", value))[0]


def text_drawing(rng):
    """A text drawing of every class, with coordinates of every size and all colours."""
    lines = ["15", "5", "OFF", "0", "OFF", "0"]

    def number():
        value = rng.uniform(-1000, 1000) * 10 ** rng.randint(-6, 3)
        return repr(round(value, rng.randint(0, 3)) if rng.random() < 0.5 else value)

    def numbers(count):
        return [number() for _ in range(count)]

    for i in range(400):
        colour = str(rgb(*PALETTE[i % 16]) if i % 17 else rng.randrange(1 << 24))
        vertices = rng.randint(1, 9)
        outline = ["7", colour, "0", "0", "0"]
        lines += [
            ["Linea", colour, "0", "0"] + numbers(4),
            ["Superficie"] + outline + [str(vertices)] + numbers(2 * vertices),
            ["Polilinea", colour, "0", "0", str(vertices)] + numbers(2 * vertices),
            ["Arco", colour, "0", "0"] + numbers(6),
            ["Cerchio"] + outline + numbers(4),
            ["Rettangolo"] + outline + numbers(8),
            ["Testo"] + numbers(2) + ["0"] * 5 + [repr(rng.uniform(0.5, 80)), str(rng.randint(-360, 360)), colour, "0",
                                                  "Arial", rng.choice(["  quota è 3 m²  ", "a", "x = 5,5 €", "1"])],
        ][i % 7]
    return "\n".join(lines) + "\n"


def program_output(program, folder):
    with open(os.path.join(folder, "drawing.txt"), "w", encoding="cp1252") as file:
        file.write(text_drawing(random.Random(5)))
    script = 'locale C\nmenu gestfile 1\nfile "drawing.txt"\nmenu opfile 2\n' \
             'file "drawing.dxf"\nmenu mnudxf\nobjects\nstate ymaxdis\n'
    run = subprocess.run([program, "--folder", folder, "--script", "-"], input=script, cwd=folder, check=True,
                         capture_output=True, encoding="utf-8")
    assert "error " not in run.stdout and "msgbox" not in run.stdout, run.stdout[:2000]
    return run.stdout.splitlines()


def told_objects(output):
    """The objects that the program tells, by class, each a dictionary of its fields."""
    objects = {}
    for line in output:
        kind = line.split(" ", 1)[0]
        if kind in ("superficie", "Rettangolo", "Linea", "polilinea", "testo", "Arco", "Cerchio"):
            fields = dict(re.findall(r'(\w+)=("(?:[^"\\]|\\.)*"|\S*)', line))
            objects.setdefault(kind, []).append(fields)
    return objects


def expected_entities(output):
    objects = told_objects(output)
    top = float(next(line for line in output if line.startswith("ymaxdis")).split("=")[1])
    assert sum(map(len, objects.values())) == 400 and len(objects) == 7

    def written(value):
        return float("%.15g" % value)

    def point(x, y):
        return written(float(x)), written(top - float(y))

    def colour(fields, name):
        return NUMBER_OF.get(int(fields[name]), 0)

    for o in objects["Linea"]:
        yield "LINE", colour(o, "colorelinea"), point(o["Xi"], o["Yi"]), point(o["Xf"], o["Yf"])
    for o in objects["Cerchio"]:
        yield "CIRCLE", colour(o, "colcont"), point(o["Xcentro"], o["Ycentro"]), written(float(o["raggio"]))
    for o in objects["testo"]:
        size = single(float(o["dimens_testo"]))
        x, y = float(o["pos_testox"]), top - float(o["pos_testoy"]) - float("%.7g" % size) / 25
        yield ("TEXT", colour(o, "colore_testo"), (written(x), written(y)), float("%.7g" % single(size / 25)),
               o["stringa_testo"][1:-1].rstrip(" "), float(o["ang_testo"]))
    for kind, closed in (("polilinea", False), ("superficie", True), ("Rettangolo", True)):
        for o in objects[kind]:
            vertices = [point(*o["v%d" % i].split(",")) for i in range(1, int(o["vertic"]) + 1)]
            yield "POLYLINE", colour(o, "colcont"), closed, vertices


def read_entities(name):
    document, auditor = recover.readfile(name)
    assert not auditor.has_errors and not auditor.fixes, [*auditor.errors, *auditor.fixes]
    for e in document.modelspace():
        kind, flat = e.dxftype(), (lambda vector: (vector.x, vector.y))
        assert e.dxf.layer == "0"
        if kind == "LINE":
            yield kind, e.dxf.color, flat(e.dxf.start), flat(e.dxf.end)
        elif kind == "CIRCLE":
            yield kind, e.dxf.color, flat(e.dxf.center), e.dxf.radius
        elif kind == "TEXT":
            yield kind, e.dxf.color, flat(e.dxf.insert), e.dxf.height, e.dxf.text, e.dxf.rotation
        else:
            yield kind, e.dxf.color, e.is_closed, [flat(v.dxf.location) for v in e.vertices]


def main():
    program = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as folder:
        expected = list(expected_entities(program_output(program, folder)))
        read = list(read_entities(os.path.join(folder, "drawing.dxf")))
    for i, (want, got) in enumerate(zip(expected, read)):
        if want != got:
            sys.exit("entity %d: wanted %s, read %s" % (i + 1, want, got))
    if len(expected) != len(read):
        sys.exit("%d entities wanted, %d read" % (len(expected), len(read)))
    print("%d entities read back" % len(read))


main()
