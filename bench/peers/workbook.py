#!/usr/bin/env python3
"""The same project as a spreadsheet: a workbook of live formulas and charts for a Calc without windows.

    workbook.py READINGS LOGOS OUTPUT.ods

A sheet a page, and an unprinted one beside each test for its curve points. No cell has a value stored beside its formula,
so that opening the file works every formula out. Only readings stand as numbers; of the reduced results just the count of
a curve's rows is used, which a user would draw down as far as the curve goes.
"""

import argparse
import pathlib
import zipfile
from xml.sax.saxutils import escape, quoteattr

from reduction import OPENINGS, WATER_DENSITY, reduce_all
from report import BANNER, DEPARTMENT, DOTS, INSTITUTE, TITLES

NAMESPACES = " ".join(
    f'xmlns:{name}="urn:oasis:names:tc:opendocument:xmlns:{urn}:1.0"'
    for name, urn in {
        "office": "office", "style": "style", "text": "text", "table": "table", "draw": "drawing", "number": "datastyle",
        "chart": "chart", "svg": "svg-compatible", "fo": "xsl-fo-compatible", "manifest": "manifest",
    }.items()
) + ' xmlns:xlink="http://www.w3.org/1999/xlink" xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"'  # fmt: skip
HEAD = '<?xml version="1.0" encoding="UTF-8"?>\n'
FONT = 'style:font-name="Loma" style:font-name-complex="Loma"'
COLUMNS = 10
LABEL_WIDTH, CELL_WIDTH, ROW_HEIGHT = 5.4, 1.5, 0.5  # cm


def column_name(column):
    return chr(ord("A") + column)


def at(row, column, fixed=False):
    """A cell of the same sheet, in a formula."""
    return f"[.${column_name(column)}${row + 1}]" if fixed else f"[.{column_name(column)}{row + 1}]"


def span(row, column, last_row, last_column, sheet=""):
    place = f"$'{sheet}'" if sheet else ""
    first = f"{place}.${column_name(column)}${row + 1}"
    return f"[{first}:.${column_name(last_column)}${last_row + 1}]"


class Formula(str):
    """What is worked out, and over how many cells."""

    rows = columns = 0


def array(formula, rows, columns):
    made = Formula(formula)
    made.rows, made.columns = rows, columns
    return made


class Sheet:
    def __init__(self, name, printed=True, style="portrait"):
        self.name, self.printed, self.style = name, printed, style
        self.cells, self.shapes = {}, []

    def put(self, row, column, content, style="cell"):
        if content != "":
            self.cells[row, column] = (content, style)
        return f"[$'{self.name}'.${column_name(column)}${row + 1}]"

    def run(self, row, column, contents, style="cell"):
        for offset, content in enumerate(contents):
            self.put(row, column + offset, content, style)

    def down(self, row, column, contents, style="cell"):
        for offset, content in enumerate(contents):
            self.put(row + offset, column, content, style)

    def image(self, picture, x, y, side):
        self.shapes.append(
            f'<draw:frame draw:style-name="plain" svg:x="{x}cm" svg:y="{y}cm" svg:width="{side}cm" svg:height="{side}cm">'
            f'<draw:image xlink:href="Pictures/{picture}.jpg" xlink:type="simple"/></draw:frame>'
        )

    def chart(self, book, row, labels, series, x=0.3, width=13.0, height=8.0, **axes):
        """series: name, range of x, range of y, kind ("line", "points" or both)."""
        number = book.add_chart(labels, series, width, height, **axes)
        self.shapes.append(
            f'<draw:frame draw:style-name="plain" svg:x="{x}cm" svg:y="{row * ROW_HEIGHT}cm" svg:width="{width}cm" '
            f'svg:height="{height}cm"><draw:object xlink:href="./Object {number}" xlink:type="simple"/></draw:frame>'
        )

    def xml(self):
        out = [f'<table:table table:name="{self.name}" table:style-name="{self.style}" table:print="{str(self.printed).lower()}">']
        out.append(f'<table:shapes>{"".join(self.shapes)}</table:shapes>' if self.shapes else "")
        out.append('<table:table-column table:style-name="label"/>')
        out.append(f'<table:table-column table:style-name="narrow" table:number-columns-repeated="{COLUMNS}"/>')
        rows = {}
        for (row, column), cell in self.cells.items():
            rows.setdefault(row, {})[column] = cell
        next_row = 0
        for row in sorted(rows):
            if row > next_row:
                out.append(f'<table:table-row table:style-name="line" table:number-rows-repeated="{row - next_row}"><table:table-cell/></table:table-row>')
            out.append(f'<table:table-row table:style-name="line">{self.row_xml(rows[row])}</table:table-row>')
            next_row = row + 1
        out.append("</table:table>")
        return "".join(out)

    @staticmethod
    def row_xml(cells):
        out, next_column = [], 0
        for column in sorted(cells):
            if column > next_column:
                out.append(f'<table:table-cell table:number-columns-repeated="{column - next_column}"/>')
            out.append(cell_xml(*cells[column]))
            next_column = column + 1
        return "".join(out)


def cell_xml(content, style):
    if isinstance(content, str) and content.startswith("="):
        block = getattr(content, "rows", 0)
        extent = f' table:number-matrix-rows-spanned="{block}" table:number-matrix-columns-spanned="{content.columns}"' if block else ""
        return f'<table:table-cell table:style-name="{style}" table:formula={quoteattr("of:" + content)}{extent}/>'
    if isinstance(content, str):
        return f'<table:table-cell table:style-name="{style}" office:value-type="string"><text:p>{escape(content)}</text:p></table:table-cell>'
    return f'<table:table-cell table:style-name="{style}" office:value-type="float" office:value="{content!r}"/>'


def typed(text):
    """A reading as the cell takes it: a number where it is one."""
    try:
        return float(text)
    except ValueError:
        return text


