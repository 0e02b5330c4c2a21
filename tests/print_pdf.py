#!/usr/bin/env python3
"""print_pdf.py TRELVO: prints to PDF and measures the sheet with poppler's tools, which are not ours.

Sizes are true, lines and letters are no pictures, white comes out black, and printing changes no object.
Ends with status 77 where poppler-utils is not installed.
"""

import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

if not all(shutil.which(tool) for tool in ("pdftoppm", "pdfimages", "pdffonts", "pdftotext", "pdfinfo")):
    print("poppler-utils is missing: the printed sheet is not measured")
    sys.exit(77)

DOTS = 254  # ten to a millimetre

SCRIPT = """menu gestfile 1
menu aiutdis 4
{setup}
objects
printto "{pdf}"
dialog Geststamp
set Geststamp.Text1.Text "{scale}"
set Geststamp.Text2.Text "{x}"
set Geststamp.Text3.Text "{y}"
press Geststamp.Command1
end
menu opfile 8
objects
"""


def print_sheet(program, folder, setup, scale=1, x=0, y=0):
    """The PDF file, and what the program printed."""
    pdf = os.path.join(folder, "sheet.pdf")
    script = os.path.join(folder, "s.tsc")
    with open(script, "w", encoding="utf-8") as out:
        out.write(SCRIPT.format(setup=setup, pdf=pdf, scale=scale, x=x, y=y))
    done = subprocess.run([program, "--folder", folder, "--script", script], check=True, capture_output=True, text=True)
    objects = re.findall(r"^(?:Linea|Cerchio|Arco|Rettangolo|superficie|polilinea|testo) .*$", done.stdout, re.M)
    half = len(objects) // 2
    before = [re.sub(r"stampare=\d", "", line) for line in objects[:half]]
    after = [re.sub(r"stampare=\d", "", line) for line in objects[half:]]
    assert before == after and half > 0, "printing changes no object"
    return pdf


def ink(folder, pdf, box):
    """Extent of what is dark within a box of millimetres, in millimetres, and the share of it that is dark."""
    name = os.path.join(folder, "page")
    subprocess.run(["pdftoppm", "-gray", "-singlefile", "-r", str(DOTS), pdf, name], check=True)
    data = open(name + ".pgm", "rb").read()
    width, height, pixels = parse_pgm(data)
    left, top, right, bottom = (int(v * 10) for v in box)
    dark = [(px, py) for py in range(top, min(bottom, height)) for px in range(left, min(right, width))
            if pixels[py * width + px] < 160]
    assert dark, ("nothing is printed in", box)
    xs = [p[0] for p in dark]
    ys = [p[1] for p in dark]
    share = len(dark) / ((max(xs) - min(xs) + 1) * (max(ys) - min(ys) + 1))
    return min(xs) / 10, min(ys) / 10, (max(xs) + 1) / 10, (max(ys) + 1) / 10, share


def parse_pgm(data):
    fields = re.match(rb"P5\s+(\d+)\s+(\d+)\s+(\d+)\s", data)
    return int(fields[1]), int(fields[2]), data[fields.end():]


def near(measured, expected, slack=0.25):
    assert all(abs(m - e) <= slack for m, e in zip(measured, expected)), (measured, expected)


def text_of(pdf, *options):
    return subprocess.run(["pdftotext", *options, pdf, "-"], check=True, capture_output=True, text=True).stdout


def lines(*parts):
    return "\n".join(parts)


def typed_rectangle(x1, y1, x2, y2):
    return lines("menu opdis 7", f'left {x1} {y1}', f'left {x2} {y2}')


def typed_circle(x, y, radius):
    return lines("menu opdis 2", f"left {x} {y}", f'type frmMain.Text2 "{radius}"', "keypress frmMain.Text2 13")


def text(x, y, words, size):
    return lines("menu opdis 4", "dialog Gesttesto", f'font "Arial" {size}', "press Gesttesto.Command3",
                 f'type Gesttesto.Text1 "{words}"', "press Gesttesto.Command1", "end", f"left {x} {y}")


def zoomed(*parts):
    """The drawing with all of it in view."""
    return lines("menu opdis 1", "left 0 0", "left 1 0", "right 0 0", "dialog zoomp", 'set zoomp.Text1.Text "5000%"',
                 "press zoomp.Command1", "end", "menu selezoom 4", *parts, "menu selezoom 2")


