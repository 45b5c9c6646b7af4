#!/usr/bin/env python3
"""A second method for the sieve sheet: the reduction and both classifications worked step by step, beside the program.

    tools/check_sieve.py READINGS.json ...                print every cell, the diameters and the classes
    tools/check_sieve.py --program build/bin/terravane-script [--random N] [--seed S] [READINGS.json ...]
                                                          compare with what the sheet shows

READINGS.json holds "readings": method ("dry" or "wet"), dry_mass_original_g, dry_mass_after_washing_g,
mass_lost_by_washing_g, liquid_limit_pct, plastic_limit_pct and a stack of sieve, mass_sieve_g,
mass_sieve_and_soil_g, coarse first. Written from the method of the test and knowing nothing of the program's own
code: texts in cells, every stage rounded through decimals, one literal line a step.
"""

import sys

from checking import RuntimeFailure, as_text, divide, main, quoted, rounded, second_derivatives, single, val

OPENINGS = {"2 in": "50.0", "1 1/2 in": "38.1", "1 in": "25.0", "3/4 in": "19.0", "1/2 in": "12.5", "3/8 in": "9.51",
            "#4": "4.75", "#8": "2.60", "#10": "2.00", "#16": "1.19", "#20": "0.85", "#30": "0.59", "#40": "0.425",
            "#50": "0.30", "#60": "0.250", "#80": "0.180", "#100": "0.150", "#140": "0.106", "#200": "0.075",
            "Pan": "  "}
LEVELS = (60, 30, 10)
NUMBER, OPENING, EMPTY, BOTH, RETAINED, CUMULATIVE, PERCENT, PASSING = range(8)
RESULTS = ("txtErr", "txtP4", "txtP10", "txtP40", "txtP200", "txtD60", "txtD30", "txtD10", "txtCu", "txtCc",
           "txtSuscs", "txtNuscs", "txtSaash", "txtMtype")


def to_integer(number):
    """16 bits, halves to even."""
    whole = round(number)
    if not -32768 <= whole <= 32767:
        raise RuntimeFailure(6)
    return whole


