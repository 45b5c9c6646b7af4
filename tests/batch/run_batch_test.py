#!/usr/bin/env python3
"""terravane-report from end to end, as a laboratory runs it, on the road project of the samples and copies of it.

    tests/batch/run_batch_test.py --programs build/bin [--many 1000] [TESTNAME ...]

The project is typed by terravane-script first. --many is how many projects the large folder holds.
"""

import argparse
import csv
import hashlib
import json
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
TODAY = "2026-11-21"
SECONDS = 300
SAMPLES = sorted((ROOT / "samples/road").glob("*.trv"))  # the project, then a script a test and material

settings = argparse.Namespace()


def environment():
    return {**os.environ, "LC_ALL": "C.UTF-8", "TZ": "UTC", "QT_QPA_PLATFORM": "offscreen"}


def run(program, *arguments, folder=None, status=0, seconds=SECONDS):
    """What the program says; fails where its exit status is another."""
    command = [str(settings.programs / program), *map(str, arguments)]
    ran = subprocess.run(command, cwd=folder, env=environment(), capture_output=True, timeout=seconds, check=False)
    said = ran.stdout.decode() + ran.stderr.decode()
    if ran.returncode != status:
        raise AssertionError(f"exit status {ran.returncode}, {status} is right: {' '.join(command)}\n{said[-3000:]}")
    return said


def report(*arguments, **how):
    return run("terravane-report", "--today", TODAY, *arguments, **how)


def test_keys():
    """As the tool's help lists them."""
    return re.search(r"--tests LIST\s+([a-z,]+);", run("terravane-report", "--help"))[1].split(",")


def digests(folder):
    """The PDFs below a folder by their path in it."""
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*.pdf"))}


def rows(path):
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


class Batch(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.kept = tempfile.TemporaryDirectory(prefix="terravane-batch-")
        cls.home = pathlib.Path(cls.kept.name).resolve()
        run("terravane-script", "--strict", "--today", TODAY, *SAMPLES, folder=cls.home)
        cls.tests = test_keys()
        cls.outputs = [f"{test}_{material}" for test in cls.tests for material in ("soil", "crush")] + ["results"]
        cls.road = cls.home / "TRVN_road.mdb"
        lean = "answer lean.mdb\nmenu mnuNew\nset txtID 1\nset txtProject Lean\nset txtLocation Here\n" \
               "set txtClient Nobody\nclick cmdOK\n"
        (cls.home / "lean.trv").write_text(lean)
        run("terravane-script", "--today", TODAY, "lean.trv", ROOT / "samples/road/01_soil_atterberg.trv",
            folder=cls.home)
        cls.lean = cls.home / "TRVN_lean.mdb"

    @classmethod
    def tearDownClass(cls):
        cls.kept.cleanup()

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(dir=self.home))

    def copies(self, count, source=None, name="jobs"):
        jobs = self.folder / name
        jobs.mkdir()
        for number in range(1, count + 1):
            shutil.copy(source or self.road, jobs / f"TRVN_{number:04}.mdb")
        return jobs

    def script(self, text):
        (self.folder / "edit.trv").write_text(text)
        return run("terravane-script", "--strict", "--today", TODAY, "edit.trv", folder=self.folder)