def true_size(program, folder):
    pdf = print_sheet(program, folder,
                      zoomed(typed_rectangle(20, 30, 120, 130), typed_circle(60, 180, 25), text(20, 240, "Misura vera", 60)),
                      x=10, y=10)
    assert "210" in str(round(float(re.search(r"Page size:\s+([\d.]+)", subprocess.run(
        ["pdfinfo", pdf], check=True, capture_output=True, text=True).stdout)[1]) / 72 * 25.4))
    near(ink(folder, pdf, (5, 15, 180, 125))[:4], (10, 20, 110, 120))
    near(ink(folder, pdf, (5, 140, 180, 200))[:4], (25, 145, 75, 195))
    assert "Misura vera" in text_of(pdf)
    word = re.search(r'<word xMin="([\d.]+)" yMin="([\d.]+)".*>Misura<', text_of(pdf, "-bbox"))
    near([float(word[1]) / 72 * 25.4, float(word[2]) / 72 * 25.4], (10, 230), 0.7)
    images = subprocess.run(["pdfimages", "-list", pdf], check=True, capture_output=True, text=True).stdout
    assert len(images.splitlines()) <= 2, ("pictures on the sheet", images)
    fonts = subprocess.run(["pdffonts", pdf], check=True, capture_output=True, text=True).stdout
    assert len(fonts.splitlines()) == 3, fonts


def doubled(program, folder):
    pdf = print_sheet(program, folder, zoomed(typed_rectangle(20, 30, 60, 50)), scale=2, x=10, y=20)
    near(ink(folder, pdf, (5, 5, 200, 200))[:4], (20, 20, 100, 60))


def white_is_black(program, folder):
    white = lines("dialog TipoSuperficie", "set TipoSuperficie.List2.ListIndex 6", "color 255 255 255",
                  "press TipoSuperficie.Command5", "color 255 255 255", "press TipoSuperficie.Command4",
                  "press TipoSuperficie.Command1", "end", "menu mnutiposup")
    pdf = print_sheet(program, folder, lines(white, zoomed(typed_rectangle(20, 20, 60, 40))))
    measured = ink(folder, pdf, (10, 10, 100, 100))
    near(measured[:4], (20, 20, 60, 40))
    assert measured[4] > 0.99, "the white surface is solid black"


def hatched(program, folder):
    fill = lines("dialog TipoSuperficie", "set TipoSuperficie.List2.ListIndex 5", "press TipoSuperficie.Command1", "end",
                 "menu mnutiposup")
    pdf = print_sheet(program, folder, lines(fill, zoomed(typed_rectangle(20, 20, 60, 40))))
    measured = ink(folder, pdf, (10, 10, 100, 100))
    near(measured[:4], (20, 20, 60, 40))
    assert 0.05 < measured[4] < 0.6, ("a hatch is neither nothing nor solid", measured[4])


def far_away(program, folder):
    """A line and an outline that run kilometres off the sheet still cross it where they should."""
    pdf = print_sheet(program, folder, lines("menu opdis 1", "left 1 1", "left 31 16", "right 0 0",
                                             typed_rectangle(1, 1, 30, 20)), scale=100000, x=0.9995, y=0.9995)
    near(ink(folder, pdf, (10, 40, 100, 105))[:2], (50, 50), 0.3)
    for x, y in ((90, 70), (190, 120), (150, 100)):
        near(ink(folder, pdf, (x - 1, 60, x + 1, 290))[:2], (x - 1, y - 0.5), 0.3)


def told_failures(program, folder):
    """A sheet that cannot be written is told, and leaves the old one; a device is no file to be replaced."""
    pdf = os.path.join(folder, "sheet.pdf")
    dice = random.Random(1)
    place = lambda: round(dice.uniform(0, 200), 3)
    setup = zoomed(*(typed_circle(place(), place(), place()) for _ in range(400)))

    def printed(where, limit=resource.RLIM_INFINITY):
        script = SCRIPT.format(setup=setup, pdf=where, scale=1, x=0, y=0)

        def fill_disk():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (limit, resource.getrlimit(resource.RLIMIT_FSIZE)[1]))

        done = subprocess.run([program, "--folder", folder, "--script", "-"], check=True, capture_output=True, text=True,
                              input=script, preexec_fn=fill_disk)
        return re.findall(r"^error (\d+) ", done.stdout, re.M)

    enough_for_settings = 8192
    assert printed(pdf, enough_for_settings) == ["61"], "a full disk"
    assert not os.path.exists(pdf), "a part of a sheet is left"
    assert printed(pdf) == [] and os.path.getsize(pdf) > 2 * enough_for_settings, os.path.getsize(pdf)
    whole = open(pdf, "rb").read()
    assert printed(pdf, enough_for_settings) == ["61"], "a full disk, over an old sheet"
    assert open(pdf, "rb").read() == whole, "the old sheet is lost"
    assert sorted(os.listdir(folder)) == ["Trelvo.ini", "sheet.pdf"], "something else is left"
    assert printed(os.path.join(folder, "gone", "sheet.pdf")) == ["76"], "a folder that is gone"
    assert printed(folder) == ["75"], "a folder in the file's place"
    os.symlink("/dev/full", os.path.join(folder, "device"))
    assert printed(os.path.join(folder, "device")) == ["61"], "a device that takes nothing"
    assert not os.path.isfile("/dev/full"), "the device is replaced"


def main():
    program = os.path.abspath(sys.argv[1])
    for test in (true_size, doubled, white_is_black, hatched, far_away, told_failures):
        with tempfile.TemporaryDirectory() as folder:
            test(program, folder)
            print(test.__name__, "holds")


main()
