"""tarve-batch from outside: exit status, messages, files, and that nothing is lost or half written."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
HULLS = pathlib.Path(sys.argv.pop(1)).resolve() / "hulls"
EVERYTHING = ["--keel", "--deck", "--soles", "--stem", "--spar", "--text", "--frame", "40", "--dxf", "--hpgl"]
CLOCK = ["--date", "11-16-2026", "--time", "12:34:56"]


def run(*arguments, **options):
    return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, **options)


def files(folder):
    return {path.name: path.read_bytes() for path in pathlib.Path(folder).iterdir() if path.is_file()}


class BatchTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def hull(self, change=lambda lines: lines, name="boat.tvh"):
        """A sample hull, its lines changed, as a file of the scratch folder."""
        lines = (HULLS / "dory.tvh").read_bytes().decode().split("\r\n")
        path = self.folder / name
        path.write_bytes("\r\n".join(change(lines)).encode())
        return path

    def refused(self, change, *words):
        into = self.folder / "refused"
        done = run("patterns", self.hull(change), "--into", into)
        self.assertEqual(done.returncode, 1, done.stderr)
        self.assertEqual(done.stdout, "")
        self.assertFalse(into.exists(), "nothing is written")
        for word in words:
            self.assertIn(word, done.stderr)

    def test_runs_are_equal_to_the_byte_in_any_locale(self):
        results = []
        for locale in ("C", "C", "de_DE.UTF-8"):
            into = self.folder / str(len(results))
            done = run("patterns", HULLS / "cruiser.tvh", "--into", into, *EVERYTHING, *CLOCK,
                       env={**os.environ, "LC_ALL": locale})
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(done.stderr, "")
            results.append(files(into))
        self.assertGreater(len(results[0]), 60)
        self.assertEqual(results[0], results[1])
        self.assertEqual(results[0], results[2])
        self.assertIn(b"12:34:56      11-16-2026", results[0]["handplot.txt"])

    def test_lists_what_it_wrote(self):
        done = run("patterns", "--export-path", "out", "--dxf", cwd=self.folder)
        self.assertEqual(done.returncode, 0, done.stderr)
        listed = dict(line.split()[:2] for line in done.stdout.splitlines()[:-1])
        self.assertTrue(done.stdout.splitlines()[-1].startswith("done in "))
        for name, size in listed.items():
            self.assertEqual((self.folder / name).stat().st_size, int(size), name)
        here = {path.name for path in self.folder.rglob("*") if path.is_file()}
        self.assertEqual({pathlib.Path(name).name for name in listed}, here)
        self.assertTrue((self.folder / "out" / "transom.dxf").exists())

    def test_the_hull_file_is_left_as_it_was(self):
        hull = self.hull(lambda lines: [lines[0], lines[1].replace(".", ","), *lines[2:]])
        before = hull.read_bytes()
        elsewhere = self.folder / "elsewhere"
        self.assertEqual(run("patterns", hull, "--into", elsewhere).returncode, 0)
        self.assertEqual(hull.read_bytes(), before)
        saved = files(elsewhere)
        self.assertEqual(saved["boat.tvh"], saved["default.tvh"])
        self.assertIn("boat.dxf", saved)
        done = run("patterns", hull.name, cwd=self.folder)  # where its copy would replace it
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("stays as it is", done.stderr)
        self.assertEqual(hull.read_bytes(), before)

    def test_frames_replace_those_of_the_hull(self):
        into = self.folder / "out"
        frames = run("patterns", HULLS / "cruiser.tvh", "--into", into, "--frame", "60", "--frame", "-80.5")
        self.assertEqual(frames.returncode, 0, frames.stderr)
        self.assertEqual([n for n in sorted(files(into)) if n.startswith("frame")], ["frame1.uc", "frame2.uc"])
        lines = (into / "cruiser.tvh").read_bytes().decode().split("\r\n")
        first = 1 + 15 * 8 + 1 + 39 * 8
        self.assertEqual(lines[first:first + 8], [" 60 ", " 80.5 ", "", "", "", "", "", ""])

    def test_refuses_what_is_no_hull(self):
        for count in ("1", "31", "1E9", "-5", "4.5", "word", "", "nan"):
            self.refused(lambda lines: [count, *lines[1:]], "boat.tvh, line 1:", "whole number from 2 to 30")
        self.refused(lambda lines: [*lines[:6], "oak", *lines[7:]], "line 7:", "expected a number (offset)", '"oak"')
        self.refused(lambda lines: [*lines[:6], "", *lines[7:]], "line 7:")
        self.refused(lambda lines: [*lines[:6], "1E+308", *lines[7:]], "line 7:")
        self.refused(lambda lines: lines[:40] + [""], "line 40:", "ends here", "offset line 40 of 60")
        self.refused(lambda lines: [*lines[:70], "1E999", *lines[71:]], "line 71:", "hull point")
        self.refused(lambda lines: ["\0" * 3000000], "line 1:")
        missing = run("points", self.folder / "no.tvh")
        self.assertEqual(missing.returncode, 1)
        self.assertIn("no.tvh", missing.stderr)
        self.assertEqual(run("points", self.folder).returncode, 1)

    def test_warns_of_a_cut_file_once(self):
        into = self.folder / "out"
        done = run("patterns", self.hull(lambda lines: lines[:100] + [""]), "--into", into)
        self.assertEqual(done.returncode, 0)
        self.assertEqual(done.stderr.count("\n"), 1)
        self.assertIn("line 100: warning: the file ends here", done.stderr)
        older = run("points", self.hull(lambda lines: lines[:61] + [""]))
        self.assertEqual((older.returncode, older.stderr), (0, ""))

    def test_points_of_the_built_in_hull(self):
        rows = run("points").stdout.splitlines()
        self.assertEqual(rows[0], "chine,station,X,Y,Z")
        self.assertEqual(len(rows), 1 + 4 * 13)
        self.assertEqual(rows[1], "1,1,0.01,1.3,1.3")
        self.assertTrue(rows[2].startswith("1,2,") and rows[2].endswith(",10.3"))
        hull = json.loads(run("points", "--format", "json").stdout)
        self.assertEqual((hull["NumChines"], hull["HullMaxX"], hull["HullMaxZ"]), (4, 37, 140))
        for row, point in zip(rows[1:], hull["points"]):
            self.assertEqual([float(text) for text in row.split(",")], list(point.values()))

    def hydrostatics(self, *arguments):
        done = run("hydrostatics", *arguments, "--format", "json", cwd=self.folder)
        self.assertEqual(done.returncode, 0, done.stderr)
        return json.loads(done.stdout)

    def test_hydrostatics_of_a_waterline_and_a_weight(self):
        at_ten = self.hydrostatics("--waterline", 10)
        self.assertEqual(at_ten["WaterlineY"], 10)
        self.assertAlmostEqual(at_ten["DisplacementLbs"], 8.3305 * at_ten["DisplacedVolume"] / 231, places=3)
        self.assertEqual(len(at_ten["ResultRows"]), 15)
        self.assertTrue(at_ten["StatusPanel1"].startswith('WL:10.0"'))
        self.assertNotIn("HeelAngle", at_ten)
        at_sea = self.hydrostatics("--waterline", 10, "--sea")
        self.assertEqual(at_sea["WaterDensity"], 8.5556)
        self.assertEqual(at_sea["DisplacedVolume"], at_ten["DisplacedVolume"])
        found = self.hydrostatics("--displacement", at_ten["DisplacementLbs"])
        self.assertAlmostEqual(found["WaterlineY"], 10, delta=0.1)
        pitched = self.hydrostatics("--waterline", 10, "--pitch", 2)
        self.assertGreater(pitched["BuoyancyCenterZ"], 0)
        self.assertNotEqual(pitched["DisplacedVolume"], at_ten["DisplacedVolume"])
        self.assertEqual(files(self.folder), {}, "no waterplane is left behind")
        self.hydrostatics("--waterline", 10, "--into", "out")
        self.assertEqual(list(files(self.folder / "out")), ["watrplne.uc"])

    def test_ranges_and_curves_repeat_what_each_is_alone(self):
        hull = HULLS / "dory.tvh"
        levels = self.hydrostatics(hull, "--from", 3, "--to", 4, "--step", 0.5)
        self.assertEqual(levels, [self.hydrostatics(hull, "--waterline", y) for y in (3, 3.5, 4)])
        curve = self.hydrostatics(hull, "--displacement", 500, "--heel", "0,10,20")
        self.assertEqual(curve, [self.hydrostatics(hull, "--displacement", 500, "--heel", a) for a in (0, 10, 20)])
        self.assertEqual([state["Outcome"] for state in curve], ["solved"] * 3)
        self.assertEqual(curve[0]["RightingMoment"], 0)
        self.assertAlmostEqual(curve[1]["RightingMoment"], curve[1]["MomentArm"] / 12 * curve[1]["TotalLbs"])
        rows = run("hydrostatics", hull, "--from", 3, "--to", 4, "--step", 0.5, "--format", "csv").stdout.splitlines()
        self.assertEqual(rows[0].split(",")[:2], ["WaterlineY", "WaterDensity"])
        self.assertEqual([float(row.split(",")[0]) for row in rows[1:]], [3, 3.5, 4])
        text = run("hydrostatics", hull, "--waterline", 3).stdout
        self.assertRegex(text, r"Displacement: +\d+ lbs\n")

    def test_hydrostatics_that_can_not_be_had(self):
        for arguments, word in ((["--waterline", "0.5"], "outside of the hull"), (["--waterline", "99"], "1.0 to 38.0"),
                                (["--waterline", "8x"], "expected a number"), (["--waterline", "nan"], "expected a number"),
                                (["--displacement", "1E9"], "can carry"), (["--displacement", "0"], "can carry"),
                                (["--from", "2", "--to", "1", "--step", "1"], "step above 0")):
            done = run("hydrostatics", *arguments, cwd=self.folder)
            self.assertEqual((done.returncode, done.stdout), (1, ""), arguments)
            self.assertIn(word, done.stderr)
        drowned = run("hydrostatics", "--waterline", "33", cwd=self.folder)
        self.assertEqual(drowned.returncode, 0)
        self.assertIn("drowns the sheer; computed at 28.8", drowned.stderr)
        for arguments in ([], ["--waterline", "5", "--displacement", "9"], ["--from", "1"]):
            self.assertEqual(run("hydrostatics", *arguments).returncode, 2)

    def test_usage(self):
        for arguments in ([], ["sink"], ["patterns", "--frame", "x"], ["patterns", "--frame", "nan"],
                          ["patterns", "--date", "2026-11-16"], ["patterns", "--date", "13-01-2026"],
                          ["patterns", "--time", "24:00:00"], ["points", "--format", "xml"],
                          ["patterns", *["--frame", "9"] * 9], ["points", "a", "b"], ["points", ""],
                          ["patterns", "--frame", "0x10"], ["patterns", "--into", ""]):
            done = run(*arguments, cwd=self.folder)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertTrue(done.stderr, arguments)
        self.assertEqual(files(self.folder), {})
        for arguments in (["--help"], ["patterns", "--help"], ["points", "--help"], ["hydrostatics", "--help"],
                          ["vrml", "--help"]):
            done = run(*arguments)
            self.assertEqual(done.returncode, 0)
            for word in ("NAME", "SYNOPSIS", "EXAMPLE"):
                self.assertIn(word, done.stdout)

    def test_places_that_can_not_be_written(self):
        (self.folder / "file").write_text("")
        for into in (self.folder / "file", "/dev/full", "/proc/none"):
            done = run("patterns", "--into", into)
            self.assertEqual(done.returncode, 1, into)
            self.assertIn("expected a folder to write in", done.stderr)
        with open("/dev/full", "w") as full:
            done = subprocess.run([PROGRAM, "points"], stdout=full, stderr=subprocess.PIPE, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertIn("standard output", done.stderr)

    def fails_and_changes_nothing(self, into, *arguments, named, limit="true"):
        """A run that can't write all of its files leaves the folder as it was."""
        before = files(into)
        command = ["bash", "-c", limit + ' && exec "$@"', "bash", PROGRAM, "patterns", HULLS / "cruiser.tvh",
                   "--into", into, *EVERYTHING, *arguments]
        done = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stdout, "")
        self.assertIn(named, done.stderr)
        self.assertEqual(files(into), before)

    def test_what_can_not_be_written_whole_is_not_written(self):
        old = self.folder / "old"
        run("patterns", HULLS / "dory.tvh", "--into", old, "--text")
        self.fails_and_changes_nothing(old, named="handplot.txt", limit="ulimit -f 12")
        (old / "full.plt").symlink_to("/dev/full")
        (old / "chine2.uc").chmod(0o444)
        self.fails_and_changes_nothing(old, named="chine2.uc: is read-only")
        self.fails_and_changes_nothing(old, "--export-path", "/proc/none", named="/proc/none")

    def test_names_that_the_run_needs_for_itself(self):
        named_like_a_part = run("patterns", self.hull(name="Chine1.tvh"), "--into", self.folder / "x", "--dxf")
        self.assertEqual(named_like_a_part.returncode, 1)
        self.assertIn("would be one file", named_like_a_part.stderr)
        for name in ("chine1.uc", "boat.TRI", "handplot.txt", "temp", "pedit.fnt"):
            hull = self.hull(name=name)
            before = hull.read_bytes()
            done = run("patterns", hull, "--into", self.folder)
            self.assertEqual(done.returncode, 1)
            self.assertIn("no pattern has", done.stderr)
            self.assertEqual(hull.read_bytes(), before)


if __name__ == "__main__":
    unittest.main()
