#!/usr/bin/env python3
"""make_help.py CHMCMD SOURCES COMMANDS FOLDER TARGET: writes the help's pages, contents and index into FOLDER and compiles them.

SOURCES holds, as UTF-8:
  contents.txt   the order of the pages: a line is a page's name without ".html", or the title of a book, whose pages
                 follow with an indentation of four blanks
  pages/         a page is its <title>, then what stands below the heading that is made from it
  images/, style.css

In a page, <a href="other.html"></a> takes its text from the title or heading that it leads to. A comment
<!-- index: KEYWORD|READING; ... --> puts keywords into the index, for the page, or for the heading with an id that it
follows. Kana and ASCII are their own reading. The comment <!-- search commands --> becomes the table of the standard
search commands, taken from COMMANDS, the file that they are shipped in.

HTML Help reads its files in the system's code page and knows no other for contents and index, so all of them leave here
as code page 932.
"""

import configparser
import html
import pathlib
import re
import shutil
import subprocess
import sys
import unicodedata

CODE_PAGE = "cp932"
PRODUCT = "Korvane"
WINDOW = f"{PRODUCT}_HelpWindow"
CAPTION = f"{PRODUCT} ヘルプ"
TAGLINE = "Windows 用デスクトップ ツールバー"
FIRST_PAGE = "index.html"
RIGHTS = "Copyright (C) 2026 Dunmere Software. All rights reserved."

# The window's looks, as bits of HTML Help's window type: three panes, the contents follow the page, place and size are
# remembered. There is no tab to search: the compiler's word list knows no Japanese, so that a search would find nothing.
WINDOW_STYLE = 0x20 | 0x100 | 0x40000
# Hide or show the navigation pane, back, forward, home, options, print.
WINDOW_BUTTONS = 0x2 | 0x4 | 0x8 | 0x40 | 0x1000 | 0x2000
# Pixels: the navigation pane's width; left, top, right and bottom of the window.
PANE_WIDTH = 290
WINDOW_RECTANGLE = (32, 40, 1000, 728)

TITLE = re.compile(r"\A<title>(.*?)</title>\s*", re.DOTALL)
HEADING = re.compile(r'<h([2-4]) id="([\w-]+)">(.*?)</h\1>', re.DOTALL)
INDEX = re.compile(r"<!-- index: (.*?) -->\n?", re.DOTALL)
EMPTY_LINK = re.compile(r'<a href="([^"#:]*)(?:#([\w-]+))?"></a>')
COMMANDS = "<!-- search commands -->"
TAG = re.compile(r"<[^>]+>")

PAGE = """<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.01 Transitional//EN" "http://www.w3.org/TR/html4/loose.dtd">
<html lang="ja">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=Shift_JIS">
<title>{title}</title>
<link rel="stylesheet" type="text/css" href="style.css">
</head>
<body>
<div id="head"><p>{place}</p><h1>{title}</h1></div>
<div id="text">
{body}</div>
<div id="foot"><p>{neighbours}</p><p>{rights}</p></div>
</body>
</html>
"""

LIST_HEAD = '<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<html>\n<head>\n</head>\n<body>\n'
LIST_TAIL = "</body>\n</html>\n"


class SourceError(Exception):
    """Something in the sources that cannot become a help file."""


def plain(markup):
    return html.unescape(TAG.sub("", markup)).strip()


def quoted(text):
    return html.escape(text, quote=True)


class Page:
    def __init__(self, name, source):
        self.name = name
        title = TITLE.match(source)
        if not title:
            raise SourceError(f"{name}: does not begin with its title")
        self.title = plain(title[1])
        self.source = source[title.end() :]
        self.headings = {anchor: plain(text) for _, anchor, text in HEADING.findall(self.source)}

    @property
    def file(self):
        return f"{self.name}.html"

    def keywords(self):
        """The index entries of the page: keyword, reading and address."""
        for comment in INDEX.finditer(self.source):
            address = self.file
            headings = list(HEADING.finditer(self.source, 0, comment.start()))
            # Right below the heading, or it is the page that is meant.
            if headings and not self.source[headings[-1].end() : comment.start()].strip():
                address += f"#{headings[-1][2]}"
            for entry in filter(None, map(str.strip, comment[1].split(";"))):
                keyword, _, reading = entry.partition("|")
                yield keyword, reading or None, address