class Book:
    def __init__(self, readings, results):
        self.readings, self.results = readings, results
        self.sheets, self.charts = [], []
        self.posted = {}  # (material, result) -> cell

    def add(self, name, **more):
        self.sheets.append(Sheet(name, **more))
        return self.sheets[-1]

    def head(self, name):
        return self.readings.text("head", "", name)

    def texts(self, test, material, name, *extent, **more):
        return [[typed(text) for text in row] for row in self.readings.texts(test, material, name, *extent, **more)]

    def add_chart(self, *of, **axes):
        self.charts.append(chart_xml(*of, **axes))
        return len(self.charts)

    def build(self):
        table = self.add("water", printed=False)
        table.down(0, 0, [float(celsius) for celsius in range(10, 40)])
        table.down(0, 1, WATER_DENSITY)
        for material in ("soil", "crush"):
            for test in [t for t, of in self.results if of == material]:
                self.cover(test, material)
                page = self.framed(test, material, f"{test} {material}")
                getattr(self, test if test not in ("std", "mod") else "compaction")(page, test, material)
        self.overall()

    def cover(self, test, material):
        page = self.add(f"cover {test} {material}")
        page.image("cov_logo", 8.2, 2.0, 2.5)
        lines = [TITLES[test][2], self.head("txtProject"), self.head("txtLocation"), "เสนอ", self.head("txtClient"), "โดย", DEPARTMENT, INSTITUTE]
        for line, row in zip(lines, (14, 18, 20, 29, 31, 41, 43, 45)):
            page.put(row, 2, line, "cover")

    def framed(self, test, material, name):
        page = self.add(name)
        page.image("ins_logo", 0.2, 0.6, 2.1)
        page.image("dep_logo", 17.0, 0.6, 2.1)
        page.run(0, 2, [BANNER], "italic")
        page.down(1, 3, [DEPARTMENT, INSTITUTE, *TITLES[test][:2]], "title")
        rows = [("Client Name : " + self.head("txtClient"), "Report No. : " + self.head("txtID")),
                ("Project Name : " + self.head("txtProject"), "Date of Test : 21/11/2026"),
                ("Location : " + self.head("txtLocation"), "Sample : " + self.readings.text(test, material, "txtSoil"))]  # fmt: skip
        for row, (left, right) in enumerate(rows):
            page.put(6 + row, 0, left, "plain")
            page.put(6 + row, 7, right, "plain")
        return page

    def signed(self, page, row, test, material):
        names = [self.readings.text(test, material, "cboTest"), self.readings.text(test, material, "cboCheck"), ""]
        for i, (label, name) in enumerate(zip(("Tested by", "Checked by", "Approved by"), names)):
            page.put(row + 2 * i, 6, f"{label} {DOTS}", "plain")
            page.put(row + 2 * i + 1, 8, f"({name})", "plain")

    def reading_rows(self, page, row, labels, grid):
        for label, values in zip(labels, grid):
            page.put(row, 0, label)
            page.run(row, 1, values, "general")
            row += 1
        return row

    def formula_row(self, page, row, label, columns, formula, style, given):
        """A formula in each column that has a reading in the row `given`."""
        page.put(row, 0, label)
        for column in columns:
            page.put(row, column, f'=IF(ISNUMBER({at(given, column)});{formula(column)};"")', style)
        return row

    def water_rows(self, page, row, wet, dry, can, columns, labels):
        water = self.formula_row(page, row, labels[0], columns, lambda c: f"ROUND({at(wet, c)}-{at(dry, c)};2)", "two", wet)
        soil = self.formula_row(page, row + 1, labels[1], columns, lambda c: f"ROUND({at(dry, c)}-{at(can, c)};2)", "two", wet)
        return self.formula_row(page, row + 2, labels[2], columns, lambda c: f"ROUND({at(water, c)}/{at(soil, c)}*100;2)", "two", wet)

    def att(self, page, test, material):
        five, masses = range(1, 6), ["Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"]
        worked = ["Mass of Water, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)"]
        page.put(10, 0, "Liquid Limit Determination", "bold")
        page.run(11, 0, ["Test No.", *map(float, five)], "bold")
        self.reading_rows(page, 12, ["Number of Blows", *masses], self.texts(test, material, "MSHLL", 4, 5))
        content = self.water_rows(page, 16, 13, 14, 15, five, worked)
        page.put(19, 0, "Plastic Limit Determination", "bold")
        page.run(20, 0, ["Test No.", *map(float, five)], "bold")
        self.reading_rows(page, 21, masses, self.texts(test, material, "MSHPL", 3, 5))
        plastic = self.water_rows(page, 24, 21, 22, 23, five, worked)
        self.formula_row(page, 27, "Plastic Limit, (%)", five, lambda c: at(plastic, c), "two", 21)
        page.put(28, 0, "Average Plastic Limit, (%)")
        pl = page.put(28, 3, f"=ROUND(AVERAGE({span(27, 1, 27, 5)});2)", "two")
        curve = self.add(f"{page.name} curve", printed=False)
        blows, water = self.results[test, material]["blows"], f"'{page.name}'"
        for i in range(len(blows)):
            curve.put(i, 0, f"=[${water}.{column_name(1 + i)}13]")
            curve.put(i, 1, f"=LOG10({at(i, 0)})")
            curve.put(i, 2, f"=[${water}.{column_name(1 + i)}{content + 1}]")
        last = len(blows) - 1
        slope = curve.put(0, 3, f"=SLOPE({span(0, 2, last, 2)};{span(0, 1, last, 1)})")
        base = curve.put(1, 3, f"=INTERCEPT({span(0, 2, last, 2)};{span(0, 1, last, 1)})")
        curve.down(2, 3, [10.0, 100.0])
        curve.down(2, 4, [f"={base}+{slope}*LOG10({at(row, 3)})" for row in (2, 3)])
        page.put(30, 6, "Summary of Test Results", "bold")
        labels = ["Liquid Limit (LL)", "Plastic Limit (PL)", "Plasticity Index (PI)", "Flow Index (PI)"]
        page.down(31, 6, labels)
        ll = page.put(31, 9, f"=ROUND({base}+{slope}*LOG10(25);2)", "two")
        page.put(32, 9, f"={pl}", "two")
        pi = page.put(33, 9, f"={ll}-{pl}", "two")
        fi = page.put(34, 9, f"=ROUND(-{slope};2)", "two")
        curve.down(4, 3, [25.0, 25.0, 10.0])
        curve.down(4, 4, [0.0, f"={ll}", f"={ll}"])
        self.posted.update({(material, key): cell for key, cell in zip(("LL", "PL", "PI", "FI"), (ll, pl, pi, fi))})
        name = curve.name
        series = [("flow curve", (name, 2, 3, 3), (name, 2, 3, 4), "line"), ("trials", (name, 0, last, 0), (name, 0, last, 2), "points"),
                  ("N = 25", (name, 4, 6, 3), (name, 4, 6, 4), "line")]  # fmt: skip
        page.chart(self, 30, ("Number of Blows", "Water Content , %"), series, width=12, logarithmic=True)
        self.signed(page, 38, test, material)

    def sie(self, page, test, material):
        of = self.results[test, material]
        count, points = len(of["names"]), len(of["x"])
        page.put(10, 0, "Wet Sieving Method" if of["washed"] else "Dry Sieving Method")
        page.down(10, 1, ["Dry Mass of Original Sample", "Dry Mass after Washing", "Mass Loss through Washing"])
        original = page.put(10, 4, float(self.readings.number(test, material, "txtGsoil")), "two")
        washed = self.readings.number(test, material, "txtDwp")
        page.put(11, 4, washed or "", "two")
        lost = page.put(12, 4, f'=IF(ISNUMBER({at(11, 4)});ROUND({at(10, 4)}-{at(11, 4)};2);0)', "two")
        page.down(10, 6, ["Gravel Fraction", "Sand Fraction", "Fine Fraction"])
        page.run(14, 0, ["Sieve Number", "Opening", "Sieve", "+ Soil", "Retained", "Cumulative", "Cum. (%)", "Passing (%)"], "bold")
        cells = self.readings.cells[test, material, "MSHSieve"]
        first, end = 15, 15 + count - 1
        for i, name in enumerate(of["names"]):
            row = first + i
            page.put(row, 0, name)
            page.put(row, 1, float(OPENINGS[name]) if OPENINGS[name] else "", "general")
            page.run(row, 2, [float(cells[i + 1, 2]), float(cells[i + 1, 3])], "general")
            washing = f"+{lost}" if name == "Pan" else ""
            page.put(row, 4, f"=ROUND({at(row, 3)}-{at(row, 2)}{washing};2)", "two")
            page.put(row, 5, f"=ROUND(SUM({span(first, 4, row, 4)});2)", "two")
            page.put(row, 6, f"=ROUND({at(row, 5)}/{at(26, 5)}*100;1)", "one")
            page.put(row, 7, f"=ROUND(100-{at(row, 6)};1)", "one")
        page.put(26, 4, "Total")
        total = page.put(26, 5, f"=SUM({span(first, 3, end, 3)})-SUM({span(first, 2, end, 2)})+{lost}", "two")
        error = page.put(27, 5, f"=ROUND(ABS({total}-{original})/{original}*100;2)", "two")
        page.put(27, 0, f'="Remark :  Percent mass loss due to sieving of this test is "&TEXT({error};"0.00")&"% which is "&IF({error}<2;"less than 2% then the test need not be rerun.";"more than 2% then the test should be rerun.")', "plain")
        passing, sizes = span(first, 7, first + points - 1, 7), span(first, 1, first + points - 1, 1)
        page.run(29, 0, ["D10 (mm)", "D30 (mm)", "D60 (mm)", "Cu", "Cc"], "bold")
        diameters = {}
        for column, level in enumerate((10, 30, 60)):
            above = f"MATCH({level};{passing};-1)"
            size = lambda offset: f"INDEX({sizes};{above}{offset})"  # noqa: E731,B023
            share = lambda offset: f"INDEX({passing};{above}{offset})"  # noqa: E731,B023
            value = f"{size('')}-({size('')}-{size('+1')})*({share('')}-{level})/({share('')}-{share('+1')})"
            diameters[level] = page.put(30, column, f"=IF({at(first + points - 1, 7)}>{level};0;{value})", "three")
        d10, d30, d60 = (diameters[level] for level in (10, 30, 60))
        cu = page.put(30, 3, f'=IF({d10}=0;"";ROUND({d60}/{d10};2))', "two")
        cc = page.put(30, 4, f'=IF({d10}=0;"";ROUND({d30}^2/({d60}*{d10});2))', "two")
        at_sieve = lambda name: f"INDEX({span(first, 7, end, 7, page.name)};MATCH(\"{name}\";{span(first, 0, end, 0, page.name)};0))"  # noqa: E731
        gravel = page.put(10, 9, f"=IFERROR(ROUND(100-{at_sieve('#4')};2);0)", "two")
        sand = page.put(11, 9, f"=ROUND(100-{gravel}-{at_sieve('#200')};2)", "two")
        fines = page.put(12, 9, f"={at_sieve('#200')}", "two")
        ll, pi = self.posted[material, "LL"], self.posted[material, "PI"]
        page.put(32, 0, f'="Engineering Soil Classification (LL = "&TEXT({ll};"0.00")&" % PI = "&TEXT({pi};"0.00")&" %)"', "bold")
        page.down(33, 0, ["Unified Soil Classification System (USCS)", "Group Symbol", "Group Name", "AASHTO Classification System", "Group Symbol", "Typical Names"])
        work = self.add(f"{page.name} class", printed=False)
        clayey = work.put(0, 0, f"=AND({pi}>=4;{pi}>=0.73*({ll}-20))")
        sandy = work.put(1, 0, f"=(100-{fines})/2<={sand}")
        letter = work.put(2, 0, f'=IF({sandy};"S";"G")')
        well = work.put(3, 0, f"=IF(ISNUMBER({cu});AND({cu}>=IF({sandy};6;4);{cc}>=1;{cc}<=3);FALSE())")
        fine = work.put(4, 0, f'={letter}&IF({clayey};"C";"M")')
        many = work.put(5, 0, f'=IF(AND({clayey};{pi}<=7);{letter}&"C-"&{letter}&"M";{fine})')
        grade = work.put(6, 0, f'={letter}&IF({well};"W";"P")')
        small = work.put(7, 0, f'=IF({clayey};IF({pi}<=7;"CL-ML";"C"&IF({ll}>=50;"H";"L"));"M"&IF({ll}>=50;"H";"L"))')
        uscs = page.put(34, 1, f'=IF({fines}>=50;{small};IF({fines}>12;{many};IF({fines}<5;{grade};{grade}&"-"&{fine})))')
        other = work.put(8, 0, f"=IF({sandy};{gravel};{sand})>=15")
        front = work.put(9, 0, f'=IF({fines}>12;IF({clayey};"Clayey ";"Silty ");IF({well};"Well-graded ";"Poorly-graded "))&IF({sandy};"sand";"gravel")')
        behind = work.put(10, 0, f'=IF(AND({fines}<=12;{fines}>=5);IF({clayey};"clay";"silt");"")')
        second = work.put(11, 0, f'=IF({other};IF({sandy};"gravel";"sand");"")')
        page.put(35, 1, f'={front}&IF(AND({behind}="";{second}="");"";" with "&{behind}&IF(OR({behind}="";{second}="");"";" and ")&{second})')
        p10, p40 = at_sieve("#10"), at_sieve("#40")
        kind = work.put(12, 0, f"=IF({pi}<=10;IF({ll}<=40;4;5);IF({ll}<=40;6;7))")
        fragments = f'IF(AND({p10}<=50;{p40}<=30;{fines}<=15;ABS({p40}-50)>ABS({p40}-30));"A-1-a";"A-1-b")'
        coarse = f'IF(AND({pi}<=6;{p40}<=50;{fines}<=25);{fragments};IF(AND({pi}=0;{p40}>=51;{fines}<=10);"A-3";"A-2-"&{kind}))'
        silts = f'IF({kind}<7;"A-"&{kind};IF({ll}-30>={pi};"A-7-5";"A-7-6"))'
        group = work.put(13, 0, f"=IF({fines}<=35;{coarse};{silts})")
        a, b, c, d = (f"ROUND({value};0)" for value in (f"{fines}-35", f"{fines}-15", f"{ll}-40", f"{pi}-10"))
        index = work.put(14, 0, f'=MAX(0;TRUNC(IF(OR({group}="A-2-6";{group}="A-2-7");0.01*{b}*{d};0.005*{a}*{c}+0.2*{a}+0.01*{b}*{d})))')
        aashto = page.put(37, 1, f'={group}&"("&{index}&")"')
        page.put(38, 1, f'=IF({group}="A-1-a";"Stone or gravel fragments";IF({group}="A-1-b";"Gravel and sand mixtures";IF(LEFT({group};3)="A-2";"Silty gravel and sand";IF({kind}>5;"Clayey soils";"Silty soils"))))')
        self.posted.update({(material, key): cell for key, cell in zip(
            ("gravel", "sand", "fines", "USCS", "AASHTO", "D60"), (gravel, sand, fines, uscs, aashto, d60))})  # fmt: skip
        self.signed(page, 41, test, material)
        side = self.add(f"sie chart {material}", style="landscape")
        side.put(0, 4, "PARTICLE SIZE DISTRIBUTION CURVE", "bold")
        end_of_curve, name = first + points - 1, page.name
        series = [("curve", (name, first, end_of_curve, 1), (name, first, end_of_curve, 7), "both")]
        side.chart(self, 3, ("Grain Size(mm)", "Percent Passing (%)"), series, width=19, height=14, logarithmic=True)

    def spc(self, page, test, material):
        of = self.results[test, material]
        flask = [row for row in self.texts(test, material, "MSHCalibration", 7, 2)]
        count = sum(1 for row in flask if row[0] != "")
        page.put(10, 0, "Calibration Data", "bold")
        page.run(11, 0, ["No.", "Mass (g)", "Celsius"], "bold")
        for i, row in enumerate(flask):
            page.run(12 + i, 0, [float(i + 1), *row], "general")
        curve = self.add(f"{page.name} curve", printed=False)
        sheet = f"'{page.name}'"
        for i in range(count):
            curve.put(i, 0, f"=[${sheet}.C{13 + i}]")
            curve.put(i, 1, f"={at(i, 0)}^2")
            curve.put(i, 2, f"=[${sheet}.B{13 + i}]")
            curve.put(i, 3, f"=LN({at(i, 2)})")
            curve.put(i, 4, f"=EXP({at(10, 0, True)}+{at(10, 1, True)}*{at(i, 0)})")
        last = count - 1
        x, y = span(0, 0, last, 0), span(0, 2, last, 2)
        curve.put(10, 0, f"=INTERCEPT({span(0, 3, last, 3)};{x})")
        curve.put(10, 1, f"=SLOPE({span(0, 3, last, 3)};{x})")
        curve.put(10, 3, f"=1-SUMXMY2({y};{span(0, 4, last, 4)})/DEVSQ({y})")
        curve.put(11, 0, f"=INTERCEPT({y};{x})")
        curve.put(11, 1, f"=SLOPE({y};{x})")
        curve.put(11, 3, f"=RSQ({y};{x})")
        curve.put(12, 0, array(f"=LINEST({y};{span(0, 0, last, 1)};1;1)", 3, 3))
        best = curve.put(10, 5, f"=IF(AND({at(10, 3)}>{at(11, 3)};{at(10, 3)}>{at(14, 0)});1;IF({at(11, 3)}>{at(14, 0)};2;3))")
        cell = lambda row, column: f"[$'{curve.name}'.${column_name(column)}${row + 1}]"  # noqa: E731
        fitted = lambda t: (  # noqa: E731
            f"CHOOSE({best};EXP({cell(10, 0)}+{cell(10, 1)}*{t});{cell(11, 0)}+{cell(11, 1)}*{t};"
            f"{cell(12, 2)}+{cell(12, 1)}*{t}+{cell(12, 0)}*{t}^2)"
        )
        for i in range(len(of["x"])):
            curve.put(20 + i, 0, f"=MIN({x})+0.1*{i}")
            curve.put(20 + i, 1, f"={fitted(at(20 + i, 0))}")
        end = 20 + len(of["x"]) - 1
        text = lambda row, column, mask: f'TEXT({cell(row, column)};"{mask}")'  # noqa: E731
        page.put(20, 0, f'="Equation of Curve :  y = "&CHOOSE({best};TEXT(EXP({cell(10, 0)});"0.00")&"e^("&{text(10, 1, "0.000000")}&"x)";'
                 f'{text(11, 0, "0.00")}&" + ("&{text(11, 1, "0.000000")}&"x)";'
                 f'{text(12, 2, "0.00")}&" + ("&{text(12, 1, "0.000000")}&"x) + ("&{text(12, 0, "0.000000")}&"x^2)")', "plain")  # fmt: skip
        page.put(21, 0, f'="R-squared Value :  "&TEXT(MAX({cell(10, 3)};{cell(11, 3)};{cell(14, 0)});"0.0000")', "plain")
        series = [("curve", (curve.name, 20, end, 0), (curve.name, 20, end, 1), "line"),
                  ("readings", (page.name, 12, 12 + last, 2), (page.name, 12, 12 + last, 1), "points")]  # fmt: skip
        page.chart(self, 10, ("Temperature (Degree Celsius)", "Weight of Water + Flask (g)"), series, x=9.5, width=10, height=6.5)
        page.put(25, 0, "Testing Data", "bold")
        page.run(26, 0, ["Trial No.", 1.0, 2.0, 3.0], "bold")
        trials = self.texts(test, material, "MSHSpecific", 6, 3)
        labels = ["Temperature, (Degree Celsius)", "Mass of Flask + Water, (g)", "Mass of Flask + Water + Soil, (g)", "Container No.",
                  "Mass of Dry Soil + Container, (g)", "Mass of Container, (g)"]  # fmt: skip
        self.reading_rows(page, 27, labels, trials)
        three = range(1, 4)
        for column in three:
            page.put(28, column, f"=ROUND({fitted(at(27, column))};2)", "two")
        dry = self.formula_row(page, 33, "Dry Soil, (g)", three, lambda c: f"ROUND({at(31, c)}-{at(32, c)};2)", "two", 27)
        look = lambda c: f"VLOOKUP(INT({at(27, c)});[$'water'.$A$1:.$B$30];2;0)"  # noqa: E731
        factor = self.formula_row(page, 34, "Correction Factor", three, lambda c: f"ROUND({look(c)}/0.9982;4)", "four", 27)
        self.formula_row(page, 35, "Specific Gravity at 20 Degree Celsius", three,
                         lambda c: f"ROUND({at(factor, c)}*{at(dry, c)}/({at(28, c)}+{at(dry, c)}-{at(29, c)});2)", "two", 27)  # fmt: skip
        page.put(36, 0, "Average Specific Gravity")
        self.posted[material, "Gs"] = page.put(36, 1, f"=ROUND(AVERAGE({span(35, 1, 35, 3)});2)", "two")
        self.signed(page, 40, test, material)

    def compaction(self, page, test, material):
        of, text = self.results[test, material], lambda name: self.readings.text(test, material, name)
        page.run(10, 0, [f"Number of Layer : {text('cboLayer')}", "", "Diameter", float(text("txtDia")), "cm"])
        page.run(11, 0, [f"Weight of Hammer : {text('cboWt')}", "", "Height", float(text("txtHeight")), "cm"])
        six = range(1, 7)
        page.put(12, 0, "Water Content Determination", "bold")
        page.run(13, 0, ["Sample No.", *map(float, six)], "bold")
        weighed = self.texts(test, material, "MSHWt", 4, 6)
        labels = ["Moisture Can No.", "Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"]
        masked = [[f"=ROUND({cell!r};2)" if isinstance(cell, float) else cell for cell in row] for row in weighed[1:]]
        page.put(14, 0, labels[0])
        page.run(14, 1, weighed[0], "general")
        for i, row in enumerate(masked):
            page.put(15 + i, 0, labels[1 + i])
            page.run(15 + i, 1, row, "two")
        content = self.water_rows(page, 18, 15, 16, 17, six, ["Mass of Water, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)"])
        page.put(21, 0, "Density Determination", "bold")
        molds = self.texts(test, material, "MSHDensity", 3, 6, first=0)
        self.reading_rows(page, 22, ["Assumed Water Content, (%)", "Mass of Soil + Mold, (g)", "Mass of Mold, (g)"], molds)
        self.formula_row(page, 25, "Water Content, (%)", six, lambda c: at(content, c), "two", 24)
        self.formula_row(page, 26, "Mass of Soil in Mold, (g)", six, lambda c: f"ROUND({at(23, c)}-{at(24, c)};2)", "two", 24)
        volume = "([.$D$12]*PI()*[.$D$11]^2/4)"
        self.formula_row(page, 27, "Wet Density, (g/cm^3)", six, lambda c: f"ROUND({at(26, c)}/{volume};2)", "two", 24)
        self.formula_row(page, 28, "Dry Density, (g/cm^3)", six, lambda c: f"ROUND({at(27, c)}/(1+{at(25, c)}/100);2)", "two", 24)
        curve, count = self.spline(page, of)
        water, density = span(20, 1, 19 + count, 1, curve.name), span(20, 2, 19 + count, 2, curve.name)
        page.down(10, 6, ["OMC (%)", "MDD (g/cm^3)"])
        mdd = page.put(11, 8, f"=ROUND(MAX({density});2)", "two")
        omc = page.put(10, 8, f"=ROUND(INDEX({water};SUMPRODUCT(MAX(({density}=MAX({density}))*ROW({density})))-20);1)", "one")
        self.posted[material, f"OMC {test}"], self.posted[material, f"MDD {test}"] = omc, mdd
        first = f"[$'{curve.name}'.$A$1]"
        curve.down(12, 5, [f"={omc}", f"={omc}", f"=INT({first})"])
        curve.down(12, 6, [f"=MIN([.$B$1:.$B${len(of['points'][0])}])-0.01", f"={mdd}", f"={mdd}"])
        air = self.air_void_line(curve, of, float(text("txtGs") or 0))
        name, points = curve.name, len(of["points"][0])
        series = [("compaction curve", (name, 20, 19 + count, 1), (name, 20, 19 + count, 2), "line"),
                  ("trials", (name, 0, points - 1, 0), (name, 0, points - 1, 1), "points"),
                  ("zero air voids", (name, 20, 19 + air, 8), (name, 20, 19 + air, 7), "line"),
                  ("peak", (name, 12, 14, 5), (name, 12, 14, 6), "line")]  # fmt: skip
        (x, y), low = of["points"], of["points"][1].min() - 0.01
        ends = (int(x.min()), int(x.max()) + 2), (low, low + 13 * max((y.max() - low) / 8, 0.01))
        page.chart(self, 31, ("Water Content , %", "Dry Density , g/cm^3"), series, width=12, ends=ends)
        self.signed(page, 38, test, material)

    def spline(self, page, of):
        """The points, the tridiagonal system with its solution, and a row a hundredth of a percent from line 21 on."""
        curve, sheet, n = self.add(f"{page.name} curve", printed=False), f"'{page.name}'", len(of["points"][0])
        for i in range(n):
            curve.put(i, 0, f"=[${sheet}.{column_name(1 + i)}26]")
            curve.put(i, 1, f"=[${sheet}.{column_name(1 + i)}29]")
            curve.put(i, 2, f"={at(i + 1, 0)}-{at(i, 0)}" if i < n - 1 else "")
            inner = 0 < i < n - 1
            right = f"=6*(({at(i + 1, 1)}-{at(i, 1)})/{at(i, 2)}-({at(i, 1)}-{at(i - 1, 1)})/{at(i - 1, 2)})" if inner else 0.0
            curve.put(i, 3, right)
            for j in range(n):
                entry = 1.0 if i == j else 0.0
                if inner and j == i - 1:
                    entry = f"={at(i - 1, 2)}"
                elif inner and j == i:
                    entry = f"=2*({at(i - 1, 2)}+{at(i, 2)})"
                elif inner and j == i + 1:
                    entry = f"={at(i, 2)}"
                elif inner:
                    entry = 0.0
                curve.put(i, 5 + j, entry)
        system = span(0, 5, n - 1, 4 + n)
        curve.put(0, 4, array(f"=ROUND(MMULT(MINVERSE({system});{span(0, 3, n - 1, 3)});7)", n, 1))
        row, x = 20, of["points"][0]
        for i in range(n - 1):
            count = int(abs(x[i + 1] - x[i]) / 0.01)
            sign = "+" if x[i + 1] > x[i] else "-"
            steps = [f"={at(i, 0, True)}{sign}{k + (i > 0)}*0.01" for k in range(count + 1)]
            for step in steps + ([f"={at(1, 0, True)}"] if i == 0 else []):
                curve.put(row, 0, step)
                curve.put(row, 1, f"=ROUND({at(row, 0)};3)")
                h, a, b = at(i, 2, True), f"({at(i + 1, 0, True)}-{at(row, 0)})", f"({at(row, 0)}-{at(i, 0, True)})"
                value = (f"({a}^3/{h}-{h}*{a})*{at(i, 4, True)}/6+({b}^3/{h}-{h}*{b})*{at(i + 1, 4, True)}/6"
                         f"+({a}*{at(i, 1, True)}+{b}*{at(i + 1, 1, True)})/{h}")  # fmt: skip
                curve.put(row, 2, f"=ROUND({value};7)")
                row += 1
        return curve, row - 20

    def air_void_line(self, curve, of, gravity):
        n, count = len(of["points"][0]), len(of["air"][0])
        densities = span(0, 1, n - 1, 1)
        curve.put(12, 7, f"=MIN({densities})-0.01")
        curve.put(13, 7, f"=MOD(ROUND((MAX({densities})-{at(12, 7)})/8;2);1)")
        curve.put(14, 7, f"={at(12, 7)}+13*{at(13, 7)}")
        curve.put(15, 7, f"=12*{at(13, 7)}")
        for k in range(count):
            curve.put(20 + k, 7, f"={at(14, 7, True)}-{at(15, 7, True)}*{k + 1}/1000")
            curve.put(20 + k, 8, f"=100/{at(20 + k, 7)}-100/{gravity!r}")
        return max(count, 1)

    def den(self, page, test, material):
        blocks = [("MSHWsand", "Mass of Sand in Cone", ["Initial Mass of Jar + Sand + Cone, (g)", "Final Mass of Jar + Sand + Cone, (g)"]),
                  ("MSHDsand", "Density of Sand used Mold", ["Diameter, (cm)", "Height, (cm)", "Mass of Empty Mold + Baseplate, (g)",
                                                              "Mass of Mold + Sand + Baseplate, (g)"]),
                  ("MSHWsoil", "Mass of Wet Soil", ["Mass of Wet Soil + Pan, (g)", "Mass of Pan, (g)"])]  # fmt: skip
        six, row, tops = range(1, 7), 10, []
        for name, caption, labels in blocks:
            page.put(row, 0, caption, "bold")
            tops.append(row + 1)
            row = self.reading_rows(page, row + 1, labels, self.texts(test, material, name, len(labels), 6))
            row += {"MSHWsand": 2, "MSHDsand": 3, "MSHWsoil": 1}[name]
        cone, sand, soil = tops
        self.formula_row(page, cone + 2, "Mass of Sand in Cone, (g)", six, lambda c: f"{at(cone, c)}-{at(cone + 1, c)}", "general", cone)
        page.put(cone + 3, 0, "Average, (g)")
        mean = page.put(cone + 3, 2, f"=ROUND(AVERAGE({span(cone + 2, 1, cone + 2, 6)});2)", "two")
        self.formula_row(page, sand + 4, "Mass of Sand, (g)", six, lambda c: f"{at(sand + 3, c)}-{at(sand + 2, c)}", "general", sand)
        self.formula_row(page, sand + 5, "Volume of Mold, (cm^3)", six, lambda c: f"ROUND(3.141592654*{at(sand, c)}^2/4*{at(sand + 1, c)};2)", "two", sand)
        page.put(sand + 6, 0, "Density of Sand, (g/cm^3)")
        given = len([cell for cell in self.texts(test, material, "MSHDsand", 1, 6)[0] if cell != ""])
        ratio = "+".join(f"{at(sand + 4, c)}/{at(sand + 5, c)}" for c in range(1, given + 1))
        loose = page.put(sand + 6, 2, f"=ROUND(({ratio})/{given};2)", "two")
        self.formula_row(page, soil + 2, "Mass of Wet Soil, (g)", six, lambda c: f"{at(soil, c)}-{at(soil + 1, c)}", "general", soil)
        top = soil + 4
        page.put(top - 1, 0, "Volume from Sand Cone Method", "bold")
        self.reading_rows(page, top, ["Initial of Soil + Jar + Cone, (g)", "Final of Soil + Jar + Cone, (g)"], self.texts(test, material, "MSHVolume", 2, 6))
        self.formula_row(page, top + 2, "Mass of Sand in Cone, (g)", six, lambda c: mean, "two", top)
        self.formula_row(page, top + 3, "Mass of Sand in Hole, (g)", six, lambda c: f"{at(top, c)}-{at(top + 1, c)}-{at(top + 2, c)}", "general", top)
        self.formula_row(page, top + 4, "Density of Sand, (g/cm^3)", six, lambda c: loose, "two", top)
        self.formula_row(page, top + 5, "Volume of Hole, (cm^3)", six, lambda c: f"ROUND({at(top + 3, c)}/{at(top + 4, c)};2)", "two", top)
        water = top + 7
        page.put(water - 1, 0, "Water Content of Soil", "bold")
        self.reading_rows(page, water, ["Mass of Wet Soil + Can, (g)", "Mass of Dry Soil + Can, (g)", "Mass of Can, (g)"], self.texts(test, material, "MSHWater", 3, 6))
        content = self.water_rows(page, water + 3, water, water + 1, water + 2, six, ["Mass of Wet Soil, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)"])
        last = content + 2
        page.put(last - 1, 0, "Summary", "bold")
        reference = "std" if self.readings.text(test, material, "optStd") else "mod"
        self.formula_row(page, last, "Max. Dry Density in Lab,(g/cm^3)", six, lambda c: self.posted[material, f"MDD {reference}"], "two", water)
        self.formula_row(page, last + 1, "Wet Density in Field, (g/cm^3)", six, lambda c: f"ROUND({at(soil + 2, c)}/{at(top + 5, c)};2)", "two", water)
        self.formula_row(page, last + 2, "Dry Density in Field, (g/cm^3)", six, lambda c: f"ROUND({at(last + 1, c)}/(1+{at(content, c)}/100);2)", "two", water)
        self.formula_row(page, last + 3, "Percent Compaction, (%)", six, lambda c: f"ROUND({at(last + 2, c)}/{at(last, c)}*100;2)", "two", water)
        work = self.add(f"{page.name} mean", printed=False)
        self.posted[material, "compaction"] = work.put(0, 0, f"=ROUND(AVERAGE({span(last + 3, 1, last + 3, 6, page.name)});2)", "two")
        self.signed(page, last + 5, test, material)

    def cbr(self, page, test, material):
        of, text = self.results[test, material], lambda name: self.readings.text(test, material, name)
        six, reference = range(1, 7), "std" if text("optStd") else "mod"
        kind = {"std": "Standard", "mod": "Modified"}[reference] + " Compaction"
        page.run(10, 0, [kind, "", "Soaked CBR"], "bold")
        page.run(11, 0, ["OMC (%)", f"={self.posted[material, 'OMC ' + reference]}"], "one")
        page.run(12, 0, ["MDD (g/cm^3)", f"={self.posted[material, 'MDD ' + reference]}"], "two")
        page.run(11, 2, ["Prv. Constant (K)", "", float(text("txtK"))], "general")
        page.run(12, 2, ["Surcharge Weight", "", float(text("txtWeight"))], "general")
        page.run(10, 6, ["CBR Solution", "", "1", "2", "3"], "bold")
        page.down(11, 6, ["CBR at 0.1 in. (%)", "CBR at 0.2 in. (%)"])
        page.put(14, 0, "Water Content Determination", "bold")
        water = self.texts(test, material, "MSHWater", 4, 6)
        self.reading_rows(page, 15, ["Can No.", "Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"], water)
        content = self.formula_row(page, 19, "Moistue Content, (%)", six, lambda c: f"ROUND(({at(16, c)}-{at(17, c)})/({at(17, c)}-{at(18, c)})*100;2)", "two", 16)
        page.put(20, 0, "Dry Density Determination", "bold")
        page.run(21, 0, ["Mold No.", *"123123"], "bold")
        mold = self.texts(test, material, "MSHCompaction", 5, 6, first=2)
        labels = ["Number of Blows per Layer/Layers", "Diameter of Sample, (cm)", "Height of Sample, (cm)", "Mass of Mold + Compacted Soil, (g)", "Mass of Mold, (g)"]
        self.reading_rows(page, 22, labels, mold)
        self.formula_row(page, 27, "Wet Density, (g/cm^3)", six, lambda c: f"ROUND(({at(25, c)}-{at(26, c)})/(PI()*{at(23, c)}^2/4*{at(24, c)});2)", "two", 23)
        self.formula_row(page, 28, "Dry Density, (g/cm^3)", six, lambda c: f"ROUND({at(27, c)}/(1+{at(content, c)}/100);2)", "two", 23)
        page.put(29, 0, "Results of Testing", "bold")
        page.put(32, 0, "Swelling Determination", "bold")
        page.run(33, 0, ["Date", "Time", "Hours", "1 (mm)", "(%)", "2 (mm)", "(%)", "3 (mm)", "(%)"], "bold")
        cells = self.readings.cells[test, material, "MSHSwell"]
        for i in range(4):
            day, month, year = cells[3 + i, 0].split("/")
            page.put(34 + i, 0, f"=DATE({int(year)};{int(month)};{int(day)})", "date")
            page.put(34 + i, 1, float(cells[3 + i, 1]), "general")
            page.put(34 + i, 2, f"=({at(34 + i, 0)}-{at(34, 0, True)})*24+INT({at(34 + i, 1)}-{at(34, 1, True)})", "general")
            for m, column in enumerate((3, 5, 7)):
                page.put(34 + i, column, float(cells[3 + i, column]), "general")
                page.put(34 + i, column + 1, f"=ROUND(({at(34 + i, column)}-{at(34, column, True)})/{at(24, 1 + m, True)}*10;2)", "two")
        self.signed(page, 42, test, material)
        self.penetration(page, test, material, of, kind, self.posted[material, f"MDD {reference}"])

    def penetration(self, front, test, material, of, kind, mdd):
        page = self.framed(test, material, f"cbr 2 {material}")
        page.run(10, 0, ["Penetration (in)", *("Dial (div)", "Load (lb)", "Stress") * 3], "bold")
        first, count = 11, len(of["depths"])
        last = first + count - 1
        cells = self.readings.cells[test, material, "MSHPenetrate1"]
        for i in range(count):
            page.put(first + i, 0, float(cells[i, 0]), "general")
            for m in range(3):
                dial = 1 + 3 * m
                page.put(first + i, dial, float(cells[i, dial]), "general")
                page.put(first + i, dial + 1, f"=ROUND([$'{front.name}'.$E$12]*{at(first + i, dial)};1)", "one")
                page.put(first + i, dial + 2, f"=ROUND({at(first + i, dial + 1)}/3;2)", "two")
        curve, sheet = self.add(f"{page.name} curve", printed=False), f"'{page.name}'"
        for i in range(count):
            curve.put(i, 0, f"=[${sheet}.A{first + i + 1}]")
            for power in range(2, 6):
                curve.put(i, power - 1, f"={at(i, 0)}^{power}")
        powers = span(0, 0, count - 1, 4)
        value = lambda m, x: "+".join(f"{at(30 + m, 4 - k, True)}*{x}^{k + 1}" for k in range(5))  # noqa: E731
        for m in range(3):
            curve.put(30 + m, 0, array(f"=LINEST({span(first, 3 + 3 * m, last, 3 + 3 * m, page.name)};{powers};0)", 1, 5))
            front.put(11, 8 + m, f"=ROUND(({self.on(curve, value(m, '0.1'))})/1000*100;1)", "one")
            front.put(12, 8 + m, f"=ROUND(({self.on(curve, value(m, '0.2'))})/1500*100;1)", "one")
        for k in range(len(of["at"])):
            curve.put(40 + k, 0, float(k + 2) / 1000)
            for m in range(3):
                curve.put(40 + k, 1 + m, f"={value(m, at(40 + k, 0))}")
        for m in range(3):  # the parabolas through the three molds
            density = f"[$'{front.name}'.{column_name(4 + m)}29]"
            curve.run(34 + m, 0, [1.0, f"={density}", f"={density}^2"])
            for row in (11, 12):
                curve.put(34 + m, row - 7, f"=[$'{front.name}'.{column_name(8 + m)}{row + 1}]")
        for column in (4, 5):
            curve.put(34, column + 2, array(f"=MMULT(MINVERSE({span(34, 0, 36, 2)});{span(34, column, 36, column)})", 3, 1))
        end = 40 + len(of["at"]) - 1
        parabola = lambda column, x: f"{at(34, column, True)}+{at(35, column, True)}*{x}+{at(36, column, True)}*{x}^2"  # noqa: E731
        for k in range(len(of["x"])):
            curve.put(40 + k, 6, f"={at(34, 1, True)}+{k}*0.001")
            for column in (6, 7):
                curve.put(40 + k, column + 1, f"={parabola(column, at(40 + k, 6))}")
        curve.put(37, 6, f"=0.95*{mdd}")
        design = curve.put(38, 6, f"=ROUND({parabola(7, at(37, 6))};1)")
        self.posted[material, "CBR"] = design
        front.put(30, 0, f'="CBR Value at 95% of {kind} is "&TEXT({design};"0.0")&" %"')
        name, along = curve.name, 40 + len(of["x"]) - 1
        series = [(f"Mold No.{m + 1} curve", (name, 40, end, 0), (name, 40, end, 1 + m), "line") for m in range(3)]
        series += [(f"Mold No.{m + 1}", (page.name, first, last, 0), (page.name, first, last, 3 + 3 * m), "points") for m in range(3)]
        page.chart(self, 26, ("Penetration, in", "Resistance of Penetration, lb/in^2"), series, width=9.3)
        series = [(f"CBR at 0.{1 + c} in. curve", (name, 40, along, 6), (name, 40, along, 7 + c), "line") for c in range(2)]
        series += [(f"CBR at 0.{1 + c} in.", (name, 34, 36, 1), (name, 34, 36, 4 + c), "points") for c in range(2)]
        page.chart(self, 26, ("Dry Density, g/cm^3", "California Bearing Ratio, %"), series, x=9.8, width=9.3)
        page.put(44, 0, f"=\"Dry Density is \"&TEXT([$'{front.name}'.$E$29];\"0.00\")&\" g/cm^3\"", "plain")
        page.put(45, 0, f"=\"CBR Value at 0.1 in. Penetration is \"&TEXT([$'{front.name}'.$I$12];\"0.0\")&\" %\"", "plain")
        page.put(46, 0, f"=\"CBR Value at 0.2 in. Penetration is \"&TEXT([$'{front.name}'.$I$13];\"0.0\")&\" %\"", "plain")

    @staticmethod
    def on(sheet, formula):
        """The formula, its cells read from that sheet."""
        return formula.replace("[.", f"[$'{sheet.name}'.")

    def overall(self):
        page = self.add("overall")
        page.image("cov_logo", 0.2, 0.4, 2.1)
        page.put(1, 2, "โปรแกรมเทอร์ราเวน สำหรับงานทดสอบวัสดุก่อสร้างทาง", "title")
        page.put(2, 2, "Terravane Program", "title")
        page.put(6, 0, "Project Name : " + self.head("txtProject"), "plain")
        page.put(7, 0, "Location : " + self.head("txtLocation"), "plain")
        page.put(9, 3, "Summary of Test Results", "title")
        page.run(11, 0, ["Property", "", "", "", "Soil", "", "Crushed Rock"], "bold")
        lines = [("LL", "Liquid Limit (LL), %", "two"), ("PL", "Plastic Limit (PL), %", "two"), ("PI", "Plasticity Index (PI), %", "two"),
                 ("FI", "Flow Index (FI)", "two"), ("gravel", "Gravel Fraction (GF), %", "one"), ("sand", "Sand Fraction (SF), %", "one"),
                 ("fines", "Fine Fraction (Passing #200), %", "one"), ("USCS", "USCS", "cell"), ("AASHTO", "AASHTO", "cell"),
                 ("Gs", "Average Specific Gravity (Gs)", "two"), ("OMC std", "Standard Compaction: OMC, %", "one"),
                 ("MDD std", "Standard Compaction: MDD, g/cm^3", "two"), ("OMC mod", "Modified Compaction: OMC, %", "one"),
                 ("MDD mod", "Modified Compaction: MDD, g/cm^3", "two"), ("CBR", "Percent CBR, %", "one"),
                 ("compaction", "Average Percent Compaction, %", "two"), ("D60", "D60, mm", "three")]  # fmt: skip
        for i, (key, label, style) in enumerate(lines):
            page.put(12 + i, 0, label)
            for column, material in ((4, "soil"), (6, "crush")):
                if (material, key) in self.posted:
                    page.put(12 + i, column, "=" + self.posted[material, key], style)
        page.put(32, 0, "Remark: * indicates that the test was performed using a wet sieve or an unsoaked CBR.", "italic")


