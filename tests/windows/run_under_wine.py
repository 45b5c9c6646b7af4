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
import shutil
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
TODAY = "2026-11-21"
UNIT_SECONDS = 300
CALL_SECONDS = 60
MANY = 2000  # projects of the large folder
KILLS = 20

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


def same_files(here, there, what):
    """Fails where two folders differ in a file's name or bytes."""
    names = lambda folder: sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())
    if names(here) != names(there):
        raise Failed(f"{what}: here {names(here)}, under wine {names(there)}")
    different = [name for name in names(here) if (here / name).read_bytes() != (there / name).read_bytes()]
    if different:
        raise Failed(f"{what}: other bytes under wine: {', '.join(different)}")
    return len(names(here))


# --- the parts


def units(_):
    """All unit and window tests, a program a layer."""
    programs = sorted(settings.build.glob("bin/*_tests.exe"))
    if not programs:
        raise Failed("no test program was built")

    def run(test):
        with tempfile.TemporaryDirectory(prefix="terravane-windows-") as folder:
            return wine(test, "--gtest_brief=1", seconds=UNIT_SECONDS, folder=folder)

    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        said = list(pool.map(run, programs))
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
        (folder / "home/FileRecent.txt").unlink()  # the whole path, which is another one
    return f"{same_files(made['here'], made['there'], 'outputs')} files byte for byte"


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
    subprocess.run(["import", "-window", "root", str(path)], env=settings.environment, check=True, timeout=CALL_SECONDS)
    told = subprocess.run(["identify", "-format", "%k", str(path)], capture_output=True, text=True, check=True)
    return int(told.stdout)  # colours


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
        time.sleep(5)
        before = settings.build / "desktop-opened.png"
        if picture(before) < 50:
            raise Failed("the desktop's window is empty")
        xdotool("mousemove", "--window", windows[0], "200", "200", "click", "1", "key", "Tab", "type", "12.5")
        time.sleep(2)
        picture(settings.build / "desktop-typed.png")
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
    wine(installed / "uninstall.exe", "/S", f"_?=C:\\{str(installed.relative_to(settings.wine / 'drive_c'))}".replace("/", "\\"),
         environment=environment)
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
        except (Failed, subprocess.SubprocessError, OSError) as failure:
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
