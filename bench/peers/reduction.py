"""The tests' methods as a user of numpy would write them: readings in, printed figures and curve points out.

Each stage is rounded as it is printed and read back by the next one, half away from zero. Masses in g, lengths in cm,
densities in g/cm³, water contents and percentages in percent, penetrations in inches, stresses in lb/in².
"""

import csv
from datetime import datetime

import numpy as np

STEP = 0.01  # percent of water between two rows of the spline's table
WATER_DENSITY = [  # g/cm³ at 10 to 39 °C
    0.9997, 0.9996, 0.9995, 0.9994, 0.9993, 0.9991, 0.9990, 0.9988, 0.9986, 0.9984,
    0.9982, 0.9980, 0.9978, 0.9976, 0.9973, 0.9971, 0.9968, 0.9965, 0.9963, 0.9960,
    0.9957, 0.9954, 0.9951, 0.9947, 0.9944, 0.9941, 0.9898, 0.9934, 0.9930, 0.9926,
]  # fmt: skip
OPENINGS = {
    "2 in": 50, "1 1/2 in": 38.1, "1 in": 25, "3/4 in": 19, "1/2 in": 12.5, "3/8 in": 9.51, "#4": 4.75, "#8": 2.6,
    "#10": 2, "#16": 1.19, "#20": 0.85, "#30": 0.59, "#40": 0.425, "#50": 0.3, "#60": 0.25, "#80": 0.18,
    "#100": 0.15, "#140": 0.106, "#200": 0.075, "Pan": 0,
}  # fmt: skip


def rounded(value, places):
    value = np.asarray(value, float)
    return np.sign(value) * np.floor(np.abs(value) * 10**places + 0.5 + 1e-9) / 10**places


class Readings:
    def __init__(self, path):
        self.cells = {}
        with open(path, encoding="utf-8", newline="") as lines:
            for test, material, name, row, column, text in csv.reader(lines, delimiter="\t", quoting=csv.QUOTE_NONE):
                self.cells.setdefault((test, material, name), {})[row and int(row), column and int(column)] = text

    def tests(self):
        return {key[:2] for key in self.cells}

    def text(self, test, material, name, otherwise=""):
        return self.cells.get((test, material, name), {}).get(("", ""), otherwise)

    def number(self, test, material, name):
        return float(self.text(test, material, name) or 0)

    def texts(self, test, material, name, rows, columns, first=1):
        typed = self.cells.get((test, material, name), {})
        return [[typed.get((first + row, column + 1), "") for column in range(columns)] for row in range(rows)]

    def numbers(self, *place, **more):
        """The grid's cells; one that is empty is not a number."""
        return np.array([[float(t) if t else np.nan for t in row] for row in self.texts(*place, **more)])


def natural_spline(x, y):
    """The second derivatives at the points, by seven decimals."""
    h, n = np.diff(x), len(x)
    system, right = np.eye(n), np.zeros(n)
    for i in range(1, n - 1):
        system[i, i - 1 : i + 2] = h[i - 1], 2 * (h[i - 1] + h[i]), h[i]
        right[i] = 6 * ((y[i + 1] - y[i]) / h[i] - (y[i] - y[i - 1]) / h[i - 1])
    return rounded(np.linalg.solve(system, right), 7)


def spline_table(x, y):
    """Rows of a hundredth of a percent of water, three and seven decimals; an interval's last row lies past its end."""
    moments, at, k = natural_spline(x, y), [], []
    for i in range(len(x) - 1):
        count = int(abs(x[i + 1] - x[i]) / STEP)
        begin = x[i] + STEP * np.sign(x[i + 1] - x[i]) * (np.arange(count + 1) + (i > 0))
        at.append(np.append(begin, x[i + 1]) if i == 0 else begin)
        k.append(np.full(len(at[-1]), i))
    at, k = np.concatenate(at), np.concatenate(k)
    h, a, b = x[k + 1] - x[k], x[k + 1] - at, at - x[k]
    value = (a**3 / h - h * a) * moments[k] / 6 + (b**3 / h - h * b) * moments[k + 1] / 6 + (a * y[k] + b * y[k + 1]) / h
    return rounded(at, 3), rounded(value, 7)


def water_contents(wet, dry, can):
    water, soil = rounded(wet - dry, 2), rounded(dry - can, 2)
    return water, soil, rounded(water / soil * 100, 2)


