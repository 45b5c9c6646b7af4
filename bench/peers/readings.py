"""The readings of samples/road as one table, so that every peer starts from the numbers that Terravane starts from.

A line of the file is a reading: test, material, control, row, column, text, with a tab in between. Row and column are
those of the sheet's grid and empty for a box of its own. Written once, before anything is measured.
"""

import pathlib
import shlex

TESTS = {"Att": "att", "Sie": "sie", "Spe": "spc", "Std": "std", "Mod": "mod", "Den": "den", "CBR": "cbr"}
MATERIALS = {"1": "soil", "2": "crush"}
DITTO = "/"  # the mass of the mold as in the column before


def of_scripts(scripts):
    """The readings of the scripts in their order; the project's particulars stand under the test "head"."""
    readings, place = {}, ("head", "")
    for script in scripts:
        for line in pathlib.Path(script).read_text().splitlines():
            words = shlex.split(line, comments=True)
            if not words:
                continue
            command, name = words[0], words[1] if len(words) > 1 else ""
            if command == "menu" and name[3:6] in TESTS and name[6:] in MATERIALS:
                place = (TESTS[name[3:6]], MATERIALS[name[6:]])
            elif command in ("type", "put"):
                row, column, text = int(words[2]), int(words[3]), words[4]
                if text == DITTO:
                    text = readings[(*place, name, row, column - 1)]
                readings[(*place, name, row, column)] = text
            elif command in ("set", "choose", "check"):
                readings[(*place, name.split(".")[-1], "", "")] = words[2]
            elif command == "select":
                count = sum(1 for key in readings if key[:3] == (*place, name))
                readings[(*place, name, count + 1, 1)] = words[2].strip()
            elif command == "click" and name.startswith("opt"):
                readings[(*place, name, "", "")] = "on"
    return readings


def write(readings, path):
    lines = ("\t".join(map(str, (*key, text))) for key, text in readings.items())
    pathlib.Path(path).write_text("\n".join(lines) + "\n")


def tests_of(readings):
    """Each test that has readings, soil before crushed rock, in the order of the reports."""
    present = {(key[0], key[1]) for key in readings}
    return [(test, material) for material in MATERIALS.values() for test in TESTS.values() if (test, material) in present]
