#!/usr/bin/env python3
"""Tests tools/check_imports.py with programs that the real linker made: it has to refuse what old Windows lacks."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
CHECK = ROOT / "tools" / "check_imports.py"


class CheckImports(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def build(self, source, *flags, architecture="i686"):
        program = self.folder / "program.exe"
        (self.folder / "program.cpp").write_text(source, encoding="ascii")
        compiler = f"{architecture}-w64-mingw32-g++-win32"
        subprocess.run([compiler, "-static", self.folder / "program.cpp", "-o", program, *flags], check=True)
        return program

    def check(self, program):
        """Returns the exit status and everything printed."""
        done = subprocess.run([sys.executable, CHECK, program], capture_output=True, text=True, check=False)
        return done.returncode, done.stdout + done.stderr

    def test_accepts_a_program_for_old_windows(self):
        status, printed = self.check(self.build(
            "#include <windows.h>\nint main() { return MessageBeep(GetTickCount() & 1); }", "-luser32"))
        self.assertEqual(status, 0, printed)

    def test_names_each_later_function(self):
        status, printed = self.check(self.build(
            "#define _WIN32_WINNT 0x0600\n#include <windows.h>\n#include <shlobj.h>\n"
            "int main() { return static_cast<int>(GetTickCount64() + GetTickCount()) + IsUserAnAdmin(); }",
            "-lshell32"))
        self.assertEqual(status, 1, printed)
        self.assertIn("kernel32.dll GetTickCount64", printed)
        self.assertIn("shell32.dll IsUserAnAdmin", printed)
        self.assertNotIn("kernel32.dll GetTickCount\n", printed)

    def test_refuses_an_import_by_number(self):
        (self.folder / "number.def").write_text("LIBRARY comctl32.dll\nEXPORTS\nByNumber@0 @17 NONAME\n")
        library = self.folder / "libnumber.a"
        subprocess.run(["i686-w64-mingw32-dlltool", "-k", "-d", self.folder / "number.def", "-l", library], check=True)
        status, printed = self.check(self.build(
            'extern "C" __declspec(dllimport) int __stdcall ByNumber();\nint main() { return ByNumber(); }',
            str(library)))
        self.assertEqual(status, 1, printed)
        self.assertIn("comctl32.dll #17", printed)

    def test_refuses_a_program_for_a_later_system(self):
        status, printed = self.check(self.build(
            "int main() {}", "-Wl,--major-subsystem-version,5,--minor-subsystem-version,1"))
        self.assertEqual(status, 1, printed)
        self.assertIn("subsystem version 5.1", printed)

    def test_refuses_what_is_no_32_bit_program(self):
        status, printed = self.check(self.build("int main() {}", architecture="x86_64"))
        self.assertEqual(status, 2, printed)
        text = self.folder / "text.exe"
        text.write_text("MZ is not enough")
        self.assertEqual(self.check(text)[0], 2)
        self.assertEqual(self.check(self.folder / "absent.exe")[0], 2)


if __name__ == "__main__":
    unittest.main()
