#!/usr/bin/env python3
"""faults.py TRELVO SHIM SEEDS: lets each call on a file go wrong in turn, and kills the program at each of them.

Whatever happens, the program ends as usual, tells what failed, keeps its document, and a drawing is on the disk: the old
one under its name or followed by "~", or the whole new one.
"""

import errno
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor

PROGRAM, SHIM, SEEDS = sys.argv[1:4]
SLOT = 242
HEADER = 11 * SLOT
ARMED = "armato.bmp"
ERRORS = {
    "open": (errno.EACCES, errno.ENOSPC),
    "read": (errno.EIO,),
    "write": (errno.ENOSPC, errno.EIO, errno.EDQUOT),
    "close": (errno.EIO,),
    "fsync": (errno.ENOSPC,),
    "rename": (errno.EACCES,),
    "remove": (errno.EACCES,),
    "fstat": (errno.EIO,),
    "ftruncate": (errno.EIO,),
    "fchmod": (errno.EPERM,),
}
# Interruptions, and writes of a part, are no failures.
HARMLESS = [("open", str(errno.EINTR)), ("read", str(errno.EINTR)), ("write", str(errno.EINTR)),
            ("fsync", str(errno.EINTR)), ("close", str(errno.EINTR)), ("write", "short"), ("read", "short")]
KILLS = ("open", "write", "close", "fsync", "fchmod", "rename", "remove")


class Failure(Exception):
    pass


def require(holds, what):
    if not holds:
        raise Failure(what)


class Place:
    """A fresh folder with a watched one in it."""

    def __init__(self, base):
        self.home = pathlib.Path(tempfile.mkdtemp(dir=base))
        self.watched = self.home / "disegni"
        self.watched.mkdir()
        self.mark = self.home / "accaduto"

    def file(self, name):
        return self.watched / name

    def run(self, lines, fault=None, settings_here=False, armed_by=ARMED):
        script = self.home / "righe.tsc"
        script.write_text("\n".join(line.replace("@", f"{self.watched}/") for line in lines) + "\n")
        env = {**os.environ, "LC_ALL": "C.UTF-8", "XDG_RUNTIME_DIR": str(self.home)}
        for gone in ("DISPLAY", "WAYLAND_DISPLAY"):
            env.pop(gone, None)
        if fault:
            call, nth, do = fault
            env.update(LD_PRELOAD=SHIM, FAULT_FOLDER=f"{self.watched}/", FAULT_ARMED=armed_by, FAULT_CALL=call,
                       FAULT_NTH=str(nth), FAULT_DO=do, FAULT_MARK=str(self.mark))
        folder = self.watched if settings_here else self.home
        done = subprocess.run([PROGRAM, "--folder", str(folder), "--script", str(script)], env=env,
                              capture_output=True, timeout=60, check=False)
        return done.returncode, done.stdout.decode()


def part(output, begin, end):
    return output.split(f"\n{begin}\n", 1)[1].split(f"\n{end}\n", 1)[0].split("\n")


def objects(lines):
    return [line for line in lines if re.match(r"[A-Za-z]+ \d+ stato=", line)]


def told(lines):
    return any(line.startswith(("error ", "msgbox \"Errore nella creazione")) for line in lines)


def records(path):
    """The objects of a drawing file; the view depends on the window."""
    data = path.read_bytes()[HEADER:]
    return b"".join(data[at:at + SLOT - 2] for at in range(0, len(data), SLOT))


def make_drawing(path, times=220):
    """More than one block of records."""
    data = (pathlib.Path(SEEDS) / "dis/all_classes.DIS").read_bytes()
    path.write_bytes(data[:HEADER] + data[HEADER:] * times)


def new_line():
    return ["menu opdis 1", "left 1 1", "left 7 5", "key 27"]


def armed(place, action, after=()):
    return ["objects", f'picture "{place.home}/{ARMED}"', "echo AZIONE", *action, "echo DOPO", "objects", *after,
            "echo FINE"]