def command_table(path):
    """The standard search commands as a table."""
    commands = configparser.RawConfigParser(comment_prefixes=(";",))
    commands.read(path, encoding="utf-8")
    lines = ["<table>", "<tr><th>番号</th><th>名前</th><th>検索するもの</th></tr>"]
    for section in commands.sections():
        number = int(section.rpartition("_")[2])
        name, comment = quoted(commands[section]["CommandName"]), quoted(commands[section]["Comment"])
        lines.append(f"<tr><td>{number}</td><td>{name}</td><td>{comment}</td></tr>")
    return "\n".join([*lines, "</table>"])


class Help:
    """The pages, in the order of the contents."""

    def __init__(self, folder, commands):
        self.commands = commands
        self.books = []  # (title or None, [pages])
        for line in (folder / "contents.txt").read_text(encoding="utf-8").splitlines():
            if not line.strip():
                continue
            indented = line.startswith(" " * 4)
            if indented and not (self.books and self.books[-1][0]):
                raise SourceError(f"contents.txt: there is no book above {line.strip()}")
            if indented or re.fullmatch(r"\w+", line, re.ASCII):
                name = line.strip()
                source = folder / "pages" / f"{name}.html"
                if not source.is_file():
                    raise SourceError(f"contents.txt: there is no page {name}")
                page = Page(name, source.read_text(encoding="utf-8"))
                if indented:
                    self.books[-1][1].append(page)
                else:
                    self.books.append((None, [page]))
            else:
                self.books.append((line, []))
        self.pages = [page for _, pages in self.books for page in pages]
        forgotten = {file.stem for file in (folder / "pages").glob("*.html")} - {page.name for page in self.pages}
        if forgotten:
            raise SourceError(f"contents.txt: does not name {', '.join(sorted(forgotten))}")

    def book_of(self, page):
        return next(title for title, pages in self.books if page in pages)

    def text_of_link(self, page, link):
        target = next((other for other in self.pages if other.file == link[1]), page if not link[1] else None)
        text = target and (target.headings.get(link[2]) if link[2] else target.title)
        if not text:
            raise SourceError(f"{page.file}: leads to nowhere with {link[0]}")
        return f"{link[0][:-4]}{quoted(text)}</a>"

    def written(self, page):
        body = INDEX.sub("", page.source)
        if COMMANDS in body:
            body = body.replace(COMMANDS, command_table(self.commands))
        body = EMPTY_LINK.sub(lambda link: self.text_of_link(page, link), body)
        at = self.pages.index(page)
        neighbours = []
        if at > 0:
            neighbours.append(f'前のページ: <a href="{self.pages[at - 1].file}">{quoted(self.pages[at - 1].title)}</a>')
        if at + 1 < len(self.pages):
            neighbours.append(f'次のページ: <a href="{self.pages[at + 1].file}">{quoted(self.pages[at + 1].title)}</a>')
        return PAGE.format(
            title=quoted(page.title),
            place=quoted(self.book_of(page) or TAGLINE),
            body=body,
            neighbours="　|　".join(neighbours),
            rights=RIGHTS,
        )

    def contents(self):
        lines = []
        for title, pages in self.books:
            if title:
                lines.append(f"<li>{sitemap([('Name', title)])}\n<ul>")
            lines += [f"<li>{sitemap([('Name', page.title), ('Local', page.file)])}" for page in pages]
            if title:
                lines.append("</ul>")
        return as_list(lines)

    def index(self):
        addresses, readings = {}, {}
        for page in self.pages:
            for keyword, reading, address in page.keywords():
                places = addresses.setdefault(keyword, [])
                if address not in places:
                    places.append(address)
                readings[keyword] = readings.get(keyword) or reading
        for keyword, reading in readings.items():
            if not reading and any("CJK" in unicodedata.name(letter, "") for letter in keyword):
                raise SourceError(f"index: {keyword} ({addresses[keyword][0]}) has no reading")
        lines = []
        for keyword in sorted(addresses, key=lambda word: (sort_key(readings[word] or word), word)):
            fields = [("Name", keyword)]
            for address in addresses[keyword]:
                fields += [("Name", self.name_of(address)), ("Local", address)]
            lines.append(f"<li>{sitemap(fields)}")
        return as_list(lines)

    def name_of(self, address):
        file, _, anchor = address.partition("#")
        page = next(page for page in self.pages if page.file == file)
        return f"{page.title} - {page.headings[anchor]}" if anchor else page.title


