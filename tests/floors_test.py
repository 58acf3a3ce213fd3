"""The floors of the house: a file includes only from its own floor's folder and from floors below,
no toolkit stands outside of src/ui, nor in the one header of it that the command line program sees,
and the include graph has no circle."""

import pathlib
import re
import sys

FLOOR = {"base": 0, "controls": 1, "hull": 2, "hydro": 3, "views": 4, "panels": 4, "nest": 4,
         "program": 5, "ui": 6, "batch": 6}
# The drawing contract stands below the rest of its folder.
LOWERED = {"views/draw_surface.h": 1}
# The command line program's one way to a toolkit, through a header that names none.
ACROSS = {("batch/nesting.cpp", "ui/pdf_pages.h")}


def floor_of(name):
    return LOWERED.get(name, FLOOR[name.split("/")[0]])


def main(root):
    faults = []
    graph = {}
    for path in sorted(root.rglob("*.[ch]*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root).as_posix()
        text = path.read_text()
        graph[name] = re.findall(r'^#include "([^"]+)"', text, re.M)
        for included in graph[name]:
            same = included.split("/")[0] == name.split("/")[0] or included in LOWERED
            same = same or (name, included) in ACROSS
            if floor_of(included) > floor_of(name) or (floor_of(included) == floor_of(name) and not same):
                faults.append(f"{name} includes {included} from a floor that it must not know")
        crossed = any(name == header for _, header in ACROSS)
        if crossed:
            faults += [f"{name} includes {i}" for i in graph[name] if i.startswith("ui/")]
        if crossed or not name.startswith("ui/"):
            faults += [f"{name} includes {q}" for q in re.findall(r"^#include <(Q\w+.*)>", text, re.M)]

    done, path = set(), []

    def walk(name):
        if name in path:
            faults.append("circle: " + " -> ".join(path[path.index(name):] + [name]))
        elif name not in done:
            path.append(name)
            for included in graph.get(name, []):
                walk(included)
            path.pop()
            done.add(name)

    for name in graph:
        walk(name)
    assert graph, "no sources found"
    print("\n".join(faults) or f"{len(graph)} files keep their floors")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
