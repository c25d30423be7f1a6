#!/usr/bin/env python3
"""Checks that the C++ files keep to the structure of docs/ARCHITECTURE.md: which folder may include which, where Windows
headers may be included, and how large files and functions may be.

    tools/check_includes.py [ROOT]

Faults that are known stand in tools/known_faults.txt, one a line, as they are printed but without the line number; a
line there that is no longer true is a fault, too. Exit status 0 if there is no other fault, 1 if there is one.
"""
import pathlib
import re
import sys

# What each folder may include besides itself. A folder not named here belongs to the one above it.
MAY_INCLUDE = {
    "text": "",
    "text/win32": "text",
    "res": "",
    "platform": "",
    "platform/stdio": "platform text",
    "platform/memory": "platform platform/stdio res text",
    "platform/win32": "platform platform/stdio text",
    "regfile": "platform text",
    "pages": "platform res text",
    "catalogue": "pages res",
    "history": "pages platform text",
    "lang": "platform text",
    "skin": "platform text",
    "skin/win32": "platform platform/win32 skin text",
    "app": "catalogue history lang pages platform res text",
    "app/win32": "app platform platform/win32 res skin skin/win32",
    "docgen": "app catalogue lang pages platform platform/memory res text",
    # A program of its own, which on Windows puts the real registry and system together with the rest.
    "cli": "app catalogue pages platform platform/memory platform/stdio platform/win32 regfile res skin text",
    # What is not part of the product uses whatever it is about.
    "tools": "*",
    "fuzz": "*",
    "tests": "*",
}
WINDOWS_FOLDERS = {"platform/win32", "skin/win32", "app/win32", "text/win32", "cli", "tests/win32", "tests/program",
                   "tools/drive"}
WINDOWS_HEADERS = re.compile(r"(windows|win(base|def|gdi|nls|nt|reg|user)|commctrl|commdlg|objbase|ole2|oleauto|olectl"
                             r"|shellapi|shlobj|shlwapi|htmlhelp)\.h", re.IGNORECASE)

MOST_FILE_LINES = 400
MOST_FUNCTION_LINES = 60
MOST_PARAMETERS = 5
KNOWN_FAULTS = "tools/known_faults.txt"

LITERALS_AND_COMMENTS = re.compile(r'R"(?P<mark>[^()\\ ]*)\(.*?\)(?P=mark)"'
                                   r"|//[^\n]*|/\*.*?\*/"
                                   r'|"(?:\\.|[^"\\\n])*"'
                                   r"|(?<![0-9A-Za-z_])(?:u8|[uUL])?'(?:\\.|[^'\\\n])+'", re.DOTALL)
