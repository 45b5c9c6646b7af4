#!/usr/bin/env python3
"""Tries a build for Windows under wine: its own tests, and everything it makes against what this system's programs make.

    tests/windows/run_under_wine.py --prefix FOLDER [--build build/windows] [--linux build] [PART ...]

Every call of wine has a time limit; one wine server and one wine folder serve them all, and go with the run.
"""

import argparse
import concurrent.futures
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
TODAY = "2026-11-21"
UNIT_SECONDS = 1200  # windows open slowly under wine
CALL_SECONDS = 60
MANY = 2000  # projects of the large folder
KILLS = 20
COLOURS = 100  # in a picture of a sheet; the empty frame has fewer
DOTS, LINE, FOOT = 100, 22, 0.9  # dots an inch; the height of a line; where the foot of a page begins

settings = argparse.Namespace()


class Failed(Exception):
    """A sentence for the person who runs the tests."""


def wine_environment():
    compiler = [pathlib.Path(subprocess.run(["x86_64-w64-mingw32-g++-posix", f"-print-file-name={name}"],
                                            capture_output=True, text=True, check=True).stdout.strip()).parent
                for name in ("libstdc++-6.dll", "libssp-0.dll", "libwinpthread-1.dll")]
    libraries = [settings.prefix / "bin", *compiler]
    return {
        **os.environ,
        "WINEPREFIX": str(settings.wine),
        "WINEDEBUG": "-all",
        "WINEDLLOVERRIDES": "mscoree,mshtml=;winemenubuilder.exe=",
        "WINEPATH": ";".join("Z:" + str(folder).replace("/", "\\") for folder in libraries),
        "QT_PLUGIN_PATH": "Z:" + str(settings.prefix / "plugins"),
        "LC_ALL": "C.UTF-8",
        "TZ": "UTC",
    }


def wine(program, *arguments, seconds=CALL_SECONDS, folder=None, status=0, environment=None):
    """What a Windows program says on both streams; fails where its exit status is another or its time is up."""
    command = ["wine", str(program), *map(str, arguments)]
    shown = f"{pathlib.Path(program).name} {' '.join(map(str, arguments))}"[:200]
    try:
        ran = subprocess.run(command, cwd=folder, env=environment or settings.environment, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=seconds, check=False)
    except subprocess.TimeoutExpired as late:
        raise Failed(f"{shown}: not done after {seconds} s") from late
    said = ran.stdout.decode("utf-8", "backslashreplace")
    if ran.returncode != status:
        raise Failed(f"{shown}: exit status {ran.returncode}, {status} is right\n{said[-3000:]}")
    return said


def native(program, *arguments, folder=None, seconds=600):
    command = [str(settings.linux / "bin" / program), *map(str, arguments)]
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen"}
    ran = subprocess.run(command, cwd=folder, env=environment, capture_output=True, timeout=seconds, check=False)
    if ran.returncode != 0:
        raise Failed(f"{program} here: exit status {ran.returncode}\n{ran.stderr.decode()[-3000:]}")


def program(name):
    return settings.build / "bin" / f"{name}.exe"


def rows_of(picture):
    """The rows of a grey picture as pdftoppm writes it."""
    head, width, height, content = re.match(rb"(P5)\s+(\d+)\s+(\d+)\s+255\s(.*)", picture.read_bytes(), re.DOTALL).groups()
    return [content[row * int(width):(row + 1) * int(width)] for row in range(int(height))]


def same_pages(here, there):
    """Whether two PDFs differ in nothing but the line at the foot of each page that names the project's path, which has
    a drive on one system and none on the other."""
    def text(pdf):
        said = subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout
        return [line.split() for line in said.splitlines() if line.strip() and "Database File is" not in line]

    if text(here) != text(there):
        return False
    with tempfile.TemporaryDirectory(prefix="terravane-pages-") as folder:
        pages = {}
        for side, pdf in (("here", here), ("there", there)):
            subprocess.run(["pdftoppm", "-r", str(DOTS), "-gray", str(pdf), f"{folder}/{side}"], check=True)
            pages[side] = sorted(pathlib.Path(folder).glob(f"{side}*.pgm"))
        if len(pages["here"]) != len(pages["there"]):
            return False
        for one, other in zip(pages["here"], pages["there"]):
            ours, theirs = rows_of(one), rows_of(other)
            different = [row for row, (left, right) in enumerate(zip(ours, theirs, strict=True)) if left != right]
            if different and (different[-1] - different[0] > LINE or different[0] < len(ours) * FOOT):
                return False
    return True


