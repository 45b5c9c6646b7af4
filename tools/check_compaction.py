#!/usr/bin/env python3
"""A second method for the compaction sheet: the reduction of a test worked step by step, beside the program.

    tools/check_compaction.py READINGS.json ...                print every cell and both results
    tools/check_compaction.py --program build/bin/terravane-script [--random N] [--seed S] [READINGS.json ...]
                                                               compare with what the sheet shows

READINGS.json holds "readings": mold_diameter_cm, mold_height_cm, trials of can_no, can_wet_g, can_dry_g, can_g,
assumed_water_pct, mold_wet_soil_g, mold_g; optionally specific_gravity (draws the air-void line) and interval
(the spline's step). Written from the method of the test and knowing nothing of the program's own code: texts in
cells, every stage rounded through decimals, one literal line a step.
"""

import itertools
import math
import sys
from fractions import Fraction

from checking import (NUMBER, RuntimeFailure, as_text, divide, main, quoted, rounded, second_derivatives, seven,
                      val)

TRIALS = 6
MOST_ROWS = 1_000_000  # of a grid, its head among them; one more is error 7
METHODS = {"optInt": "Interpolation", "optFit": "Curve Fitting"}


def masked(text, decimals):
    """A typed text through a cell's mask: a number is rounded, all else stands as typed."""
    text = text.strip()
    return rounded(float(text), decimals) if NUMBER.fullmatch(text) else text


class Sheet:
    """The texts of a compaction sheet, column 0 unused, and what Calculate and Compaction Curve make of them."""

    def __init__(self, readings):
        get = lambda name, default="": as_text(readings.get(name, default))
        self.height, self.dia = get("mold_height_cm"), get("mold_diameter_cm")
        self.gs, self.interval = get("specific_gravity"), get("interval", "0.01")
        self.water = [[""] * (TRIALS + 1) for _ in range(8)]
        self.density = [[""] * (TRIALS + 1) for _ in range(7)]
        for i, trial in enumerate(readings["trials"], 1):
            t = {name: as_text(value).strip() for name, value in trial.items()}
            self.water[1][i] = t.get("can_no", "")
            for row, name in ((2, "can_wet_g"), (3, "can_dry_g"), (4, "can_g")):
                self.water[row][i] = masked(t.get(name, ""), 2)
            for row, name in ((0, "assumed_water_pct"), (1, "mold_wet_soil_g"), (2, "mold_g")):
                text = t.get(name, "")
                ditto = row == 2 and i > 1 and text == "/"
                self.density[row][i] = self.density[2][i - 1] if ditto else text

    def calculate(self):
        w, d = self.water, self.density
        for i in range(1, TRIALS + 1):
            w[5][i] = w[6][i] = w[7][i] = d[3][i] = d[4][i] = d[5][i] = d[6][i] = "     "
        for i in range(1, TRIALS + 1):
            if val(w[2][i]) != 0:
                w[5][i] = rounded(val(w[2][i]) - val(w[3][i]), 2)
            if val(w[3][i]) != 0:
                w[6][i] = rounded(val(w[3][i]) - val(w[4][i]), 2)
            if val(w[6][i]) != 0:
                w[7][i] = rounded(divide(val(w[5][i]), val(w[6][i])) * 100, 2)
        for i in range(1, TRIALS + 1):
            if val(d[2][i]) != 0:
                d[3][i] = rounded(val(w[7][i]), 2)
                d[4][i] = rounded(val(d[1][i]) - val(d[2][i]), 2)
                volume = val(self.height) * 4 * math.atan(1) * val(self.dia) ** 2 / 4
                d[5][i] = rounded(divide(val(d[4][i]), volume), 2)
                d[6][i] = rounded(divide(val(d[5][i]), 1 + val(d[3][i]) / 100), 2)

    def points(self):
        """Water content and dry density of the accepted trials: up to the first column without a mold."""
        kept = itertools.takewhile(lambda i: val(self.density[2][i]) != 0, range(1, TRIALS + 1))
        return [(val(self.density[3][i]), val(self.density[6][i])) for i in kept]

    def curve(self, method, number=float):
        """OMC and MDD as the boxes show them, with the exact place of the peak; the fit in numbers of that kind."""
        points = self.points()
        step = tick_step(points)
        if method == "optInt":
            table = spline_table(points, val(self.interval))
        else:
            table = fit_table(points, number)
        if table and step == 0:
            raise RuntimeFailure(11)
        best, bestx = 0.0, 0.0
        for x, y in table:
            if y >= best:
                best, bestx = y, x
        return rounded(bestx, 1), rounded(best, 2), bestx, best


def tick_step(points):
    """Two decimals of an eighth of the density range, its whole part dropped."""
    low = min([9999.0] + [y for _, y in points if y != 0])
    high = max([0.0] + [y for _, y in points])
    raw = rounded((high - (low - 0.01)) / 8, 2)
    return float(raw[raw.index("."):])


