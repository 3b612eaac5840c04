#!/usr/bin/env python3
"""help_texts.py ROOT CHMLS HELP: does the help tell everything that a user meets, in the program's own words?

Looks for every key of the accelerator table, every placeholder of search commands, and the texts of menus, dialogs and
the string table. Blanks and line breaks make no difference; for a part that the program fills in, any text will do.
"""

import re
import sys

from help_file import read_help
from source_tree import report, root_argument

KEYS_PAGE = "keyboard.html"
PLACEHOLDERS_PAGE = "placeholders.html"

TEXT = r'"((?:[^"\n]|"")*)"'
COMMENT = re.compile(r"^\s*//[^\n]*|^\s*#[^\n]*", re.MULTILINE)
ACCELERATOR = re.compile(r'^\s*(?:"(\w)"|VK_(\w+)),\s*ID_\w+,\s*VIRTKEY((?:,\s*\w+)*)', re.MULTILINE)
MENU_TEXT = re.compile(rf"^\s*(?:POPUP|MENUITEM)\s+{TEXT}", re.MULTILINE)
STRING = re.compile(rf"^\s*(IDS_\w+)\s+{TEXT}", re.MULTILINE)
CONTROL_TEXT = re.compile(
    rf"^\s*(?:CAPTION|[LCR]TEXT|CONTROL|GROUPBOX|(?:DEF)?PUSHBUTTON|AUTO(?:CHECKBOX|RADIOBUTTON|3STATE))\s+{TEXT}",
    re.MULTILINE,
)
PLACEHOLDER = re.compile(r'L"(<%\w+%>)"')
ESCAPES = {r"\n": "\n", r"\r": "\r", r"\t": "\t", '""': '"', r"\\": "\\"}
FILLED_IN = re.compile(r"%(?:\.?\d*)[sdu]")

KEY_NAMES = {"LWIN": "Win"}
MODIFIERS = [("CONTROL", "Ctrl"), ("ALT", "Alt"), ("SHIFT", "Shift")]

# Texts of the string table that no user reads: names of stored values, the head of a file, formats, filters, arguments.
NOT_READ = re.compile(r"IDS_(\w+_KEY|USER_COMMAND_HEADER|CLOCK_\w+|\w+_FILTER|\w+_PARAMETERS)")
# The title of a menu that only ever opens from a button, where titles are not seen.
NOT_SHOWN = {"Control Panel メニュー"}
JAPANESE = re.compile(r"[ぁ-ヿ一-鿿]")


def unescaped(text):
    return re.sub(r'\\.|""', lambda match: ESCAPES.get(match[0], match[0]), text)


def squeezed(text):
    return re.sub(r"\s+", "", text)


def shown(text):
    """A menu or dialog text without key, access key and the signs behind it."""
    text = re.sub(r"\s*\(&\w\)", "", text.partition("\t")[0])
    text = re.sub(r"&(?=\w)", "", re.sub(r"^\[&\w\]\s*", "", text))
    return text.strip().rstrip(":：").removesuffix("...").strip()


def as_pattern(text):
    parts = [re.escape(squeezed(part)) for part in FILLED_IN.split(text)]
    return re.compile(".{1,40}?".join(parts))


def keys_of(menu_script):
    for letter, virtual, flags in ACCELERATOR.findall(menu_script):
        name = letter or KEY_NAMES.get(virtual, virtual)
        yield "+".join([word for flag, word in MODIFIERS if flag in flags] + [name])


def texts_of(scripts):
    """What a user reads, with the script that it comes from."""
    for name, script in scripts.items():
        script = COMMENT.sub("", script)
        for text in MENU_TEXT.findall(script):
            yield name, shown(unescaped(text))
        for text in CONTROL_TEXT.findall(script):
            if JAPANESE.search(text):
                yield name, shown(unescaped(text))
        for identifier, text in STRING.findall(script):
            if not NOT_READ.fullmatch(identifier):
                yield name, shown(unescaped(text))


def findings(scripts, placeholders, help_file):
    pages = help_file.pages
    everything = [squeezed(page.text) for page in pages.values()]
    keys = list(keys_of(COMMENT.sub("", "\n".join(scripts.values()))))
    texts = sorted((name, text) for name, text in set(texts_of(scripts)) if text not in NOT_SHOWN)
    if not keys or not texts or not placeholders:
        yield "res: has no keys, no texts or no placeholders"
    for key in keys:
        if KEYS_PAGE not in pages or key not in pages[KEYS_PAGE].keys:
            yield f"{KEYS_PAGE}: does not tell of {key}"
    for placeholder in placeholders:
        if PLACEHOLDERS_PAGE not in pages or placeholder not in pages[PLACEHOLDERS_PAGE].text:
            yield f"{PLACEHOLDERS_PAGE}: does not tell of {placeholder}"
    for name, text in texts:
        pattern = as_pattern(text)
        if not any(pattern.search(page) for page in everything):
            yield f"{name}: no page of the help tells of {text!r}"


if __name__ == "__main__":
    root = root_argument()
    resources = {f"res/{path.name}": path.read_text(encoding="utf-8") for path in sorted((root / "res").glob("*.rc"))}
    header = (root / "search/logic/placeholder_expansion.h").read_text(encoding="utf-8")
    report(list(findings(resources, PLACEHOLDER.findall(header), read_help(*sys.argv[2:4]))))
