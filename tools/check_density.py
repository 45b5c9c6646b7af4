#!/usr/bin/env python3
"""A second way to the field density sheet's figures, for comparing with the program.

    tools/check_density.py READINGS.json ...              the sheet's cells
    tools/check_density.py --program build/bin/terravane-script [--random N] [--seed S] [READINGS.json ...]
                                                          compare with what the sheet shows
    tools/check_density.py --script READINGS.json ...     the script lines that type the sheet

READINGS.json holds under "readings": sand_in_cone, sand_density, holes, max_dry_density_g_cm3 and compaction ("Std" or
"Mod", the test that the density comes from), as a technician would type them; a column left out is null, a reading left
out may be missing. Quotients are fractions of the texts that the sheet shows, so that a figure here has no rounding
error but the one that the sheet has by its method; only plain differences, which the sheet shows with all their digits,
are those of binary numbers.
"""

import re
import sys
from fractions import Fraction

from checking import RuntimeFailure, divide, main, quoted, single

COLUMNS = range(1, 7)
PI = Fraction(3141592654, 10**9)
# The typed rows of each grid with their names, from row 1 on; "mdd" is filled by the choice of the compaction test.
GRIDS = {
    "MSHWsand": ("sand_in_cone", ("initial_g", "final_g"), 4),
    "MSHDsand": ("sand_density", ("mold_diameter_cm", "mold_height_cm", "mold_empty_g", "mold_with_sand_g"), 7),
    "MSHWsoil": ("holes", ("wet_soil_and_pan_g", "pan_g"), 3),
    "MSHVolume": ("holes", ("jar_initial_g", "jar_final_g"), 6),
    "MSHWater": ("holes", ("can_wet_g", "can_dry_g", "can_g"), 6),
    "MSHSummary": (None, (), 4),
}


def number(text):
    """The leading number of a text as typed, exactly."""
    found = re.match(r"\s*([+-]?(\d+\.?\d*|\.\d+))", text)
    return Fraction(found[1]) if found else Fraction(0)


def two_decimals(value):
    """Rounded half away from zero."""
    hundredths = abs(value) * 100
    whole = hundredths.numerator * 2 // hundredths.denominator
    whole = (whole + 1) // 2
    sign = "-" if value < 0 and whole else ""
    return f"{sign}{whole // 100}.{whole % 100:02d}"


def difference(*texts):
    """All fifteen digits of a difference of binary numbers."""
    first, *others = (float(number(text)) for text in texts)
    for other in others:
        first -= other
    shown = f"{first:.15g}"
    return "0" if shown == "-0" else shown


def posted(average):
    """A number in single precision with a place for its sign and no zero before its point."""
    short = single(float(average))
    shown = f"{abs(short):.7g}"
    shown = shown[1:] if shown.startswith("0.") else shown
    return ("-" if short < 0 else " ") + shown


class Sheet:
    """The cells of one test: cells[grid][row][column], counted as on the sheet."""

    def __init__(self, readings):
        self.cells = {}
        for grid, (table, names, rows) in GRIDS.items():
            self.cells[grid] = [["   " if row <= len(names) else ""] * 7 for row in range(rows + 1)]
            columns = readings[table] if table else []
            for column, typed in enumerate(columns, 1):
                for row, name in enumerate(names, 1):
                    if typed:
                        self.cells[grid][row][column] = str(typed.get(name, "   "))
        for column in COLUMNS:
            mdd = readings.get("max_dry_density_g_cm3")
            cell = self.cells["MSHSummary"][1]
            cell[column] = "   "
            if self.value("MSHWater", 1, column) and mdd is not None:
                cell[column] = str(mdd)
        self.error = self.posted = None

    def value(self, grid, row, column):
        return number(self.cells[grid][row][column])

    def put(self, grid, row, column, text):
        self.cells[grid][row][column] = text

    def minus(self, grid, row, column, *rows):
        self.put(grid, row, column, difference(*(self.cells[grid][each][column] for each in rows)))

    def average(self, grid, row, values):
        if values:
            shown = two_decimals(Fraction(sum(values.values())) / max(values))
            for column in COLUMNS:
                self.put(grid, row, column, shown)

    def calculate(self):
        try:
            self.sand()
            self.holes()
            self.compaction()
        except RuntimeFailure as failure:
            self.error = failure.number

    def with_readings(self, grid):
        return [column for column in COLUMNS if self.value(grid, 1, column) != 0]

    def sand(self):
        cone = {}
        for column in self.with_readings("MSHWsand"):
            self.minus("MSHWsand", 3, column, 1, 2)
            cone[column] = self.value("MSHWsand", 3, column)
        self.average("MSHWsand", 4, cone)
        density = {}
        for column in self.with_readings("MSHDsand"):
            across, high = self.value("MSHDsand", 1, column), self.value("MSHDsand", 2, column)
            self.minus("MSHDsand", 5, column, 4, 3)
            self.put("MSHDsand", 6, column, two_decimals(PI * across**2 / 4 * high))
            density[column] = divide(self.value("MSHDsand", 5, column), self.value("MSHDsand", 6, column))
        self.average("MSHDsand", 7, density)

    def holes(self):
        for column in self.with_readings("MSHWsoil"):
            self.minus("MSHWsoil", 3, column, 1, 2)
        for column in self.with_readings("MSHVolume"):
            self.put("MSHVolume", 3, column, self.cells["MSHWsand"][4][column])
            self.minus("MSHVolume", 4, column, 1, 2, 3)
            self.put("MSHVolume", 5, column, self.cells["MSHDsand"][7][column])
            size = divide(self.value("MSHVolume", 4, column), self.value("MSHVolume", 5, column))
            self.put("MSHVolume", 6, column, two_decimals(size))
        for column in self.with_readings("MSHWater"):
            wet, dry = self.value("MSHWater", 1, column), self.value("MSHWater", 2, column)
            self.put("MSHWater", 4, column, two_decimals(wet - dry))
            self.minus("MSHWater", 5, column, 2, 3)
            water = divide(self.value("MSHWater", 4, column), self.value("MSHWater", 5, column)) * 100
            self.put("MSHWater", 6, column, two_decimals(water))
            density = divide(self.value("MSHWsoil", 3, column), self.value("MSHVolume", 6, column))
            self.put("MSHSummary", 2, column, two_decimals(density))
            dry = divide(self.value("MSHSummary", 2, column), 1 + self.value("MSHWater", 6, column) / 100)
            self.put("MSHSummary", 3, column, two_decimals(dry))

    def compaction(self):
        shares = []
        for column in COLUMNS:
            mdd = self.value("MSHSummary", 1, column)
            if mdd == 0:
                break
            self.put("MSHSummary", 4, column, two_decimals(self.value("MSHSummary", 3, column) / mdd * 100))
            shares.append(self.value("MSHSummary", 4, column))
        self.posted = posted(number(two_decimals(divide(Fraction(sum(shares)), len(shares)))))


