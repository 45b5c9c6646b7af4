"""What the checkers of the sheets share: numbers as texts, failures by their number, the spline of two of them, the
way to the program.

A checker hands its module to `main`, which needs of it
    random_readings(rng)      a sheet as it may come, as READINGS.json would hold it
    show(name, readings)      prints the sheet worked by the second method
    script_of(readings)       the script lines that open the sheet, type it and press its commands
    shown(answers)            what the answers to those lines say, by names
    worked(readings)          the same by the second method
and takes, where it has one
    differences(mine, seen)   a sentence a difference between the two; else each name is compared
    FIELDS                    options of the command line, by name with their help, that go into the readings
"""

import argparse
import json
import pathlib
import random
import re
import struct
import subprocess
import tempfile
from decimal import ROUND_HALF_UP, Decimal

NUMBER = re.compile(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", re.ASCII)


class RuntimeFailure(Exception):
    """An arithmetic failure with the number that the sheet answers; no number where a grid has no such row."""

    def __init__(self, number):
        super().__init__(f"error {number}")
        self.number = number


def val(text):
    """The leading number of a text, or a number as it is typed; 0 where there is none."""
    found = NUMBER.match(str(text).strip())
    return float(found[0]) if found else 0.0


def rounded(number, decimals):
    """The decimal value of a double at 15 digits, rounded half away from zero, without the sign of a zero."""
    exact = Decimal(f"{number:.15g}").quantize(Decimal(1).scaleb(-decimals), rounding=ROUND_HALF_UP)
    return f"{abs(exact) if exact == 0 else exact:.{decimals}f}"


def divide(a, b):
    if b == 0:
        raise RuntimeFailure(6 if a == 0 else 11)
    return a / b


def single(number):
    """A number as single precision holds it."""
    return struct.unpack("f", struct.pack("f", number))[0]


def as_text(value):
    """A reading as it is typed."""
    return value if isinstance(value, str) else "" if value is None else f"{value:.15g}"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def seven(number):
    return val(rounded(number, 7))


def second_derivatives(points):
    """Of the natural spline through two points or more, from 1 on; seven decimals at each stage."""
    n = len(points)
    x, y = ([0.0] + list(axis) for axis in zip(*points))
    diagonal, h, right, m = ([0.0] * (n + 1) for _ in range(4))
    h[1] = seven(x[2] - x[1])
    for i in range(2, n):
        diagonal[i] = seven(2 * (x[i + 1] - x[i - 1]))
        h[i] = seven(x[i + 1] - x[i])
        right[i] = seven(6 * (divide(y[i + 1] - y[i], h[i]) - divide(y[i] - y[i - 1], h[i - 1])))
    for i in range(3, n):
        was = diagonal[i - 1]
        diagonal[i] = seven(diagonal[i] - divide(h[i - 1] ** 2, was))
        right[i] = seven(right[i] - divide(h[i - 1] * right[i - 1], was))
    m[n - 1] = seven(divide(right[n - 1], diagonal[n - 1]))
    for i in range(n - 2, 1, -1):
        m[i] = seven(divide(right[i] - h[i] * m[i + 1], diagonal[i]))
    return m


def answers(program, lines):
    """The program's answers to script lines, on a project of their own: a grid keeps what it held."""
    script = ["answer road.mdb", "menu mnuNew", "click frmProject.cmdOK", *lines]
    with tempfile.TemporaryDirectory() as folder:
        ran = subprocess.run([program], input="\n".join(script) + "\n", cwd=folder, capture_output=True, text=True,
                             timeout=120, check=True)
    return [json.loads(line) for line in ran.stdout.splitlines()]


def name_by_name(mine, seen):
    return [f"{name}: {mine[name]} here, {seen.get(name)} there"
            for name in mine if mine[name] != seen.get(name)]


def options_of(checker):
    parser = argparse.ArgumentParser(description=checker.__doc__.splitlines()[0])
    parser.add_argument("--program", "--compare", help="terravane-script, to compare with")
    parser.add_argument("--random", "--sheets", type=int, help="so many random sheets besides the files")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--script", action="store_true", help="print the script lines instead")
    parser.add_argument("--verbose", action="store_true", help="print the sheets that agree, too")
    for name, told in getattr(checker, "FIELDS", {}).items():
        parser.add_argument(f"--{name}", help=told)
    parser.add_argument("files", nargs="*", type=pathlib.Path)
    return parser.parse_args()


def sheets_of(checker, mode):
    given = {name: getattr(mode, name) for name in getattr(checker, "FIELDS", {}) if getattr(mode, name) is not None}
    for file in mode.files:
        yield file.name, json.loads(file.read_text(encoding="utf-8"))["readings"] | given
    rng = random.Random(mode.seed)
    by_default = 200 if mode.program and not mode.files else 0
    for i in range(by_default if mode.random is None else mode.random):
        yield f"random {i} of seed {mode.seed}", checker.random_readings(rng) | given


def main(checker):
    """The exit status: 1 where the program shows something else."""
    mode = options_of(checker)
    sheets = list(sheets_of(checker, mode))
    if not mode.program:
        for name, readings in sheets:
            print("\n".join(checker.script_of(readings))) if mode.script else checker.show(name, readings)
        return 0
    program, found = str(pathlib.Path(mode.program).resolve()), 0
    for name, readings in sheets:
        seen = checker.shown(answers(program, checker.script_of(readings)))
        lines = getattr(checker, "differences", name_by_name)(checker.worked(readings), seen)
        found += bool(lines)
        print("".join(f"{name}: {line}\n" for line in lines), end="")
        if lines or mode.verbose:
            checker.show(name, readings)
    print(f"{len(sheets)} sheets, {found} differ")
    return 1 if found else 0
