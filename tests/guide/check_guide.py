#!/usr/bin/env python3
"""Holds the user guide to the program: check_guide.py texts | pdf FILE

texts  every message and run-time error of the sources stands in the chapter of the messages, and every caption that the
       chapters set in bold stands in the sources
pdf    the finished guide has a bookmark for each chapter and section, its fonts are in it, and each page has text
"""
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
CHAPTERS = sorted((ROOT / "docs" / "guide").glob("[0-9][0-9]-*.md"))
LITERAL = r'"((?:[^"\\\n]|\\.)*)"'
# The tools tell their own user in their own words; the guide is the desktop's.
TOOLS = ("script", "batch")
# Emphasis, not captions.
PLAIN_BOLD = {"red strip", "saved", "in the order of rising water content", "without asking", "SC"}
MOST_COMPARED = 24  # characters of a text: what is put together from parts is found by the beginning of each
FEWEST_COMPARED = 9


def sources():
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix in (".h", ".cpp") and path.relative_to(ROOT / "src").parts[0] not in TOOLS:
            yield path, path.read_text(encoding="utf-8")


def plain(text):
    """Without line ends, quotation marks and mark-up, as a reader compares."""
    return re.sub(r"\s+", " ", re.sub(r"[‘’'`*\\]", "", text)).strip()


def joined(text):
    """Literals that stand behind one another are one text."""
    return re.sub(r'(?<=[^\\])"\s*\n\s*"', "", text)


def calls(text, opening):
    """What stands from each opening to the end of its statement."""
    for match in re.finditer(opening, text):
        end = re.compile(r";\s*\n|;\s*\}").search(text, match.end())
        yield text[match.start():end.start() if end else len(text)]


def messages(path, text):
    text = joined(text)
    for call in calls(text, r"\b(?:RuntimeError|Refused|SyntaxError|NotAllowed)\("):
        yield from re.findall(LITERAL, call)
    for call in calls(text, r"\b(?:Message \w+|Ask\(\)\.Show\(|tr\(\"Run-time|setInformativeText|Tell\()"):
        yield from re.findall(LITERAL, call)
    if path.name == "runtime_error.cpp":
        yield from re.findall(r"KnownError\{[^,]+, " + LITERAL, text)
    yield from re.findall(r"Failure(?: k\w+)?\{\w+, [\w:]+,\s*" + LITERAL, text)
    for name in re.findall(r"Show\(\{std::string\((k\w+)\)", text):
        yield from re.findall(name + r" = " + LITERAL, text)


def missing_messages(chapter):
    known = plain(chapter)
    for path, text in sources():
        for message in messages(path, text):
            asked = plain(re.sub(r"%\d", "…", message))[:MOST_COMPARED].strip()
            asked = asked.split("…")[0].strip()
            if len(asked) >= FEWEST_COMPARED and not re.fullmatch(r"[\w.]+", asked) and asked not in known:
                yield f"{path.relative_to(ROOT)}: the guide does not explain \"{message}\""


def missing_numbers(chapter):
    header = (ROOT / "src" / "runtime" / "runtime_error.h").read_text(encoding="utf-8")
    engine = (ROOT / "src" / "jet" / "engine_error.h").read_text(encoding="utf-8")
    rows = set(re.findall(r"\d+", " ".join(re.findall(r"^\| ([−\d, ]+) \|", chapter, flags=re.M))))
    for number in re.findall(r"constexpr int k\w+ = -?(\d+);", header + engine):
        if number not in rows and number != "32755":  # told by its text: the user cancelled
            yield f"the guide has no row for the error number {number}"


def missing_captions():
    everything = plain(" ".join(text.replace("&", "") for _, text in sources()))
    for chapter in CHAPTERS:
        text = re.sub(r"```.*?```", "", chapter.read_text(encoding="utf-8"), flags=re.S)
        for caption in re.findall(r"\*\*(.+?)\*\*", text):
            if caption not in PLAIN_BOLD and plain(caption) not in everything:
                yield f"{chapter.name}: nothing in the program is called \"{caption}\""


def check_texts():
    chapter = next(path for path in CHAPTERS if "messages" in path.name).read_text(encoding="utf-8")
    return [*missing_messages(chapter), *missing_numbers(chapter), *missing_captions()]


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def check_fonts(pdf):
    rows = output("pdffonts", pdf).splitlines()[2:]
    if not rows:
        yield "the guide has no fonts"
    for row in rows:
        if row.split()[-5] != "yes":
            yield "a font is not in the guide: " + row
        if not re.search(r"Liberation|Loma", row):
            yield "a font is none of those that are installed with the program: " + row


def check_bookmarks(pdf):
    content = pathlib.Path(pdf).read_bytes()
    marks = content.count(b"/Dest [") if b"/Outlines" in content else 0
    headings = sum(len(re.findall(r"^##? ", re.sub(r"```.*?```", "", path.read_text(encoding="utf-8"), flags=re.S),
                                  flags=re.M)) for path in CHAPTERS)
    if marks < headings:
        yield f"the guide has {headings} headings and {marks} bookmarks"


def check_pages(pdf):
    pages = output("pdftotext", "-layout", pdf, "-").split("\f")[:-1]
    if len(pages) < len(CHAPTERS):
        yield f"the guide has {len(pages)} pages only"
    for number, page in enumerate(pages, 1):
        if len(page.split()) < 5:
            yield f"page {number} is empty"
        if "{{" in page or "\\frac" in page:
            yield f"page {number} shows a mark of the builder's"


def check_pdf(pdf):
    return [*check_fonts(pdf), *check_bookmarks(pdf), *check_pages(pdf)]


def main():
    faults = check_texts() if sys.argv[1:] == ["texts"] else check_pdf(sys.argv[2])
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
