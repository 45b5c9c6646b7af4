#!/usr/bin/env python3
"""Runs scripts through terravane-script and compares the answers, line by line, with the file kept beside each.

    tests/acceptance/run_acceptance.py [--program build/bin/terravane-script] [--update] [SCRIPT.trv | FOLDER ...]

A folder stands for its scripts; without either it runs the scripts of all folders beside this file. Each runs in a fresh
folder of its own, on 21 November 2026, and is compared with SCRIPT.expected, in which the fresh folder is written <work>.
--update writes what came instead.
--windows reads the answers of a program that runs under wine: a path that begins with the fresh folder has its marks as
here. --sample compares nothing: the script must end well and no answer may be an error or a refusal.

Comment lines of a script may say more:

    # exit 1                 the exit status that is right, where it is not 0
    # options: --home home   options of terravane-script for this run
    # setup: COMMAND         a shell command, run in the fresh folder before
    # check: COMMAND         one run after; what it prints is compared too, behind a line "$ COMMAND"

Commands find terravane-script by its name, the folder of this file as $TESTS, and what the script wrote on standard
error as ../stderr (also written: the folder of this file is <tests> there).
"""

import argparse
import difflib
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TESTS = pathlib.Path(__file__).resolve().parent
ROOT = TESTS.parent.parent
TODAY = "2026-11-21"
SECONDS = 60
DIRECTIVE = re.compile(r"^# (?:(exit) (\d+)|(options|setup|check): (.+))\s*$")


class Directives:
    """What a script's comment lines ask of its run."""

    def __init__(self, script):
        self.exit = 0
        self.options, self.setup, self.check = [], [], []
        for line in script.read_text(encoding="utf-8").splitlines():
            found = DIRECTIVE.match(line)
            if not found:
                continue
            if found[1]:
                self.exit = int(found[2])
            elif found[3] == "options":
                self.options += found[4].split()
            else:
                getattr(self, found[3]).append(found[4])


def environment(program):
    return {
        **os.environ,
        "PATH": f"{program.parent}{os.pathsep}{os.environ['PATH']}",
        "TESTS": str(TESTS),
        "LC_ALL": "C.UTF-8",
        "TZ": "UTC",
        "QT_QPA_PLATFORM": "offscreen",
    }


def shell(command, folder, env):
    """What the command prints, both streams, and its status where that is not 0."""
    ran = subprocess.run(["bash", "-c", command], cwd=folder, env=env, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT, timeout=SECONDS, check=False)
    lines = ran.stdout.decode("utf-8", "backslashreplace").splitlines()
    return lines + ([f"status {ran.returncode}"] if ran.returncode else [])


def as_here(line, folder):
    """A line of a program under wine with the paths of the fresh folder as they are here: JSON doubles their marks."""
    for mark in ("\\\\", "\\"):
        there = re.escape(("Z:" + folder).replace("/", mark))
        behind = "(?:" + re.escape(mark) + r"[^\\\"']*)*"
        line = re.sub(there + "(" + behind + ")", lambda found: folder + found[1].replace(mark, "/"), line)
    return line


def run_script(program, script, windows=False):
    """The answers and checks as lines, and what is wrong with the run itself, if anything."""
    asked = Directives(script)
    env = environment(program)
    with tempfile.TemporaryDirectory(prefix="terravane-acceptance-") as outer:
        folder = pathlib.Path(outer).resolve() / "work"
        folder.mkdir()
        for command in asked.setup:
            if failed := [line for line in shell(command, folder, env) if line.startswith("status ")]:
                return [], [f"setup failed with {failed[-1]}: {command}"]
        command = [str(program), "--today", TODAY, *asked.options, str(script)]
        ran = subprocess.run(command, cwd=folder, env=env, stdin=subprocess.DEVNULL, capture_output=True,
                             timeout=SECONDS, check=False)
        said = ran.stderr.decode("utf-8", "backslashreplace").replace(str(TESTS), "<tests>")
        (folder.parent / "stderr").write_text(said, encoding="utf-8")
        lines = ran.stdout.decode("utf-8", "backslashreplace").splitlines()
        for command in asked.check:
            lines += [f"$ {command}", *shell(command, folder, env)]
        if windows:
            lines = [as_here(line, str(folder)) for line in lines]
        lines = [line.replace(str(folder), "<work>") for line in lines]
    wrong = []
    if ran.returncode != asked.exit:
        wrong = [f"exit status {ran.returncode}, {asked.exit} is right", *said.splitlines()]
    return lines, wrong


def compare(script, lines, windows):
    """The differences from the answers kept beside the script, as lines of a unified diff."""
    kept = script.with_suffix(".expected")
    if not kept.exists():
        return [f"{kept.name} does not exist; --update writes it"]
    expected = kept.read_text(encoding="utf-8").splitlines()
    if windows:  # names of one letter case or another are one file there
        expected, lines = ([line.replace("/Logo.mdb", "/logo.mdb") for line in each] for each in (expected, lines))
    return list(difflib.unified_diff(expected, lines, kept.name, "this run", lineterm="", n=2))


def refusals(lines):
    """The answers of a sample that tell of something that went wrong."""
    return [line for line in lines if {"error", "refused"} & json.loads(line).keys()]


def judge(program, script, mode):
    """What is wrong, as lines; nothing where all is well."""
    try:
        lines, wrong = run_script(program, script, mode.windows)
    except subprocess.TimeoutExpired as late:
        return [str(late)]
    if mode.sample:
        return wrong + refusals(lines)
    if mode.update and not wrong:
        script.with_suffix(".expected").write_text("".join(line + "\n" for line in lines), encoding="utf-8")
        return []
    return wrong + compare(script, lines, mode.windows)


def scripts_of(paths):
    """The scripts among the paths and those of the folders among them."""
    return [script for path in paths for script in (sorted(path.glob("*.trv")) if path.is_dir() else [path])]


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", type=pathlib.Path, default=ROOT / "build/bin/terravane-script")
    parser.add_argument("--update", action="store_true", help="write what came into the .expected files")
    parser.add_argument("--windows", action="store_true", help="the program runs under wine")
    parser.add_argument("--sample", action="store_true", help="compare nothing, accept no error")
    parser.add_argument("scripts", nargs="*", type=pathlib.Path, metavar="SCRIPT | FOLDER")
    mode = parser.parse_args(arguments)
    program = mode.program.resolve()
    failed = 0
    for script in scripts_of(mode.scripts or sorted(path for path in TESTS.iterdir() if path.is_dir())):
        wrong = judge(program, script.resolve(), mode)
        failed += bool(wrong)
        print(f"{'FAILED' if wrong else 'ok'}  {script}")
        print("".join(f"    {line}\n" for line in wrong), end="")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