class Operation:
    """What a user does, and what has to hold after it."""
    name = ""
    calls = tuple(ERRORS)
    settings_here = False

    def prepare(self, place):
        pass

    def lines(self, place):
        raise NotImplementedError

    def result(self, place):
        """What the operation made, comparable with another run; None for nothing whole."""
        raise NotImplementedError

    def check(self, place, output, whole):
        """`whole`: the operation succeeded."""
        before = objects(output.split("\nAZIONE\n")[0].split("\n"))
        after = objects(part(output, "DOPO", "FINE"))
        require(before == after, "the document changed")
        require(whole or told(part(output, "AZIONE", "DOPO")), "nothing was told")


def drawing_result(path):
    if not path.is_file() or not path.stat().st_mode & 0o400:
        return None
    return records(path)


class Save(Operation):
    name = "save"
    target = "d.DIS"

    def prepare(self, place):
        make_drawing(place.file("d.DIS"))
        self.old = records(place.file("d.DIS"))

    def lines(self, place):
        return ['file "@d.DIS"', "menu gestfile 2", *new_line(), *armed(place, ["menu opfile 3"], ["state modificato"])]

    def result(self, place):
        return drawing_result(place.file(self.target))

    def check(self, place, output, whole):
        super().check(place, output, whole)
        if whole:
            return
        require("modificato = 1" in part(output, "DOPO", "FINE"), "an unsaved drawing would close unasked")
        kept = [drawing_result(place.file(name)) for name in ("d.DIS", "d.DIS~")]
        require(self.old in kept, "the old drawing is lost")
        said = re.search(r'precedente è in \\"([^"]*)\\"', output)
        require(kept[0] is not None or said, "where the old drawing is kept was not told")
        require(not said or drawing_result(pathlib.Path(said[1])) == self.old, "the old drawing is not where it is said")


class SaveAs(Save):
    """Over another drawing. A target that cannot be opened for writing ends the command without a message."""
    name = "save as"
    target = "altro.DIS"

    def prepare(self, place):
        super().prepare(place)
        make_drawing(place.file(self.target), 3)
        self.other = records(place.file(self.target))

    def lines(self, place):
        return ['file "@d.DIS"', "menu gestfile 2", *new_line(),
                *armed(place, ["answer yes", f'file "@{self.target}"', "menu opfile 4"],
                       ["state modificato", "get distipo.Caption"])]

    def check(self, place, output, whole):
        refused = f'Caption = "{place.file("d.DIS")}"' in output
        Operation.check(self, place, output, whole or refused)
        require(records(place.file("d.DIS")) == self.old, "the drawing's own file changed")
        if not whole:
            kept = [drawing_result(place.file(self.target + tail)) for tail in ("", "~")]
            require(self.other in kept, "the other drawing is lost")


class SaveAsNew(SaveAs):
    name = "save as new"
    target = "nuovo.DIS"

    def prepare(self, place):
        Save.prepare(self, place)

    def check(self, place, output, whole):
        refused = f'Caption = "{place.file("d.DIS")}"' in output
        Operation.check(self, place, output, whole or refused)
        require(records(place.file("d.DIS")) == self.old, "the drawing's own file changed")
        left = place.file(self.target)
        require(whole or not left.exists() or left.stat().st_size == 0, "a part of a drawing is left")


class Open(Operation):
    name = "open"

    def prepare(self, place):
        make_drawing(place.file("d.DIS"))

    def lines(self, place):
        return ["menu gestfile 1", *armed(place, ['file "@d.DIS"', "menu gestfile 2"], ["state ndocumenti"])]

    def result(self, place):
        return self.read

    def check(self, place, output, whole):
        lines = part(output, "DOPO", "FINE")
        gone = "ndocumenti = 1" in lines
        require(whole or gone or told(part(output, "AZIONE", "DOPO")), "nothing was told")
        require(not gone or not objects(lines), "objects of a window that is gone")
        make_drawing(place.file("stesso.DIS"))
        require(place.file("d.DIS").read_bytes() == place.file("stesso.DIS").read_bytes(), "reading changed the file")