def atterberg(readings, material):
    liquid = readings.numbers("att", material, "MSHLL", 4, 5)
    plastic = readings.numbers("att", material, "MSHPL", 3, 5)
    liquid = np.vstack([liquid, water_contents(*liquid[1:4])])
    plastic = np.vstack([plastic, water_contents(*plastic)])
    typed = ~np.isnan(liquid[0])
    slope, intercept = np.polyfit(np.log10(liquid[0, typed]), liquid[6, typed], 1)
    limit = float(rounded(intercept + slope * np.log10(25), 2))
    mean = float(rounded(np.nanmean(plastic[5]), 2))
    return {
        "liquid": liquid, "plastic": plastic, "blows": liquid[0, typed], "water": liquid[6, typed],
        "slope": slope, "intercept": intercept,
        "LL": limit, "PL": mean, "PI": round(limit - mean, 2), "FI": float(rounded(-slope, 2)),
    }  # fmt: skip


def sieve(readings, material, limits):
    names = [row[0] for row in readings.texts("sie", material, "lstSieve", 10, 1) if row[0]]
    typed = readings.cells[("sie", material, "MSHSieve")]
    empty, full = (np.array([float(typed[row + 1, column]) for row in range(len(names))]) for column in (2, 3))
    original, washed = (readings.number("sie", material, name) for name in ("txtGsoil", "txtDwp"))
    lost = float(rounded(original - washed, 2)) if washed else 0.0
    total = full.sum() - empty.sum() + lost
    retained = rounded(full - empty + np.where(np.array(names) == "Pan", lost, 0), 2)
    cumulative = rounded(np.cumsum(retained), 2)
    share = rounded(cumulative / total * 100, 1)
    passing = rounded(100 - share, 1)
    sizes = np.array([OPENINGS[name] for name in names])
    points = sizes > 0
    of = dict(zip(names, passing))
    result = {
        "names": names, "sizes": sizes, "empty": empty, "full": full, "retained": retained, "cumulative": cumulative,
        "share": share, "passing": passing, "original": original, "washed": washed, "lost": lost,
        "error": float(rounded(abs(total - original) / original * 100, 2)),
        "x": sizes[points], "y": passing[points], "LL": limits["LL"], "PL": limits["PL"],
    }  # fmt: skip
    for level in (60, 30, 10):
        result[f"D{level}"] = diameter(sizes[points], passing[points], level)
    d60, d30, d10 = result["D60"], result["D30"], result["D10"]
    result["Cu"] = float(rounded(d60 / d10, 2)) if d10 else np.nan
    result["Cc"] = float(rounded(d30 * d30 / (d60 * d10), 2)) if d10 else np.nan
    p4, p200 = of.get("#4", 100.0), of["#200"]
    result.update(gravel=float(rounded(100 - p4, 2)), sand=float(rounded(p4 - p200, 2)), fines=float(p200))
    result["USCS"], result["name"] = uscs(result)
    result["AASHTO"], result["typical"] = aashto(of, limits)
    return result


def diameter(sizes, passing, level):
    if passing[-1] > level:
        return 0.0
    row = int(np.argmax(passing <= level))
    return sizes[row - 1] - (sizes[row - 1] - sizes[row]) * (passing[row - 1] - level) / (passing[row - 1] - passing[row])


def uscs(of):
    index, fines, sand, gravel = of["LL"] - of["PL"], of["fines"], of["sand"], of["gravel"]
    clayey = index >= 4 and index >= 0.73 * (of["LL"] - 20)
    if fines >= 50:
        letter = ("CL-ML" if index <= 7 else "C") if clayey else "M"
        symbol = letter if "-" in letter else letter + ("H" if of["LL"] >= 50 else "L")
        return symbol, {"CL-ML": "Silty clay", "ML": "Silt", "MH": "Elastic silt", "CL": "Lean clay", "CH": "Fat clay"}[symbol]
    kind = "S" if (100 - fines) / 2 <= sand else "G"
    well = of["Cu"] >= (6 if kind == "S" else 4) and 1 <= of["Cc"] <= 3
    grade = kind + ("W" if well else "P")
    fine = kind + ("C" if clayey else "M")
    if fines > 12:
        symbol = f"{kind}C-{kind}M" if clayey and index <= 7 else fine
    else:
        symbol = grade if fines < 5 else f"{grade}-{fine}"
    noun, other = ("sand", "gravel") if kind == "S" else ("gravel", "sand")
    front = "" if fines > 12 else ("Well-graded " if well else "Poorly-graded ")
    front += {"C": "Clayey ", "M": "Silty "}[fine[1]] if fines > 12 else ""
    behind = [] if fines < 5 or fines > 12 else ["clay" if clayey else "silt"]
    behind += [other] if (gravel if kind == "S" else sand) >= 15 else []
    return symbol, front + noun + (" with " + " and ".join(behind) if behind else "")