def same_tables(here, there):
    """Whether two databases hold the same; when each was made stands in its catalogue."""
    def rows(database):
        names = subprocess.run(["mdb-tables", "-1", str(database)], capture_output=True, text=True, check=True).stdout
        return {name: subprocess.run(["mdb-export", str(database), name], capture_output=True, check=True).stdout
                for name in names.splitlines()}

    return here.stat().st_size == there.stat().st_size and rows(here) == rows(there)


ALIKE = {".pdf": same_pages, ".mdb": same_tables}


def same_files(here, there, what):
    """Fails where two folders differ in a file's name or bytes; a report may name another path, a database may have
    been made in another second. A run's journal keeps check sums of those."""
    def names(folder):
        files = (path.relative_to(folder) for path in folder.rglob("*") if path.is_file())
        return sorted(str(path) for path in files if path.name != ".terravane-report.journal")

    if names(here) != names(there):
        raise Failed(f"{what}: here {names(here)}, under wine {names(there)}")
    different = [name for name in names(here) if (here / name).read_bytes() != (there / name).read_bytes()]
    alike = lambda name: ALIKE.get(pathlib.Path(name).suffix, lambda *_: False)(here / name, there / name)
    wrong = [name for name in different if not alike(name)]
    if wrong:
        raise Failed(f"{what}: others under wine: {', '.join(wrong)}")
    return f"{len(names(here))} files, {len(names(here)) - len(different)} byte for byte, the others but for their path or second"


# --- the parts


def units(_):
    """All unit and window tests, a program a layer."""
    programs = sorted(settings.build.glob("bin/*_tests.exe"))
    if not programs:
        raise Failed("no test program was built")

    def run(test):
        with tempfile.TemporaryDirectory(prefix="terravane-windows-") as folder:
            try:
                return wine(test, "--gtest_brief=1", seconds=UNIT_SECONDS, folder=folder)
            except Failed as failure:
                wrong.append(str(failure))
                return ""

    wrong = []
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        said = list(pool.map(run, programs))
    if wrong:
        raise Failed("\n".join(wrong))
    passed = sum(int(text.split("[  PASSED  ] ")[1].split()[0]) for text in said if "[  PASSED  ] " in text)
    return f"{passed} tests of {len(programs)} programs"


def acceptance(home):
    """The acceptance scripts, their answers compared with those kept beside them."""
    wrapped = home / "bin"
    wrapped.mkdir()
    script = wrapped / "terravane-script"
    script.write_text(f'#!/bin/sh\nexec timeout {CALL_SECONDS} wine "{program("terravane-script")}" "$@"\n')
    script.chmod(0o755)
    scripts = sorted((ROOT / "tests/acceptance").glob("*/*.trv"))

    def run(path):
        ran = subprocess.run([sys.executable, ROOT / "tests/acceptance/run_acceptance.py", "--windows", "--program",
                              script, path], env=settings.environment, capture_output=True, text=True,
                             timeout=3 * CALL_SECONDS, check=False)
        return ran.stdout if ran.returncode else ""

    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        wrong = [said for said in pool.map(run, scripts) if said]
    if wrong:
        raise Failed(f"{len(wrong)} of {len(scripts)} scripts:\n" + "\n".join(wrong)[:5000])
    return f"{len(scripts)} scripts"


def outputs(home):
    """The road project typed, and all its reports, results and lists, in folders with Thai names."""
    made = {}
    for system in ("here", "there"):
        folder = home / system / "งานทาง"
        folder.mkdir(parents=True)
        made[system] = folder
        road = sorted((ROOT / "samples/road").glob("*.trv"))
        typed = ["--strict", "--today", TODAY, "--home", "home", ROOT / "samples/laboratory.trv", *road]
        printed = ["--today", TODAY, "--summary", "--brand", "home/BrandList", "-o", "out", "--csv", "all.csv",
                   "--json", "all.json", "--jobs", "2", "TRVN_road.mdb"]
        if system == "here":
            native("terravane-script", *typed, folder=folder)
            native("terravane-report", *printed, folder=folder)
        else:
            wine(program("terravane-script"), *typed, folder=folder, seconds=2 * CALL_SECONDS)
            wine(program("terravane-report"), *printed, folder=folder, seconds=2 * CALL_SECONDS)
        (folder / "home/FileRecent.txt").unlink(missing_ok=True)  # the whole path, which is another one
    return same_files(made["here"], made["there"], "outputs")