class Import(Open):
    name = "import"

    def prepare(self, place):
        text = (pathlib.Path(SEEDS) / "txt/all_classes.txt").read_bytes()
        place.file("t.txt").write_bytes(text)

    def lines(self, place):
        return ["menu gestfile 1", *armed(place, ['file "@t.txt"', "menu gestfile 2"], ["state ndocumenti"])]

    def check(self, place, output, whole):
        lines = part(output, "DOPO", "FINE")
        require(whole or "ndocumenti = 1" in lines or told(part(output, "AZIONE", "DOPO")), "nothing was told")
        require(whole or not objects(lines), "a part of a drawing was imported")


class Export(Operation):
    def __init__(self, name, menu, target):
        self.name, self.menu, self.target = name, menu, target

    def prepare(self, place):
        make_drawing(place.file("d.DIS"))

    def lines(self, place):
        return ['file "@d.DIS"', "menu gestfile 2",
                *armed(place, [f'file "@{self.target}"', f"menu {self.menu}"])]

    def result(self, place):
        return place.file(self.target).read_bytes() if place.file(self.target).is_file() else None

    def check(self, place, output, whole):
        # A bitmap that cannot be opened for writing ends the command without a message.
        refused = self.menu == "mnucreabmp" and not self.result(place)
        super().check(place, output, whole or refused)


class Print(Operation):
    """To a PDF file, over an old one. Two sheets differ in their dates: a sheet that begins and ends well is whole."""
    name = "print"
    old = b"%PDF-1.4 the old one %%EOF\n"

    def prepare(self, place):
        make_drawing(place.file("d.DIS"), 3)
        place.file("u.pdf").write_bytes(self.old)

    def lines(self, place):
        return ['file "@d.DIS"', "menu gestfile 2",
                *armed(place, ['printto "@u.pdf"', "dialog Geststamp", "press Geststamp.Command1", "end",
                               "menu opfile 8"])]

    def result(self, place):
        pdf = place.file("u.pdf").read_bytes()
        return pdf != self.old and pdf.startswith(b"%PDF-") and pdf.rstrip().endswith(b"%%EOF")

    def check(self, place, output, whole):
        part(output, "AZIONE", "DOPO")
        require(whole or told(part(output, "AZIONE", "DOPO")), "nothing was told")
        require(whole or place.file("u.pdf").read_bytes() == self.old, "the old sheet is lost")
        require(sorted(os.listdir(place.watched)) == ["d.DIS", "u.pdf"], "a part of a sheet is left")


class SaveReport(Operation):
    """Over an old one. A save that fails ends without a message: the mark of a change stays."""
    name = "save a report"

    def prepare(self, place):
        old = (pathlib.Path(SEEDS) / "rtf/writer.rtf").read_bytes()
        place.file("r.rtf").write_bytes(old)
        self.old = old

    def lines(self, place):
        return ["menu gestfile 1", "report", 'file "@r.rtf"', "menu videoscritt.file 2",
                'set videoscritt.RichTextBox1.SelText "aggiunta"',
                *armed(place, ["menu videoscritt.file 3"], ["state testomodificato"])]

    def result(self, place):
        saved = place.file("r.rtf").read_bytes()
        return saved if saved != self.old else None

    def check(self, place, output, whole):
        require(whole == ("testomodificato = 0" in output), "the mark of a change is wrong")
        require(whole or place.file("r.rtf").read_bytes() == self.old, "the old report is lost")
        require(os.listdir(place.watched) == ["r.rtf"], "a part of a report is left")


class OpenReport(SaveReport):
    name = "open a report"

    def lines(self, place):
        return ["menu gestfile 1", "report", 'set videoscritt.RichTextBox1.Text "prima"', "answer no",
                *armed(place, ['file "@r.rtf"', "menu videoscritt.file 2"], ["get videoscritt.RichTextBox1.Text"])]

    def result(self, place):
        return self.read

    def check(self, place, output, whole):
        kept = 'RichTextBox1.Text = "prima"' in output
        require(whole or (kept and "inesistente o non leggibile" in output), "nothing was told, or the text is gone")
        require(place.file("r.rtf").read_bytes() == self.old, "reading changed the file")


