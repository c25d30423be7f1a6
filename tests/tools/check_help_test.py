#!/usr/bin/env python3
"""Tests tools/check_help.py with a copy of the real help in which one thing is broken at a time.

    tests/tools/check_help_test.py BUILT-HELP
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILT = pathlib.Path(sys.argv.pop()).resolve() if len(sys.argv) > 1 else ROOT / "build" / "native" / "help"


class CheckHelp(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.built = pathlib.Path(folder.name) / "built"
        self.sources = pathlib.Path(folder.name) / "sources"
        shutil.copytree(BUILT, self.built)
        shutil.copytree(ROOT / "help", self.sources)

    def check(self):
        """Returns the exit status and everything printed."""
        done = subprocess.run([sys.executable, "-B", ROOT / "tools" / "check_help.py", self.sources, self.built],
                              capture_output=True, text=True, check=False)
        return done.returncode, done.stdout + done.stderr

    def change(self, old, new):
        """Changes the page dates.html."""
        page = self.built / "html" / "dates.html"
        text = page.read_text(encoding="ascii")
        self.assertIn(old, text)
        page.write_text(text.replace(old, new, 1), encoding="utf-8")

    def expect(self, *texts):
        status, printed = self.check()
        self.assertEqual(status, 1, printed)
        for text in texts:
            self.assertIn(text, printed)

    def test_accepts_the_help(self):
        status, printed = self.check()
        self.assertEqual(status, 0, printed)

    def test_finds_what_is_wrong_with_a_page(self):
        for old, new, problem in (("</ul>", "", "mismatched tag"), ("<h1>", "<font>x</font><h1>", "<font>"),
                                  ("<ul>", "\u2022 <ul>", "not plain ASCII"), ("<p>", "<p>R&D ", "invalid token")):
            with self.subTest(problem):
                shutil.copy(BUILT / "html" / "dates.html", self.built / "html")
                self.change(old, new)
                self.expect("dates.html: ", problem, "English.chm: dates.html differs")

    def test_finds_what_is_missing(self):
        (self.sources / "forgotten.html").write_text("")
        (self.built / "html" / "later.html").write_text("")
        self.expect("forgotten.html: is not in the help", "English.chm: later.html is missing")

    def test_refuses_what_is_no_help_file(self):
        (self.built / "English.chm").write_bytes(b"ITSF" + bytes(200))
        self.expect("English.chm: cannot be extracted")
        (self.built / "English.chm").unlink()
        self.expect("English.chm: is not there")


if __name__ == "__main__":
    unittest.main()
