"""Compares the includes of the tree with tools/arrows.txt: which folder may include which.

Prints each include that the list does not know, and each circle of the list itself.
Usage: arrows.py ROOT
"""

import os
import re
import sys

SUFFIXES = (".h", ".cpp", ".rc")
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)')
# As the compiler is told, after the folder of the file itself. Their own folders come first for samples.
SEARCHED = ["", "framework", "companion", "tests", "tests/support"]


def read_allowed(path):
    allowed = {}
    with open(path, encoding="utf-8", errors="replace") as lines:
        for line in lines:
            folder, colon, targets = line.split("#")[0].partition(":")
            if colon:
                allowed[folder.strip()] = targets.split()
    return allowed


def find_circle(allowed):
    """The folders of one circle, or nothing."""
    state = {}

    def visit(folder, way):
        if folder in way:
            return way[way.index(folder):] + [folder]
        if folder in state:
            return None
        for target in allowed.get(folder, []):
            circle = visit(target.removesuffix("/detail"), way + [folder])
            if circle:
                return circle
        state[folder] = True
        return None

    return next(filter(None, (visit(folder, []) for folder in allowed)), None)


def sources(root, folders):
    for top in sorted({folder.split("/")[0] for folder in folders}):
        for folder, _, names in os.walk(os.path.join(root, top)):
            for name in sorted(names):
                if name.endswith(SUFFIXES):
                    yield os.path.relpath(os.path.join(folder, name), root)


def room_of(path, folders):
    """The innermost listed folder that has the file."""
    folder = os.path.dirname(path)
    while folder and folder not in folders:
        folder = os.path.dirname(folder)
    return folder


def resolve(root, path, name):
    own = [os.path.dirname(path)]
    if path.startswith("samples/"):
        own.append("/".join(path.split("/")[:2]))
    for folder in own + SEARCHED:
        found = os.path.normpath(os.path.join(folder, name))
        if os.path.isfile(os.path.join(root, found)):
            return found
    return None


def fault(path, target, allowed):
    """What is wrong with an include, or nothing."""
    here, there = room_of(path, allowed), room_of(target, allowed)
    if not here or not there:
        return f"{os.path.dirname(target if here else path)} is not in tools/arrows.txt"
    if here == there:
        return None
    if "/detail/" in target:
        there += "/detail"
    return None if there in allowed[here] else f"{here} may not include {there} ({target})"


def main():
    root = sys.argv[1]
    allowed = read_allowed(os.path.join(root, "tools/arrows.txt"))
    circle = find_circle(allowed)
    if circle:
        print("tools/arrows.txt: a circle:", " -> ".join(circle))
    bad = bool(circle)
    for path in sources(root, allowed):
        with open(os.path.join(root, path), encoding="utf-8", errors="replace") as lines:
            for number, line in enumerate(lines, 1):
                include = INCLUDE.match(line)
                target = include and resolve(root, path, include.group(2))
                problem = fault(path, target, allowed) if target else None
                if include and not target and include.group(1) == '"' and not path.endswith(".rc"):
                    problem = f"there is no {include.group(2)}"
                if problem:
                    print(f"{path}:{number}: {problem}")
                    bad = True
    return bad


sys.exit(main())
