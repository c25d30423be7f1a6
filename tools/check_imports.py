#!/usr/bin/env python3
"""Checks that 32-bit Windows programs load on old Windows: every function they import stands in
tools/allowed-imports.txt, and their headers ask for no later system than NT 4.

    tools/check_imports.py PROGRAM.exe ...

Exit status 0 if all programs pass, 1 if one does not, 2 if a file cannot be read as such a program.
"""
import pathlib
import struct
import sys

ALLOW_LIST = pathlib.Path(__file__).with_name("allowed-imports.txt")
MACHINE_I386 = 0x014C
PE32_MAGIC = 0x010B
ORDINAL_FLAG = 0x80000000


class NotAProgram(Exception):
    """The file is not a 32-bit Windows program."""


def read_allow_list(path):
    """Returns the set of allowed (dll, function); DLL names in lower case without ".dll"."""
    allowed = set()
    for line in path.read_text(encoding="ascii").splitlines():
        line = line.strip()
        if line and not line.startswith("#"):
            dll, names = line.split(":")
            allowed.update((dll, name) for name in names.split())
    return allowed


class Program:
    """The headers of a 32-bit program and access to its contents by relative virtual address."""

    def __init__(self, content):
        self.content = content
        if content[:2] != b"MZ":
            raise NotAProgram("no MZ header")
        header = self.number("<I", 0x3C)
        if content[header : header + 4] != b"PE\0\0":
            raise NotAProgram("no PE header")
        machine, section_count = self.numbers("<HH", header + 4)
        optional_size = self.number("<H", header + 20)
        optional = header + 24
        if machine != MACHINE_I386 or self.number("<H", optional) != PE32_MAGIC:
            raise NotAProgram("not built for 32-bit x86")
        self.system_version = self.numbers("<HH", optional + 40)
        self.subsystem_version = self.numbers("<HH", optional + 48)
        self.import_table = self.number("<I", optional + 104)
        self.delay_import_table = self.number("<I", optional + 96 + 13 * 8)
        self.sections = []
        for index in range(section_count):
            size, address, raw_size, raw = self.numbers("<IIII", optional + optional_size + 40 * index + 8)
            self.sections.append((address, max(size, raw_size), raw))

    def numbers(self, layout, offset):
        return struct.unpack_from(layout, self.content, offset)

    def number(self, layout, offset):
        return self.numbers(layout, offset)[0]

    def offset(self, address):
        for start, size, raw in self.sections:
            if start <= address < start + size:
                return address - start + raw
        raise NotAProgram(f"address {address:#x} lies in no section")

    def text(self, address):
        start = self.offset(address)
        return self.content[start : self.content.index(b"\0", start)].decode("latin-1")

    def imports(self):
        """Yields (dll, function) in the order of the file; a function imported by number is "#number"."""
        if not self.import_table:
            return
        entry = self.offset(self.import_table)
        while True:
            lookup, _, _, name, addresses = self.numbers("<5I", entry)
            if not name:
                return
            dll = self.text(name).lower().removesuffix(".dll")
            slot = self.offset(lookup or addresses)
            while value := self.number("<I", slot):
                yield dll, f"#{value & 0xFFFF}" if value & ORDINAL_FLAG else self.text(value + 2)
                slot += 4
            entry += 20


def check(path, allowed):
    """Prints what is wrong with the program, or that nothing is, and returns whether it passes."""
    program = Program(pathlib.Path(path).read_bytes())
    imports = list(program.imports())
    problems = [f"imports {dll}.dll {name}" for dll, name in imports if (dll, name) not in allowed]
    if not imports:
        problems.append("imports nothing at all")
    if program.delay_import_table:
        problems.append("has delayed imports, which are not checked here")
    for what, version in (("system", program.system_version), ("subsystem", program.subsystem_version)):
        if version > (4, 0):
            problems.append(f"asks for {what} version {version[0]}.{version[1]}")
    for problem in problems:
        print(f"{path}: {problem}")
    if not problems:
        print(f"{path}: all {len(imports)} imports exist on NT 4 and Windows 98")
    return not problems


def main(paths):
    if not paths:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    allowed = read_allow_list(ALLOW_LIST)
    status = 0
    for path in paths:
        try:
            if not check(path, allowed):
                status = max(status, 1)
        except (OSError, NotAProgram, struct.error, ValueError) as error:
            print(f"{path}: {error}", file=sys.stderr)
            status = 2
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
