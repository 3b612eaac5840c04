#!/usr/bin/env python3
"""help_links.py CHMLS HELP: is every page of the compiled help whole, does every link and image in it lead to something,
and does everything in it stand in the contents and can be reached from the first page?
"""

import sys

from help_file import read_help
from source_tree import report

FIRST = "index.html"
OUTSIDE = ("http://", "https://", "mailto:")


def page_findings(help_file, page):
    yield from (f"{page.name}: {fault}" for fault in page.faults)
    if not page.title.strip():
        yield f"{page.name}: has no title"
    if page.charset.lower() != "shift_jis":
        yield f"{page.name}: does not say that it is in Shift_JIS"
    if page.styles != ["style.css"] or "style.css" not in help_file.names:
        yield f"{page.name}: does not have the style sheet"
    # Internet Explorer's engine takes names that differ in case for one.
    names = [anchor.lower() for anchor in page.anchors]
    for name in sorted({name for name in names if names.count(name) > 1}):
        yield f"{page.name}: has two places named {name}"
    for image in page.images:
        if image not in help_file.names:
            yield f"{page.name}: there is no image {image}"
    for link in page.links:
        if not link.startswith(OUTSIDE) and (fault := help_file.fault_of(link, page.name)):
            yield f"{page.name}: {fault}"


def reachable(help_file):
    found, waiting = set(), [FIRST]
    while waiting:
        name = waiting.pop()
        if name in help_file.pages and name not in found:
            found.add(name)
            waiting += [link.partition("#")[0] for link in help_file.pages[name].links]
    return found


def findings(help_file):
    yield from help_file.faults
    if FIRST not in help_file.pages:
        yield f"there is no {FIRST}"
    for page in help_file.pages.values():
        yield from page_findings(help_file, page)
    for name in sorted(help_file.pages.keys() - set(help_file.contents)):
        yield f"{name}: is not in the contents"
    for name in sorted(help_file.pages.keys() - {address.partition("#")[0] for address in help_file.index}):
        yield f"{name}: is not in the index"
    for name in sorted(help_file.pages.keys() - reachable(help_file)):
        yield f"{name}: cannot be reached from {FIRST}"
    for place, addresses in (("contents", help_file.contents), ("index", help_file.index)):
        for address in addresses:
            if fault := help_file.fault_of(address, ""):
                yield f"the {place}: {fault}"
    used = {image for page in help_file.pages.values() for image in page.images}
    for name in sorted(name for name in help_file.names if name.endswith(".png") and name not in used):
        yield f"{name}: is on no page"


if __name__ == "__main__":
    report(list(findings(read_help(*sys.argv[1:3]))))
