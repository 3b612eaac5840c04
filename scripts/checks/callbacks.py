#!/usr/bin/env python3
"""callbacks.py ROOT: does every function that the system calls back say noexcept?

What becomes of an exception on its way through the system's own code depends on who caused the call; where none can
leave, it ends the process in one place. Tests may do as they like.
"""

import re

from source_tree import report, root_argument, sources

# A function with one of the system's calling conventions, declared or defined. Types of functions have no name there.
CALLBACK = re.compile(r"\b(?:CALLBACK|WINAPI|__stdcall)\s+(?:\w+::)*(\w+)\s*\([^;{}]*?\)\s*(noexcept\b)?[^;{}()]*[;{]")
ENTRY_POINT = "wWinMain"


def findings(root):
    for path, text in sources(root):
        if path.startswith(("tests/", "bench/")):
            continue
        for match in CALLBACK.finditer(text):
            name, promise = match.groups()
            if name != ENTRY_POINT and not promise:
                line = text.count("\n", 0, match.start()) + 1
                yield f"{path}:{line}: {name} lets exceptions into the system's code"


if __name__ == "__main__":
    report(list(findings(root_argument())))