class Sheet:
    """The texts of the sheet and what its three commands make of them."""

    def __init__(self, readings):
        self.box = {name: "" for name in RESULTS}
        self.gsoil = as_text(readings["dry_mass_original_g"])
        self.dwp, self.wl = as_text(readings.get("dry_mass_after_washing_g")), ""
        if readings["method"] == "wet":
            self.wl = as_text(readings.get("mass_lost_by_washing_g")) or rounded(val(self.gsoil) - val(self.dwp), 2)
        self.ll, self.pl = as_text(readings.get("liquid_limit_pct")), as_text(readings.get("plastic_limit_pct"))
        self.smooth = readings.get("smooth", False)
        self.grid = [[""] * 8 for _ in range(10)] + [["   "] * 4 + [""] * 4]  # row 10 of a new project holds blanks
        for row, sieve in enumerate(readings["stack"], 1):
            self.grid[row] = ["     " + sieve["sieve"], OPENINGS[sieve["sieve"]], as_text(sieve["mass_sieve_g"]),
                              as_text(sieve["mass_sieve_and_soil_g"]), "", "", "", ""]
        self.d = {level: "" for level in LEVELS}

    def calculate(self):
        s3 = s2 = 0.0
        for row in self.grid[1:]:
            s3 = single(s3 + val(row[BOTH]))
            s2 = single(s2 + val(row[EMPTY]))
        total = single(s3 - s2 + val(self.wl))
        loss = abs(divide(total - val(self.gsoil), val(self.gsoil)) * 100)
        self.box["txtErr"] = rounded(loss, 2) + "%"
        c = 0.0
        for row in self.grid[1:]:
            name = row[NUMBER].strip()
            if not name:
                continue
            retained = val(row[BOTH]) - val(row[EMPTY])
            if name == "Pan":
                retained += val(self.wl)
            row[RETAINED] = rounded(retained, 2)
            c = single(c + val(row[RETAINED]))
            row[CUMULATIVE] = rounded(c, 2)
            row[PERCENT] = rounded(divide(val(row[CUMULATIVE]), total) * 100, 1)
            row[PASSING] = rounded(100 - val(row[PERCENT]), 1)
        for row in self.grid[1:]:
            box = {"#4": "txtP4", "#10": "txtP10", "#40": "txtP40", "#200": "txtP200"}.get(row[NUMBER].strip())
            if box:
                self.box[box] = row[PASSING]

    def plot(self):
        n = 0
        while n < 10 and val(self.grid[n + 1][OPENING]) != 0:
            n += 1
        x = [None] + [val(row[OPENING]) for row in self.grid[1:n + 1]]
        y = [None] + [val(row[PASSING]) for row in self.grid[1:n + 1]]
        self.read_spline(x, y, n) if self.smooth else self.read_polygon()
        for level in LEVELS:
            text = self.d[level]
            self.box[f"txtD{level}"] = f"  D{level} = " + (rounded(float(text), 3) if text.strip() else text)
        d60, d30, d10 = (val(self.d[level]) for level in LEVELS)
        self.box["txtCu"] = " Cu = " + (rounded(divide(d60, d10), 2) if d10 else "")
        self.box["txtCc"] = " Cc = " + (rounded(divide(d30**2, d60 * d10), 2) if d60 and d10 else "")

    def read_polygon(self):
        head = ["", "", "", "", "", "", "", ""]
        rows = [head] + self.grid[1:]
        count = sum(1 for row in self.grid[1:] if row[OPENING].strip())
        for level in LEVELS:
            for r in range(1, 11):
                if val(rows[r][PASSING]) <= level and val(rows[count][PASSING]) <= level:
                    d0, d1 = val(rows[r - 1][OPENING]), val(rows[r][OPENING])
                    p0, p1 = val(rows[r - 1][PASSING]), val(rows[r][PASSING])
                    self.d[level] = f"{d0 - divide((d0 - d1) * (p0 - level), p0 - p1):.15g}"
                    break

    def read_spline(self, x, y, n):
        if n < 2:
            raise RuntimeFailure(9)
        m = second_derivatives(list(zip(x[1:], y[1:])))

        def s(k, at):
            h, a, b = x[k + 1] - x[k], at - x[k], x[k + 1] - at
            return (m[k] * b * (b * b / h - h) / 6 + m[k + 1] * a * (a * a / h - h) / 6
                    + y[k] * b / h + y[k + 1] * a / h)

        table, at = [("", "")], x[1]
        for k in range(1, n):
            j = 1
            while j <= (x[k] - x[k + 1]) / 0.01:
                if not (k == 1 and j == 1):
                    at += 0.01 if x[k] < x[k + 1] else -0.01
                table.append((rounded(at, 3), rounded(s(k, at), 7)))
                j += 1
            at = x[k + 1]
            if k == 1:
                table.append((rounded(at, 3), rounded(s(k, at), 7)))
        for level in LEVELS:
            for r in range(1, len(table)):
                if val(table[r][1]) < level:
                    self.d[level] = table[r - 1][0]
                    break

    def classify(self):
        if not self.ll.strip() or not self.pl.strip():
            return
        p4, p10, p40, p200 = (val(self.box[name]) for name in ("txtP4", "txtP10", "txtP40", "txtP200"))
        ll, pi = val(self.ll), val(self.ll) - val(self.pl)
        self.unified(p4, p200, ll, pi)
        self.aashto(p10, p40, p200, ll, pi)

    def unified(self, p4, p200, ll, pi):
        clayey = pi >= 4 and pi >= (ll - 20) * 0.73
        gravel, sand = 100 - p4, p4 - p200

        def fines(kind):
            if kind in "SG":
                if not clayey:
                    return kind + "M"
                return kind + "C" if p200 <= 12 or pi > 7 else f"{kind}C-{kind}M"
            return ("C" if pi > 7 else "CM") if clayey else "M"

        def grade(kind):
            d60, d30, d10 = (val(self.d[level]) for level in LEVELS)
            cu = divide(d60, d10)
            cc = divide(d30**2, d60 * d10)
            return kind + ("W" if cu >= (6 if kind == "S" else 4) and 1 <= cc <= 3 else "P")

        if p200 < 50:
            kind = "S" if (100 - p200) / 2 <= p4 - p200 else "G"
            if p200 < 5:
                symbol = grade(kind)
            elif p200 <= 12:
                symbol = grade(kind) + "-" + fines(kind)
            else:
                symbol = fines(kind)
        else:
            symbol = fines("F")
            symbol = symbol + "H" if ll >= 50 else "CL-ML" if symbol == "CM" else symbol + "L"
        self.box["txtSuscs"] = symbol
        self.box["txtNuscs"] = (coarse_name if "S" in symbol or "G" in symbol else fine_name)(
            symbol, p200, gravel, sand, clayey and pi <= 7)

    def aashto(self, p10, p40, p200, ll, pi):
        group = ""
        if p200 <= 35 and pi <= 6:
            a = p10 <= 50 and p40 <= 30 and p200 <= 15
            b = p40 <= 50 and p200 <= 25
            if a and b:
                group = "A-1-a" if abs(p40 - 50) > abs(p40 - 30) and abs(p200 - 25) > abs(p200 - 15) else "A-1-b"
            elif a or b:
                group = "A-1-a" if a else "A-1-b"
        if not group and p200 <= 35:
            if pi == 0 and p40 >= 51 and p200 <= 10:
                group = "A-3"
            else:
                group = ("A-2-4" if pi <= 10 and ll <= 40 else "A-2-5" if pi <= 10 and ll >= 41 else
                         "A-2-6" if pi >= 11 and ll <= 40 else "A-2-7" if pi >= 11 and ll >= 41 else "")
        if p200 > 36:
            group = ("A-4" if pi <= 10 and ll <= 40 else "A-5" if pi <= 10 and ll > 41 else
                     "A-6" if pi >= 11 and ll <= 40 else "A-7" if pi >= 11 and ll >= 41 else "")
            if group == "A-7":
                group = "A-7-5" if ll - 30 >= pi else "A-7-6"
        a, b, c, d = (to_integer(v) for v in (p200 - 35, p200 - 15, ll - 40, pi - 10))
        index = 0.01 * b * d if group in ("A-2-6", "A-2-7") else 0.005 * a * c + 0.2 * a + 0.01 * b * d
        index = 0 if pi == 0 else max(int(index), 0)
        self.box["txtSaash"] = f"{group}({index})"
        names = {"A-1-a": "Stone or gravel fragments", "A-1-b": "Gravel and sand mixtures",
                 "A-3": "Fine sand that is non-plastic", "A-2-4": "Silty gravel and sand",
                 "A-2-5": "Silty gravel and sand", "A-2-6": "Cayey gravel and sand", "A-4": "Silty soils",
                 "A-5": "Silty soils", "A-6": "Clayey soils", "A-7-5": "Clayey soils", "A-7-6": "Clayey soils"}
        self.box["txtMtype"] = names.get(group, self.box["txtMtype"])


