#!/usr/bin/env python3
"""include_rules.py ROOT: may every file include what it includes?

Decisions (a "logic" folder) see the base, their own part's logic and the settings' logic; hands see their own part and
the parts below it; nothing but app sees app. A .cpp file includes its own header first, so that the header is proved
to stand alone. The program starts threads with framework/thread.h, which says why.
"""

import posixpath
import re

from source_tree import report, root_argument, sources

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)

# The numbers of commands, controls and images are #defines that the resource compiler reads too; every part may know
# them, and they know nothing.
IDENTIFIERS = "res"

# What the hands of a part may include besides the base, the framework and their own part.
BELOW = {
    "settings": set(),
    "about": {"settings"},
    "controls": {"settings", "about"},
    "search": {"settings", "about", "controls"},
    "launch": {"settings", "about", "controls", "search"},
    "app": {"settings", "about", "controls", "search", "launch"},
}


def is_logic(path):
    return posixpath.basename(posixpath.dirname(path)) == "logic" or path.startswith("base/")


def may_include(path, target):
    part, target_part = path.split("/")[0], target.split("/")[0]
    if target_part in ("base", IDENTIFIERS):
        return part != IDENTIFIERS or target_part == IDENTIFIERS
    if part in ("tests", "benchmarks"):
        # Tests of decisions link no window code; all others may use everything.
        return not is_logic(path) or is_logic(target) or target.startswith("tests/support/")
    if is_logic(path):
        return part != "base" and is_logic(target) and target_part in (part, "settings")
    if part in ("framework", IDENTIFIERS):
        return target_part == part
    return target_part in BELOW[part] | {part, "framework"}


def findings(root):
    for path, text in sources(root):
        includes = INCLUDE.findall(text)
        own_header = path[: -len(".cpp")] + ".h" if path.endswith(".cpp") else None
        if own_header and (root / own_header).is_file() and (not includes or includes[0][1] != own_header):
            yield f"{path}: its own header {own_header} is not what it includes first"
        for delimiter, target in includes:
            if delimiter == '"' and not (root / target).is_file():
                yield f'{path}: "{target}" is not a path from the top folder'
            elif delimiter == '"' and not may_include(path, target):
                yield f'{path}: may not include "{target}"'
            elif delimiter == "<" and is_logic(path) and target.endswith(".h") and not path.startswith("tests/"):
                yield f"{path}: decisions include no system header, but here is <{target}>"
            elif delimiter == "<" and target == "thread" and path.split("/")[0] not in ("tests", "benchmarks"):
                yield f"{path}: threads are started with framework/thread.h, not with <thread>"


if __name__ == "__main__":
    report(list(findings(root_argument())))