def sort_key(reading):
    """In the order of a Japanese index: kana of both kinds alike, voiced ones with the voiceless, long marks ignored."""
    text = unicodedata.normalize("NFKD", unicodedata.normalize("NFKC", reading)).casefold()
    letters = (chr(ord(c) - 0x60) if "ァ" <= c <= "ヶ" else c for c in text)
    return "".join(c for c in letters if c.isalnum() and c != "ー")


def sitemap(fields):
    params = "".join(f'<param name="{name}" value="{quoted(value)}">' for name, value in fields)
    return f'<object type="text/sitemap">{params}</object>'


def as_list(lines):
    return LIST_HEAD + "<ul>\n" + "\n".join(lines) + "\n</ul>\n" + LIST_TAIL


def project(files):
    rectangle = ",".join(map(str, WINDOW_RECTANGLE))
    lists = f'"{PRODUCT}.hhc","{PRODUCT}.hhk"'
    window = f'"{CAPTION}",{lists},"{FIRST_PAGE}","{FIRST_PAGE}",,,,,'
    window += f"{WINDOW_STYLE:#x},{PANE_WIDTH},{WINDOW_BUTTONS:#x},[{rectangle}],,,,,,,0"
    options = [
        "Compatibility=1.1 or later",
        f"Compiled file={PRODUCT}.chm",
        f"Contents file={PRODUCT}.hhc",
        f"Index file={PRODUCT}.hhk",
        f"Default topic={FIRST_PAGE}",
        f"Default Window={WINDOW}",
        f"Title={CAPTION}",
        "Full-text search=No",
        "Language=0x411 Japanese (Japan)",
    ]
    return "\n".join(["[OPTIONS]", *options, "", "[WINDOWS]", f"{WINDOW}={window}", "", "[FILES]", *files, ""])


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    try:
        path.write_bytes(text.replace("\n", "\r\n").encode(CODE_PAGE))
    except UnicodeEncodeError as error:
        letter = error.object[error.start]
        raise SourceError(f"{path.name}: {letter} (U+{ord(letter):04X}) is not in code page 932") from None


def write_sources(sources, commands, folder):
    """Everything that the compiler reads, in a folder that holds nothing else."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    book = Help(sources, commands)
    for page in book.pages:
        write(folder / page.file, book.written(page))
    write(folder / f"{PRODUCT}.hhc", book.contents())
    write(folder / f"{PRODUCT}.hhk", book.index())
    write(folder / "style.css", (sources / "style.css").read_text(encoding="utf-8"))
    images = sorted((sources / "images").glob("*.png"))
    (folder / "images").mkdir()
    for image in images:
        shutil.copy(image, folder / "images")
    files = [page.file for page in book.pages] + ["style.css"] + [f"images\\{image.name}" for image in images]
    write(folder / f"{PRODUCT}.hhp", project(files))


def compile_help(chmcmd, folder, target):
    """Moves the compiled file to its place only when it is whole: the compiler leaves an empty one when it fails."""
    run = subprocess.run([chmcmd, f"{PRODUCT}.hhp"], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    compiled = folder / f"{PRODUCT}.chm"
    if run.returncode != 0 or not compiled.is_file() or compiled.stat().st_size == 0:
        compiled.unlink(missing_ok=True)
        output = run.stdout.decode(CODE_PAGE, "replace")
        raise SourceError(f"the help compiler ended with {run.returncode}:\n{output}")
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.move(compiled, target)


def make(chmcmd, sources, commands, folder, target):
    target.unlink(missing_ok=True)
    write_sources(sources, commands, folder)
    compile_help(chmcmd, folder, target.resolve())


if __name__ == "__main__":
    try:
        make(sys.argv[1], *map(pathlib.Path, sys.argv[2:]))
    except SourceError as error:
        sys.exit(f"help: {error}")