def chart_xml(labels, series, width, height, logarithmic=False, ends=((), ())):
    """ends: lowest and highest value of each axis; empty where the spreadsheet chooses."""
    x, y = (f'chart:minimum="{end[0]:g}" chart:maximum="{end[1]:g}"' if end else "" for end in ends)
    address = lambda place: f"$'{place[0]}'.${column_name(place[3])}${place[1] + 1}:$'{place[0]}'.${column_name(place[3])}${place[2] + 1}"  # noqa: E731
    styles = [f'<style:style style:name="x" style:family="chart"><style:chart-properties chart:display-label="true" chart:logarithmic="{str(logarithmic).lower()}" {x}/></style:style>',
              f'<style:style style:name="y" style:family="chart"><style:chart-properties chart:display-label="true" {y}/></style:style>']  # fmt: skip
    colours = ["#0000ff", "#000000", "#c000c0", "#ff0000", "#008000", "#808080"]
    body = []
    for i, (_, _, _, kind) in enumerate(series):
        line = "solid" if kind != "points" else "none"
        symbol = 'chart:symbol-type="none"' if kind == "line" else 'chart:symbol-type="named-symbol" chart:symbol-name="circle" chart:symbol-width="0.15cm" chart:symbol-height="0.15cm"'
        styles.append(f'<style:style style:name="s{i}" style:family="chart"><style:chart-properties {symbol}/>'
                      f'<style:graphic-properties draw:stroke="{line}" svg:stroke-width="0.03cm" svg:stroke-color="{colours[i % 6]}" draw:fill-color="{colours[i % 6]}"/></style:style>')  # fmt: skip
    for i, (_, across, up, _) in enumerate(series):
        body.append(f'<chart:series chart:style-name="s{i}" chart:values-cell-range-address={quoteattr(address(up))} chart:class="chart:scatter">'
                    f'<chart:domain table:cell-range-address={quoteattr(address(across))}/></chart:series>')  # fmt: skip
    axes = "".join(
        f'<chart:axis chart:dimension="{d}" chart:name="primary-{d}" chart:style-name="{d}"><chart:title><text:p>{escape(label)}</text:p></chart:title>'
        f'<chart:grid chart:class="major"/></chart:axis>'
        for d, label in zip("xy", labels)
    )
    return (
        f'{HEAD}<office:document-content {NAMESPACES} office:version="1.2"><office:automatic-styles>{"".join(styles)}</office:automatic-styles>'
        f'<office:body><office:chart><chart:chart chart:class="chart:scatter" svg:width="{width}cm" svg:height="{height}cm">'
        f'<chart:plot-area>{axes}{"".join(body)}</chart:plot-area></chart:chart></office:chart></office:body></office:document-content>'
    )