class Outputs(Batch):
    def test_every_test_of_the_sample_project_and_the_results_page(self):
        said = report("--summary", "-o", "out", "--manifest", "manifest.csv", self.road, folder=self.folder)
        self.assertEqual(2 * len(self.tests), len(SAMPLES[1:]), "a script a test and material")
        made = digests(self.folder / "out")
        self.assertEqual(set(made), {f"TRVN_road_{name}.pdf" for name in self.outputs})
        listed = rows(self.folder / "manifest.csv")
        self.assertIn(f"{len(made)} files, {sum(int(row['pages']) for row in listed)} pages", said)
        for row in listed:
            path = self.folder / row["output"]
            if path.stem.endswith("_results"):
                self.assertEqual(int(row["pages"]), 1, path)
            else:
                self.assertGreaterEqual(int(row["pages"]), 2, "a cover and the report")
            self.assertEqual(int(row["bytes"]), path.stat().st_size)
            self.assertEqual(row["sha256"], made[path.name])
            told = subprocess.run(["pdfinfo", path], capture_output=True, text=True, check=True).stdout
            self.assertEqual(re.search(r"Pages:\s+(\d+)", told)[1], row["pages"], path)

    def test_results_and_readings_are_those_of_the_sheets(self):
        before = self.road.read_bytes()
        report("--csv", "all.csv", "--json", "all.json", "-o", "out", "--tests", "att", self.road, folder=self.folder)
        soil, crush = rows(self.folder / "all.csv")
        exported = subprocess.run(["mdb-export", self.road, "SUMMARY"], capture_output=True, text=True, check=True)
        posted = list(csv.DictReader(exported.stdout.splitlines()))
        for row, stored in zip((soil, crush), posted):
            self.assertEqual({column: row[column] for column in stored},
                             {column: text.strip() for column, text in stored.items()})
        (project,) = json.loads((self.folder / "all.json").read_text(encoding="utf-8"))
        self.assertEqual(project["soil"]["results"]["sum_LL"], soil["sum_LL"])
        self.assertEqual(set(project["soil"]["tests"]), set(self.tests))
        self.assertEqual(project["soil"]["tests"]["att"]["rows"][0]["att_blows"], "31")
        self.assertEqual(self.road.read_bytes(), before, "a project is only read")

    def test_one_file_has_a_bookmark_a_test(self):
        report("--summary", "-o", "apart", "--manifest", "apart.csv", self.road, folder=self.folder)
        report("--one-file", "--summary", "-o", "out", self.road, folder=self.folder)
        (pdf,) = (self.folder / "out").glob("*.pdf")
        told = subprocess.run(["pdfinfo", pdf], capture_output=True, text=True, check=True).stdout
        pages = sum(int(row["pages"]) for row in rows(self.folder / "apart.csv"))
        self.assertEqual(int(re.search(r"Pages:\s+(\d+)", told)[1]), pages)
        objects = subprocess.run(["qpdf", "--qdf", "--object-streams=disable", pdf, "-"], capture_output=True,
                                 check=True).stdout
        self.assertIn(b"/Outlines", objects)

    def test_the_figures_on_the_page_are_the_results(self):
        report("--tests", "std", "--materials", "soil", "-o", "out", self.road, folder=self.folder)
        text = subprocess.run(["pdftotext", "-layout", self.folder / "out/TRVN_road_std_soil.pdf", "-"],
                              capture_output=True, text=True, check=True).stdout
        self.assertIn("2.01", text)
        self.assertIn("Zero Air Void", text, "the saved gravity says that the line was drawn")

    def test_outputs_go_beside_the_project_unless_told_otherwise(self):
        jobs = self.copies(1)
        report("--tests", "att", "--materials", "soil", jobs)
        self.assertEqual(list(digests(jobs)), ["TRVN_0001_att_soil.pdf"])

    def test_a_list_ends_before_the_projects(self):
        jobs = self.copies(3, self.lean)
        report("--correct", "1,2", "--materials", "soil", "--tests", "att,sie", *sorted(jobs.glob("*.mdb")))
        self.assertEqual(len(digests(jobs)), 3)

    def test_wrong_usage(self):
        for wrong in (["--tests", "abc", self.road], ["--jobs", "0", self.road], [], ["--brand", "nowhere", self.road],
                      ["--today", "tomorrow", self.road], ["--correct", "4", self.road],
                      ["--check", "--post", self.road], ["--csv", "no/such/folder.csv", self.road]):
            run("terravane-report", *wrong, folder=self.folder, status=2)