class Settings(Operation):
    name = "settings"
    settings_here = True

    def lines(self, place):
        return ["menu gestfile 1", *armed(place, ["menu aiutdis 6"])]

    def result(self, place):
        return place.file("Trelvo.ini").read_bytes()

    def check(self, place, output, whole):
        super().check(place, output, whole)
        status, again = place.run(["menu gestfile 1", "state statogriglia"], settings_here=True)
        require(status == 0 and "error" not in again, "the settings are damaged")


class SaveReportAs(Operation):
    """Over another report. A save that fails ends without a message: name and mark of a change stay."""
    name = "save a report as"
    target = "altra.rtf"
    action = ["answer yes", f'file "@{target}"', "menu videoscritt.file 4"]

    def prepare(self, place):
        seeds = pathlib.Path(SEEDS) / "rtf"
        shutil.copy(seeds / "writer.rtf", place.file("r.rtf"))
        shutil.copy(seeds / "word.rtf", place.file(self.target))
        self.own = place.file("r.rtf").read_bytes()
        self.other = place.file(self.target).read_bytes()

    def lines(self, place):
        return ["menu gestfile 1", "report", 'file "@r.rtf"', "menu videoscritt.file 2",
                'set videoscritt.RichTextBox1.SelText "aggiunta"',
                *armed(place, self.action, ["state testomodificato", "state nomedocumento"])]

    def result(self, place):
        saved = place.file(self.target).read_bytes()
        return saved if saved != self.other else None

    def check(self, place, output, whole):
        name = place.file(self.target if whole else "r.rtf")
        require(f"testomodificato = {0 if whole else 1}" in output, "the mark of a change is wrong")
        require(f'nomedocumento = "{name}"' in output, "the name is wrong")
        require(place.file("r.rtf").read_bytes() == self.own, "the report's own file changed")
        require(whole or place.file(self.target).read_bytes() == self.other, "the other report is lost")
        require(sorted(os.listdir(place.watched)) == [self.target, "r.rtf"], "a part of a report is left")


def full_disk_for_settings(base):
    """Settings that can never be written are told, and nothing else is kept from working."""
    place = Place(base)
    make_drawing(place.file("d.DIS"), 3)
    status, output = place.run(['menu gestfile 1', "get distipo.Caption", *new_line(), "objects", 'file "@d.DIS"',
                                "menu opfile 2", "echo APERTO", "get distipo.Caption", "objects", "echo FINE",
                                "activate 1", "state ndocumenti", "close"],
                               ("write", 1, f"{errno.ENOSPC}+"), settings_here=True, armed_by="Trelvo.ini")
    require(status == 0 and "error 61" in output, "settings that cannot be written are not told")
    require('Caption = "Disegno _ 1"' in output and "\nLinea 1 " in output, f"no new drawing\n{output}")
    opened = part(output, "APERTO", "FINE")
    require(f'distipo.Caption = "{place.file("d.DIS")}"' in opened and objects(opened), f"nothing opens\n{output}")
    require("ndocumenti = 2" in output, "a window is lost")
    return 1


OPERATIONS = (Save, SaveAs, SaveAsNew, Open, Import, lambda: Export("DXF", "mnudxf", "u.dxf"),
              lambda: Export("BMP", "mnucreabmp", "u.bmp"), Print, SaveReport, SaveReportAs, OpenReport, Settings)


def play(base, operation, fault=None):
    """One run; the place, what was printed, what was made, and whether the fault was met."""
    place = Place(base)
    operation.prepare(place)
    status, output = place.run(operation.lines(place), fault, operation.settings_here)
    if isinstance(operation, (Open, OpenReport)):
        lines = part(output, "DOPO", "FINE") if status == 0 else []
        operation.read = objects(lines) or [line for line in lines if "RichTextBox1.Text" in line]
    return place, status, output, place.mark.exists()