def coarse_name(symbol, _, gravel, sand, silty_clay):
    noun, other, share = ("sand", "gravel", gravel) if symbol[0] == "S" else ("gravel", "sand", sand)
    tail = f" with {other}" if share >= 15 else ""
    if symbol in ("SC-SM", "GC-GM"):
        return f"Silty, clayey {noun}{tail}"
    if symbol[1] in "CM":
        return ("Clayey " if symbol[1] == "C" else "Silty ") + noun + tail
    grade = ("Well" if symbol[1] == "W" else "Poorly") + f"-graded {noun}"
    if len(symbol) == 2:
        return grade + tail
    fines = "silt" if symbol[4] == "M" else "silty clay" if silty_clay else "clay"
    return f"{grade} with {fines}" + (f" and {other}" if share >= 15 else "")


def fine_name(symbol, p200, gravel, sand, _):
    noun = {"CL-ML": "silty clay", "ML": "silt", "MH": "elastic silt", "CL": "lean clay", "CH": "fat clay"}[symbol]
    if p200 >= 85:
        return noun.capitalize()
    if p200 >= 70:
        return noun.capitalize() + (" with sand" if sand >= gravel else " with gravel")
    if sand < gravel:
        return f"Gravelly {noun}" + (" with sand" if sand >= 15 else "")
    return f"Sandy {noun}" + (" with gravel" if gravel >= 15 else "")


def worked(readings):
    """The sheet after Calculate, Plot Graph and Classify; each command only where the one before opened it."""
    sheet, errors = Sheet(readings), {}
    for command in ("calculate", "plot", "classify"):
        try:
            getattr(sheet, command)()
        except RuntimeFailure as failure:
            errors[command] = failure.number
            break
    return {"errors": errors, "grid": sheet.grid[1:], **sheet.box}


def show(name, readings):
    out = worked(readings)
    print(name)
    for row in out["grid"]:
        print("  " + " ".join(f"{cell.strip():>9}" for cell in row))
    for box in RESULTS:
        print(f"  {box:8} {out[box]}")
    for command, number in out["errors"].items():
        print(f"  {command} stops with error {number}")


