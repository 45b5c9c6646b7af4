#!/usr/bin/env python3
"""The printed pages of the samples' road project as a laboratory keeps them: read aloud, converted, weighed.

    tests/archive/check_archive.py --programs build/bin [TESTNAME ...]

The project is typed by terravane-script and printed by terravane-report, as one PDF and as one a test; the files are
read by qpdf, poppler, mupdf and Ghostscript.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import archived_file

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
MOST_OF_A_JOB = 0.30e6  # bytes, as one PDF
MOST_OF_ALL = 1.50e6  # as one a test

settings = argparse.Namespace()


def said(*command, folder=None):
    ran = subprocess.run([str(word) for word in command], cwd=folder, capture_output=True, timeout=300, check=False,
                         env={**os.environ, "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen"})
    told = ran.stdout.decode(errors="replace") + ran.stderr.decode(errors="replace")
    if ran.returncode != 0:
        raise AssertionError(f"{command} ended with {ran.returncode}\n{told[-3000:]}")
    return told


class Job(unittest.TestCase):
    """The samples' project, printed."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="terravane_archive_"))
        said(settings.programs / "terravane-script", "--strict", "--home", "laboratory", ROOT / "samples/laboratory.trv",
             *sorted((ROOT / "samples/road").glob("*.trv")), folder=cls.folder)
        for options in (("--one-file", "--summary", "-o", "one"), ("-o", "all")):
            said(settings.programs / "terravane-report", "--today", "2026-11-21", "--brand", "laboratory/BrandList",
                 *options, "TRVN_road.mdb", folder=cls.folder)
        cls.job = next(cls.folder.glob("one/**/*.pdf"))
        cls.tests = sorted(cls.folder.glob("all/**/*.pdf"))

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def figures(self, path):
        return [element["/Alt"].removeprefix("u:") for kind, element in archived_file.elements(path)
                if kind == "/Figure"]


class Tags(Job):
    def test_every_file_keeps_the_rules_of_tagged_files(self):
        for path in [self.job, *self.tests]:
            self.assertEqual(archived_file.faults(path), [], path.name)

    def test_a_page_without_its_marks_is_found_out(self):
        """The checker itself: a file whose first page lost a mark is not taken for whole."""
        broken = self.folder / "broken.pdf"
        plain = self.folder / "plain.pdf"
        said("qpdf", "--qdf", "--object-streams=disable", self.tests[0], plain)
        whole = plain.read_bytes()
        broken.write_bytes(whole.replace(b"/H1<</MCID 1>>BDC", b"/Span<<     >>BDC", 1))
        self.assertNotEqual(broken.read_bytes(), whole)
        found = "\n".join(archived_file.faults(broken))
        self.assertIn("neither tagged nor an artifact", found)
        self.assertIn("not numbered in a row", found)
        self.assertIn("which is not there", found)

    def test_plots_say_their_results(self):
        told = "\n".join(self.figures(self.job))
        for shown in ("Compaction curve, top at [0-9.]+ %, [0-9.]+ g/cm³", "Flow curve, liquid limit [0-9.]+ %",
                      "Calibration curve of the flask, ", r"Particle size distribution, passing #4 [0-9.]+ %, passing #200 [0-9.]+ %, D10 [0-9.]+ mm, D30",
                      "Stress against penetration, CBR at 0.1 in. [0-9., ]+ %, at 0.2 in. [0-9., ]+ %",
                      "CBR against dry density, CBR [0-9.]+ % at 95 ?% of "):
            self.assertRegex(told, shown)
        self.assertNotIn("no result", told)

    def test_tables_are_read_row_by_row_behind_their_heads(self):
        """Poppler 22 loses what stands behind a Thai letter with marks on the same line; the order is told by the rest."""
        text = said("pdfinfo", "-struct-text", next(path for path in self.tests if "_std_soil" in path.name))
        order = ["Client Name", "Number of Layer", "Water Content Determination", "Sample No.",
                 "Mass of Can + Wet Soil", "Density Determination", "Tested by", "Approved by"]
        places = [text.find(part) for part in order]
        self.assertNotIn(-1, places, text)
        self.assertEqual(places, sorted(places), text)
        self.assertIn("TH", text)

    def test_a_job_is_small(self):
        self.assertLessEqual(self.job.stat().st_size, MOST_OF_A_JOB)
        self.assertLessEqual(sum(path.stat().st_size for path in self.tests), MOST_OF_ALL)


class Readers(Job):
    """Other programs: too long for every day."""

    def test_readers_find_nothing_to_complain_of(self):
        for path in [self.job, *self.tests]:
            self.assertIn("No syntax or stream encoding errors found", said("qpdf", "--check", path))
            told = said("mutool", "draw", "-q", "-F", "text", "-o", os.devnull, path)
            self.assertNotRegex(told.replace("warning: ICC support is not available", ""), "error|warning")
            self.assertNotIn("Error", said("pdfinfo", "-struct-text", path))

    def converted(self, path, policy):
        """What Ghostscript has to say, and whether what it makes is fit for archives."""
        archive = self.folder / "converted.pdf"
        archive.unlink(missing_ok=True)
        told = said("gs", "-dPDFA=2", "-dBATCH", "-dNOPAUSE", "-dQUIET", "-sDEVICE=pdfwrite",
                    "-sColorConversionStrategy=RGB", f"-dPDFACompatibilityPolicy={policy}", f"-sOutputFile={archive}", path)
        return told, "pdfaid:part='2'" in said("pdfinfo", "-meta", archive).replace('"', "'")

    def test_an_archive_converts_the_job(self):
        self.assertEqual(self.converted(self.job, 2), ("", True))

    def test_an_archive_converts_every_test_but_titles_in_thai(self):
        """Ghostscript up to 10.0 takes no letter beyond ASCII in a title, and drops it; nothing else."""
        for path in self.tests:
            told, is_fit = self.converted(path, 1)
            self.assertTrue(is_fit, path.name)
            others = [line for line in told.splitlines() if "DOCINFO" not in line]
            self.assertEqual(others, [], path.name)


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--programs", type=lambda text: pathlib.Path(text).resolve(), required=True)
    parser.parse_known_args(namespace=settings)
    names = parser.parse_known_args()[1]
    unittest.main(argv=[sys.argv[0], *names], verbosity=2)