def aashto(of, limits):
    p10, p40, p200 = of["#10"], of["#40"], of["#200"]
    liquid, index = limits["LL"], limits["PI"]
    if p200 <= 35:
        first = p10 <= 50 and p40 <= 30 and p200 <= 15
        if index <= 6 and p40 <= 50 and p200 <= 25:
            group = "A-1-a" if first and abs(p40 - 50) > abs(p40 - 30) else "A-1-b"
        elif index == 0 and p40 >= 51 and p200 <= 10:
            group = "A-3"
        else:
            group = "A-2-" + fine_group(liquid, index)
    else:
        group = "A-" + fine_group(liquid, index)
        group += "" if group != "A-7" else "-5" if liquid - 30 >= index else "-6"
    a, b, c, d = (np.rint(v) for v in (p200 - 35, p200 - 15, liquid - 40, index - 10))
    whole = np.trunc(0.01 * b * d if group in ("A-2-6", "A-2-7") else 0.005 * a * c + 0.2 * a + 0.01 * b * d)
    names = {
        "A-1-a": "Stone or gravel fragments", "A-1-b": "Gravel and sand mixtures", "A-3": "Fine sand that is non-plastic",
        "A-4": "Silty soils", "A-5": "Silty soils", "A-6": "Clayey soils", "A-7-5": "Clayey soils",
        "A-7-6": "Clayey soils",
    }  # fmt: skip
    return f"{group}({int(max(whole, 0)) if index else 0})", names.get(group, "Silty gravel and sand")


def fine_group(liquid, index):
    return {(True, True): "4", (True, False): "5", (False, True): "6", (False, False): "7"}[index <= 10, liquid <= 40]


def specific(readings, material):
    mass, celsius = readings.numbers("spc", material, "MSHCalibration", 7, 2).T
    typed = ~np.isnan(mass)
    curve, equation, explained = calibration(celsius[typed], mass[typed])
    trials = readings.numbers("spc", material, "MSHSpecific", 6, 3)
    cans = readings.texts("spc", material, "MSHSpecific", 1, 3, first=4)[0]
    filled = rounded(curve(trials[0]), 2)
    dry = rounded(trials[4] - trials[5], 2)
    factor = rounded(np.array([WATER_DENSITY[int(t) - 10] for t in trials[0]]) / 0.9982, 4)
    gravity = rounded(factor * dry / (filled + dry - trials[2]), 2)
    warm = celsius[typed]
    points = np.arange(warm.min(), warm.max() + 1e-9, 0.1)
    return {
        "mass": mass, "celsius": celsius, "equation": equation, "explained": explained, "x": points, "y": curve(points),
        "trials": trials, "cans": cans, "filled": filled, "dry": dry, "factor": factor, "gravity": gravity,
        "Gs": float(rounded(gravity.mean(), 2)),
    }  # fmt: skip


def calibration(x, y):
    """The best of an exponential, a line and a parabola."""
    b, a = np.polyfit(x, np.log(y), 1)
    line, parabola = np.polyfit(x, y, 1), np.polyfit(x, y, 2)
    models = [
        (lambda t: np.exp(a) * np.exp(b * t), f"y = {np.exp(a):.2f}e^({b:.6f}x)"),
        (lambda t: np.polyval(line, t), f"y = {line[1]:.2f} + ({line[0]:.6f}x)"),
        (lambda t: np.polyval(parabola, t), f"y = {parabola[2]:.2f} + ({parabola[1]:.6f}x) + ({parabola[0]:.6f}x^2)"),
    ]
    total = np.sum((y - y.mean()) ** 2)
    explained = [1 - np.sum((y - model(x)) ** 2) / total for model, _ in models]
    best = int(np.argmax(explained))
    return *models[best], explained[best]


