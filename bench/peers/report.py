#!/usr/bin/env python3
"""The pages of a whole road project by matplotlib: what a laboratory that writes Python would make of the same readings.

    report.py READINGS LOGOS OUTPUT.pdf [--jobs N]    N times the same report, the readings read anew each time

Places on a page are in twips (1440 an inch) from the upper left corner, as on the reports that it is compared with; rules
are one collection a page, texts of a page's tables are set one by one, since matplotlib knows no other way.
"""

import argparse
import pathlib

import matplotlib

matplotlib.use("pdf")

import matplotlib.image  # noqa: E402
import numpy as np  # noqa: E402
from matplotlib.backends.backend_pdf import PdfPages  # noqa: E402
from matplotlib.collections import LineCollection  # noqa: E402
from matplotlib.figure import Figure  # noqa: E402
from matplotlib.font_manager import FontProperties  # noqa: E402
from reduction import reduce_all, summary  # noqa: E402

matplotlib.rcParams["pdf.fonttype"] = 42  # the fonts themselves, not their outlines

PAPER = (11906, 16838)  # A4
LEFT, RIGHT = 500, 11406
LINE = 339  # a line of the body
BODY = 7.8  # points
FACES = {
    style: FontProperties(fname=f"/usr/share/fonts/truetype/tlwg/Loma{style}.ttf") for style in ("", "-Bold", "-Oblique")
}
BANNER = "Terravane Program for Road Construction Materials 2022 (Terravane Version 1.0)"
DEPARTMENT, INSTITUTE = "Materials Laboratory", "Institute of Roads"
DOTS = "." * 50
TITLES = {
    "att": ("การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก", "Atterberg Limits Test", "ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"),
    "sie": ("การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน", "Sieve Analysis Test", "ผลทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"),
    "spc": ("การทดสอบหาความถ่วงจำเพาะของดิน", "Specific Gravity Test", "ผลทดสอบหาความถ่วงจำเพาะของดิน"),
    "std": ("การทดสอบการบดอัดแบบมาตรฐาน", "Standard Compaction Test", "ผลทดสอบการบดอัดดินแบบมาตรฐาน"),
    "mod": ("การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน", "Modified Compaction Test", "ผลทดสอบการบดอัดดินแบบสูงกว่ามาตรฐาน"),
    "den": ("การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย", "Field Density Test by Sand Cone Method",
            "ผลทดสอบการหาค่าความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย"),
    "cbr": ("การทดสอบหาค่า ซี.บี.อาร์.", "California Bearing Ratio Test", "ผลทดสอบการหาค่าซี.บี.อาร์."),
}  # fmt: skip


def shown(values, places=None):
    """A row of texts; not a number is an empty cell."""
    mask = "{:.15g}" if places is None else f"{{:.{places}f}}"
    return ["" if np.isnan(value) else mask.format(value) for value in np.atleast_1d(values)]


class Page:
    def __init__(self, pdf, logos, landscape=False):
        self.pdf, self.logos = pdf, logos
        self.width, self.height = PAPER[::-1] if landscape else PAPER
        self.figure = Figure(figsize=(self.width / 1440, self.height / 1440))
        self.axes = self.figure.add_axes((0, 0, 1, 1))
        self.axes.set_axis_off()
        self.axes.set(xlim=(0, self.width), ylim=(self.height, 0))
        self.thin, self.thick = [], []

    def close(self):
        for rules, width in ((self.thin, 0.6), (self.thick, 1.2)):
            self.axes.add_collection(LineCollection(rules, colors="black", linewidths=width), autolim=False)
        self.pdf.savefig(self.figure)

    def text(self, x, y, text, size=BODY, face="", anchor="left"):
        if text:
            self.axes.text(x, y, text, fontproperties=FACES[face], fontsize=size, ha=anchor, va="top")

    def logo(self, name, x, y, side):
        self.axes.imshow(self.logos[name], extent=(x, x + side, y + side, y), interpolation="none", aspect="auto")
        self.axes.set(xlim=(0, self.width), ylim=(self.height, 0))

    def box(self, left, top, right, bottom):
        self.thick.append([(left, top), (right, top), (right, bottom), (left, bottom), (left, top)])

    def table(self, top, edges, rows, caption="", heads=1):
        """Rows of texts below each other: the first column begins at its edge, the others are centred."""
        if caption:
            self.text(edges[0], top, caption, face="-Bold")
            top += LINE
        bottom = top + LINE * len(rows)
        self.box(edges[0], top, edges[-1], bottom)
        self.thick.append([(edges[0], top + LINE * heads), (edges[-1], top + LINE * heads)])
        for row, cells in enumerate(rows):
            y = top + LINE * row
            if row:
                self.thin.append([(edges[0], y), (edges[-1], y)])
            self.text(edges[0] + 100, y + 60, cells[0], face="-Bold" if row < heads else "")
            for column, cell in enumerate(cells[1:], 1):
                middle = (edges[column] + edges[column + 1]) / 2
                self.text(middle, y + 60, cell, face="-Bold" if row < heads else "", anchor="center")
        self.thin += [[(x, top), (x, bottom)] for x in edges[1:-1]]
        return bottom

    def chart(self, left, top, width, height, xlim, ylim, labels, **scales):
        axes = self.figure.add_axes(
            (left / self.width, 1 - (top + height) / self.height, width / self.width, height / self.height),
            **scales,
        )  # fmt: skip
        if xlim:
            axes.set_xlim(xlim)
        if ylim:
            axes.set_ylim(ylim)
        axes.grid(True, which="both", color="0.75", linewidth=0.5)
        axes.set_xlabel(labels[0], fontproperties=FACES[""], fontsize=8)
        axes.set_ylabel(labels[1], fontproperties=FACES[""], fontsize=8)
        axes.tick_params(labelsize=6)
        return axes