def spline_table(points, step):
    """The walk along the spline: x to three decimals, y to seven."""
    n = len(points)
    if n < 2:
        raise RuntimeFailure(None)
    m = second_derivatives(points)
    x, y = ([0.0] + list(axis) for axis in zip(*points))
    rows = []

    def value(i, at):
        h, a, b = x[i + 1] - x[i], x[i + 1] - at, at - x[i]
        if len(rows) == MOST_ROWS - 1:
            raise RuntimeFailure(7)
        s = ((divide(a * a, h) - h) * a * m[i]) / 6 + ((divide(b * b, h) - h) * b * m[i + 1]) / 6
        rows.append((val(rounded(at, 3)), seven(s + divide(a * y[i], h) + divide(b * y[i + 1], h))))

    at = x[1]
    for i in range(1, n):
        count = divide(abs(x[i + 1] - x[i]), step)
        k = 0
        while k <= count:
            if not (i == 1 and k == 0):
                at = at + step if x[i] <= x[i + 1] else at - step
            value(i, at)
            k += 1
        if i == 1 and k == 0:
            rows.append((0.0, 0.0))  # the row of the first point stands empty where the walk has no step
        at = x[i + 1]
        if i == 1:
            value(i, at)
    return rows


def coefficients(points, number):
    """The least-squares cubic, or quartic from five points on: normal equations, Gauss-Jordan inversion."""
    points = [(number(x), number(y)) for x, y in points]
    degree = 3 if len(points) < 5 else 4
    size = degree + 1
    sums = [sum(x**k for x, _ in points) for k in range(2 * degree + 1)]
    right = [sum(x**k * y for x, y in points) for k in range(size)]
    a = [[number(sums[r + c]) for c in range(size)] + [number(r == c) for c in range(size)] for r in range(size)]
    for p in range(size):
        if a[p][p] == 0:
            below = [r for r in range(p + 1, size) if a[r][p] != 0]
            if below:
                a[p], a[below[0]] = a[below[0]], a[p]
        pivot = a[p][p]
        a[p] = [divide(entry, pivot) for entry in a[p]]
        for r in range(size):
            if r != p:
                factor = a[r][p]
                a[r] = [entry - factor * upper for entry, upper in zip(a[r], a[p])]
    return [float(sum(a[r][size + c] * right[c] for c in range(size))) for r in range(size)]


def fit_table(points, number=float):
    """The walk along the fit, from one step above the first point."""
    a = coefficients(points, number)
    x1, xn = points[0][0], points[-1][0]
    steps = math.floor((xn - x1) / 0.001) + 2
    sweep = (x1 + k * 0.001 for k in range(1, steps + 1))
    return [(x, sum(c * x**power for power, c in enumerate(a))) for x in sweep]


def fit_is_sound(sheet):
    """Whether doubles give what fractions give. Too few points, or one far off, and the result is its rounding's."""
    try:
        return sheet.curve("optFit")[:2] == sheet.curve("optFit", Fraction)[:2]
    except RuntimeFailure:
        return not sheet.points()


def worked(readings):
    """What a sheet shows after Calculate and after the curve by each method, as answers of one shape."""
    sheet = Sheet(readings)
    out = {"error": None}
    try:
        sheet.calculate()
    except RuntimeFailure as failure:
        out["error"] = failure.number
    out["sound"] = fit_is_sound(sheet)
    out["water"], out["density"] = [row[1:] for row in sheet.water], [row[1:] for row in sheet.density]
    for method in METHODS:
        try:
            omc, mdd, bestx, best = sheet.curve(method)
            out[method] = {"omc": omc, "mdd": mdd, "exact": (bestx, best)}
        except RuntimeFailure as failure:
            out[method] = {"error": failure.number}
    return out


def show(name, readings):
    out = worked(readings)
    print(name)
    for title in ("water", "density"):
        for row, cells in enumerate(out[title]):
            if title == "density" or row:
                print(f"  {title:7} {row}  " + " ".join(f"{cell.strip():>9}" for cell in cells))
    if out["error"]:
        print(f"  Calculate stops with error {out['error']}")
    for method, title in METHODS.items():
        result = out[method]
        if "error" in result:
            print(f"  {title}: error {result['error'] or 'of a grid without that row'}")
        else:
            print(f"  {title}: OMC {result['omc']} %, MDD {result['mdd']} g/cm^3, the peak at {result['exact']}")


def script_of(readings):
    """The same readings typed into the program's sheet."""
    clean = Sheet({**readings, "trials": []})
    lines = ["menu mnuStd1", f"set txtHeight {quoted(clean.height)}", f"set txtDia {quoted(clean.dia)}"]
    places = (("can_no", "MSHWt", 1), ("can_wet_g", "MSHWt", 2), ("can_dry_g", "MSHWt", 3), ("can_g", "MSHWt", 4),
              ("assumed_water_pct", "MSHDensity", 0), ("mold_wet_soil_g", "MSHDensity", 1), ("mold_g", "MSHDensity", 2))
    for i, trial in enumerate(readings["trials"], 1):
        for name, grid, row in places:
            lines.append(f"type {grid} {row} {i} {quoted(as_text(trial.get(name, '')))}")
    lines += ["echo calculate", "click cmdCal", "dump MSHWt", "dump MSHDensity"]
    lines += ["tab SSTData 1", f"set Text6 {quoted(clean.interval)}"]
    for method in METHODS:
        lines += [f"echo {method}", f"click {method}", "click cmdOMC", "get txtOMC", "get txtDmax"]
    return lines


