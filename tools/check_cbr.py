#!/usr/bin/env python3
"""A second way to the bearing ratio sheet's figures, for comparing with the program.

    tools/check_cbr.py READINGS.json ... [--ticks 13]     the sheet's cells and ratios
    tools/check_cbr.py --program build/bin/terravane-script [--random N] [--seed S] [READINGS.json ...]
                                                          compare with what the sheet shows

READINGS.json holds under "readings": condition, proving_ring_lb_per_div, mdd_g_cm3, water, density, swelling,
penetration_in and dial_div, as a technician would type them, and ticks, the molds whose correction is
chosen. Texts are rounded in decimals, and the fits are solved in fractions: no figure here has a rounding error of its
own, so that a difference of a digit is the program's. With just five penetrations the curve meets each reading, and a
reading half-way between two tenths of a percent may fall to either: random sheets have fewer or more.
"""

import datetime
import math
import sys
from fractions import Fraction

from checking import RuntimeFailure, as_text, divide, main, quoted, rounded, val

MOULDS = 3
DESCRIPTIONS = {6: "Overflow", 11: "Division by zero"}
FIELDS = {"ticks": "the molds whose correction is chosen: 13"}


class Sheet:
    """The cells of one test: rows and columns are counted as on the sheet."""

    def __init__(self, readings):
        self.readings, self.ticks = readings, readings.get("ticks", "")
        self.both = readings["condition"] == "both"
        self.soaked = readings["condition"] != "unsoaked"
        self.water = [""] * 7
        self.wet, self.dry = [""] * 7, [""] * 7
        self.result = {row: [""] * 4 for row in (1, 2, 3)}
        self.swelling, self.loads, self.shifts = [], [], {}
        self.message = None

    def cell(self, table, column, name):
        rows = self.readings[table]
        return str(rows[column - 1][name]) if column <= len(rows) else ""

    def calculate(self):
        try:
            for first in (1, 4):
                self.waters(first)
            for first in (1, 4):
                self.densities(first)
            if self.both:
                self.result[1][1], self.result[1][2] = self.dry[1], self.dry[4]
            if self.soaked:
                self.swell()
            self.stresses()
        except RuntimeFailure as failure:
            self.message = DESCRIPTIONS[failure.number]

    def waters(self, first):
        for c in range(first, first + 3):
            if not self.cell("water", c, "can_no").strip():
                return
            wet, dry, can = (val(self.cell("water", c, n)) for n in ("can_wet_g", "can_dry_g", "can_g"))
            self.water[c] = rounded(divide(wet - dry, dry - can) * 100, 2)

    def densities(self, first):
        for c in range(first, first + 3):
            if not self.cell("density", c, "blows").strip():
                return
            names = ("diameter_cm", "height_cm", "mold_and_soil_g", "mold_g")
            d, h, whole, mold = (val(self.cell("density", c, n)) for n in names)
            self.wet[c] = rounded(divide(whole - mold, math.pi * d * d / 4 * h), 2)
            self.dry[c] = rounded(divide(val(self.wet[c]), 1 + val(self.water[c]) / 100), 2)
            self.result[1][c - first + 1] = self.dry[c]

    def swell(self):
        rows = self.readings["swelling"]
        dates = [datetime.datetime.strptime(r["date"], "%d/%m/%Y") for r in rows]
        for r in range(1, len(rows)):
            hours = (dates[r] - dates[0]).days * 24 + math.floor(val(rows[r]["time_h"]) - val(rows[0]["time_h"]))
            line = [as_text(hours)]
            for m in range(MOULDS):
                height = val(self.cell("density", m + 1, "height_cm"))
                rise = rows[r]["dial_mm"][m] - rows[0]["dial_mm"][m]
                line.append(rounded(rise / height * 10, 2) if height else "")
            self.swelling.append(line)

    def stresses(self):
        k = val(as_text(self.readings["proving_ring_lb_per_div"]))
        for row in range(len(self.readings["penetration_in"])):
            line = []
            for mold in range(1, 4):
                dials = self.readings["dial_div"].get(f"mold_{mold}", [])
                if row >= len(dials) or not str(dials[row]).strip():
                    line += ["", ""]
                    continue
                load = rounded(k * val(dials[row]), 1)
                line += [load, rounded(val(load) / 3, 2)]
            self.loads.append(line)

    def points(self, mold):
        x = [val(p) for p in self.readings["penetration_in"]]
        return x, [val(line[2 * mold - 1]) for line in self.loads]

    def curves(self):
        """The ratios of all molds; the error's number where the command ends with one."""
        try:
            for mold in range(1, 4):
                self.ratio(mold, str(mold) in self.ticks)
        except RuntimeFailure as failure:
            return failure.number
        return None

    def ratio(self, mold, ticked):
        x, y = self.points(mold)
        c = fit(x, y, 1, 5)
        if ticked:
            self.shifts[mold] = zero_shift(c, x[-1])
        origin = self.shifts.get(mold, 0.0)
        for row, at, standard in ((2, 0.1, 1000), (3, 0.2, 1500)):
            stress = value(c, origin + at)
            if stress != 0:
                self.result[row][mold] = rounded(stress / standard * 100, 1)

    def design(self, share, mdd):
        """The value at the share's first two characters of the density; without a curve the error's number."""
        x = [val(t) for t in self.result[1][1:]]
        try:
            c = fit(x, [val(t) for t in self.result[3][1:]], 0, 2)
        except RuntimeFailure as failure:
            return failure.number
        return rounded(value(c, mdd * val(share[:2]) / 100), 1)


