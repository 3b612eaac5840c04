"""What the checks share: the sources of a tree and how a finding is reported."""

import pathlib
import sys

PARTS = ["base", "framework", "settings", "about", "controls", "search", "launch", "app", "res", "tests", "bench"]


def sources(root, suffixes=(".h", ".cpp")):
    """The C++ files below the parts of the tree, as pairs of relative path and text."""
    for part in PARTS:
        for path in sorted((root / part).rglob("*")):
            if path.suffix in suffixes and path.is_file():
                yield path.relative_to(root).as_posix(), path.read_text(encoding="utf-8")


def root_argument():
    return pathlib.Path(sys.argv[1]).resolve()


def report(findings):
    """Prints the findings, one a line, and ends the process: 0 without findings, 1 with."""
    for finding in findings:
        print(finding)
    sys.exit(1 if findings else 0)