def content_xml(book):
    border = 'fo:border="0.5pt solid #000000"'
    masks = {"one": 1, "two": 2, "three": 3, "four": 4}
    styles = [f'<number:number-style style:name="m{n}"><number:number number:decimal-places="{n}" number:min-decimal-places="{n}" number:min-integer-digits="1"/></number:number-style>' for n in masks.values()]
    styles.append('<number:date-style style:name="md"><number:day number:style="long"/><number:text>/</number:text><number:month number:style="long"/><number:text>/</number:text><number:year number:style="long"/></number:date-style>')
    text = lambda size, extra="": f'<style:text-properties {FONT} fo:font-size="{size}pt" style:font-size-complex="{size}pt" {extra}/>'  # noqa: E731
    bold = 'fo:font-weight="bold" style:font-weight-complex="bold"'
    cell = lambda name, properties, size=7.8, extra="", data="": (  # noqa: E731
        f'<style:style style:name="{name}" style:family="table-cell"{data}><style:table-cell-properties {properties}/>{text(size, extra)}</style:style>'
    )
    styles += [cell("cell", border), cell("general", border), cell("bold", border, extra=bold), cell("plain", ""), cell("italic", "", extra='fo:font-style="italic"'),
               cell("title", "", 8.4, bold), cell("cover", "", 13.2), cell("date", border, data=' style:data-style-name="md"')]  # fmt: skip
    styles += [cell(name, border, data=f' style:data-style-name="m{n}"') for name, n in masks.items()]
    styles += [f'<style:style style:name="{name}" style:family="table-column"><style:table-column-properties style:column-width="{width}cm"/></style:style>'
               for name, width in (("label", LABEL_WIDTH), ("narrow", CELL_WIDTH))]  # fmt: skip
    styles.append(f'<style:style style:name="line" style:family="table-row"><style:table-row-properties style:row-height="{ROW_HEIGHT}cm"/></style:style>')
    styles += [f'<style:style style:name="{name}" style:family="table" style:master-page-name="{name}"><style:table-properties table:display="true"/></style:style>'
               for name in ("portrait", "landscape")]  # fmt: skip
    styles.append('<style:style style:name="plain" style:family="graphic"><style:graphic-properties draw:stroke="none" draw:fill="none"/></style:style>')
    sheets = "".join(sheet.xml() for sheet in book.sheets)
    return (
        f'{HEAD}<office:document-content {NAMESPACES} office:version="1.2"><office:font-face-decls><style:font-face style:name="Loma" svg:font-family="Loma"/></office:font-face-decls>'
        f'<office:automatic-styles>{"".join(styles)}</office:automatic-styles><office:body><office:spreadsheet>{sheets}</office:spreadsheet></office:body></office:document-content>'
    )


