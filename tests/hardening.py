#!/usr/bin/env python3
"""Reads a program as the linker left it and fails where it is not hardened as packages must be."""
import re
import subprocess
import sys


def readelf(*options: str) -> str:
    return subprocess.run(["readelf", "-W", *options, sys.argv[1]], check=True, text=True,
                          capture_output=True).stdout


symbols = readelf("--dyn-syms")
missing = [what for what, found in {
    "position-independent code": re.search(r"Type:\s+DYN", readelf("-h")),
    "tables that are read-only (relro)": "GNU_RELRO" in readelf("-l"),
    "binding before main() (now)": re.search(r"FLAGS.*\bNOW\b", readelf("-d")),
    "a guard on the stack": "__stack_chk_fail" in symbols,
    "checked functions of the C library": re.search(r"\b__\w+_chk\b", symbols),
}.items() if not found]
for what in missing:
    print(f"{sys.argv[1]} has no {what}")
sys.exit(1 if missing else 0)