def many(home):
    """A folder of projects through two worker processes: rows in their order, the same as here."""
    jobs = home / "jobs"
    jobs.mkdir()
    for number in range(1, MANY + 1):
        os.link(settings.linux / "samples/TRVN_road.mdb", jobs / f"TRVN_{number:04}.mdb")
    asked = ["--today", TODAY, "--as-saved", "--tests", "att", "--materials", "soil", "--csv", "rows.csv", "-o", "out",
             "--jobs", "2", "jobs"]
    wine(program("terravane-report"), *asked, folder=home, seconds=UNIT_SECONDS)
    there = (home / "rows.csv").read_text(encoding="utf-8").replace("jobs\\", "jobs/")
    pages = len(list((home / "out").glob("*.pdf")))
    shutil.rmtree(home / "out")
    native("terravane-report", *asked, folder=home)
    if there != (home / "rows.csv").read_text(encoding="utf-8"):
        raise Failed("the rows of the large folder are others than here")
    if pages != MANY:
        raise Failed(f"{pages} reports of {MANY} projects")
    return f"{MANY} projects"


def killed(home):
    """Saves killed at random moments: the file is a whole one each time, and the next save finds no lock."""
    script = home / "save.trv"
    lines = ["answer road.mdb", "menu mnuNew", "set txtID 1", "click cmdOK", "menu mnuStd1"]
    for number in range(200):
        lines += [f"put MSHWt 1 1 {number}", "tool tblMenu 1"]
    script.write_text("\n".join(lines) + "\n")
    luck = random.Random(20261121)
    whole = 0
    for _ in range(KILLS):
        running = subprocess.Popen(["wine", str(program("terravane-script")), "--home", "home", "save.trv"], cwd=home,
                                   env=settings.environment, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        time.sleep(luck.uniform(0.5, 2.5))
        running.kill()
        running.wait(CALL_SECONDS)
        time.sleep(0.3)  # until the wine server has noticed
        if (home / "TRVN_road.mdb").exists():
            read = subprocess.run(["mdb-tables", "TRVN_road.mdb"], cwd=home, capture_output=True, text=True,
                                  timeout=CALL_SECONDS, check=False)
            if read.returncode != 0 or "SUMMARY" not in read.stdout:
                raise Failed("a killed save left a file that an independent reader can't read")
            whole += 1
            if list(home.glob("~$*.lock")):
                raise Failed("a killed program left its lock behind")
            (home / "TRVN_road.mdb").unlink()
    if whole == 0:
        raise Failed("no save was killed: the program was never that far")
    return f"{KILLS} kills, {whole} files"


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], env=settings.environment, capture_output=True, text=True,
                          timeout=CALL_SECONDS, check=False).stdout.split()


def picture(path):
    """Photographs the screen and returns what tells one picture from another."""
    subprocess.run(["import", "-window", "root", str(path)], env=settings.environment, check=True, timeout=CALL_SECONDS)
    told = subprocess.run(["identify", "-format", "%k %#", str(path)], capture_output=True, text=True, check=True)
    colours, content = told.stdout.split()
    if int(colours) < COLOURS:
        raise Failed(f"{path} is empty")
    return content


