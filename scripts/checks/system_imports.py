#!/usr/bin/env python3
"""system_imports.py OBJDUMP PROGRAM: does the program load nothing but libraries that Windows Vista has?

Anything newer must be looked up while running, and a compiler library among the imports would mean that the program
does not start where the compiler is not installed.
"""

import re
import subprocess
import sys

from source_tree import report

WINDOWS_VISTA = {
    "advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "gdiplus.dll", "imm32.dll", "kernel32.dll",
    "msimg32.dll", "msvcrt.dll", "ole32.dll", "oleaut32.dll", "psapi.dll", "shell32.dll", "shlwapi.dll", "user32.dll",
    "uxtheme.dll", "version.dll", "winmm.dll",
}


def foreign_imports(listing):
    """The libraries in objdump's listing that are not part of Windows."""
    names = re.findall(r"DLL Name:\s*(\S+)", listing)
    if not names:
        return ["(no import table found)"]
    return sorted({name for name in names if name.lower() not in WINDOWS_VISTA})


if __name__ == "__main__":
    objdump, program = sys.argv[1:3]
    listing = subprocess.run([objdump, "-p", program], check=True, capture_output=True, text=True).stdout
    report([f"{program}: imports {name}" for name in foreign_imports(listing)])