def styles_xml():
    layouts, masters = [], []
    for name, (width, height) in {"portrait": (21.0, 29.7), "landscape": (29.7, 21.0)}.items():
        layouts.append(f'<style:page-layout style:name="l{name}"><style:page-layout-properties fo:page-width="{width}cm" fo:page-height="{height}cm" style:print-orientation="{name}" '
                       f'fo:margin="0.9cm" style:scale-to-pages="1" style:print="objects charts drawings"/></style:page-layout>')  # fmt: skip
        masters.append(f'<style:master-page style:name="{name}" style:page-layout-name="l{name}"><style:footer><text:p>TRVN_road.mdb</text:p></style:footer></style:master-page>')
    return (
        f'{HEAD}<office:document-styles {NAMESPACES} office:version="1.2"><office:automatic-styles>{"".join(layouts)}</office:automatic-styles>'
        f'<office:master-styles>{"".join(masters)}</office:master-styles></office:document-styles>'
    )


def write(book, logos, path):
    kind = "application/vnd.oasis.opendocument"
    entries = {"": f"{kind}.spreadsheet", "content.xml": "text/xml", "styles.xml": "text/xml"}
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as file:
        file.writestr(zipfile.ZipInfo("mimetype"), f"{kind}.spreadsheet")
        file.writestr("content.xml", content_xml(book))
        file.writestr("styles.xml", styles_xml())
        for name in ("cov_logo", "ins_logo", "dep_logo"):
            file.write(logos / f"{name}.jpg", f"Pictures/{name}.jpg")
            entries[f"Pictures/{name}.jpg"] = "image/jpeg"
        for number, chart in enumerate(book.charts, 1):
            file.writestr(f"Object {number}/content.xml", chart)
            entries[f"Object {number}/"] = f"{kind}.chart"
            entries[f"Object {number}/content.xml"] = "text/xml"
        listed = "".join(f'<manifest:file-entry manifest:full-path="{name or "/"}" manifest:media-type="{media}"/>' for name, media in entries.items())
        file.writestr("META-INF/manifest.xml", f'{HEAD}<manifest:manifest {NAMESPACES} manifest:version="1.2">{listed}</manifest:manifest>')


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("readings")
    parser.add_argument("logos", type=pathlib.Path)
    parser.add_argument("output")
    given = parser.parse_args()
    book = Book(*reduce_all(given.readings))
    book.build()
    write(book, given.logos, given.output)


if __name__ == "__main__":
    main()