DIRECTIVE = re.compile(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", re.MULTILINE)
OPERATOR_MACRO = re.compile(r"^[ \t]*#[ \t]*define[ \t]+(\w+)[ \t]+([^\w\s()\"']+|and|or|not|xor)[ \t]*$", re.MULTILINE)
# Parentheses after these belong to no parameter list.
NO_NAMES = {"alignas", "decltype", "explicit", "noexcept", "requires", "__attribute__", "__declspec"}


def blank(text, pattern):
    """Replaces every match with blanks, so that lines and columns stay."""
    return pattern.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


def matching(text, opening):
    """The position of the bracket that closes the one at `opening`."""
    depth = 0
    for position in range(opening, len(text)):
        if text[position] in "([{":
            depth += 1
        elif text[position] in ")]}":
            depth -= 1
            if depth == 0:
                return position
    raise ValueError("a bracket is not closed")


def parameter_list(statement):
    """(name, parameters) of the function that a statement declares; None when it declares none."""
    position = 0
    while (position := statement.find("(", position)) >= 0:
        before = statement[:position].rstrip()
        end = matching(statement, position)
        name = re.search(r"(operator\s*\S*|~?\w+)$", before)
        if re.search(r"\boperator$", before) and statement[position:end + 1].replace(" ", "") == "()":
            position = end + 1  # operator()(...)
            continue
        if re.search(r"(?<![=!<>])=(?!=)", re.sub(r"operator\s*\S+$", "", before)):
            return None  # the parentheses belong to a value
        if name and name.group() not in NO_NAMES:
            return name.group(), statement[position + 1:end]
        position = end + 1
    return None


def without_template(statement):
    """The statement without its template <...>."""
    depth = 0
    head = re.match(r"\s*template\s*(?=<)", statement)
    for position in range(head.end() if head else len(statement), len(statement)):
        depth += (statement[position] == "<") - (statement[position] == ">" and statement[position - 1] != "-")
        if depth == 0:
            return without_template(statement[position + 1:])
    return statement


def count_parameters(parameters):
    depth = 0
    commas = 0
    for character in parameters.replace("->", "  "):
        depth += (character in "([{<") - (character in ")]}>")
        commas += character == "," and depth == 0
    return 0 if parameters.strip() in ("", "void") else commas + 1


def functions(text):
    """Yields (name, number of the first line, number of lines, parameters) of all functions and declarations; 0 lines for
    a declaration. `text` has no literals, comments and directives. Lambdas count as part of what they stand in."""
    start = position = 0
    while position < len(text):
        character = text[position]
        statement = text[start:position]
        if character in "([":
            position = matching(text, position)
        elif character == ":" and statement.strip() in ("public", "private", "protected"):
            start = position + 1
        elif character == "}":
            start = position + 1
        elif character == ";":
            yield from describe(text, start, position, None)
            start = position + 1
        elif character == "{":
            end = matching(text, position)
            function = parameter_list(without_template(statement))
            initialiser_list = re.search(r"\)[^():]*(?<!:):(?!:)", statement) is not None
            if function is None and re.match(r"\s*(inline\s+)?(namespace|class|struct|union|extern)\b",
                                             without_template(statement)):
                start = position + 1  # what is inside is looked at next
            elif function is None or (initialiser_list and re.search(r"[\w>]\s*$", statement)):
                position = end  # a value, or a member's initialiser
            else:
                yield from describe(text, start, position, end)
                position = end
                start = end + 1
        position += 1


def describe(text, start, head_end, end):
    function = parameter_list(without_template(text[start:head_end]))
    if function is not None:
        first = start + len(text[start:head_end]) - len(text[start:head_end].lstrip())
        lines = 0 if end is None else text.count("\n", first, end) + 1
        yield function[0], text.count("\n", 0, first) + 1, lines, function[1]


def room_of(path):
    """The folder of MAY_INCLUDE that a path belongs to."""
    folder = path.rsplit("/", 1)[0] if "/" in path else ""
    while folder and folder not in MAY_INCLUDE:
        folder = folder.rpartition("/")[0]
    return folder


def include_faults(path, text):
    room = room_of(path)
    allowed = MAY_INCLUDE.get(room, "").split()
    for match in re.finditer(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]', text, re.MULTILINE):
        line = text.count("\n", 0, match.start()) + 1
        included = match.group(2)
        if match.group(1) == "<":
            if WINDOWS_HEADERS.fullmatch(included) and path.rpartition("/")[0] not in WINDOWS_FOLDERS:
                yield line, f"includes <{included}>"
        elif room_of(included) not in [room, *allowed] and "*" not in allowed:
            yield line, f'includes "{included}"'


def size_faults(text):
    length = text.count("\n")
    if length > MOST_FILE_LINES:
        yield 1, f"has more than {MOST_FILE_LINES} lines"
    code = blank(blank(text, LITERALS_AND_COMMENTS), DIRECTIVE)
    for name, line, lines, parameters in functions(code):
        if lines > MOST_FUNCTION_LINES:
            yield line, f"{name} has more than {MOST_FUNCTION_LINES} lines"
        # Macros like GoogleTest's, and constants with constructor arguments, look like declarations but are none.
        if not re.fullmatch(r"[A-Z0-9_]{3,}|k[A-Z]\w*", name) and count_parameters(parameters) > MOST_PARAMETERS:
            yield line, f"{name} has more than {MOST_PARAMETERS} parameters"


def faults(path, text):
    """Yields (line, fault) of one file."""
    for match in OPERATOR_MACRO.finditer(blank(text, re.compile(r"//[^\n]*"))):
        yield text.count("\n", 0, match.start()) + 1, f"{match.group(1)} is a macro that stands for an operator"
    yield from include_faults(path, text)
    if not path.endswith((".inc", ".rc")):
        try:
            yield from size_faults(text)
        except ValueError as error:
            yield 1, f"cannot be read: {error}"


def main(arguments):
    root = pathlib.Path(arguments[0] if arguments else pathlib.Path(__file__).parent.parent)
    known_file = root / KNOWN_FAULTS
    known = set(known_file.read_text(encoding="utf-8").splitlines()) if known_file.exists() else set()
    seen = set()
    count = found = 0
    for room in sorted({name.split("/")[0] for name in MAY_INCLUDE}):
        for file in sorted((root / room).rglob("*")):
            path = file.relative_to(root).as_posix()
            if file.suffix not in (".cpp", ".h", ".cc", ".inc", ".rc"):
                continue
            count += 1
            for line, fault in faults(path, file.read_text(encoding="utf-8")):
                seen.add(f"{path}: {fault}")
                if f"{path}: {fault}" not in known:
                    found += 1
                    print(f"{path}:{line}: {fault}")
    for mended in sorted(known - seen):
        found += 1
        print(f"{KNOWN_FAULTS}: no longer true: {mended}")
    print(f"{count} files, {found} faults, {len(known & seen)} known ones")
    return 1 if found or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