class Same(Batch):
    def test_any_number_of_jobs_gives_the_same_bytes(self):
        jobs = self.copies(6)
        for count in (1, 2, 3):
            report("--jobs", count, "--summary", "-o", self.folder / f"out{count}", "--csv",
                   self.folder / f"{count}.csv", "--json", self.folder / f"{count}.json", jobs)
            time.sleep(1.1)  # another second of the machine's clock
        first = digests(self.folder / "out1")
        self.assertEqual(len(first), 6 * len(self.outputs))
        for count in (2, 3):
            self.assertEqual(digests(self.folder / f"out{count}"), first)
            for kind in ("csv", "json"):
                self.assertEqual((self.folder / f"{count}.{kind}").read_bytes(),
                                 (self.folder / f"1.{kind}").read_bytes())

    def test_two_projects_of_the_same_name_do_not_overwrite_each_other(self):
        one, two = self.copies(1, self.lean, "one"), self.copies(1, self.lean, "two")
        said = report("-o", self.folder / "out", one / "TRVN_0001.mdb", two / "TRVN_0001.mdb", status=1)
        self.assertIn("names of those of", said)
        report("-o", self.folder / "apart", self.folder, status=0)
        self.assertEqual(len(digests(self.folder / "apart")), 2)


class Stale(Batch):
    """The trap that laboratories know: a compaction test edited after a density test used its MDD."""

    def setUp(self):
        super().setUp()
        self.job = self.folder / "TRVN_job.mdb"
        shutil.copy(self.road, self.job)

    def edit(self, *lines):
        self.script("answer TRVN_job.mdb\nmenu mnuOpen\nmenu mnuStd1\ntype MSHDensity 1 3 3700\n" + "\n".join(lines))

    def test_nothing_is_stale_in_the_sample(self):
        self.assertIn("all results follow", report("--check", self.job))
        self.assertEqual(digests(self.folder), {})

    def test_plotted_and_saved(self):
        self.edit("click cmdCal", "click cmdOMC", "tool tblMenu 1")
        said = report("--check", self.job, status=3)
        self.assertRegex(said, r"DENSOIL den_mdd 2\.01: the standard compaction's MDD is \d\.\d\d now")
        self.assertRegex(said, r"SUMMARY sum_compaction \S+: .* give \S+ now")
        self.assertNotIn("sum_mddS", said)

    def test_saved_without_a_plot(self):
        self.edit("tool tblMenu 1")
        said = report("--check", "--csv", self.folder / "saved.csv", self.job, status=3)
        self.assertRegex(said, r"SUMMARY sum_mddS 2\.01: the readings of the standard compaction give \d\.\d\d now")
        self.assertRegex(said, r"DENSOIL den_mdd 2\.01: the standard compaction's MDD is \d\.\d\d now")
        self.assertEqual(rows(self.folder / "saved.csv")[0]["sum_mddS"], "2.01", "a check tells what stands")

    def test_post_brings_it_in_order(self):
        self.edit("tool tblMenu 1")
        report("--post", "-o", self.folder / "out", self.job)
        self.assertIn("all results follow", report("--check", self.job))

    def test_post_keeps_a_result_that_the_readings_give_no_more(self):
        self.script("answer TRVN_job.mdb\nmenu mnuOpen\nmenu mnuSpe1\ntype MSHSpecific 1 1 0\ntool tblMenu 1\n")
        report("--csv", self.folder / "before.csv", "--as-saved", self.job)
        report("--post", "-o", self.folder / "out", "--tests", "spc", self.job)
        report("--csv", self.folder / "posted.csv", "--as-saved", self.job)
        before, posted = (rows(self.folder / name)[0]["sum_Gs"] for name in ("before.csv", "posted.csv"))
        self.assertNotEqual(before, "")
        self.assertEqual(posted, before)

    def test_a_read_only_project_is_not_posted_to_but_printed(self):
        self.edit("tool tblMenu 1")
        self.job.chmod(0o444)
        before = self.job.read_bytes()
        said = report("--post", "-o", self.folder / "out", "--tests", "std", self.job, status=1)
        self.assertIn("read-only", said)
        self.assertEqual(self.job.read_bytes(), before)
        self.assertEqual(len(digests(self.folder / "out")), 2)


