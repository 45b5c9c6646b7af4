#!/usr/bin/env python3
"""The desktop program on a screen with a window manager, worked with real keys: check_screen.py TERRAVANE

Only here is seen what a window manager decides: who gets the keyboard, and what stands in a title bar. Xvfb is the
screen, openbox the window manager, xdotool the hand at keyboard and mouse.
"""
import faulthandler
import os
import pathlib
import re
import select
import shutil
import subprocess
import sys
import tempfile
import time

FRAME = "Terravane Program : Version 1.0 -  [Materials for Road Construction]"
KEY_TO_FRAME = 0.3  # seconds, from the key to the frame; the splash alone would stand for three
STARTS = 5  # a busy machine may be late a few times
SECONDS = 30  # until a window that does not come is given up
END = 5  # seconds, until what does not end when it is told to is killed
WHOLE = 150  # seconds, until the check tells where it stands and gives up


class Screen:
    """A screen of its own, with a window manager; xdotool's words as methods."""

    def __init__(self):
        reading, writing = os.pipe()
        self.processes = [subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x720x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)]
        os.close(writing)
        with os.fdopen(reading) as number:
            if not select.select([number], [], [], SECONDS)[0]:
                sys.exit(f"the screen did not come within {SECONDS} s")
            # The keyboard's library copies names with a limit out of answers without a closing zero, as it may.
            sanitizer = os.environ.get("ASAN_OPTIONS", "") + ":strict_string_checks=0"
            self.environment = {**os.environ, "DISPLAY": ":" + number.readline().strip(), "QT_QPA_PLATFORM": "xcb",
                                "ASAN_OPTIONS": sanitizer}
        self.start("openbox")
        self.wait("a window manager", lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in self.run(
            "xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def start(self, *command):
        process = subprocess.Popen(command, env=self.environment, stdout=subprocess.DEVNULL)
        self.processes.append(process)
        return process

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False,
                              timeout=SECONDS).stdout

    def do(self, *words):
        return self.run("xdotool", *words)

    def wait(self, what, found):
        end = time.monotonic() + SECONDS
        while time.monotonic() < end:
            if result := found():
                return result
            for process in self.processes:
                if process.poll():
                    sys.exit(f"{process.args[0]} ended with {process.returncode} before {what} came")
            time.sleep(0.005)
        sys.exit(f"{what} did not come within {SECONDS} s; there are {self.titles()}")

    def window(self, title):
        """The window with exactly this title."""
        return self.do("search", "--onlyvisible", "--name", f"^{re.escape(title)}$").split()

    def titles(self):
        return [self.do("getwindowname", window).rstrip("\n")
                for window in self.do("search", "--onlyvisible", "--name", "").split()]

    def close(self):
        for process in reversed(self.processes):
            self.end(process)

    def end(self, process):
        process.terminate()
        try:
            process.wait(END)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()
        if process in self.processes:
            self.processes.remove(process)


def frame_by_key(screen, program):
    """Starts the program, presses a key on its splash, and returns how long the frame took from there, in seconds."""
    process = screen.start(str(program))
    splash = screen.wait("the splash", lambda: screen.window("Terravane"))
    screen.wait("the keyboard at the splash", lambda: screen.do("getwindowfocus").split() == splash)
    pressed = time.monotonic()
    screen.do("key", "space")
    screen.wait("the frame", lambda: screen.window(FRAME))
    return process, time.monotonic() - pressed


def check_splash(screen, program):
    """A key ends the splash. The program that came last is left running."""
    times = []
    for _ in range(STARTS):
        process, seconds = frame_by_key(screen, program)
        times.append(seconds)
        if seconds <= KEY_TO_FRAME:
            break
        screen.end(process)
        screen.wait("the frame's end", lambda: not screen.window(FRAME))
    print("from the key to the frame:", " ".join(f"{seconds:.2f} s" for seconds in times))
    if min(times) > KEY_TO_FRAME:
        sys.exit(f"a key on the splash does not bring the frame within {KEY_TO_FRAME} s")


def check_titles(screen):
    """A dialog and a message box bear the titles that they were given and nothing behind them."""
    frame = screen.window(FRAME)[0]
    screen.do("mousemove", "--window", frame, "20", "10", "click", "1")
    screen.do("key", "Down", "Return")
    screen.wait("a dialog titled \"New File\"", lambda: screen.window("New File"))
    screen.do("key", "Escape")
    screen.wait("a box titled \"Error\"", lambda: screen.window("Error"))
    screen.do("key", "Return")


def main():
    faulthandler.dump_traceback_later(WHOLE, exit=True)
    with tempfile.TemporaryDirectory(prefix="terravane-screen-") as folder:
        program = pathlib.Path(shutil.copy(sys.argv[1], folder))  # its folder is where it writes
        screen = Screen()
        try:
            check_splash(screen, program)
            check_titles(screen)
        finally:
            screen.close()


if __name__ == "__main__":
    main()
