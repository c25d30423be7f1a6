"""Whether tools/check_includes.py finds what it is for, and nothing else."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tools"))
import check_includes  # noqa: E402

LONG_BODY = "{\n" + "    f();\n" * 59 + "}\n"  # with the line of its head 61 lines


def found(path, text):
    return [fault for _, fault in check_includes.faults(path, text)]


class Includes(unittest.TestCase):
    def test_only_downwards(self):
        for path, included, allowed in (
                ("pages/A.cpp", "platform/Registry.h", True), ("pages/A.cpp", "app/ItemTable.h", False),
                ("pages/A.cpp", "platform/win32/Handles.h", False), ("catalogue/login/A.cpp", "catalogue/Notes.h", True),
                ("platform/Registry.h", "pages/Tweak.h", False), ("platform/win32/A.cpp", "skin/Canvas.h", False),
                ("skin/A.cpp", "skin/win32/SkinEngine.h", False), ("skin/win32/A.cpp", "skin/Canvas.h", True),
                ("tests/app/A.cpp", "app/win32/Win32MainWindow.h", True), ("text/A.h", "nowhere/B.h", False)):
            expected = [] if allowed else [f'includes "{included}"']
            self.assertEqual(found(path, f'// #include "x/Y.h"\n#include "{included}"\n'), expected)

    def test_windows_headers_have_their_folders(self):
        self.assertEqual(found("pages/A.cpp", "#include <vector>\n  # include <Windows.h>\n"), ["includes <Windows.h>"])
        self.assertEqual(found("platform/win32/A.cpp", "#include <windows.h>\n"), [])


class Sizes(unittest.TestCase):
    def test_functions_wherever_they_stand(self):
        for head in ("int f() ", "Class::Class(int a) : a_{a}, b_(g({1, 2})) ", "template <class T, void (*g)(T)>\nT f() ",
                     "bool operator()(int a) const noexcept ", "TEST_F(Suite, Name) ", "auto f() -> std::vector<int> "):
            for before, after in (("namespace n {\nconst char* kText = \"{\";  // {\nint k = 1'000 + u'{' + '\\'';\n", "}\n"),
                                  ("template <class T, void (*g)(T)>\nclass C : public D {\npublic:\n", "};\n")):
                faults = found("text/A.cpp", before + head + LONG_BODY + after)
                self.assertEqual(len(faults), 1, head)
                self.assertIn("has more than 60 lines", faults[0])
        self.assertEqual(found("text/A.cpp", "int f() " + LONG_BODY.replace("f();\n", "", 1)), [])
        self.assertEqual(found("text/A.cpp", "constexpr int kTable[] = " + LONG_BODY), [])

    def test_parameters_of_functions_and_declarations(self):
        for head in ("void f(int a, int b, std::map<int, int> c, int d, int e = g(1, 2)", "A::A(int, int, int, int, int"):
            for end in (");", ") {}", ") const = 0;"):
                self.assertEqual(found("text/A.h", head + end), [])
                self.assertEqual(len(found("text/A.h", head + ", int z" + end)), 1, head + end)

    def test_files_and_macros(self):
        self.assertEqual(found("text/A.cpp", "constexpr Group kGroup({0, 5}, kA, kB, kC, kD, kE);"), [])
        self.assertEqual(found("text/A.cpp", "\n" * 401), ["has more than 400 lines"])
        self.assertEqual(found("res/A.inc", "#define NOT !\n#define HAS(x) (!(x))\n#define EMPTY\n"),
                         ["NOT is a macro that stands for an operator"])
        self.assertIn("cannot be read", found("text/A.cpp", "void f() {\n")[0])


if __name__ == "__main__":
    unittest.main(verbosity=0)
