#!/usr/bin/env python3
"""What the checker says of the published tests of these folders: each note that is told is explained here.

    published_notes.py --program terravane-script

The scripts are run with `notes` at their end; what closes a sheet or leaves the program is left out.
"""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
EXPLAINED = {
    "atterberg/published_clay": {},
    "atterberg/published_flat": {"atterberg.blows": "a trial of eleven blows"},
    "atterberg/published_mix_crushed_rock": {},
    "cbr/published_concave_curve": {
        "cbr.second-ratio-higher": "7.2 % at 0.2 in, 6.8 % at 0.1 in",
        "cbr.concave-beginning": "what the test was published for",
        "cbr.missing-penetrations": "read every 0.5 mm",
    },
    "cbr/published_density": {},
    "cbr/published_single_mould": {"cbr.missing-penetrations": "read every 0.5 mm"},
    "compaction/published_modified_01": {},
    "compaction/published_modified_02": {"compaction.top-saturation": "crushed rock, open: 69 %"},
    "compaction/published_standard_01": {"compaction.points-beside-top": "one point is wetter than the top"},
    "compaction/published_standard_02": {
        "compaction.water-steps": "from 16.5 to 23.4 %",
        "compaction.mold-volume": "a mold of 982 cm3",
    },
    "density/published_gallon_jar": {"field-density.small-water-sample": "20 g of soil"},
    "density/published_sand_replacement": {"field-density.small-water-sample": "22 to 33 g of soil"},
    "sieve/published_clayey_sand": {"sieve.dry-sieved-fines": "made from percentages, dry"},
    "sieve/published_fine_sand": {"sieve.overloaded": "210 g on No. 100"},
    "sieve/published_gravelly_sand": {"sieve.missing-sieve": "sieved without No. 10 and No. 40"},
    "sieve/published_group_a_2_6": {"sieve.dry-sieved-fines": "made from percentages, dry"},
    "sieve/published_washed_sand": {"sieve.overloaded": "370 g on No. 100"},
    "specific/published_silica_sand": {
        "specific-gravity.outside-calibration": "20.6 degrees, calibrated from 21.6 on",
        "specific-gravity.calibration-scatters": "a range of one and a half degrees",
    },
    "specific/published_silty_sand": {},
}


def told(program, script):
    """The keys of the notes on a script's sheet."""
    leaves = ("quit", "close", "sql ", "menu mnuExit")
    lines = [line for line in script.read_text(encoding="utf-8").splitlines() if not (line + " ").startswith(leaves)]
    with tempfile.TemporaryDirectory() as folder:
        (pathlib.Path(folder) / "work").mkdir()
        ran = subprocess.run([program], input="\n".join([*lines, "notes", ""]), cwd=folder, capture_output=True,
                             text=True, encoding="utf-8", check=False)
    answers = [json.loads(line) for line in ran.stdout.splitlines()]
    if ran.returncode or "notes" not in answers[-1]:
        return {f"status {ran.returncode}: {ran.stderr.strip() or ran.stdout[-200:]}"}
    return {answer["note"] for answer in answers if "note" in answer}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    program = str(pathlib.Path(parser.parse_args().program).resolve())
    wrong = 0
    for script in sorted(HERE.glob("*/published_*.trv")):
        name = str(script.relative_to(HERE).with_suffix(""))
        is_told, explained = told(program, script), set(EXPLAINED.get(name, {"this script stands in no list"}))
        if is_told != explained:
            print(f"FAILED  {name}: told {sorted(is_told)}, explained {sorted(explained)}")
            wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
