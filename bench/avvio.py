#!/usr/bin/env python3
"""Start of the program with an all but empty document, under an Xvfb of its own: avvio.py TRELVO.

Prints a row of the table of figures: processor time until nothing is left to do, and the time by the clock until the
window shows.
"""

import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

AIM = 0.3
RUNS = 7


def start_server():
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", "1280x800x24"],
        pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as display:
        return server, ":" + display.readline().strip()


def processor_seconds(pid):
    total = 0
    for task in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{task}/schedstat") as file:  # nanoseconds
            total += int(file.read().split()[0])
    return total / 1e9


def shows():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "Trelvo - "], capture_output=True, text=True)
    return bool(found.stdout.strip())


def one_start(program, folder, document):
    began = time.monotonic()
    process = subprocess.Popen([program, "--folder", folder, document], stderr=subprocess.DEVNULL)
    while not shows() and time.monotonic() - began < 20:
        time.sleep(0.002)
    clock = time.monotonic() - began
    time.sleep(1)
    seconds = processor_seconds(process.pid)
    process.kill()
    process.wait()
    return seconds, clock


def main():
    program = os.path.abspath(sys.argv[1])
    if not shutil.which("Xvfb") or not shutil.which("xdotool"):
        print("Xvfb or xdotool is missing: the start is not measured")
        return
    server, display = start_server()
    os.environ["DISPLAY"] = display
    os.environ["QT_QPA_PLATFORM"] = "xcb"
    with tempfile.TemporaryDirectory() as folder:
        document = os.path.join(folder, "one_line.DIS")
        script = f'menu gestfile 1\nmenu opdis 1\nleft 1 1\nleft 5 5\nkey 27\nfile "{document}"\nmenu opfile 4\n'
        subprocess.run([program, "--folder", folder, "--script", "-"], input=script, text=True, check=True,
                       stdout=subprocess.DEVNULL)
        try:
            starts = [one_start(program, folder, document) for _ in range(RUNS)]
        finally:
            server.terminate()
            server.wait()
    processor = statistics.median(s[0] for s in starts)
    clock = statistics.median(s[1] for s in starts)
    missed = "  MISSED" if processor > AIM else ""
    print(f"{'Start, to a document on the screen':<62} {AIM * 1e3:9.1f} {processor * 1e3:9.1f}  ms"
          f" (by the clock {clock * 1e3:.0f} ms){missed}")


main()
