#!/usr/bin/env python3
"""Drawing files by the format alone: `make FILE` writes a sample with all seven classes, `check FILE` reads the drawing
that the walk saved and compares every field of every slot that carries meaning."""
import struct
import sys

SLOT = 242
COUNT = 240  # place of the vertex count in a record


def slot(data):
    return data + bytes(SLOT - len(data))


def tagged(value):
    if isinstance(value, str):
        return struct.pack("<hH", 8, len(value)) + value.encode("cp1252")
    return struct.pack("<hh", 2, value)


def header(view, background, pointer, step, step_pitch, grid, grid_pitch):
    plain = [slot(struct.pack("<f", v)) for v in view]
    return plain + [slot(tagged(0)), slot(tagged(background)), slot(tagged(pointer)), slot(tagged(step)),
                    slot(struct.pack("<f", step_pitch)), slot(tagged(grid)), slot(struct.pack("<f", grid_pitch))]


def record(kind, points, colour1=0, colour2=0, style=0, fill=0, width=0.0, text=b"", count=0):
    """Points are a flat list of up to six doubles."""
    numbers = list(points) + [0.0] * (6 - len(points))
    return (kind.encode("cp1252").ljust(40) + struct.pack("<6d", *numbers) +
            struct.pack("<4if", colour1, colour2, style, fill, width) + text.ljust(132) + struct.pack("<h", count))


def text_field(face, text):
    return (face.encode("cp1252") + b"\0").ljust(32) + text.encode("cp1252").ljust(100)


SAMPLE = [
    record("Linea", [1, 2, 11, 7], colour1=255, style=1, width=0.0),
    record("Superficie", [20, 2, 30, 2, 30, 8], 0x8000, 0xFFFF, 0, 4, 0.02, count=4),
    record("ContinuaSuperficie", [20, 8], count=4),
    record("Polilinea", [2, 12, 6, 16, 10, 12], 128, 0, 2, 0, 0.0, count=5),
    record("ContinuaPolilinea", [14, 16, 18, 12], count=5),
    record("Arco", [28, 14, 22, 14, 25, 11], 0x800000, width=0.05, count=5),
    record("Cerchio", [40, 6, 43, 6], 0xFF00FF, 0x00FF00, 0, 6, 0.0, count=5),
    record("Rettangolo", [34, 12, 34, 18, 46, 18], 0x808080, 0xC0C0C0, 3, 0, 0.0, count=5),
    record("ContinuaRettangolo", [46, 12], count=5),
    # strikethrough, bold, italic, opaque as doubles, underline as an integer, the angle as a fill
    record("Testo", [3, 22, 0, 1, 1, 1], 0xFF0000, 0xC0FFFF, 1, 30, 2.0, text_field("Arial", "Così è la pianta"), 5),
]


def make(path):
    with open(path, "wb") as out:
        out.write(b"".join(header([0, 0, 50, 30], 15, 5, "ON", 0.5, "OFF", 0)))
        out.write(b"".join(SAMPLE))


def check(path):
    """The sample's objects and those that the walk drew, class by class in the file's order."""
    data = open(path, "rb").read()
    faults = []

    def expect(what, seen, wanted):
        if seen != wanted:
            faults.append(f"{what}: {seen!r} instead of {wanted!r}")

    expect("length", len(data) % SLOT, 0)
    slots = [data[i:i + SLOT] for i in range(0, len(data), SLOT)]
    expect("state of the window", slots[4][:4], tagged(0))
    expect("background", slots[5][:4], tagged(15))
    expect("pointer", slots[6][:4], tagged(5))
    expect("step", slots[7][:6], bytes.fromhex("080002004F4E"))
    expect("step pitch", slots[8][:4], struct.pack("<f", 0.5))
    expect("grid", slots[9][:7], bytes.fromhex("080003004F4646"))
    expect("grid pitch", slots[10][:4], struct.pack("<f", 0))

    wanted = [
        SAMPLE[0],
        record("Linea", [2, 3, 9.5, 3]),
        record("Linea", [1, 25, 7, 28]),
        SAMPLE[1],
        SAMPLE[2],
        record("Superficie", [12, 20, 18, 20, 15, 25], fill=7, count=3),
        record("Superficie", [12, 26, 18, 26, 15, 29], fill=7, count=3),
        SAMPLE[3],
        SAMPLE[4],
        record("Polilinea", [20, 20, 24, 24], count=2),
        record("Polilinea", [20, 26, 24, 28, 28, 26], count=3),
        SAMPLE[5],
        record("Arco", [34, 22, 30, 22, 32, 20]),
        record("Arco", [34, 27, 30, 27, 32, 25]),
        SAMPLE[6],
        record("Cerchio", [40, 22, 43, 22], fill=7),
        record("Cerchio", [40, 27, 41.5, 27], fill=7),
        SAMPLE[7],
        SAMPLE[8],
        record("Rettangolo", [45, 20, 45, 23, 48, 23], fill=7),
        record("ContinuaRettangolo", [48, 20]),
        record("Rettangolo", [45, 25, 45, 28, 48, 28], fill=7),
        record("ContinuaRettangolo", [48, 25]),
        SAMPLE[9],
    ]
    expect("number of records", len(slots) - 11, len(wanted))
    counted = 0
    for number, (seen, want) in enumerate(zip(slots[11:], wanted), 12):
        kind = want[:40].decode().strip()
        expect(f"slot {number}, kind", seen[:40].decode().strip(), kind)
        for name, start, end, form in [("points", 40, 88, "<6d"), ("attributes", 88, 104, "<4i"), ("width", 104, 108, "<f")]:
            expect(f"slot {number} {kind}, {name}", struct.unpack(form, seen[start:end]), struct.unpack(form, want[start:end]))
        expect(f"slot {number} {kind}, text", seen[108:COUNT], want[108:COUNT])
        # The count of the last polyline or surface stays in the records behind it.
        if kind in ("Superficie", "Polilinea"):
            counted = struct.unpack("<h", want[COUNT:])[0]
        if counted:
            expect(f"slot {number} {kind}, count", struct.unpack("<h", seen[COUNT:])[0], counted)
    print("\n".join(faults) if faults else "every field as the format says")
    return 1 if faults else 0


if __name__ == "__main__":
    if sys.argv[1] == "make":
        make(sys.argv[2])
    else:
        sys.exit(check(sys.argv[2]))
