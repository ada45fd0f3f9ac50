#!/usr/bin/env python3
"""Checks the program's include directions: which files may know which, and that no circle joins files.

usage: check_includes.py ROOT
"""
import pathlib
import re
import sys

# A file belongs to the first group whose pattern its path matches.
GROUPS = [
    ("main", r"app/(main|main_frame|open_entry|about_dialog|single_instance|notify_plugin|export_import|registry_exporter)\."),
    ("options", r"app/(options_page|options_sheet|page_rows|launch_help)\."),
    ("language", r"app/"),
    ("stores", r"pages/stores/"),
    ("pages", r"pages/"),
    ("fonts and scale", r"appearance/(fonts|scale)\."),
    ("appearance", r"appearance/"),
    ("handles", r"controls/owned_handle\."),
    ("controls", r"controls/"),
    ("settings", r"settings/"),
    ("ids", r"resources/ids\.h"),
]
BELOW = {"language", "controls", "handles", "settings", "fonts and scale", "ids"}
ALLOWED = {
    "main": {name for name, _ in GROUPS},
    "options": BELOW | {"options"},
    "language": {"language", "handles"},
    "pages": BELOW | {"pages", "options", "appearance", "stores"},
    "appearance": BELOW | {"appearance", "stores"},
    "stores": {"stores", "settings", "handles"},
    "fonts and scale": {"fonts and scale", "handles", "settings"},
    "controls": {"controls", "handles", "language", "fonts and scale"},
    "handles": set(),
    "settings": {"settings", "ids"},
    "ids": set(),
}


def group_of(path):
    return next((name for name, pattern in GROUPS if re.match(pattern, path)), None)


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
    graph, errors = {}, []
    for folder in ("app", "settings", "appearance", "pages", "controls"):
        for file in sorted((root / folder).rglob("*.[hc]*")):
            path = file.relative_to(root).as_posix()
            included = re.findall(r'^#include "([^"]+/[^"]+)"', file.read_text(), re.MULTILINE)
            graph[path] = included
            for other in included:
                if group_of(other) not in ALLOWED.get(group_of(path), set()):
                    errors.append(f"{path} may not include {other}")
    if circle := find_circle(graph):
        errors.append("circle: " + " -> ".join(circle))
    print("\n".join(errors) or f"{len(graph)} files include what they may")
    sys.exit(1 if errors or not graph else 0)


if __name__ == "__main__":
    main()