class Notes(Batch):
    """What an experienced eye says of the sheets, beside everything else and changing none of it."""

    def notes(self, *arguments, **how):
        report("--notes", self.folder / "notes.csv", *arguments, **how)
        return rows(self.folder / "notes.csv")

    def test_notes_name_test_place_and_source(self):
        notes = self.notes("--check", "--tests", "sie", self.road)
        crushed = [note for note in notes if note["material"] == "crush" and note["note"] == "sieve.loss"]
        self.assertEqual([(note["level"], note["place"]) for note in crushed], [("doubtful", "Pecent of Mass Loss")])
        self.assertIn("0.47 %", crushed[0]["text"])
        self.assertIn("ASTM C136", crushed[0]["source"])
        self.assertEqual({note["test"] for note in notes}, {"sie"})

    def test_nothing_else_differs(self):
        report("-o", self.folder / "without", "--csv", self.folder / "without.csv", self.road)
        self.notes("-o", self.folder / "with", "--csv", self.folder / "with.csv", self.road)
        self.assertEqual(digests(self.folder / "with"), digests(self.folder / "without"))
        self.assertEqual((self.folder / "with.csv").read_bytes(), (self.folder / "without.csv").read_bytes())

    def test_any_number_of_jobs_gives_the_same_rows(self):
        jobs = self.copies(6, self.road)
        one = self.notes("--check", "--jobs", 1, jobs)
        self.assertEqual(self.notes("--check", "--jobs", 3, jobs), one)
        self.assertEqual(len(one) % 6, 0)

    def test_strict_notes_end_with_the_status_of_a_stale_result(self):
        report("--check", "--strict-notes", "--tests", "sie", self.road, status=3)
        report("--check", "--strict-notes", "--tests", "att", self.road)
        report("--check", "--notes", self.folder / "notes.csv", "--tests", "sie", self.road)

    def test_a_laboratory_has_limits_of_its_own(self):
        (self.folder / "empty.trv").write_text("quit\n", encoding="utf-8")
        run("terravane-script", "--home", self.folder / "lab", self.folder / "empty.trv")
        brand = self.folder / "lab" / "BrandList"
        (self.folder / "lab" / "notes.conf").write_text("sieve.loss = 2 1\nsieve.lost = 3\n", encoding="utf-8")
        said = run("terravane-report", "--check", "--brand", brand, "--notes", self.folder / "notes.csv", self.road)
        self.assertNotIn("sieve.loss", {note["note"] for note in rows(self.folder / "notes.csv")})
        self.assertEqual(said.count('notes.conf, line 2: there is no note "sieve.lost".'), 1)

    def test_a_finished_project_has_its_notes_again(self):
        first = self.notes("--resume", "-o", self.folder / "out", self.road)
        self.assertEqual(self.notes("--resume", "-o", self.folder / "out", self.road), first)


