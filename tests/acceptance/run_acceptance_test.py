#!/usr/bin/env python3
"""Tests of run_acceptance.py with a program that only repeats its script: the runner must fail where it should."""

import contextlib
import io
import pathlib
import sys
import tempfile
import unittest
import unittest.mock

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import run_acceptance

# Prints the script's lines that are no comments, with $PWD in them replaced; "quit N" ends with that status.
REPEATER = """#!/usr/bin/env bash
while read -r line; do
    case $line in '#'*) ;; 'quit '*) echo "no such line" >&2; exit "${line#quit }" ;; *) echo "${line/PWD/$PWD}" ;; esac
done < "${!#}"
"""


class Runner(unittest.TestCase):
    def setUp(self):
        outer = tempfile.TemporaryDirectory()
        self.addCleanup(outer.cleanup)
        self.folder = pathlib.Path(outer.name)
        self.program = self.folder / "terravane-script"
        self.program.write_text(REPEATER, encoding="utf-8")
        self.program.chmod(0o755)

    def run_one(self, script, expected=None, *options):
        """The runner's exit status and what it printed, for one script and the answers kept beside it."""
        path = self.folder / "one.trv"
        path.write_text(script, encoding="utf-8")
        if expected is not None:
            path.with_suffix(".expected").write_text(expected, encoding="utf-8")
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            status = run_acceptance.main(["--program", str(self.program), *options, str(path)])
        return status, printed.getvalue()

    def test_equal_answers_pass(self):
        self.assertEqual(self.run_one('# a word\n{"echo":"ดิน"}\n', '{"echo":"ดิน"}\n')[0], 0)

    def test_another_answer_fails_and_shows_both(self):
        status, printed = self.run_one("1.64\n", "1.63\n")
        self.assertEqual(status, 1)
        self.assertIn("-1.63", printed)
        self.assertIn("+1.64", printed)

    def test_an_answer_too_few_fails(self):
        self.assertEqual(self.run_one("1\n", "1\n2\n")[0], 1)

    def test_missing_answers_fail(self):
        self.assertEqual(self.run_one("1\n")[0], 1)

    def test_a_folder_stands_for_its_scripts_and_each_that_fails_is_named(self):
        for name, kept in ("first", "1\n"), ("second", "2\n"), ("third", "3\n"):
            (self.folder / f"{name}.trv").write_text("1\n", encoding="utf-8")
            (self.folder / f"{name}.expected").write_text(kept, encoding="utf-8")
        with contextlib.redirect_stdout(io.StringIO()) as printed:
            status = run_acceptance.main(["--program", str(self.program), str(self.folder)])
        self.assertEqual(status, 1)
        failed = [line for line in printed.getvalue().splitlines() if line.startswith("FAILED")]
        self.assertEqual([line.rsplit("/", 1)[1] for line in failed], ["second.trv", "third.trv"])

    def test_a_script_that_does_not_end_fails_and_the_next_one_runs(self):
        self.program.write_text(REPEATER.replace("'quit '*)", "endless) sleep 9 ;; 'quit '*)"), encoding="utf-8")
        for name, line in ("first", "endless\n"), ("second", "1\n"):
            (self.folder / f"{name}.trv").write_text(line, encoding="utf-8")
            (self.folder / f"{name}.expected").write_text("1\n", encoding="utf-8")
        with unittest.mock.patch.object(run_acceptance, "SECONDS", 1):
            with contextlib.redirect_stdout(io.StringIO()) as printed:
                self.assertEqual(run_acceptance.main(["--program", str(self.program), str(self.folder)]), 1)
        self.assertRegex(printed.getvalue(), "(?s)FAILED .*first.trv.*timed out.*ok .*second.trv")

    def test_the_fresh_folder_is_written_work(self):
        self.assertEqual(self.run_one("PWD/road.mdb\n", "<work>/road.mdb\n")[0], 0)

    def test_an_exit_status_must_be_the_one_told(self):
        self.assertEqual(self.run_one("quit 1\n", "")[0], 1)
        self.assertEqual(self.run_one("# exit 1\nquit 1\n", "")[0], 0)
        self.assertEqual(self.run_one("# exit 1\n", "")[0], 1)

    def test_setup_runs_before_and_check_is_compared(self):
        script = "# setup: echo ready > state\n# check: cat state; false\n"
        self.assertEqual(self.run_one(script, "$ cat state; false\nready\nstatus 1\n")[0], 0)
        self.assertEqual(self.run_one(script, "$ cat state; false\nother\nstatus 1\n")[0], 1)

    def test_a_failed_setup_fails(self):
        self.assertEqual(self.run_one("# setup: false\n", "")[0], 1)

    def test_standard_error_can_be_checked(self):
        self.assertEqual(self.run_one("# exit 1\n# check: cat ../stderr\nquit 1\n", "$ cat ../stderr\nno such line\n")[0], 0)

    def test_update_keeps_what_came(self):
        self.assertEqual(self.run_one("7.25\n", "old\n", "--update")[0], 0)
        self.assertEqual((self.folder / "one.expected").read_text(encoding="utf-8"), "7.25\n")

    def test_update_keeps_nothing_of_a_run_that_ended_badly(self):
        self.assertEqual(self.run_one("quit 3\n", "old\n", "--update")[0], 1)
        self.assertEqual((self.folder / "one.expected").read_text(encoding="utf-8"), "old\n")

    def test_a_sample_may_not_raise_an_error(self):
        self.assertEqual(self.run_one('{"get":"txtOMC","text":"12.3"}\n', None, "--sample")[0], 0)
        self.assertEqual(self.run_one('{"error":11,"description":"Division by zero"}\n', None, "--sample")[0], 1)
        self.assertEqual(self.run_one('{"refused":"cmdView","why":"disabled"}\n', None, "--sample")[0], 1)


if __name__ == "__main__":
    unittest.main()