def fit(x, y, lowest, highest):
    """Least squares in fractions; coefficients from the power 0 on."""
    xs, ys = [Fraction(v) for v in x], [Fraction(v) for v in y]
    powers = range(lowest, highest + 1)
    matrix = [[sum(v ** (i + j) for v in xs) for j in powers] for i in powers]
    right = [sum(w * v**i for v, w in zip(xs, ys)) for i in powers]
    n = len(right)
    for p in range(n):
        if matrix[p][p] == 0:
            raise RuntimeFailure(6)  # the row and its right side are zero: 0/0
        for r in range(p + 1, n):
            factor = matrix[r][p] / matrix[p][p]
            matrix[r] = [a - factor * b for a, b in zip(matrix[r], matrix[p])]
            right[r] -= factor * right[p]
    solution = [Fraction(0)] * n
    for r in reversed(range(n)):
        rest = right[r] - sum(matrix[r][k] * solution[k] for k in range(r + 1, n))
        solution[r] = rest / matrix[r][r]
    return [Fraction(0)] * lowest + solution


def value(coefficients, x):
    return float(sum(c * Fraction(x) ** k for k, c in enumerate(coefficients)))


def zero_shift(c, last):
    """Where the tangent at the last place of rising slope below 0.2 in meets the axis."""
    before, best = 0.0, (0.0, 0.0, 0.0)
    for i in range(2, math.floor(last / 0.001) + 1):
        if not (i - 1) * 0.001 < 0.2:
            break
        a, b = (i - 1) * 0.001, (i + 1) * 0.001
        ya, yb = value(c, a), value(c, b)
        if ya < 0:
            ya, yb = 0.0, max(yb, 0.0)
        slope = (yb - ya) / (b - a)
        if slope > before:
            best = ((a + b) / 2, (ya + yb) / 2, slope)
        before = slope
    return max(best[0] - divide(best[1], best[2]), 0.0)


def show(name, readings):
    sheet = Sheet(readings)
    sheet.calculate()
    print(name)
    print("water", sheet.water[1:])
    print("wet", sheet.wet[1:])
    print("dry", sheet.dry[1:])
    for line in sheet.swelling:
        print("swelling", line)
    for line in sheet.loads:
        print("load, stress", line)
    print("message", sheet.message)
    print("curves", sheet.curves())
    print("zero shifts", sheet.shifts)
    for row in (1, 2, 3):
        print("result", row, sheet.result[row][1:])
    if sheet.readings.get("mdd_g_cm3"):
        print("design", sheet.design("95%", float(sheet.readings["mdd_g_cm3"])))


def typed(readings):
    """The script lines that type a sheet."""
    yield "click opt" + {"unsoaked": "Unsoak", "soaked": "Soak", "both": "Both"}[readings["condition"]]
    yield f"set txtK {quoted(str(readings['proving_ring_lb_per_div']))}"
    yield f"set txtMDD {quoted(str(readings.get('mdd_g_cm3') or ''))}"
    tables = (("water", "MSHWater", 1, ("can_no", "can_wet_g", "can_dry_g", "can_g")),
              ("density", "MSHCompaction", 2, ("blows", "diameter_cm", "height_cm", "mold_and_soil_g", "mold_g")))
    for table, grid, top, names in tables:
        for column, line in enumerate(readings[table], 1):
            for row, name in enumerate(names, top):
                yield f"type {grid} {row} {column} {quoted(str(line[name]))}"
    for row, line in enumerate(readings["swelling"], 3):
        yield f"put MSHSwell {row} 0 {line['date']}"
        yield f"put MSHSwell {row} 1 {line['time_h']}"
        for mold, dial in enumerate(line["dial_mm"]):
            yield f"put MSHSwell {row} {3 + 2 * mold} {dial}"
    for row, depth in enumerate(readings["penetration_in"]):
        yield f"type MSHPenetrate1 {row} 0 {depth}"
    for mold, column in ((1, 1), (2, 4), (3, 7)):
        for row, dial in enumerate(readings["dial_div"].get(f"mold_{mold}", [])):
            yield f"type MSHPenetrate1 {row} {column} {quoted(str(dial))}"