def show(name, readings):
    sheet = Sheet(readings)
    sheet.calculate()
    print(name)
    for grid, rows in sheet.cells.items():
        for row, cells in enumerate(rows[1:], 1):
            print(grid, row, cells[1:])
    print("error", sheet.error)
    print("posted", sheet.posted)


def typed(readings):
    """The script lines that type a sheet."""
    for grid, (table, names, _) in GRIDS.items():
        for column, line in enumerate(readings[table] if table else [], 1):
            for row, name in enumerate(names, 1):
                if line and name in line:
                    yield f"type {grid} {row} {column} {quoted(str(line[name]))}"


def chosen(chance, likely, *others):
    """Mostly the likely one."""
    return likely if chance.random() < 0.97 else chance.choice(others)


def columns_of(chance, make):
    """Columns side by side; sometimes one is left out."""
    columns = [make() for _ in range(chance.choice([1, 2, 3, 3, 6]))]
    if chance.random() < 0.2:
        columns[chance.randrange(len(columns))] = None
    return columns


def random_readings(chance):
    """A sheet as it may come: most are sound, some lack a reading or have one that fails."""
    places = chance.choice([0, 1, 1, 2])

    def mass(low, high):
        return round(chance.uniform(low, high), places) if places else chance.randint(low, high)

    def cone():
        return {"initial_g": chosen(chance, mass(6800, 7300), "", "x", -5), "final_g": mass(5100, 5600)}

    def mold():
        return {"mold_diameter_cm": chosen(chance, 15.24, "", 10), "mold_height_cm": chosen(chance, 11.64, "", 0),
                "mold_empty_g": 7000, "mold_with_sand_g": chosen(chance, mass(9900, 10100), 7000, "")}

    def hole():
        dry = round(chance.uniform(95, 130), 2)
        return {"wet_soil_and_pan_g": chosen(chance, mass(2800, 3600), "", -1), "pan_g": mass(200, 300),
                "jar_initial_g": chosen(chance, mass(6800, 7300), "", "letters"), "jar_final_g": mass(2900, 3300),
                "can_wet_g": chosen(chance, round(dry + chance.uniform(3, 12), 2), "", 0), "can_dry_g": dry,
                "can_g": chosen(chance, 25.4, dry, "")}

    holes = columns_of(chance, hole)
    if chance.random() < 0.05:
        for name in ("jar_initial_g", "jar_final_g"):
            if holes[-1]:
                del holes[-1][name]
    return {"sand_in_cone": columns_of(chance, cone), "sand_density": columns_of(chance, mold), "holes": holes,
            "max_dry_density_g_cm3": chosen(chance, round(chance.uniform(1.6, 2.3), 2), "", 0, "1.9 g/cm3", -2),
            "compaction": chance.choice(["Std", "Mod"])}


def worked(readings):
    sheet = Sheet(readings)
    sheet.calculate()
    cells = {f"{grid} {row}": cells[1:] for grid, rows in sheet.cells.items() for row, cells in enumerate(rows) if row}
    return cells | {"error": sheet.error, "posted": sheet.posted or "   "}


def script_of(readings):
    test = readings.get("compaction", "Std")
    stored = f"UPDATE {test.upper()}SOIL Set {test.lower()}_mdd ='{readings.get('max_dry_density_g_cm3', '')}'"
    return [f"sql {quoted(stored)}", "menu mnuDen1", *typed(readings), f"click opt{test}", "click cmdCal",
            *(f"dump {grid}" for grid in GRIDS), "sql \"SELECT * from SUMMARY'\""]


def shown(answers):
    found = {"error": None}
    for answer in answers:
        if answer.get("line") == "click cmdCal":
            found["error"] = answer["error"]
        if answer.get("row") and "dump" in answer:
            found[f"{answer['dump']} {answer['row']}"] = answer["cells"][1:]
        if answer.get("row") == 1 and "columns" in answer:
            found["posted"] = dict(zip(answer["columns"], answer["values"]))["sum_compaction"]
    return found


if __name__ == "__main__":
    sys.exit(main(sys.modules[__name__]))