def shown(answers):
    """What the program's sheet shows, in the shape of `worked`."""
    out, part = {"error": None, "water": [], "density": []}, None
    names = {"MSHWt": "water", "MSHDensity": "density"}
    for answer in answers:
        if "echo" in answer:
            part = answer["echo"]
            out.setdefault(part, {})
        elif "dump" in answer:
            out[names[answer["dump"]]].append(answer["cells"][1:])
        elif "error" in answer and part:
            target = out if part == "calculate" else out[part]
            target["error"] = answer["error"]
        elif answer.get("get") == "txtOMC":
            out[part]["omc"] = answer["text"]
        elif answer.get("get") == "txtDmax":
            out[part]["mdd"] = answer["text"]
    return out


def differences(mine, seen):
    found = []
    if mine["error"] != seen["error"]:
        found.append(f"Calculate: error {mine['error']} here, {seen['error']} there")
    for title, first in (("water", 1), ("density", 0)):
        for row in range(first, len(mine[title])):
            if mine[title][row] != seen[title][row]:
                found.append(f"{title} row {row}: {mine[title][row]} here, {seen[title][row]} there")
    if mine["error"] and seen["error"]:
        return found  # tab 1 is shut, the curve has not been drawn
    for method in METHODS:
        if method == "optFit" and not mine["sound"]:
            continue
        a, b = mine[method], seen[method]
        if "error" in a or "error" in b:
            same = "error" in a and "error" in b and a["error"] in (None, b["error"])
        else:
            same = (a["omc"], a["mdd"]) == (b["omc"], b["mdd"])
        if not same:
            found.append(f"{METHODS[method]}: {a} here, {b} there")
    return found


def random_readings(rng):
    """A believable sheet; one in four with something wrong in it."""
    count = rng.choice([1, 2, 3, 3, 4, 4, 5, 5, 5, 6, 6])
    water, top = rng.uniform(4, 16), rng.uniform(1.5, 2.3)
    gap, curvature, peak = rng.uniform(0.8, 2.5), rng.uniform(0.002, 0.02), rng.uniform(0, count)
    dia, height = rng.choice([(10.16, 11.64), (15.24, 11.64), (10, 12.5)])
    volume, mold = math.pi * dia**2 * height / 4, rng.choice([1484.5, 2315, 6480, 4250.25])
    trials = []
    for i in range(count):
        w = water + i * gap + rng.uniform(-0.2, 0.2)
        can, dry = round(rng.uniform(10, 40), 3), round(rng.uniform(20, 500), 3)
        rho = max(0.2, top - curvature * (i * gap - peak * gap) ** 2 + rng.uniform(-0.01, 0.01))
        trials.append({"can_no": f"A{i + 1}", "can_wet_g": round(can + dry * (1 + w / 100), 3),
                       "can_dry_g": round(can + dry, 3), "can_g": can, "assumed_water_pct": round(w),
                       "mold_wet_soil_g": round(mold + rho * (1 + w / 100) * volume, 1),
                       "mold_g": mold if i == 0 or rng.random() < 0.5 else "/"})
    readings = {"mold_diameter_cm": dia, "mold_height_cm": height, "trials": trials,
                "interval": rng.choice(["0.01", "0.01", "0.02", "0.1", "0.005", ".03"])}
    if rng.random() < 0.25:
        spoil(rng, readings)
    return readings


def spoil(rng, readings):
    trial = rng.choice(readings["trials"])
    rng.choice([
        lambda: trial.update(mold_g=rng.choice(["", "0", "x", "/"])),
        lambda: trial.update(can_wet_g=rng.choice(["", "abc", "85.32g", "-5", "1e2"])),
        lambda: trial.update(can_dry_g=rng.choice(["", "0", "12,5", trial["can_g"]])),
        lambda: trial.update(can_g=""),
        lambda: trial.update(mold_wet_soil_g=rng.choice(["", "?"])),
        lambda: readings.update(mold_height_cm=rng.choice(["", "0", "h"])),
        lambda: readings.update(mold_diameter_cm=""),
        lambda: readings.update(interval=rng.choice(["0", "", "x", "-0.01", "5"])),
        lambda: readings["trials"].reverse(),
        lambda: [t.update(can_wet_g=trial["can_wet_g"], can_dry_g=trial["can_dry_g"], can_g=trial["can_g"])
                 for t in readings["trials"][:2]],
        lambda: [t.update(mold_wet_soil_g=trial["mold_wet_soil_g"], can_wet_g=trial["can_wet_g"],
                          can_dry_g=trial["can_dry_g"], can_g=trial["can_g"]) for t in readings["trials"]],
    ])()


if __name__ == "__main__":
    sys.exit(main(sys.modules[__name__]))
