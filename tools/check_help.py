#!/usr/bin/env python3
"""Checks the help that was built: its pages are well-formed and hold only elements that old browsers know, no
hand-written page was forgotten, and the HTML Help file holds exactly these pages, with contents, index and search.

    tools/check_help.py HELP-SOURCES BUILT-HELP

BUILT-HELP holds English.chm and html/. Needs extract_chmLib (package libchm-bin). Exit status 0 if all is well, 1 if
not.
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

XHTML = "{http://www.w3.org/1999/xhtml}"
ELEMENTS = set("html head meta title link body h1 h2 p a ul ol li dl dt dd table tr th td pre code kbd b i span br"
               .split())


def page_problems(page):
    """What is wrong with one page, as a list of texts."""
    try:
        content = page.read_bytes()
        root = xml.etree.ElementTree.fromstring(content)
    except xml.etree.ElementTree.ParseError as error:
        return [str(error)]
    problems = []
    if not content.startswith(b"<!DOCTYPE html PUBLIC"):
        problems.append("no document type")
    if not content.isascii():
        problems.append("not plain ASCII")
    names = {element.tag.removeprefix(XHTML) for element in root.iter()}
    problems += [f"<{name}> is not an element of ours" for name in sorted(names - ELEMENTS)]
    if not root.findtext(f"{XHTML}head/{XHTML}title"):
        problems.append("no title")
    return problems


def chm_problems(chm, html, extracted):
    """What is wrong with the HTML Help file, compared with the pages."""
    if not chm.is_file():
        return ["is not there"]
    done = subprocess.run(["extract_chmLib", chm, extracted], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        return ["cannot be extracted: " + done.stderr.strip()]
    problems = []
    for page in sorted(html.iterdir()):
        inside = extracted / page.name
        if not inside.is_file():
            problems.append(f"{page.name} is missing")
        elif inside.read_bytes() != page.read_bytes():
            problems.append(f"{page.name} differs")
    system = (extracted / "#SYSTEM").read_bytes()
    for text in (b"Korvane Manager Help", b"start.html", b"English.hhc", b"English.hhk"):
        if text + b"\0" not in system:
            problems.append(f"its description lacks {text.decode()}")
    search = extracted / "$FIftiMain"
    if not search.is_file() or search.stat().st_size < 1024:
        problems.append("no full-text search")
    for name in ("English.hhc", "English.hhk"):
        problems += [f"{name}: {problem}" for problem in list_problems(extracted / name, extracted)]
    return problems


def list_problems(path, extracted):
    """What is wrong with the contents or the index: it has to lead to files that are there."""
    if not path.is_file():
        return ["is missing"]
    pages = set(re.findall(r'name="Local" value="([^"#]*)', path.read_text(encoding="ascii")))
    if len(pages) < 10:
        return [f"leads to {len(pages)} pages"]
    return [f"leads to {page}" for page in sorted(pages) if not (extracted / page).is_file()]


def check(sources, built):
    """All problems, each with the name of its file."""
    html = built / "html"
    problems = [f"{page.name}: {problem}" for page in sorted(html.glob("*.html")) for problem in page_problems(page)]
    problems += [f"{source.name}: is not in the help" for source in sorted(sources.iterdir())
                 if not (html / source.name).is_file()]
    with tempfile.TemporaryDirectory() as extracted:
        problems += [f"English.chm: {problem}"
                     for problem in chm_problems(built / "English.chm", html, pathlib.Path(extracted))]
    return problems


def main():
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 1
    sources, built = map(pathlib.Path, sys.argv[1:])
    if not (built / "html").is_dir():
        print(f"{built}: holds no help", file=sys.stderr)
        return 1
    problems = check(sources, built)
    print("\n".join(problems) if problems else f"{len(list((built / 'html').glob('*.html')))} pages, all well")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