def script_of(readings):
    lines = ["menu mnuSie1", f"click {'optYes' if readings['method'] == 'wet' else 'optNo'}"]
    lines.append(f"set txtGsoil {quoted(as_text(readings['dry_mass_original_g']))}")
    if readings["method"] == "wet":
        lines += [f"set txtDwp {quoted(as_text(readings.get('dry_mass_after_washing_g')))}", "key txtDwp Enter"]
        if as_text(readings.get("mass_lost_by_washing_g")):
            lines.append(f"set txtWl {quoted(as_text(readings['mass_lost_by_washing_g']))}")
    lines += [f"select lstSieve {quoted(sieve['sieve'])} on" for sieve in readings["stack"]] + ["click cmdSieve"]
    for row, sieve in enumerate(readings["stack"], 1):
        lines += [f"type MSHSieve {row} 2 {quoted(as_text(sieve['mass_sieve_g']))}",
                  f"type MSHSieve {row} 3 {quoted(as_text(sieve['mass_sieve_and_soil_g']))}"]
    for box, name in (("txtLL", "liquid_limit_pct"), ("txtPL", "plastic_limit_pct")):
        lines.append(f"set {box} {quoted(as_text(readings.get(name)))}")
    lines += ["check chkSmooth on"] if readings.get("smooth") else []
    lines += ["echo calculate", "click cmdCal", "echo plot", "click cmdgraph", "echo classify", "click cmdClass"]
    return lines + ["echo end", "dump MSHSieve"] + [f"get {box}" for box in RESULTS]


def shown(answers):
    out, part = {"errors": {}, "grid": []}, None
    for answer in answers:
        if "echo" in answer:
            part = answer["echo"]
        elif "dump" in answer and answer["row"] > 0:
            out["grid"].append(answer["cells"])
        elif "error" in answer and part:
            out["errors"][part] = answer["error"]
        elif answer.get("get") in RESULTS:
            out[answer["get"]] = answer["text"]
    return out


def random_readings(rng):
    """A stack of any size; one in four with something wrong in it."""
    names = sorted(rng.sample(list(OPENINGS)[:-1], rng.choice([2, 3, 4, 5, 6, 7, 8, 9, 9, 9])),
                   key=list(OPENINGS).index)
    for wanted in ("#4", "#10", "#40", "#200"):
        if wanted not in names and len(names) < 9 and rng.random() < 0.8:
            names.append(wanted)
    names = sorted(names, key=list(OPENINGS).index) + (["Pan"] if rng.random() < 0.9 else [])
    stack = []
    share = rng.choice([0.1, 1, 3])
    for name in names:
        empty = rng.choice([0, round(rng.uniform(300, 600), 1)])
        mass = 0 if rng.random() < 0.15 else rng.uniform(0, 200) * (share if name == "Pan" else 1)
        stack.append({"sieve": name, "mass_sieve_g": empty, "mass_sieve_and_soil_g": round(empty + mass, 2)})
    total = sum(row["mass_sieve_and_soil_g"] - row["mass_sieve_g"] for row in stack)
    wet = rng.random() < 0.5
    liquid = rng.choice([rng.uniform(15, 90), rng.choice([20, 25, 30, 40, 40.5, 41, 50])])
    readings = {"method": "wet" if wet else "dry", "dry_mass_original_g": round(total * rng.uniform(0.98, 1.02), 1),
                "dry_mass_after_washing_g": round(total * rng.uniform(0.4, 1), 1) if wet else None,
                "liquid_limit_pct": round(liquid, 1),
                "plastic_limit_pct": round(liquid - rng.choice([0, rng.uniform(0, 12), rng.uniform(0, 40)]), 1),
                "stack": stack, "smooth": rng.random() < 0.4}
    if rng.random() < 0.25:
        row = rng.choice(stack)
        rng.choice([
            lambda: row.update(mass_sieve_and_soil_g="abc"), lambda: row.update(mass_sieve_g="1e2"),
            lambda: row.update(mass_sieve_and_soil_g=-50), lambda: readings.update(dry_mass_original_g="0"),
            lambda: readings.update(liquid_limit_pct="NP"), lambda: readings.update(liquid_limit_pct="99999"),
            lambda: [each.update(mass_sieve_and_soil_g=each["mass_sieve_g"]) for each in stack if each is not row],
            lambda: [each.update(mass_sieve_and_soil_g=each["mass_sieve_g"]) for each in stack],
        ])()
    return readings


if __name__ == "__main__":
    sys.exit(main(sys.modules[__name__]))