def compaction(readings, test, material):
    cans = readings.texts(test, material, "MSHWt", 1, 6)[0]
    weighed = rounded(readings.numbers(test, material, "MSHWt", 3, 6, first=2), 2)  # as the cells take them
    molds = readings.numbers(test, material, "MSHDensity", 3, 6, first=0)
    diameter_, height = (readings.number(test, material, name) for name in ("txtDia", "txtHeight"))
    water, soil, content = water_contents(*weighed)
    wet = rounded(molds[1] - molds[2], 2)
    wet_density = rounded(wet / (height * np.pi * diameter_**2 / 4), 2)
    dry_density = rounded(wet_density / (1 + content / 100), 2)
    typed = ~np.isnan(molds[2])
    x, y = content[typed], dry_density[typed]
    curve = spline_table(x, y)
    top = len(curve[1]) - 1 - int(np.argmax(curve[1][::-1]))
    return {
        "cans": cans, "weighed": weighed, "molds": molds, "water": water, "soil": soil, "content": content, "wet": wet,
        "wet_density": wet_density, "dry_density": dry_density, "points": (x, y), "curve": curve,
        "OMC": float(rounded(curve[0][top], 1)), "MDD": float(rounded(curve[1][top], 2)),
        "air": air_void_line(x, y, readings.number(test, material, "txtGs")),
    }  # fmt: skip


def air_void_line(x, y, gravity):
    if not gravity:
        return np.array([]), np.array([])
    lowest = y.min() - 0.01
    step = float(rounded((y.max() - lowest) / 8, 2)) % 1
    high, low = lowest + 13 * step, lowest + step
    density = high - (high - low) * np.arange(1, int((high - low) / 0.0001) + 1) / 1000
    density = density[density > 0.5]
    return 100 / density - 100 / gravity, density


def density(readings, material, maximum):
    cone = readings.numbers("den", material, "MSHWsand", 2, 6)
    sand = readings.numbers("den", material, "MSHDsand", 4, 6)
    soil = readings.numbers("den", material, "MSHWsoil", 2, 6)
    water = readings.numbers("den", material, "MSHWater", 3, 6)
    hole = readings.numbers("den", material, "MSHVolume", 2, 6)
    in_cone = cone[0] - cone[1]
    mean_cone = float(rounded(np.nanmean(in_cone), 2))
    filled, volume = sand[3] - sand[2], rounded(3.141592654 * sand[0] ** 2 / 4 * sand[1], 2)
    sand_density = float(rounded(np.nanmean(filled / volume), 2))
    wet = soil[0] - soil[1]
    in_hole = hole[0] - hole[1] - mean_cone
    hole_volume = rounded(in_hole / sand_density, 2)
    lost, dry, content = water_contents(*water)
    wet_density = rounded(wet / hole_volume, 2)
    dry_density = rounded(wet_density / (1 + content / 100), 2)
    percent = rounded(dry_density / maximum * 100, 2)
    return {
        "cone": cone, "in_cone": in_cone, "mean_cone": mean_cone, "sand": sand, "filled": filled, "volume": volume,
        "sand_density": sand_density, "soil": soil, "wet": wet, "hole": hole, "in_hole": in_hole,
        "hole_volume": hole_volume, "water": water, "lost": lost, "dry": dry, "content": content, "maximum": maximum,
        "wet_density": wet_density, "dry_density": dry_density, "percent": percent,
        "compaction": float(rounded(np.nanmean(percent), 2)),
    }  # fmt: skip


