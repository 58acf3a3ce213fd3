"""The VRML file of every sample hull through a reader of our own and one of the distribution: points,
faces and extents are those of the hull, in metres."""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
HULLS = pathlib.Path(sys.argv.pop(1)).resolve() / "hulls"
METRES = 0.0254


def read_solid(text):
    """The points of a file, and its face sets as lists of index lists."""
    points = [tuple(map(float, point.split())) for point in re.search(r"point \[(.*?)\]", text, re.S)[1].split(",")[:-1]]
    sets = []
    for found in re.findall(r"coordIndex \[(.*?)\]", text, re.S):
        faces = [[]]
        for index in map(int, found.split(",")[:-1]):
            faces.append([]) if index < 0 else faces[-1].append(index)
        sets.append(faces[:-1])
    return points, sets


def run(*arguments):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True)


class VrmlTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def check_solid(self, solid, hull):
        points, sets = read_solid(solid.read_bytes().decode("ascii"))
        n = hull["NumChines"]
        self.assertEqual(len(points), 26 * n)
        self.assertEqual([len(faces) for faces in sets], [24 * (n - 1)] * 4 + [10 * (n - 1)] * 2 + [24] * 3)
        for faces in sets:
            self.assertTrue(all(len(set(face)) == 3 and max(face) < 26 * n for face in faces))
        for half, side in ((points[:13 * n], 1), (points[13 * n:], -1)):
            for (length, height, breadth), point in zip(half, hull["points"]):
                self.assertAlmostEqual(length, point["Z"] * METRES, delta=0.000501)
                self.assertAlmostEqual(height, point["Y"] * METRES, delta=0.000501)
                self.assertAlmostEqual(breadth, side * point["X"] * METRES, delta=0.000501)
        self.assertAlmostEqual(max(p[0] for p in points), max(p["Z"] for p in hull["points"]) * METRES, delta=0.000501)

    def test_every_hull(self):
        hulls = sorted(HULLS.glob("*.tvh"))
        self.assertGreaterEqual(len(hulls), 9)
        for hull in hulls:
            with self.subTest(hull.stem):
                done = run("vrml", hull, "--into", self.folder)
                self.assertEqual((done.returncode, done.stderr), (0, ""))
                solid = self.folder / (hull.stem + ".wrl")
                self.assertEqual(solid.read_bytes(), (self.folder / "default.wrl").read_bytes())
                self.check_solid(solid, json.loads(run("points", hull, "--format", "json").stdout))
                seen = subprocess.run(["ivcat", solid], capture_output=True, text=True)
                self.assertEqual((seen.returncode, seen.stderr), (0, ""))
                self.assertEqual(seen.stdout.count("IndexedFaceSet"), 9)

    def test_files_and_failures(self):
        done = run("vrml", "--into", self.folder / "new")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual([path.name for path in (self.folder / "new").iterdir()], ["default.wrl"])
        self.assertIn("default.wrl", done.stdout)
        hull = self.folder / "boat.wrl"
        hull.write_bytes((HULLS / "dory.tvh").read_bytes())
        kept = run("vrml", hull, "--into", self.folder)
        self.assertEqual((kept.returncode, kept.stdout), (1, ""))
        self.assertIn("boat.wrl", kept.stderr)
        self.assertEqual(hull.read_bytes(), (HULLS / "dory.tvh").read_bytes())
        self.assertFalse((self.folder / "default.wrl").exists(), "all of the files or none")
        self.assertEqual(run("vrml", self.folder / "no.tvh").returncode, 1)
        self.assertEqual(run("vrml", "--into", "/proc/none").returncode, 1)
        self.assertEqual(run("vrml", "--into", "").returncode, 2)


if __name__ == "__main__":
    unittest.main()
