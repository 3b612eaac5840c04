#!/usr/bin/env python3
"""no_machine_paths.py ROOT: does no file name a place that exists on one machine only?

Looks at every text file outside build/ and .git for the folder of this checkout itself and for private folders.
"""

import re

from source_tree import report, root_argument

PRIVATE = re.compile(r"(?<![\w.])/(?:work|farm|root|home/[a-z]\w*)/|\b[A-Za-z]:\\{1,2}Users\\{1,2}(?!Public)\w")
SKIPPED = {"build", ".git", ".cache", "__pycache__"}


def findings(root):
    # Not in the middle of a longer path: a checkout in /src has nothing to do with /usr/src.
    checkout = re.compile(r"(?<![\w./-])" + re.escape(f"{root}/"))
    for path in sorted(root.rglob("*")):
        relative = path.relative_to(root)
        if relative.parts[0] in SKIPPED or "__pycache__" in relative.parts or not path.is_file() or path.is_symlink():
            continue
        try:
            text = path.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            continue
        for number, line in enumerate(text.splitlines(), 1):
            if PRIVATE.search(line) or checkout.search(line):
                yield f"{relative}:{number}: names a place of one machine: {line.strip()}"


if __name__ == "__main__":
    report(list(findings(root_argument())))