def random_readings(chance):
    """A sheet as it may come: most are sound, some lack a reading or have one that fails."""
    condition = chance.choice(["unsoaked", "soaked", "both"])
    blows = ["10/5", "25/5", "56/5"] * 2
    count = chance.choice([1, 2, 3, 6, 6, 6])
    water = [{"can_no": f"C{i}" if chance.random() > 0.03 else " ", "can_wet_g": round(chance.uniform(110, 140), 2),
              "can_dry_g": round(chance.uniform(90, 109), 2), "can_g": chance.choice([20, 20.13, 18.5, 20, 20])}
             for i in range(count)]
    if chance.random() < 0.03:
        water[0]["can_dry_g"] = water[0]["can_g"]
    density = [{"blows": blows[i], "diameter_cm": 15.24 if chance.random() > 0.02 else "", "height_cm": 11.64,
                "mold_and_soil_g": round(10800 + 250 * (i % 3) + chance.uniform(-80, 80), 1), "mold_g": 7000}
               for i in range(count)]
    start = datetime.date(2009, chance.randint(1, 12), chance.randint(1, 28))
    swelling = [{"date": (start + datetime.timedelta(days=d)).strftime("%d/%m/%Y"), "time_h": chance.randint(7, 18),
                 "dial_mm": [round(chance.uniform(0, 3), 2) for _ in range(3)]} for d in range(chance.randint(0, 5))]
    depths = [f"{0.025 * r:.3f}" for r in range(chance.choice([4, 7, 9, 9, 9, 13, 20]))]
    dials = {}
    for mold in range(1, chance.choice([2, 4, 4, 4])):
        limit, bend, start = chance.uniform(40, 300), chance.uniform(3, 15), chance.choice([0, 0, 0, 0.04])
        dials[f"mold_{mold}"] = [
            round(max(limit * (1 - math.exp(-bend * max(float(d) - start, 0))) + chance.uniform(-1, 1), 0), 1)
            for d in depths]
    return {"condition": condition, "proving_ring_lb_per_div": chance.choice([4.9958, 5, 12.3, 0]),
            "mdd_g_cm3": chance.choice(["", "1.95", "2.10"]), "water": water, "density": density,
            "swelling": swelling, "penetration_in": depths, "dial_div": dials, "ticks": chance.choice(["", "1", "123"])}


def worked(readings):
    """What the sheet shows after its two commands; without a figure to stand on the second is not pressed here."""
    sheet = Sheet(readings)
    sheet.calculate()
    out = {"message": sheet.message}
    if sheet.message is None:
        out["curves"] = sheet.curves()
    return out | {"water": sheet.water[1:], "dry": sheet.dry[1:],
                  "results": [sheet.result[row][1:] for row in (1, 2, 3)]}


def script_of(readings):
    return ["menu mnuCBR1", *typed(readings), "click cmdCal", "dump MSHWater", "dump MSHCompaction",
            *(f"check chkMold{mold} on" for mold in readings.get("ticks", "")), "click cmdLPen", "dump mshLPC"]


def shown(answers):
    found = {"message": None, "curves": None, "results": []}
    for answer in answers:
        if answer.get("title") == "Error Warning":
            found["message"] = answer["message"]
        if "error" in answer:
            found["curves"] = answer["error"]
        cells, row = answer.get("cells", [])[1:], answer.get("row")
        if answer.get("dump") == "mshLPC" and row:
            found["results"].append(cells)
        if answer.get("dump") == "MSHWater" and row == 5:
            found["water"] = cells
        if answer.get("dump") == "MSHCompaction" and row == 8:
            found["dry"] = cells
    return found


if __name__ == "__main__":
    sys.exit(main(sys.modules[__name__]))