def bearing_ratio(readings, material, reference):
    cans = readings.texts("cbr", material, "MSHWater", 1, 6)[0]
    water = readings.numbers("cbr", material, "MSHWater", 3, 6, first=2)
    blows = readings.texts("cbr", material, "MSHCompaction", 1, 6, first=2)[0]
    mold = readings.numbers("cbr", material, "MSHCompaction", 4, 6, first=3)
    content = rounded((water[0] - water[1]) / (water[1] - water[2]) * 100, 2)
    wet_density = rounded((mold[2] - mold[3]) / (np.pi * mold[0] ** 2 / 4 * mold[1]), 2)
    dry_density = rounded(wet_density / (1 + content / 100), 2)
    depth = readings.cells[("cbr", material, "MSHPenetrate1")]
    rows = max(row for row, _ in depth) + 1
    depths = np.array([float(depth[row, 0]) for row in range(rows)])
    dials = np.array([[float(depth[row, column]) for row in range(rows)] for column in (1, 4, 7)])
    loads = rounded(readings.number("cbr", material, "txtK") * dials, 1)
    stresses = rounded(loads / 3, 2)
    powers = depths[:, None] ** np.arange(1, 6)
    fits = [np.linalg.lstsq(powers, stress, rcond=None)[0] for stress in stresses]
    at = np.arange(2, int(depths[-1] / 0.001) + 1) * 0.001
    curves = [(at[:, None] ** np.arange(1, 6)) @ fit for fit in fits]
    ratio = {
        depth: np.array([rounded(depth ** np.arange(1, 6) @ fit / standard * 100, 1) for fit in fits])
        for depth, standard in ((0.1, 1000), (0.2, 1500))
    }
    after = dry_density[3:]
    x = np.arange(after[0], after[2] + 1e-9, 0.001)
    parabolas = {depth: np.polyfit(after, values, 2) for depth, values in ratio.items()}
    share = 0.95 * reference["MDD"]
    return {
        "cans": cans, "water": water, "content": content, "blows": blows, "mold": mold, "wet_density": wet_density,
        "dry_density": dry_density, "swelling": swelling(readings, material, mold[1]), "depths": depths, "dials": dials,
        "loads": loads, "stresses": stresses, "at": at, "curves": curves, "ratio": ratio, "after": after, "x": x,
        "parabolas": {depth: np.polyval(of, x) for depth, of in parabolas.items()}, "share": share,
        "OMC": reference["OMC"], "MDD": reference["MDD"], "CBR": float(rounded(np.polyval(parabolas[0.2], share), 1)),
    }  # fmt: skip


def swelling(readings, material, heights):
    """Date, hour, elapsed hours, then millimetres and percent of each mold."""
    cells, lines = readings.cells[("cbr", material, "MSHSwell")], []
    dates = [datetime.strptime(cells[row, 0], "%d/%m/%Y") for row in range(3, 7)]
    for i, row in enumerate(range(3, 7)):
        hours = (dates[i] - dates[0]).days * 24 + int(float(cells[row, 1]) - float(cells[3, 1]))
        line = [cells[row, 0], cells[row, 1], str(hours)]
        for mold, column in enumerate((3, 5, 7)):
            rise = (float(cells[row, column]) - float(cells[3, column])) / heights[mold] * 10
            line += [cells[row, column], f"{rounded(rise, 2):.2f}"]
        lines.append(line)
    return lines


def reduce_all(path):
    """The readings and the results of every test that has some, by test and material."""
    readings = Readings(path)
    results = {}
    for material in ("soil", "crush"):
        tests = {test for test, of in readings.tests() if of == material}
        add = lambda test, result: results.__setitem__((test, material), result)  # noqa: E731
        add("att", atterberg(readings, material))
        add("sie", sieve(readings, material, results["att", material]))
        add("spc", specific(readings, material))
        for test in ("std", "mod"):
            add(test, compaction(readings, test, material))
        chosen = lambda test: results["std" if readings.text(test, material, "optStd") else "mod", material]  # noqa: E731
        if "den" in tests:
            add("den", density(readings, material, chosen("den")["MDD"]))
        add("cbr", bearing_ratio(readings, material, chosen("cbr")))
    return readings, results


def summary(results, material):
    """What the overall results tell, in their order; a test without readings is empty."""
    of = lambda test, key: results.get((test, material), {}).get(key, "")  # noqa: E731
    return {
        "LL": of("att", "LL"), "PL": of("att", "PL"), "PI": of("att", "PI"), "FI": of("att", "FI"),
        "gravel": of("sie", "gravel"), "sand": of("sie", "sand"), "fines": of("sie", "fines"),
        "USCS": of("sie", "USCS"), "AASHTO": of("sie", "AASHTO"), "Gs": of("spc", "Gs"),
        "OMC std": of("std", "OMC"), "MDD std": of("std", "MDD"), "OMC mod": of("mod", "OMC"),
        "MDD mod": of("mod", "MDD"), "CBR": of("cbr", "CBR"), "compaction": of("den", "compaction"),
        "D60": round(of("sie", "D60"), 3), "curve std": len(of("std", "curve")[0]),
        "curve mod": len(of("mod", "curve")[0]),
    }  # fmt: skip
