#!/usr/bin/env python3
"""help_topics.py ROOT CHMLS HELP: does the compiled help hold every page, and every place in one, that the program opens?

The program names them in about/logic/help_topics.h. A page that is missing would only show as an error page of Windows.
"""

import re
import sys

from help_file import read_help
from source_tree import report, root_argument

HEADER = "about/logic/help_topics.h"
TOPIC = re.compile(r'std::wstring_view k\w+ = L"([^"]+)"')


def findings(header, help_file):
    topics = TOPIC.findall(header)
    if not topics:
        yield f"{HEADER}: names no topics"
    for topic in topics:
        if fault := help_file.fault_of(topic, ""):
            yield f"{HEADER}: {topic}: {fault}"


if __name__ == "__main__":
    text = (root_argument() / HEADER).read_text(encoding="utf-8")
    report(list(findings(text, read_help(*sys.argv[2:4]))))