def desktop(home):
    """The desktop with a project, typed into; a picture of it stays in the build folder."""
    stage = settings.build / "stage/terravane"
    folder = home / "งาน"
    folder.mkdir()
    shutil.copytree(stage, folder / "terravane")
    shutil.copy(settings.linux / "samples/TRVN_road.mdb", folder)
    environment = {key: text for key, text in settings.environment.items() if key not in ("WINEPATH", "QT_PLUGIN_PATH")}
    running = subprocess.Popen(["wine", "terravane/terravane.exe", "TRVN_road.mdb"], cwd=folder, env=environment,
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        for _ in range(CALL_SECONDS):
            windows = xdotool("search", "--name", "Terravane Program")
            if windows:
                break
            time.sleep(1)
        else:
            raise Failed("no window of the desktop came up")
        time.sleep(2)
        xdotool("mousemove", "--window", windows[0], "600", "400", "click", "1")
        xdotool("key", "alt+a")  # the Atterberg limits
        time.sleep(1)
        xdotool("key", "Down", "Return")
        time.sleep(3)
        before = picture(settings.build / "desktop-opened.png")
        xdotool("key", "Tab", "Tab", "type", "12.5")
        time.sleep(2)
        after = picture(settings.build / "desktop-typed.png")
        if before == after:
            raise Failed("what was typed changed nothing on the screen")
        xdotool("key", "alt+F4")
        try:
            running.wait(CALL_SECONDS)
        except subprocess.TimeoutExpired as late:
            raise Failed("the desktop did not close on Alt+F4") from late
    finally:
        running.kill()
    return f"pictures: {settings.build}/desktop-opened.png, desktop-typed.png"


def installer(home):
    """The installer silently in, the installed program used, its uninstaller silently out."""
    setup = next((settings.build / "packages").glob("terravane-*-setup.exe"))
    environment = {key: text for key, text in settings.environment.items() if key not in ("WINEPATH", "QT_PLUGIN_PATH")}
    wine(setup, "/S", seconds=2 * CALL_SECONDS, environment=environment)
    installed = next(settings.wine.glob("drive_c/users/*/AppData/Local/Programs/Terravane"), None)
    if not installed or not (installed / "terravane.exe").exists():
        raise Failed("the installer left no program")
    opened = wine("reg", "query", r"HKCU\Software\Classes\.mdb\OpenWithProgids", environment=environment)
    if "Terravane.Project" not in opened:
        raise Failed("\"Open with\" does not offer the program")
    shutil.copy(settings.linux / "samples/TRVN_road.mdb", home)
    wine(installed / "terravane-report.exe", "--today", TODAY, "-o", "out", "--jobs", "1", "TRVN_road.mdb", folder=home,
         seconds=2 * CALL_SECONDS, environment=environment)
    native("terravane-report", "--today", TODAY, "-o", "here", "TRVN_road.mdb", folder=home)
    same_files(home / "here", home / "out", "the installed program's reports")
    (installed / "of-the-laboratory.txt").write_text("stays")
    wine(installed / "uninstall.exe", "/S", environment=environment)
    end = time.monotonic() + CALL_SECONDS
    while (installed / "uninstall.exe").exists() and time.monotonic() < end:
        time.sleep(0.2)  # it goes on in a copy of itself, so that it can take itself away
    left = sorted(path.name for path in installed.rglob("*"))
    if left != ["of-the-laboratory.txt"]:
        raise Failed(f"after uninstalling: {left}")
    return setup.name


PARTS = {part.__name__: part for part in (units, acceptance, outputs, many, killed, desktop, installer)}


def try_part(name):
    began = time.monotonic()
    with tempfile.TemporaryDirectory(prefix=f"terravane-{name}-") as home:
        try:
            told, good = PARTS[name](pathlib.Path(home).resolve()), True
        except (Failed, subprocess.SubprocessError, OSError, StopIteration) as failure:
            told, good = str(failure), False
    print(f"{'ok    ' if good else 'FAILED'}  {name}, {time.monotonic() - began:.0f} s: {told}", flush=True)
    return good


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--prefix", type=pathlib.Path, required=True, help="of tools/build-windows-libraries")
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/windows")
    parser.add_argument("--linux", type=pathlib.Path, default=ROOT / "build")
    parser.add_argument("parts", nargs="*", choices=[[], *PARTS], metavar="PART")
    parser.parse_args(arguments, settings)
    settings.build, settings.linux = settings.build.resolve(), settings.linux.resolve()
    settings.wine = settings.build / "wine"
    settings.wine.mkdir(parents=True, exist_ok=True)
    settings.environment = wine_environment()
    # What was built finds fonts and guide where what is installed does: beside itself.
    shutil.copytree(settings.build / "stage/terravane/share", settings.build / "bin/share", dirs_exist_ok=True)
    display = f":{90 + os.getpid() % 900}"
    screen = subprocess.Popen(["Xvfb", display, "-screen", "0", "1280x800x24"], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    settings.environment["DISPLAY"] = display
    server = subprocess.Popen(["wineserver", "-f", "-p"], env=settings.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL)
    try:
        subprocess.run(["wineboot", "-u"], env=settings.environment, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, timeout=5 * CALL_SECONDS, check=True)
        good = [try_part(name) for name in settings.parts or PARTS]
    finally:
        subprocess.run(["wineserver", "-k"], env=settings.environment, timeout=CALL_SECONDS, check=False)
        server.kill()
        screen.kill()
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