class Long(Batch):
    def start(self, *arguments, terminal=None):
        command = [str(settings.programs / "terravane-report"), "--today", TODAY, *map(str, arguments)]
        return subprocess.Popen(command, env=environment(), stdout=subprocess.PIPE,
                                stderr=terminal or subprocess.PIPE, start_new_session=True)

    def wait_for(self, folder, count):
        end = time.monotonic() + SECONDS
        while len(list(folder.rglob("*.pdf"))) < count and time.monotonic() < end:
            time.sleep(0.01)

    def test_ctrl_c_ends_cleanly_and_resume_goes_on(self):
        jobs, out = self.copies(40, self.lean), self.folder / "out"
        options = ("--jobs", 2, "-o", out, "--csv", self.folder / "all.csv", "--manifest", self.folder / "m.csv")
        running = self.start(*options, jobs)
        self.wait_for(out, 3)
        os.killpg(running.pid, signal.SIGINT)  # as a terminal does: every process of the run gets it
        said = running.communicate(timeout=SECONDS)[1].decode()
        self.assertEqual(running.returncode, 1, said)
        self.assertIn("--resume goes on from here", said)
        first = {path: path.stat().st_mtime_ns for path in out.rglob("*.pdf")}
        self.assertTrue(0 < len(first) < 40, len(first))
        for path in first:
            subprocess.run(["pdfinfo", path], stdout=subprocess.DEVNULL, check=True)
        self.assertFalse((self.folder / "all.csv").exists(), "tables are whole or not there")
        self.assertEqual([path.name for path in out.rglob("*") if "saving" in path.name or "part" in path.name], [])
        said = report("--resume", *options, jobs)
        self.assertEqual(said.count("there already"), len(first))
        self.assertEqual(len(digests(out)), 40)
        self.assertEqual({path: path.stat().st_mtime_ns for path in first}, first, "what was finished is left alone")
        self.assertEqual(len(rows(self.folder / "all.csv")), 80)
        self.assertEqual(len(rows(self.folder / "m.csv")), 40)

    def test_a_killed_run_goes_on_too(self):
        jobs, out = self.copies(20, self.lean), self.folder / "out"
        running = self.start("--jobs", 2, "-o", out, jobs)
        self.wait_for(out, 3)
        os.killpg(running.pid, signal.SIGKILL)
        running.communicate(timeout=SECONDS)
        report("--resume", "-o", out, jobs)
        report("-o", self.folder / "afresh", jobs)
        self.assertEqual(digests(out), digests(self.folder / "afresh"))

    def test_a_terminal_shows_a_bar(self):
        ours, theirs = pty.openpty()
        running = self.start("--jobs", 2, "-o", self.folder / "out", self.copies(8, self.lean), terminal=theirs)
        os.close(theirs)
        shown = b""
        while running.poll() is None or select.select([ours], [], [], 0.2)[0]:
            if select.select([ours], [], [], 0.2)[0]:
                try:
                    shown += os.read(ours, 65536)
                except OSError:
                    break
        running.communicate()
        os.close(ours)
        self.assertRegex(shown.decode(), r"\[#{20}\]  8/8  100 %  [\d.]+/s  0:00 left")

    def test_a_folder_of_many(self):
        jobs = self.folder / "jobs"
        jobs.mkdir()
        for number in range(1, settings.many - 2):
            os.link(self.lean, jobs / f"TRVN_{number:04}.mdb")
        content = self.lean.read_bytes()
        (jobs / "TRVN_cut.mdb").write_bytes(content[:len(content) // 2])
        (jobs / "TRVN_garbage.mdb").write_bytes(b"no project" * 1000)
        shutil.copy(self.lean, jobs / "TRVN_locked.mdb")
        (jobs / "TRVN_locked.mdb").chmod(0o444)
        (jobs / "งานทาง").mkdir()
        shutil.copy(self.lean, jobs / "งานทาง" / "TRVN_ถนนสาย ก.mdb")
        out, table = self.folder / "out", self.folder / "all.csv"
        said = report("-o", out, "--csv", table, "--jobs", 2, jobs, status=1)
        failed = said[said.index("2 projects failed:"):]
        self.assertIn("TRVN_cut.mdb", failed)
        self.assertIn("TRVN_garbage.mdb", failed)
        made = digests(out)
        self.assertEqual(len(made), settings.many - 1)
        self.assertIn("งานทาง/TRVN_ถนนสาย ก_att_soil.pdf", made)
        self.assertEqual(len(set(made.values())), len(made), "each page names its own project file")
        self.assertEqual(len(rows(table)), 2 * (settings.many - 1))
        self.assertEqual({row["sum_LL"] for row in rows(table) if row["material"] == "soil"}, {"25.01"})


class Schedulers(Batch):
    @unittest.skipUnless(shutil.which("parallel"), "GNU parallel is not installed")
    def test_gnu_parallel_as_the_manual_shows_it(self):
        manual = (ROOT / "docs/batch.md").read_text(encoding="utf-8")
        example = re.search(r"```sh\n(find .*?parallel.*?)```", manual, re.DOTALL)[1]
        jobs = self.copies(6, self.lean, "projects")
        env = {**environment(), "PATH": f"{settings.programs}{os.pathsep}{os.environ['PATH']}", "HOME": str(self.folder)}
        ran = subprocess.run(["bash", "-ec", example], cwd=self.folder, env=env, capture_output=True, text=True,
                             timeout=SECONDS, check=False)
        self.assertEqual(ran.returncode, 0, ran.stderr)
        self.assertEqual(len(digests(self.folder / "out")), 6)
        report("-o", self.folder / "alone", jobs)
        self.assertEqual(digests(self.folder / "out"), digests(self.folder / "alone"))
        self.assertEqual(len(rows(self.folder / "results.csv")), 12)


ESCAPE = b"TRVN_\x1b[31mred\x07.mdb"
HOSTILE = [
    ESCAPE, b"TRVN_two\nlines: 1 file, 1 page.mdb", b"TRVN_'quoted' \"twice\" .mdb", b"TRVN_$HOME `id` $(id) %n;&|.mdb",
    b"-o.mdb", b"..mdb.mdb", b"=1+1.mdb", b"@SUM(A1).mdb", b"TRVN_\xff\xfe.mdb", "TRVN_🛣️ งาน.mdb".encode(),
    ("ก" * 75 + ".mdb").encode(), "TRVN_\u202egpj.mdb".encode(), "TRVN_דרך.mdb".encode(), "TRVN_\u0085next.mdb".encode(),
]
LONGEST = [("ก" * 83 + ".mdb").encode(), b"a" * 251 + b".mdb"]  # as long as a disk takes: no room for "_att_soil"
UNSEEN = re.compile("[\x00-\x09\x0b-\x1f\x7f\u0080-\u009f\u200e\u200f\u2028-\u202e\u2066-\u2069\ufffd]")


@unittest.skipUnless(os.name == "posix", "names and links of a disk that takes any bytes")
class Strangers(Batch):
    """A folder that others write in: names that they chose, links that they put there."""

    def setUp(self):
        super().setUp()
        self.out = self.folder / "out"
        self.jobs = self.folder / "jobs"
        self.jobs.mkdir()
        self.victim = self.folder / "victim.txt"
        self.victim.write_text("mine")
        self.elsewhere = self.folder / "elsewhere"
        self.elsewhere.mkdir()

    def project(self, name):
        path = os.path.join(os.fsencode(self.jobs), name)
        shutil.copy(self.lean, path)
        return path

    def raw(self, *arguments, status=0, **how):
        """The bytes that the program says, as a person would see them."""
        command = [str(settings.programs / "terravane-report"), "--today", TODAY, *arguments]
        ran = subprocess.run(command, env=environment(), capture_output=True, timeout=SECONDS, check=False, **how)
        said = (ran.stdout + ran.stderr).decode("utf-8", "replace")
        self.assertEqual(ran.returncode, status, said)
        self.assertEqual(UNSEEN.findall(said), [], said)
        return said

    def assert_untouched(self):
        self.assertEqual(self.victim.read_text(), "mine")
        self.assertEqual(list(self.elsewhere.iterdir()), [])

    def test_any_name_is_worked_and_none_works_the_terminal(self):
        for name in HOSTILE:
            self.project(name)
        said = self.raw("-o", self.out, "--csv", self.folder / "all.csv", "--manifest", self.folder / "m.csv", self.jobs)
        self.assertEqual(len(said.splitlines()), len(HOSTILE), said)
        self.assertIn("TRVN_\\x1b[31mred\\x07.mdb: 1 file, 2 pages", said)
        self.assertIn("TRVN_two\\nlines: 1 file, 1 page.mdb: 1 file, 2 pages", said)
        self.assertEqual(len(list(self.out.iterdir())), len(HOSTILE) + 1)  # and the journal
        for table, column in (("all.csv", "project"), ("m.csv", "project")):
            with open(self.folder / table, encoding="utf-8", errors="surrogateescape", newline="") as file:
                told = {os.path.basename(os.fsencode(row[column])) for row in csv.DictReader(file)}
            self.assertEqual(told, set(HOSTILE), "a table has each name whole")

    def test_a_failure_shows_a_name_by_its_codes(self):
        broken = self.project(ESCAPE)
        with open(broken, "wb") as file:
            file.write(b"no project")
        self.assertIn("red\\x07", self.raw("-o", self.out, broken, status=1))
        self.assertIn("red\\x07", self.raw("--brand", ESCAPE, broken, status=2))
        self.assertIn("red\\x07", self.raw("--csv", b"nowhere/" + ESCAPE, broken, status=2))
        for name in LONGEST:
            self.assertIn("the name is too long", self.raw("-o", self.out, self.project(name), status=1))

    def test_a_script_named_by_a_stranger_is_told_by_its_codes(self):
        script = os.path.join(os.fsencode(self.folder), b"\x1b[31mred.trv")
        with open(script, "wb") as file:
            file.write(b"answer \x1b[31mred.mdb\nmenu mnuOpen\nno\x1bcommand\n")
        for arguments in ([script], [b"not\x1bthere.trv"], ["--today", b"\x1b[31m"]):
            ran = subprocess.run([str(settings.programs / "terravane-script"), *arguments], cwd=self.folder,
                                 env=environment(), capture_output=True, timeout=SECONDS, check=False)
            self.assertEqual(UNSEEN.findall((ran.stdout + ran.stderr).decode("utf-8", "replace")), [], ran)
            self.assertEqual(ran.returncode, 1)

    def test_no_cell_is_a_formula(self):
        job = self.folder / "TRVN_job.mdb"
        shutil.copy(self.road, job)
        texts = ["=1+1", "+A1", "-2+3", "@x", "'quoted", "-2.5", "plain"]
        columns = ["sum_LL", "sum_PL", "sum_PI", "sum_Gs", "sum_omcS", "sum_mddS", "sum_omcM"]
        sets = ",".join(f"{column} ='{text.replace(chr(39), chr(39) * 2)}'" for column, text in zip(columns, texts))
        self.script(f'answer TRVN_job.mdb\nmenu mnuOpen\nsql "UPDATE SUMMARY Set {sets}"\n')
        report("--as-saved", "-o", self.out, "--csv", "all.csv", "TRVN_job.mdb", folder=self.folder)
        row = rows(self.folder / "all.csv")[0]
        told = [row[column] for column in columns]
        self.assertEqual(told, ["'=1+1", "'+A1", "'-2+3", "'@x", "''quoted", "-2.5", "plain"])
        shutil.copy(self.lean, self.folder / "=1+1.mdb")
        report("-o", self.out, "--csv", "f.csv", "=1+1.mdb", folder=self.folder)
        self.assertEqual(rows(self.folder / "f.csv")[0]["project"], "'=1+1.mdb")

    def test_a_link_under_an_outputs_name_gives_way(self):
        self.out.mkdir()
        for number, leads_to in enumerate((self.victim, self.elsewhere, "/dev/null", "itself", "nowhere")):
            self.project(f"TRVN_{number}.mdb".encode())
            name = f"TRVN_{number}_att_soil.pdf"
            (self.out / name).symlink_to(name if leads_to == "itself" else leads_to)
        self.victim.chmod(0o444)
        self.raw("-o", self.out, self.jobs)
        self.assertEqual(len(digests(self.out)), 5)
        self.assertFalse(any(pdf.is_symlink() for pdf in self.out.iterdir()))
        self.assert_untouched()

    def test_a_linked_folder_below_the_outputs_is_refused_by_name(self):
        (self.jobs / "sub/deep").mkdir(parents=True)
        self.project(b"sub/deep/TRVN_1.mdb")
        for link, deeper in (("sub", "deep"), ("sub/deep", "")):
            shutil.rmtree(self.out, ignore_errors=True)
            (self.out / link).parent.mkdir(parents=True)
            (self.out / link).symlink_to(self.elsewhere)
            said = self.raw("-o", self.out, self.jobs, status=1)
            self.assertIn(f"The folder '{self.out / link}' is a link. With --follow-links", said)
            self.assert_untouched()
            self.raw("-o", f"{self.out}/.", "--follow-links", self.jobs)
            self.assertEqual(len(digests(self.elsewhere / deeper)), 1)
            shutil.rmtree(self.elsewhere)
            self.elsewhere.mkdir()

    def test_the_outputs_own_folder_may_be_a_link(self):
        self.project(b"TRVN_1.mdb")
        self.out.symlink_to(self.elsewhere)
        self.raw("-o", self.out, self.jobs)
        self.assertEqual(len(digests(self.elsewhere)), 1)

    def test_neither_links_nor_pipes_are_taken_for_a_journal(self):
        self.project(b"TRVN_1.mdb")
        self.out.mkdir()
        journal = self.out / ".terravane-report.journal"
        journal.symlink_to(self.victim)
        self.raw("--resume", "-o", self.out, self.jobs)
        self.assert_untouched()
        self.assertTrue(journal.is_file() and not journal.is_symlink())
        journal.unlink()
        os.mkfifo(journal)
        self.raw("--resume", "-o", self.out, self.jobs)
        (self.out / "TRVN_1_att_soil.pdf").unlink()
        os.mkfifo(self.out / "TRVN_1_att_soil.pdf")
        self.assertIn("not a file", self.raw("-o", self.out, self.jobs, status=1))

    def test_a_table_follows_the_link_that_the_user_named_and_no_other(self):
        self.project(b"TRVN_1.mdb")
        table = self.folder / "table.csv"
        table.symlink_to(self.elsewhere / "table.csv")
        (self.elsewhere / "table.csv.part").symlink_to(self.victim)
        self.raw("-o", self.out, "--csv", table, self.jobs)
        self.assertTrue(table.is_symlink())
        self.assertEqual(self.victim.read_text(), "mine")
        self.assertEqual(len(rows(self.elsewhere / "table.csv")), 2)
        self.assertEqual([path.name for path in self.elsewhere.iterdir()], ["table.csv"])
        for refused in ("/dev/null", self.elsewhere):
            self.assertIn("Could not write", self.raw("-o", self.out, "--csv", refused, self.jobs, status=2))
        self.assertTrue(pathlib.Path("/dev/null").is_char_device())

    @unittest.skipUnless(shutil.which("strace"), "strace is not installed")
    def test_no_name_runs_anything_or_opens_the_network(self):
        for name in HOSTILE:
            self.project(name)
        trace = self.folder / "trace"
        # Leaks can't be looked for while another process traces.
        traced = {**environment(), "ASAN_OPTIONS": os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"}
        subprocess.run(["strace", "-f", "-o", trace, "-e", "trace=execve,socket,connect",
                        str(settings.programs / "terravane-report"), "--today", TODAY, "--jobs", "2", "-o", self.out,
                        self.jobs], env=traced, stdout=subprocess.DEVNULL, timeout=SECONDS, check=True)
        calls = trace.read_text(errors="replace")
        run_programs = set(re.findall(r'execve\("([^"]*)"', calls))
        self.assertEqual({os.path.basename(path) for path in run_programs} - {"exe"}, {"terravane-report"})
        self.assertEqual(set(re.findall(r"socket\((\w+)", calls)) - {"AF_UNIX"}, set())  # the name service's


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--programs", type=pathlib.Path, default=ROOT / "build/bin")
    parser.add_argument("--many", type=int, default=1000)
    settings, others = parser.parse_known_args(namespace=settings)
    settings.programs = settings.programs.resolve()
    unittest.main(argv=[sys.argv[0], *others])
