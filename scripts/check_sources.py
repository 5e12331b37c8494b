#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks what neither compiler nor linker can: prints a line for each breach, fails if there is one.

- Includes run downwards only, from the start-up story to the platform.
- Every connection to a lambda has a context object, with which it ends.
"""
import pathlib
import re
import sys

ROOMS = ["platform", "model", "views", "settings", "shell"]
ROOT = pathlib.Path(__file__).resolve().parents[1]


def upward_includes(path, text):
    top, room = path.relative_to(ROOT).parts[:2]
    if top != "src" or room not in ROOMS:
        return
    above = ROOMS[ROOMS.index(room) + 1:]
    for included in re.findall(r'#include "(\w+)/[^"]+"', text):
        if included in above:
            yield f"{path}: {room} includes from {included}"


def arguments(text, start):
    """The arguments of the call whose parenthesis opens just before start."""
    depth, begin, found = 0, start, []
    for position in range(start, len(text)):
        letter = text[position]
        if letter in "([{":
            depth += 1
        elif letter in ")]}":
            depth -= 1
            if depth < 0:
                return found + [text[begin:position].strip()]
        elif letter == "," and depth == 0:
            found.append(text[begin:position].strip())
            begin = position + 1
    return found


def lone_lambdas(path, text):
    for call in re.finditer(r"\bconnect\(", text):
        given = arguments(text, call.end())
        if len(given) == 3 and given[2].startswith("["):
            line = text.count("\n", 0, call.start()) + 1
            yield f"{path}:{line}: a lambda is connected without a context object"


breaches = [breach
            for folder in ("src", "helpers")
            for path in sorted((ROOT / folder).rglob("*")) if path.suffix in (".h", ".cpp")
            for check in (upward_includes, lone_lambdas)
            for breach in check(path, path.read_text(encoding="utf-8"))]
print("\n".join(breaches))
sys.exit(bool(breaches))
