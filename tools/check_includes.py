#!/usr/bin/env python3
"""Checks that the sources keep to the rooms of the house, which the CMakeLists.txt of each room describes.

A file may include its own room's headers and those of the rooms that its room uses, and each of those must be
used. No circle joins files. (That no arrow runs up is CMake's to refuse.)

usage: check_includes.py ROOT
"""
import pathlib
import re
import sys

ROOM = re.compile(r"^(?:diary|pocketpc)_room\((.*?)\)", re.DOTALL | re.MULTILINE)
KEYWORDS = {"PURE", "USES", "LINK"}


def used_rooms(arguments):
    """The words behind USES in the call that makes a room."""
    rooms, taking = set(), False
    for word in arguments.split():
        if word in KEYWORDS:
            taking = word == "USES"
        elif taking:
            rooms.add(word)
    return rooms


def find_circle(graph):
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node):] + [node]
        if node in done:
            return None
        done.add(node)
        path.append(node)
        for other in graph.get(node, ()):
            if circle := visit(other):
                return circle
        path.pop()
        return None

    return next((circle for node in graph if (circle := visit(node))), None)


def main():
    root = pathlib.Path(sys.argv[1])
    graph, errors, rooms = {}, [], 0
    for top in ("app", "appearance", "base", "controls", "pages", "pocketpc", "resources", "settings"):
        for folder in [root / top, *(path for path in (root / top).rglob("*") if path.is_dir())]:
            sources = sorted(file for file in folder.glob("*.*") if file.suffix in (".h", ".cpp"))
            room = folder.relative_to(root).as_posix()
            build = folder / "CMakeLists.txt"
            call = ROOM.search(build.read_text()) if build.exists() else None
            if sources and not call:
                errors.append(f"{room} holds code and is no room")
            uses = used_rooms(call[1]) if call else set()
            unused = set(uses)
            rooms += bool(call)
            for file in sources:
                path = file.relative_to(root).as_posix()
                graph[path] = re.findall(r'^#include "([^"]+/[^"]+)"', file.read_text(), re.MULTILINE)
                for other in graph[path]:
                    target = other.rpartition("/")[0]
                    unused.discard(target)
                    if target != room and target not in uses:
                        errors.append(f"{path} includes {other}, but {room} does not use {target}")
            errors += [f"{room} says that it uses {other}, and does not" for other in sorted(unused)]
    if circle := find_circle(graph):
        errors.append("circle: " + " -> ".join(circle))
    print("\n".join(errors) or f"{len(graph)} files in {rooms} rooms include what they may")
    sys.exit(1 if errors or not rooms else 0)


if __name__ == "__main__":
    main()