def series(base, make, call, do):
    """Each N in turn, until there is no N-th call."""
    operation = make()
    place, status, output, _ = play(base, operation)
    require(status == 0, f"{operation.name}: does not run\n{output}")
    wanted = operation.result(place)
    require(wanted, f"{operation.name}: makes nothing")
    operation.check(place, output, True)
    harmless = (call, do) in HARMLESS
    count = 0
    for nth in range(1, 100):
        operation = make()
        place, status, output, met = play(base, operation, (call, nth, do))
        where = f"{operation.name}, {call} {nth} -> {do}"
        if not met:
            break
        count += 1
        try:
            require(status == 0, f"ended with {status}")
            whole = operation.result(place) == wanted
            require(whole or not harmless, "was disturbed by nothing")
            operation.check(place, output, whole)
        except Failure as failure:
            raise Failure(f"{where}: {failure}\n{output[-2000:]}") from failure
        shutil.rmtree(place.home)
    return count


def kills(base, call, do):
    """The old or the new drawing opens after the program was killed while it saved."""
    operation = Save()
    place, _, output, _ = play(base, operation)
    wanted = objects(part(output, "DOPO", "FINE"))
    old = wanted[:]
    old.remove(next(line for line in wanted if re.match(r"Linea \d+ .*Xf=7 ", line)))
    renumbered = lambda lines: [re.sub(r"^(\w+) \d+", r"\1", line) for line in lines]
    count = 0
    for nth in range(1, 100):
        place, status, _, met = play(base, operation, (call, nth, do))
        if not met:
            break
        count += 1
        where = f"killed {do} {call} {nth}"
        require(status == -9, f"{where}: ended with {status}")
        _, output = place.run(["answer yes", 'file "@d.DIS"', "menu gestfile 2", "get distipo.Caption", "echo LETTO",
                               "objects", "echo SALVA", "menu opfile 3", "echo FINE"])
        found = renumbered(objects(part(output, "LETTO", "SALVA")))
        require(found in (renumbered(old), renumbered(wanted)), f"{where}: no drawing is left")
        require(f'Caption = "{place.file("d.DIS")}"' in output, f"{where}: under another name")
        require(not told(output.split("\n")), f"{where}: it cannot be saved again\n{output[-500:]}")
        status, output = place.run(['start "@d.DIS"', "echo LETTO", "objects", "echo FINE"])
        require(renumbered(objects(part(output, "LETTO", "FINE"))) == found, f"{where}: it does not open again")
        require("msgbox" not in output, f"{where}: asks again")
        shutil.rmtree(place.home)
    return count


def kills_of(base, make, call, do, intact):
    """Whatever a program that was killed left, `intact` says whether nothing is lost."""
    count = 0
    for nth in range(1, 100):
        operation = make()
        place, status, _, met = play(base, operation, (call, nth, do))
        if not met:
            break
        count += 1
        where = f"{operation.name}, killed {do} {call} {nth}"
        require(status == -9, f"{where}: ended with {status}")
        intact(place, operation, where)
        shutil.rmtree(place.home)
    return count


def other_report_is_kept(place, operation, where):
    saved = place.file(operation.target).read_bytes()
    require(saved == operation.other or saved.rstrip(b"\x00\r\n").endswith(b"}") and b"aggiunta" in saved,
            f"{where}: neither the old report nor the new one")
    _, output = place.run(operation.lines(place))
    require("testomodificato = 0" in output and operation.result(place), f"{where}: it cannot be saved again")


def report_is_kept(place, operation, where):
    saved = place.file("r.rtf").read_bytes()
    require(saved == operation.old or saved.rstrip(b"\x00\r\n").endswith(b"}") and b"aggiunta" in saved,
            f"{where}: neither the old report nor the new one")


def settings_are_kept(place, _, where):
    status, output = place.run(["menu gestfile 1", "state statogriglia", "menu aiutdis 6"], settings_here=True)
    require(status == 0 and "error" not in output, f"{where}: the next start tells of an error\n{output}")


