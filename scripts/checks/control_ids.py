#!/usr/bin/env python3
"""control_ids.py ROOT: does every control that a dialog class names exist in the class's template?

A dialog class names its template as kTemplate = IDD_SOMETHING and its controls as IDC_SOMETHING in its header and its
source. A misspelled or forgotten control would only show as a dialog that silently does nothing.
"""

import re

from source_tree import report, root_argument, sources

TEMPLATE = re.compile(r"\bkTemplate\s*=\s*(IDD_\w+)")
CONTROL = re.compile(r"\bIDC_\w+")
DIALOG = re.compile(r"^\s*(IDD_\w+)\s+DIALOG(?:EX)?\b(.*?)^\s*(?:END|\})\s*$", re.MULTILINE | re.DOTALL)
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)

# Constants of Windows that share the prefix: the stock cursors.
NOT_CONTROLS = {"IDC_ARROW", "IDC_HAND", "IDC_IBEAM", "IDC_WAIT", "IDC_CROSS", "IDC_SIZEWE", "IDC_SIZENS", "IDC_NO"}


def templates(root):
    """The control identifiers of every dialog template in the resource scripts."""
    found = {}
    for script in sorted((root / "res").rglob("*.rc")) if (root / "res").is_dir() else []:
        text = COMMENT.sub("", script.read_text(encoding="utf-8"))
        for name, body in DIALOG.findall(text):
            found[name] = set(CONTROL.findall(body))
    return found


def findings(root):
    known = templates(root)
    texts = {path: COMMENT.sub("", text) for path, text in sources(root) if not path.startswith(("tests/", "bench/"))}
    for path, text in texts.items():
        names = TEMPLATE.findall(text)
        for name in names:
            if name not in known:
                yield f"{path}: there is no dialog template {name}"
        if not names:
            continue
        stem = path.rsplit(".", 1)[0]
        used = set()
        for half in {path, stem + ".h", stem + ".cpp"} & texts.keys():
            used |= set(CONTROL.findall(texts[half]))
        there = set().union(*(known.get(name, set()) for name in names))
        for control in sorted(used - there - NOT_CONTROLS):
            yield f"{path}: {control} is not in {' or '.join(names)}"


if __name__ == "__main__":
    report(list(findings(root_argument())))
