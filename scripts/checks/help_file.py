"""What the checks of the help share: the compiled file, taken apart again into its pages."""

import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile

CODE_PAGE = "cp932"
# Elements that have no end tag.
VOID = {"br", "img", "link", "meta", "param"}


class Page(html.parser.HTMLParser):
    """One page: what it holds for whoever leads to it, and where it leads."""

    def __init__(self, name, markup):
        super().__init__()
        self.name = name
        self.title = self.charset = ""
        self.styles, self.anchors, self.links, self.images, self.keys, self.faults = [], [], [], [], [], []
        self.text = ""
        self.open = []
        self.in_foot = 0
        self.feed(markup)
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.anchors.append(values["id"])
        if tag == "a" and "foot" not in self.open:
            self.links.append(values.get("href", ""))
        elif tag == "img":
            self.images.append(values.get("src", ""))
            if not values.get("alt"):
                self.faults.append(f"the image {values.get('src')} has no text in its place")
        elif tag == "link":
            self.styles.append(values.get("href", ""))
        elif tag == "meta" and "charset=" in values.get("content", ""):
            self.charset = values["content"].partition("charset=")[2]
        elif tag == "script":
            self.faults.append("has a script")
        elif tag == "kbd":
            self.keys.append("")
        if tag not in VOID:
            # The links to the neighbours lead everywhere and would make any page look reachable.
            self.open.append("foot" if values.get("id") == "foot" else tag)

    def handle_endtag(self, tag):
        opened = self.open.pop() if self.open else "nothing"
        if opened != tag and not (opened == "foot" and tag == "div"):
            self.faults.append(f"</{tag}> ends <{opened}>")

    def handle_data(self, data):
        self.text += data
        if self.open and self.open[-1] == "title":
            self.title += data
        if self.open and self.open[-1] == "kbd":
            self.keys[-1] += data


class HelpFile:
    """A compiled help: the names in it, its pages, and its contents and index as lists of addresses."""

    def __init__(self, files):
        self.faults = []
        self.names = set(files)
        self.pages = {}
        for name in sorted(files):
            if name.endswith(".html"):
                self.pages[name] = Page(name, self.decoded(name, files[name]))
        self.contents = self.addresses(files, ".hhc")
        self.index = self.addresses(files, ".hhk")

    def decoded(self, name, content):
        try:
            return content.decode(CODE_PAGE)
        except UnicodeDecodeError:
            self.faults.append(f"{name}: is not in code page 932")
            return content.decode(CODE_PAGE, "replace")

    def addresses(self, files, suffix):
        lists = [self.decoded(name, files[name]) for name in sorted(files) if name.endswith(suffix)]
        return re.findall(r'<param name="Local" value="([^"]*)">', "".join(lists))

    def fault_of(self, address, page):
        """What is wrong with an address that stands in a page; nothing when it leads to something."""
        file, _, anchor = address.partition("#")
        target = self.pages.get(file or page)
        if target is None:
            return f"there is no page {file}"
        if anchor and anchor not in target.anchors:
            return f"there is no {anchor} in {target.name}"
        return None


def read_help(chmls, compiled):
    """Takes a compiled help apart. Ends the process when that cannot be done."""
    with tempfile.TemporaryDirectory() as folder:
        run = subprocess.run([chmls, "extractall", str(compiled), folder], capture_output=True, text=True)
        if run.returncode != 0:
            sys.exit(f"{compiled}: cannot be taken apart\n{run.stdout}{run.stderr}")
        root = pathlib.Path(folder)
        files = {path.relative_to(root).as_posix(): path.read_bytes() for path in root.rglob("*") if path.is_file()}
    return HelpFile(files)