def surroundings(base):
    """The file, or its folder, changes behind the program's back."""
    def run(prepare, between, target="@d.DIS"):
        place = Place(base)
        make_drawing(place.file("d.DIS"), 3)
        prepare(place)
        # The program waits at a pipe for its next lines while the folder changes.
        pipe = place.home / "righe"
        os.mkfifo(pipe)
        process = subprocess.Popen([PROGRAM, "--folder", str(place.home), "--script", str(pipe)],
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        with open(pipe, "w", encoding="utf-8") as lines:
            say = lambda line: (lines.write(line.replace("@", f"{place.watched}/") + "\n"), lines.flush())
            for line in [f'file "{target}"', "menu gestfile 2", *new_line(), "objects",
                         f'picture "{place.home}/{ARMED}"']:
                say(line)
            for _ in range(600):
                if (place.home / ARMED).exists():
                    break
                time.sleep(0.02)
            between(place)
            for line in ["echo AZIONE", "menu opfile 3", "echo DOPO", "objects", "state modificato", "echo FINE"]:
                say(line)
        output = process.communicate(timeout=60)[0].decode()
        require(process.returncode == 0, f"ended with {process.returncode}")
        require(objects(output.split("\nAZIONE\n")[0].split("\n")) == objects(part(output, "DOPO", "FINE")),
                "the document changed")
        return place, part(output, "AZIONE", "DOPO"), output

    nothing = lambda place: None
    stranger = b"non e' un disegno"

    place, said, _ = run(nothing, lambda place: place.file("d.DIS").write_bytes(stranger))
    require(not told(said) and len(records(place.file("d.DIS"))) > 0, "a replaced file is not written")
    require(place.file("d.DIS~").read_bytes() == stranger, "what somebody else wrote is lost")

    place, said, output = run(nothing, lambda place: shutil.rmtree(place.watched))
    require(told(said) and "modificato = 1" in output, "a folder that is gone is not told")

    def replace_by_folder(place):
        place.file("d.DIS").unlink()
        place.file("d.DIS").mkdir()
    place, said, output = run(nothing, replace_by_folder)
    require(told(said) and "modificato = 1" in output, "a folder in the file's place is not told")

    def link(place):
        (place.home / "vero.DIS").write_bytes(place.file("d.DIS").read_bytes())
        place.file("d.DIS").unlink()
        place.file("d.DIS").symlink_to(place.home / "vero.DIS")
    place, said, _ = run(link, nothing)
    require(not told(said) and place.file("d.DIS").is_symlink(), "a link does not stay one")
    require(b"Linea" in records(place.home / "vero.DIS"), "the file behind a link is not written")

    if os.geteuid() != 0:
        place, said, output = run(nothing, lambda place: place.watched.chmod(0o500))
        place.watched.chmod(0o700)
        require(told(said) and "modificato = 1" in output, "a folder that cannot be written is not told")
    return 5


def main():
    base = tempfile.mkdtemp(dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)
    try:
        with ThreadPoolExecutor(2) as pool:
            faults = [pool.submit(series, base, make, call, str(number) + lasting)
                      for make in OPERATIONS for call, numbers in ERRORS.items() for number in numbers
                      for lasting in (("", "+") if number == errno.ENOSPC else ("",))]
            faults += [pool.submit(series, base, make, call, do)
                       for make in (Save, Import, Open, Print, SaveReport, SaveReportAs, OpenReport)
                       for call, do in HARMLESS]
            killed = [pool.submit(kills, base, call, do) for call in KILLS for do in ("before", "after")]
            killed += [pool.submit(kills_of, base, make, call, do, intact)
                       for make, intact in ((SaveReport, report_is_kept), (SaveReportAs, other_report_is_kept),
                                          (Settings, settings_are_kept))
                       for call in KILLS for do in ("before", "after")]
            around = [pool.submit(job, base) for job in (surroundings, full_disk_for_settings)]
            failed = []
            counts = []
            for group in (faults, killed, around):
                total = 0
                for job in group:
                    try:
                        total += job.result()
                    except Failure as failure:
                        failed.append(str(failure))
                counts.append(total)
        print(f"{counts[0]} faults, {counts[1]} kills, {counts[2]} changes from outside")
        for failure in failed:
            print(failure, file=sys.stderr)
        if not failed and min(counts) == 0:
            failed.append("no fault was met")
        return 1 if failed else 0
    finally:
        shutil.rmtree(base, ignore_errors=True)


sys.exit(main())
