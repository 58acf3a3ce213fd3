"""The exports as real consumers see them: every plotter file through hp2xx, every drawing through
ezdxf, for each sample hull. Their extents and counts must be those of the pattern files."""

import math
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import ezdxf

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
HULLS = pathlib.Path(sys.argv.pop(1)).resolve() / "hulls"
EVERYTHING = ["--keel", "--deck", "--soles", "--stem", "--spar", "--text", "--frame", "40", "--dxf", "--hpgl"]


def read_pattern(path):
    """The moves of a pattern in inches, each with whether the pen is down."""
    moves, down = [], False
    for line in path.read_text().splitlines():
        if "penup" in line:
            down = False
        elif "pendown" in line:
            down = True
        elif "acut" in line:
            x, y = line.split()[:2]
            moves.append((int(x) / 500, int(y) / 500, down))
    return moves


def drawn_lines(moves):
    return [(start[:2], end[:2]) for start, end in zip([(0, 0, False)] + moves, moves) if end[2]]


def read_edges(path):
    """The two long edges of a panel's outline as points in inches. Both start and end with a marked
    point, so two marked points in a row part them."""
    edges, marked, was_marked = [[]], False, False
    lines = path.read_text().splitlines()
    for line in lines[lines.index("0 pendown") + 1:]:
        if "acut" in line:
            point = tuple(int(n) / 500 for n in line.split()[:2])
            if marked and was_marked:
                edges.append([])
            edges[-1].append(point)
            was_marked, marked = marked, False
        marked = marked or "hand plot" in line
    return edges


def length(points):
    return sum(math.dist(start, end) for start, end in zip(points, points[1:]))


class ConsumersTest(unittest.TestCase):
    def check_plotter_file(self, path, moves, scratch):
        done = subprocess.run(["hp2xx", "-t", "-m", "hpgl", "-f", scratch / "out.hpgl", path],
                              capture_output=True, text=True)
        told = done.stdout + done.stderr
        self.assertEqual(done.returncode, 0, told)
        self.assertRegex(told, r"ignored:\s+0\b")
        self.assertRegex(told, r"Unexpected event\(s\):\s+0\b")
        extent = re.search(r"Coordinate range: \((-?\d+), (-?\d+)\) \.\.\. \((-?\d+), (-?\d+)\)", told).groups()
        x = [math.floor(move[0] * 1016 + 1e-9) for move in moves]
        y = [math.floor(move[1] * 1016 + 1e-9) for move in moves]
        self.assertEqual(tuple(map(int, extent)), (min(x), min(y), max(x), max(y)), path.name)

    def check_drawing(self, path, moves):
        drawing = ezdxf.readfile(path)
        self.assertEqual(drawing.audit().errors, [])
        found = [(tuple(line.dxf.start)[:2], tuple(line.dxf.end)[:2]) for line in drawing.modelspace().query("LINE")]
        expected = drawn_lines(moves)
        self.assertEqual(len(found), len(expected))
        for line, wanted in zip(found, expected):
            for point, same in zip(line, wanted):
                self.assertAlmostEqual(point[0], same[0], places=9)
                self.assertAlmostEqual(point[1], same[1], places=9)

    def test_every_part_of_every_hull(self):
        hulls = sorted(HULLS.glob("*.tvh"))
        self.assertGreaterEqual(len(hulls), 8)
        for hull in hulls:
            with self.subTest(hull.stem), tempfile.TemporaryDirectory() as scratch:
                folder = pathlib.Path(scratch)
                subprocess.run([PROGRAM, "patterns", hull, "--into", folder, *EVERYTHING], check=True, capture_output=True)
                parts = sorted(folder.glob("*.plt"))
                self.assertEqual({p.stem for p in parts}, {p.stem for p in folder.glob("*.uc")})
                for part in parts:
                    moves = read_pattern(part.with_suffix(".uc"))
                    self.check_plotter_file(part, moves, folder)
                    self.check_drawing(part.with_suffix(".dxf"), moves)
                hull_drawing = ezdxf.readfile(folder / (hull.stem + ".dxf"))
                self.assertEqual(hull_drawing.audit().errors, [])
                chines = int(hull.read_text().split()[0])
                self.assertEqual(len(hull_drawing.modelspace().query("POLYLINE")), 3 * (5 + chines))
                self.check_seams(folder, chines)


    def check_seams(self, folder, chines):
        """The same chine is equally long on both of its panels, and so are the outlines."""
        below = None
        for c in range(1, chines):
            numbers = [float(n) for n in (folder / f"chine{c}.tri").read_text().split()]
            upper, lower = numbers[1:26][1:24:2], numbers[52:77][0:24:2]
            self.assertTrue(below is None or below == lower, c)
            below = upper
            edges = read_edges(folder / f"chine{c}.uc")
            self.assertEqual(len(edges), 2)
            self.assertAlmostEqual(length(edges[0]), sum(upper), delta=0.05)
            self.assertAlmostEqual(length(edges[1]), sum(lower), delta=0.05)


if __name__ == "__main__":
    unittest.main()