class Report:
    def __init__(self, readings, results, logos, pdf):
        self.readings, self.results, self.logos, self.pdf = readings, results, logos, pdf

    def write(self):
        for (test, material), result in self.results.items():
            self.cover(test)
            page = self.framed(test, material)
            getattr(self, test if test not in ("std", "mod") else "compaction")(page, test, material, result)
        self.overall()

    def head(self, name):
        return self.readings.text("head", "", name)

    def page(self, landscape=False):
        return Page(self.pdf, self.logos, landscape)

    def cover(self, test):
        page, middle = self.page(), PAPER[0] / 2
        page.logo("cov_logo", middle - 710, 1200, 1420)
        page.text(middle, 4000, TITLES[test][2], 16.8, "-Bold", "center")
        lines = [self.head("txtProject"), self.head("txtLocation"), "เสนอ", self.head("txtClient"), "โดย", DEPARTMENT, INSTITUTE]
        for line, y in zip(lines, (5200, 5800, 8700, 9300, 12200, 12800, 13400)):
            page.text(middle, y, line, 13.2, "-Bold" if line in ("เสนอ", "โดย") else "", "center")
        page.close()

    def framed(self, test, material):
        page, middle = self.page(), PAPER[0] / 2
        page.text(LEFT, PAPER[1] - 700, "Database File is TRVN_road.mdb", 7.2)
        page.text(RIGHT, PAPER[1] - 700, "Page 1", 7.2, anchor="right")
        page.text(middle, 700, BANNER, 9.6, "-Oblique", "center")
        page.box(LEFT, 1150, RIGHT, 2520)
        page.thin += [[(1870, 1150), (1870, 2520)], [(10036, 1150), (10036, 2520)], [(1870, 1790), (10036, 1790)]]
        for y, text in zip((1190, 1480, 1830, 2140), (DEPARTMENT, INSTITUTE, *TITLES[test][:2])):
            page.text(middle, y, text, 8.4, "-Bold", "center")
        page.logo("ins_logo", 640, 1225, 1200)
        page.logo("dep_logo", 10110, 1200, 1250)
        fields = [("Client Name", "txtClient"), ("Project Name", "txtProject"), ("Location", "txtLocation")]
        own = [("Report No.", self.head("txtID")), ("Date of Test", "21/11/2026"),
               ("Sample", self.readings.text(test, material, "txtSoil"))]  # fmt: skip
        for row, ((label, name), (label2, value)) in enumerate(zip(fields, own)):
            y = 2650 + row * 365
            page.text(LEFT, y, label, 8.4)
            page.text(1900, y, ": " + self.head(name), 8.4)
            page.text(7900, y, label2, 8.4)
            page.text(9100, y, ": " + value, 8.4)
        return page

    def signed(self, page, test, material, top):
        names = [("Tested by", self.readings.text(test, material, "cboTest")),
                 ("Checked by", self.readings.text(test, material, "cboCheck")), ("Approved by", "")]  # fmt: skip
        for row, (label, name) in enumerate(names):
            y = top + row * 1200
            page.text(7400, y, f"{label} {DOTS}", 9)
            page.text(9700, y + 400, f"({name})", 9, anchor="center")
        page.close()

    def att(self, page, test, material, of):
        edges = np.append(LEFT, np.linspace(3500, RIGHT, 6))
        numbers = ["Test No.", "1", "2", "3", "4", "5"]
        weights = ["Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"]
        worked = ["Mass of Water, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)"]
        liquid, plastic = of["liquid"], of["plastic"]
        rows = [numbers, ["Number of Blows", *shown(liquid[0])]]
        rows += [[label, *shown(row)] for label, row in zip(weights, liquid[1:4])]
        rows += [[label, *shown(row, 2)] for label, row in zip(worked, liquid[4:])]
        bottom = page.table(3770, edges, rows, "Liquid Limit Determination")
        rows = [numbers] + [[label, *shown(row)] for label, row in zip(weights, plastic[:3])]
        rows += [[label, *shown(row, 2)] for label, row in zip([*worked, "Plastic Limit, (%)"], [*plastic[3:], plastic[5]])]
        rows += [["Average Plastic Limit, (%)", "", "", f"{of['PL']:.2f}", "", ""]]
        bottom = page.table(bottom, edges, rows, "Plastic Limit Determination")
        labels = ["Liquid Limit (LL)", "Plastic Limit (PL)", "Plasticity Index (PI)", "Flow Index (PI)"]
        rows = [[label, f"{of[key]:.2f}"] for label, key in zip(labels, ("LL", "PL", "PI", "FI"))]
        page.table(bottom + 100, [8243, 10200, RIGHT], rows, "Summary of Test Results", heads=0)
        top = 10 * (int(np.rint(np.nanmax(of["water"]) + 10) // 10) + 1)
        chart = page.chart(1200, bottom + 700, 6000, 4300, (10, 100), (0, top), ("Number of Blows", "Water Content , %"), xscale="log")
        chart.set_xticks([20, 25, 30, 40, 50, 60, 70, 80, 90, 100], [20, 25, 30, 40, 50, 60, 70, 80, 90, 100])
        line = of["intercept"] + of["slope"] * np.log10([10, 100])
        chart.plot([10, 100], line, "b-", of["blows"], of["water"], "ko", markersize=3)
        chart.plot([25, 25, 10], [0, of["LL"], of["LL"]], "r-", linewidth=1)
        chart.text(26, 1, "N = 25", fontsize=6)
        chart.text(11, of["LL"] + 1, f"LL = {of['LL']:.2f} %", fontsize=6)
        self.signed(page, test, material, 13000)

    def sie(self, page, test, material, of):
        edges = np.linspace(LEFT, RIGHT, 9)
        way = "Wet Sieving Method" if of["washed"] else "Dry Sieving Method"
        page.box(LEFT, 4100, edges[2], 4100 + 3 * LINE)
        page.text((LEFT + edges[2]) / 2, 4460, way, anchor="center")
        page.table(4100, [edges[2], 5600, 7200], [["Dry Mass of Original Sample", f"{of['original']:.2f} g"],
                   ["Dry Mass after Washing", f"{of['washed']:.2f} g" if of["washed"] else ""],
                   ["Mass Loss through Washing", f"{of['lost']:.2f} g" if of["lost"] else ""]], heads=0)  # fmt: skip
        page.table(4100, [7200, 9800, RIGHT], [["Gravel Fraction", f"{of['gravel']:.2f} %"],
                   ["Sand Fraction", f"{of['sand']:.2f} %"], ["Fine Fraction", f"{of['fines']:.2f} %"]], heads=0)  # fmt: skip
        heads = [["Sieve", "Sieve", "Mass of", "Mass of Sieve", "Mass of Soil", "Cumulative", "Cumulative", "Percent"],
                 ["Number", "Opening", "Sieve", "+ Soil", "Retained", "Retained", "Retained", "Passing"],
                 ["", "(mm)", "(g)", "(g)", "(g)", "(g)", "(%)", "(%)"]]  # fmt: skip
        columns = [of["names"], [f"{size:g}" if size else "" for size in of["sizes"]], shown(of["empty"]), shown(of["full"]),
                   shown(of["retained"], 2), shown(of["cumulative"], 2), shown(of["share"], 1), shown(of["passing"], 1)]  # fmt: skip
        body = [list(row) for row in zip(*columns)]
        body += [[""] * 8] * (10 - len(body))
        bottom = page.table(5400, edges, heads + body, heads=3)
        outcome = "less than 2% then the test need not be rerun." if of["error"] < 2 else "more than 2% then the test should be rerun."
        page.text(LEFT, bottom + 60, f"Remark :  Percent mass loss due to sieving of this test is {of['error']:.2f}% which is {outcome}")
        sizes = [f"{of[key]:.{places}f}" if of[key] == of[key] and of[key] else "" for key, places in
                 (("D10", 3), ("D30", 3), ("D60", 3), ("Cu", 2), ("Cc", 2))]  # fmt: skip
        bottom = page.table(bottom + 900, edges[:6], [["D10 (mm)", "D30 (mm)", "D60 (mm)", "Cu", "Cc"], sizes])
        caption = f"Engineering Soil Classification (LL = {of['LL']:.2f} % PI = {of['LL'] - of['PL']:.2f} %)"
        rows = [["Unified Soil Classification System (USCS)", ""], ["Group Symbol", of["USCS"]], ["Group Name", of["name"]],
                ["AASHTO Classification System", ""], ["Group Symbol", of["AASHTO"]], ["Typical Names", of["typical"]]]  # fmt: skip
        page.table(bottom + 700, [LEFT, 3800, edges[5]], rows, caption, heads=0)
        self.signed(page, test, material, 12600)
        self.grain_size_chart(of)

    def grain_size_chart(self, of):
        page = self.page(landscape=True)
        page.text(1000, page.height - 1000, "Database File is TRVN_road.mdb", 7.2)
        page.text(page.width * 10 / 11, page.height - 1000, "Page 2", 7.2, anchor="right")
        page.text(page.width / 2, 700, "PARTICLE SIZE DISTRIBUTION CURVE", 9, "-Bold", "center")
        left, right, top, bottom = page.width * 1.5 / 11, page.width * 10 / 11, page.height * 4.5 / 16, page.height * 13 / 16
        chart = page.chart(left, top, right - left, bottom - top, (100, 0.01), (0, 100),
                           ("Grain Size(mm)", "Percent Passing (%)"), xscale="log")  # fmt: skip
        chart.set_yticks(range(0, 101, 10))
        place = lambda size: left + (right - left) * (2 - np.log10(size)) / 4  # noqa: E731
        sieves = {"1''": 25, "3/4''": 19, "1/2''": 12.5, "3/8''": 9.51, "#4": 4.75, "#10": 2, "#20": 0.85, "#40": 0.425,
                  "#60": 0.25, "#100": 0.15, "#140": 0.106, "#200": 0.075}  # fmt: skip
        for label, size in sieves.items():
            page.thin.append([(place(size), top - 150), (place(size), top)])
            page.text(place(size), top - 400, label, 7, anchor="center")
        bands = [("Gravel", 75, 4.75, 0), ("Sand", 4.75, 0.075, 0), ("Silt or Clay", 0.075, 0.01, 0), ("Coarse", 75, 19, 1),
                 ("Fine", 19, 4.75, 1), ("Coarse", 4.75, 2, 1), ("Medium", 2, 0.425, 1), ("Fine", 0.425, 0.075, 1)]  # fmt: skip
        for name, coarse, fine, row in bands:
            y = top - 1100 + row * LINE
            page.box(place(coarse), y, place(fine), y + LINE)
            page.text((place(coarse) + place(fine)) / 2, y + 60, name, 7, anchor="center")
        chart.plot(of["x"], of["y"], "b-o", linewidth=1.5, markersize=4, markerfacecolor="orange")
        page.close()

    def spc(self, page, test, material, of):
        edges = [LEFT, 1939, 3379, 4818]
        rows = [["No.", "Flask + Water (g)", "Temperature"]]
        rows += [[str(row + 1), *shown([grams, celsius])] for row, (grams, celsius) in enumerate(zip(of["mass"], of["celsius"]))]
        page.table(4500, edges, rows, "Calibration Data")
        page.text(LEFT, 8300, "Equation of Curve :  " + of["equation"])
        page.text(LEFT, 8640, f"R-squared Value :  {of['explained']:.4f}")
        chart = page.chart(5900, 4900, 5200, 3400, None, None, ("Temperature (Degree Celsius)", "Weight of Water + Flask (g)"))
        chart.plot(of["x"], of["y"], "b-", of["celsius"], of["mass"], "ko", markersize=3)
        trials = of["trials"]
        rows = [["Trial No.", "1", "2", "3"], ["Temperature, (Degree Celsius)", *shown(trials[0])],
                ["Mass of Flask + Water, (g)", *shown(of["filled"], 2)], ["Mass of Flask + Water + Soil, (g)", *shown(trials[2])],
                ["Container No.", *of["cans"]], ["Mass of Dry Soil + Container, (g)", *shown(trials[4])],
                ["Mass of Container, (g)", *shown(trials[5])], ["Dry Soil, (g)", *shown(of["dry"], 2)],
                ["Correction Factor", *shown(of["factor"], 4)], ["Specific Gravity at 20 Degree Celsius", *shown(of["gravity"], 2)],
                ["Average Specific Gravity", f"{of['Gs']:.2f}", "", ""]]  # fmt: skip
        page.table(9300, [LEFT, 3500, 4818, 6135, 7453], rows, "Testing Data")
        self.signed(page, test, material, 13600)

    def compaction(self, page, test, material, of):
        box = lambda name: self.readings.text(test, material, name)  # noqa: E731
        page.table(3770, [LEFT, 2500, 5300, 8000], [["Number of Layer :", box("cboLayer"), f"Diameter of Mold : {box('txtDia')} cm"],
                   ["Weight of Hammer :", box("cboWt"), f"Height of Mold : {box('txtHeight')} cm"]], heads=0)  # fmt: skip
        page.table(3770, [8000, 10300, RIGHT], [["OMC", f"{of['OMC']:.1f} %"], ["MDD", f"{of['MDD']:.2f} g/cm^3"]], heads=0)
        edges = np.append(LEFT, np.linspace(3000, RIGHT, 7))
        weighed, molds = of["weighed"], of["molds"]
        rows = [["Sample No.", "1", "2", "3", "4", "5", "6"], ["Moisture Can No.", *of["cans"]]]
        labels = ["Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)", "Mass of Water, (g)",
                  "Mass of Dry Soil, (g)", "Water Content, (%)"]  # fmt: skip
        rows += [[label, *shown(row, 2)] for label, row in zip(labels, [*weighed, of["water"], of["soil"], of["content"]])]
        bottom = page.table(4500, edges, rows, "Water Content Determination")
        labels = ["Assumed Water Content, (%)", "Mass of Soil + Mold, (g)", "Mass of Mold, (g)", "Water Content, (%)",
                  "Mass of Soil in Mold, (g)", "Wet Density, (g/cm^3)", "Dry Density, (g/cm^3)"]  # fmt: skip
        rows = [[label, *shown(row)] for label, row in zip(labels[:3], molds)]
        rows += [[label, *shown(row, 2)] for label, row in
                 zip(labels[3:], [of["content"], of["wet"], of["wet_density"], of["dry_density"]])]  # fmt: skip
        bottom = page.table(bottom, edges, rows, "Density Determination", heads=0)
        (x, y), (water, dry) = of["points"], of["curve"]
        low = y.min() - 0.01
        chart = page.chart(1300, bottom + 600, 5900, 4500, (np.floor(x.min()), np.floor(x.max()) + 2),
                           (low, low + 13 * max((y.max() - low) / 8, 0.01)), ("Water Content , %", "Dry Density , g/cm^3"))  # fmt: skip
        chart.plot(*of["air"], "m-", linewidth=0.7)
        chart.plot(water, dry, "b-", linewidth=1.5)
        chart.plot(x, y, "ko", markersize=3)
        chart.plot([of["OMC"], of["OMC"], 0], [0, of["MDD"], of["MDD"]], "r-", linewidth=1)
        chart.text(np.floor(x.min()) + 0.1, of["MDD"], f"MDD = {of['MDD']:.2f} g/cm^3", fontsize=6)
        chart.text(of["OMC"], low, f"OMC = {of['OMC']:.1f} %", fontsize=6)
        chart.set_title(f"Zero Air Void Line (Gs = {box('txtGs')})", fontsize=6)
        self.signed(page, test, material, 12600)

    def den(self, page, test, material, of):
        halves = [LEFT, 3500, 4135, 4769, 5903], [6003, 9003, 9804, 10605, RIGHT]
        columns = np.append(LEFT, np.linspace(3500, RIGHT, 7))
        three = ["Determination No.", "1", "2", "3"]
        rows = [three, ["Initial Mass of Jar + Sand + Cone, (g)", *shown(of["cone"][0, :3])],
                ["Final Mass of Jar + Sand + Cone, (g)", *shown(of["cone"][1, :3])],
                ["Mass of Sand in Cone, (g)", *shown(of["in_cone"][:3])], ["Average, (g)", "", f"{of['mean_cone']:.2f}", ""]]  # fmt: skip
        page.table(4500, halves[0], rows, "Mass of Sand in Cone")
        rows = [three, ["Mass of Empty Mold + Baseplate, (g)", *shown(of["sand"][2, :3])],
                ["Mass of Mold + Sand + Baseplate, (g)", *shown(of["sand"][3, :3])], ["Mass of Sand, (g)", *shown(of["filled"][:3])],
                ["Volume of Mold, (cm^3)", *shown(of["volume"][:3], 2)], ["Density of Sand, (g/cm^3)", "", f"{of['sand_density']:.2f}", ""]]  # fmt: skip
        page.table(4161, halves[1], rows, "Density of Sand used Mold")
        six = ["Test Hole No.", *"123456"]
        in_holes = lambda key: np.where(np.isnan(of["hole"][0]), np.nan, of[key])  # noqa: E731
        blocks = [
            ("Mass of Wet Soil", [six, ["Mass of Wet Soil + Pan, (g)", *shown(of["soil"][0])], ["Mass of Pan, (g)", *shown(of["soil"][1])],
                                  ["Mass of Wet Soil, (g)", *shown(of["wet"])]]),
            ("Volume from Sand Cone Method", [six, ["Initial of Soil + Jar + Cone, (g)", *shown(of["hole"][0])],
                                              ["Final of Soil + Jar + Cone, (g)", *shown(of["hole"][1])],
                                              ["Mass of Sand in Cone, (g)", *shown(in_holes("mean_cone"), 2)],
                                              ["Mass of Sand in Hole, (g)", *shown(of["in_hole"])],
                                              ["Density of Sand, (g/cm^3)", *shown(in_holes("sand_density"), 2)],
                                              ["Volume of Hole, (cm^3)", *shown(of["hole_volume"], 2)]]),
            ("Water Content of Soil", [six, ["Mass of Wet Soil + Can, (g)", *shown(of["water"][0])],
                                       ["Mass of Dry Soil + Can, (g)", *shown(of["water"][1])], ["Mass of Can, (g)", *shown(of["water"][2])],
                                       ["Mass of Wet Soil, (g)", *shown(of["lost"], 2)], ["Mass of Dry Soil, (g)", *shown(of["dry"])],
                                       ["Water Content, (%)", *shown(of["content"], 2)]]),
            ("Summary", [six, ["Max. Dry Density in Lab,(g/cm^3)", *shown(in_holes("maximum"), 2)],
                         ["Wet Density in Field, (g/cm^3)", *shown(of["wet_density"], 2)],
                         ["Dry Density in Field, (g/cm^3)", *shown(of["dry_density"], 2)], ["Percent Compaction, (%)", *shown(of["percent"], 2)]]),
        ]  # fmt: skip
        bottom = 6600
        for caption, rows in blocks:
            edges = columns if caption != "Summary" else np.append(LEFT, np.linspace(3500, 7453, 7))
            bottom = page.table(bottom, edges, rows, caption)
        self.signed(page, test, material, 14000)

    def cbr(self, page, test, material, of):
        box = lambda name: self.readings.text(test, material, name)  # noqa: E731
        modified = bool(box("optMod"))
        kind = ("Modified" if modified else "Standard") + " Compaction"
        page.table(3770, [LEFT, 1600, 3200, 5903], [[kind, "", "Soaked CBR"], ["OMC", f"{of['OMC']:.1f} %", f"Prv. Constant (K) : {box('txtK')} lb/div."],
                   ["MDD", f"{of['MDD']:.2f} g/cm^3", f"Surcharge Weight : {box('txtWeight')} kg"]], "Type of Compaction and CBR", heads=0)  # fmt: skip
        rows = [["Conditions", "Unsoaked", "Soaked", ""], ["Number of Blows per Layer/Layers", *of["blows"][:3]],
                ["CBR at 0.1 in. Penetration (%)", *shown(of["ratio"][0.1], 1)], ["CBR at 0.2 in. Penetration (%)", *shown(of["ratio"][0.2], 1)]]  # fmt: skip
        page.table(3770, [6003, 9003, 9804, 10605, RIGHT], rows, "CBR Solution")
        edges = np.append(LEFT, np.linspace(3500, RIGHT, 7))
        condition = ["Condition", "", "Unsoaked", "", "", "Soaked", ""]
        rows = [condition, ["Can No.", *of["cans"]]]
        rows += [[label, *shown(row)] for label, row in
                 zip(["Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"], of["water"])]  # fmt: skip
        rows += [["Moistue Content, (%)", *shown(of["content"], 2)]]
        bottom = page.table(5600, edges, rows, "Water Content Determination")
        rows = [condition, ["Mold No.", *"123123"], ["Number of Blows per Layer/Layers", *of["blows"]]]
        labels = ["Diameter of Sample, (cm)", "Height of Sample, (cm)", "Mass of Mold + Compacted Soil, (g)", "Mass of Mold, (g)"]
        rows += [[label, *shown(row)] for label, row in zip(labels, of["mold"])]
        rows += [["Wet Density, (g/cm^3)", *shown(of["wet_density"], 2)], ["Dry Density, (g/cm^3)", *shown(of["dry_density"], 2)]]
        bottom = page.table(bottom, edges, rows, "Dry Density Determination")
        page.table(bottom, [LEFT, 7453], [[f"CBR Value at 95% of {kind} is {of['CBR']:.1f} %"]], "Results of Testing", heads=0)
        rows = [["Date", "Time", "Elapsed", "Swell 1", "", "Swell 2", "", "Swell 3", ""], ["", "", "Time (hr.)", *("(mm)", "(%)") * 3]]
        rows += of["swelling"] + [[""] * 9]
        page.table(bottom + 800, np.append(np.linspace(LEFT, 3500, 4), np.linspace(3500, 7453, 7)[1:]), rows, "Swelling Determination", heads=2)
        self.signed(page, test, material, 13600)
        self.penetration(test, material, of)

    def penetration(self, test, material, of):
        page = self.framed(test, material)
        heads = [["Mold No.", "", "1", "", "", "2", "", "", "3", ""], ["Penetration", *("Load Dial", "Load", "Stress") * 3],
                 ["", *("Reading", "P", "P/A") * 3], ["(in)", *("(div)", "(lb)", "(lb/in^2)") * 3]]  # fmt: skip
        columns = [shown(of["depths"])]
        for mold in range(3):
            columns += [shown(of["dials"][mold]), shown(of["loads"][mold], 1), shown(of["stresses"][mold], 2)]
        bottom = page.table(3770, np.linspace(LEFT, RIGHT, 11), heads + [list(row) for row in zip(*columns)], heads=4)
        last = of["depths"][-1]
        chart = page.chart(1100, bottom + 700, 4200, 4000, (0, last + 0.1), (0, of["stresses"].max() * 1.15),
                           ("Penetration, in", "Resistance of Penetration, lb/in^2"))  # fmt: skip
        for mold, mark in enumerate(("wo", "ko", "ws")):
            chart.plot(of["at"], of["curves"][mold], "r-", linewidth=1)
            chart.plot(of["depths"], of["stresses"][mold], mark, markersize=3, markeredgecolor="black", label=f"Mold No.{mold + 1}")
            for depth, standard in ((0.1, 10), (0.2, 15)):
                stress = of["ratio"][depth][mold] * standard
                chart.plot([depth, depth, 0], [0, stress, stress], "b--", linewidth=0.6)
                chart.text(depth, stress, f" {stress:.2f}", fontsize=5)
        chart.legend(fontsize=5, ncol=3, loc="upper center")
        chart = page.chart(7000, bottom + 700, 4200, 4000, None, (0, max(of["ratio"][0.1].max(), of["ratio"][0.2].max()) * 1.15),
                           ("Dry Density, g/cm^3", "California Bearing Ratio, %"))  # fmt: skip
        for depth, mark in ((0.1, "wo"), (0.2, "ko")):
            chart.plot(of["x"], of["parabolas"][depth], "r-", linewidth=1)
            chart.plot(of["after"], of["ratio"][depth], mark, markersize=3, markeredgecolor="black", label=f"CBR at {depth} in.")
        chart.plot([of["share"], of["share"], of["after"][0]], [0, of["CBR"], of["CBR"]], "b--", linewidth=0.6)
        chart.text(of["share"], of["CBR"], f"CBR Value = {of['CBR']:.1f}%", fontsize=6, ha="right")
        chart.legend(fontsize=5, ncol=2, loc="upper center")
        for row, (label, value) in enumerate([("Dry Density is", f"{of['after'][0]:.2f} g/cm^3"),
                                              ("CBR Value at 0.1 in. Penetration is", f"{of['ratio'][0.1][0]:.1f} %"),
                                              ("CBR Value at 0.2 in. Penetration is", f"{of['ratio'][0.2][0]:.1f} %")]):  # fmt: skip
            page.text(LEFT, bottom + 5600 + row * 380, f"{label} {value}", 9)
        page.close()

    def overall(self):
        page, middle = self.page(), PAPER[0] / 2
        page.logo("cov_logo", 1250, 1250, 1200)
        page.text(3000, 1200, "โปรแกรมเทอร์ราเวน สำหรับงานทดสอบวัสดุก่อสร้างทาง", 12, "-Bold")
        page.text(3000, 1600, "Terravane Program", 12, "-Bold")
        page.text(1250, 2700, "Project Name :  " + self.head("txtProject"), 9.6)
        page.text(1250, 3100, "Location :  " + self.head("txtLocation"), 9.6)
        page.text(middle, 3800, "Summary of Test Results", 12, "-Bold", "center")
        lines = [("Atterberg Limits", "Liquid Limit (LL)", "LL", "{:.2f} %"), ("", "Plastic Limit (PL)", "PL", "{:.2f} %"),
                 ("", "Plasticity Index (PI)", "PI", "{:.2f} %"), ("", "Flow Index (FI)", "FI", "{:.2f} %"),
                 ("Sieve Analysis", "Gravel Fraction (GF)", "gravel", "{:.1f} %"), ("", "Sand Fraction (SF)", "sand", "{:.1f} %"),
                 ("", "Fine Fraction (Passing #200)", "fines", "{:.1f} %"), ("Soil Classification", "USCS", "USCS", "{}"),
                 ("", "AASHTO", "AASHTO", "{}"), ("Specific Gravity", "Average Specific Gravity (Gs)", "Gs", "{:.2f}"),
                 ("Standard Compaction", "Optimum Moisture Content (OMC)", "OMC std", "{:.1f} %"),
                 ("", "Maximum Dry Density (MDD)", "MDD std", "{:.2f} g/cm^3"),
                 ("Modified Compaction", "Optimum Moisture Content (OMC)", "OMC mod", "{:.1f} %"),
                 ("", "Maximum Dry Density (MDD)", "MDD mod", "{:.2f} g/cm^3"), ("California Bearing Ratio", "Percent CBR", "CBR", "{:.1f} %"),
                 ("Field Density by Sand Cone", "Average Percent Compaction", "compaction", "{:.2f} %")]  # fmt: skip
        of = [summary(self.results, material) for material in ("soil", "crush")]
        cell = lambda values, key, mask: mask.format(values[key]) if values[key] != "" else ""  # noqa: E731
        rows = [["Test", "Property", "Results", ""], ["", "", "Soil", "Crushed Rock"]]
        rows += [[test, label, cell(of[0], key, mask), cell(of[1], key, mask)] for test, label, key, mask in lines]
        page.table(4500, [1250, 4385, 7520, 9088, 10656], rows, heads=2)
        page.text(1250, 12100, "Remark: * indicates that the test was performed using a wet sieve or an unsoaked CBR.", 8.4, "-Oblique")
        page.close()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("readings")
    parser.add_argument("logos", type=pathlib.Path)
    parser.add_argument("output")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--results", help="a file for the overall results, key and value a line")
    given = parser.parse_args()
    # Every second point: 360 an inch.
    names = ("cov_logo", "ins_logo", "dep_logo")
    logos = {name: matplotlib.image.imread(given.logos / f"{name}.jpg")[::2, ::2] for name in names}
    for _ in range(given.jobs):
        readings, results = reduce_all(given.readings)
        with PdfPages(given.output) as pdf:
            Report(readings, results, logos, pdf).write()
    if given.results:
        lines = [f"{m} {key}\t{value}" for m in ("soil", "crush") for key, value in summary(results, m).items()]
        pathlib.Path(given.results).write_text("\n".join(lines) + "\n")


if __name__ == "__main__":
    main()
