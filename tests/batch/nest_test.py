"""The nesting commands of tarve-batch from outside: the table, the pages as PDF readers see them, and
layouts that are refused with nothing written."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
CLOCK = ["--date", "11-16-2026", "--time", "12:34:56"]
TABLE = ["Hand plotting file for boat.tvh      12:00:00", "X in.         Y in.",
         "board.uc      ____", "0.00          0.00", "20.00         0.000", "20.00         8.000",
         "0.00          8.00",
         "sail.uc       ____", "0.00          0.00", "9.00          0.00", "0.00          9.00",
         "last.uc       ____", "1.00          2.00"]
BOARD = {"name": "board.uc", "x": 40, "y": 10}


class NestTest(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "handplot.txt").write_bytes("".join(line + "\r\n" for line in TABLE).encode())

    def run_nest(self, command, layout, *arguments, **environment):
        text = layout if isinstance(layout, str) else json.dumps(layout)
        (self.folder / "layout.json").write_text(text)
        surroundings = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY")}
        return subprocess.run(
            [PROGRAM, command, "--handplot", "handplot.txt", "--layout", "layout.json", *arguments],
            capture_output=True, text=True, cwd=self.folder, env={**surroundings, **environment})

    def table(self, layout, *arguments):
        done = self.run_nest("nest-table", layout, *CLOCK, *arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return (self.folder / "nest.txt").read_text().splitlines()

    def pages(self, layout, fit):
        """The PDF's name in the scratch folder, and its facts."""
        done = self.run_nest("nest-print", layout, "--pdf", fit + ".pdf", "--fit", fit, QT_QPA_PLATFORM="xcb")
        self.assertEqual((done.returncode, done.stderr), (0, ""), "no display is needed")
        pdf = self.folder / (fit + ".pdf")
        self.assertEqual(done.stdout.split(), [pdf.name, str(pdf.stat().st_size), "bytes"])
        told = subprocess.run(["pdfinfo", pdf], capture_output=True, text=True, check=True)
        return pdf, dict(line.split(":", 1) for line in told.stdout.splitlines())

    def dark(self, pdf, page, limit=160):
        """The dark pixels of a page at 100 to an inch, as one set of columns for each row."""
        raw = subprocess.run(["pdftoppm", "-r", "100", "-gray", "-f", str(page), "-l", str(page), pdf],
                             capture_output=True, check=True).stdout
        magic, size, depth, pixels = raw.split(b"\n", 3)
        width, height = map(int, size.split())
        self.assertEqual((magic, depth, len(pixels)), (b"P5", b"255", width * height))
        return [{x for x, p in enumerate(pixels[y * width:(y + 1) * width]) if p < limit}
                for y in range(height)]

    def test_the_table_places_turns_flips_and_copies(self):
        lines = self.table({"sheet": {"height": 50, "length": 80.5, "count": 4},
                            "parts": [{**BOARD, "turn": 90, "copy": {"x": 100, "y": 20, "flip": True}}]},
                           "--hull", "dory.tvh")
        self.assertEqual(lines[0], "Nested hand plotting file for dory.tvh     /            12:34:56"
                         "       /            11-16-2026")
        self.assertEqual(lines[4:15], [
            "board.uc  (extend lines to panel edges)", "-" * 63,
            # (-10, -4) turns to (3.9995, -10.0002) by the coarse pi, a hair below the sheet.
            '43-8"x-1-8"', '44-0"x19-8"', '36-0"x20-0"', '35-8"x0-0"', "",
            "Copy of board.uc  (extend lines to panel edges)", "-" * 63,
            " " * 14 + '9-0" by 24-0"', " " * 14 + '29-0" by 24-0"'])

    def test_the_last_part_of_a_table_has_no_center(self):
        self.assertIn('6-0"x9-0"', self.table({"parts": [{"name": "LAST.uc", "x": 5, "y": 7}]}))

    def test_each_sheet_has_a_page_with_its_frame_in_proportion(self):
        layout = {"sheet": {"height": 48, "length": 96, "count": 5},
                  "parts": [BOARD, {"name": "sail.uc", "x": 300, "y": 20, "copy": {"x": 320, "y": 20}}]}
        for fit, width in (("print", 0.9), ("prn", 1)):
            pdf, facts = self.pages(layout, fit)
            self.assertEqual(facts["Pages"].strip(), "5", fit)
            self.assertIn("792 x 612", facts["Page size"], "lying, as the sheets do")
            rows = self.dark(pdf, 2)  # an empty sheet
            framed = [y for y, columns in enumerate(rows) if len(columns) > 400]
            left, right = min(rows[framed[0]]), max(rows[framed[0]])
            height = framed[-1] - framed[0]
            self.assertLessEqual(len(framed), 4, "two lines, each at most two pixels")
            self.assertAlmostEqual((right - left) / height, 2, delta=0.01)
            self.assertAlmostEqual(right - left, width * (1100 - 2 * 39.4), delta=2)
            self.assertAlmostEqual(left, 1100 - 1 - right, delta=2, msg="in the middle across")
            self.assertAlmostEqual(framed[0], 850 - 1 - framed[-1], delta=2, msg="and up")

    def test_a_fixed_clock_gives_the_same_pages(self):
        dated = ["--pdf", "a.pdf", "--date", "11-16-2026", "--time", "12:34:56"]
        self.run_nest("nest-print", {"parts": [BOARD]}, *dated)
        first = (self.folder / "a.pdf").read_bytes()
        time.sleep(1.1)
        self.run_nest("nest-print", {"parts": [BOARD]}, *dated)
        self.assertEqual((self.folder / "a.pdf").read_bytes(), first)
        told = subprocess.run(["pdfinfo", "-rawdates", "a.pdf"], cwd=self.folder, capture_output=True, text=True)
        self.assertRegex(told.stdout, "CreationDate: +D:20261116123456\n")
        self.assertEqual(told.stderr, "")

    def test_parts_lie_on_their_pages_with_their_names(self):
        sail = {"name": "sail.uc", "x": 250, "y": 20, "copy": {"x": 270, "y": 20}}
        pdf, _ = self.pages({"parts": [BOARD, sail]}, "prn")
        names = [subprocess.run(["pdftotext", "-f", n, "-l", n, pdf, "-"], capture_output=True, text=True)
                 .stdout.split("\n") for n in "123"]
        self.assertIn("board.uc", names[0])
        self.assertNotIn("sail.uc", names[0])
        self.assertTrue({"sail.uc", "Copy of sail.uc", "Sheet 3 boat.tvh"} <= set(names[2]), names[2])
        unit = (1100 - 2 * 39.4) / 96  # pixels to an inch of the sheet
        bottom = 850 / 2 + 24 * unit
        rows = self.dark(pdf, 1)
        lower_edge = rows[round(bottom - 6 * unit)] | rows[round(bottom - 6 * unit) - 1]
        inside = {x for x in lower_edge if 39.4 + 2 < x < 1100 - 39.4 - 2}
        self.assertAlmostEqual(min(inside), 39.4 + 30 * unit, delta=1.5)
        self.assertAlmostEqual(max(inside), 39.4 + 50 * unit, delta=1.5)

    def test_layouts_that_make_no_sense_are_refused(self):
        def parts(**change):
            return {"parts": [{**BOARD, **change}]}

        cases = [
            ('{"parts": [', "JSON", "line 1"), ('{"parts": [{"x": 1e999}]}', "1e999"),
            ([], "an object"), ({}, "parts: expected a list"), ({"parts": 3}, "expected a list", "found 3"),
            ({"parts": [1]}, "parts[0]", "an object"), (parts(X=1), "parts[0]", '"X"', "only name, x"),
            (parts(x="1"), "parts[0].x", "a number", '"1"'), (parts(y=None), "parts[0].y"),
            (parts(x=1e6), "from -100000 to 100000"), (parts(turn=1e5), "parts[0].turn"),
            (parts(flip=1), "true or false"), (parts(copy=True), "parts[0].copy"),
            (parts(copy={"x": 1}), "parts[0].copy.y"),
            (parts(name="keel.uc"), '"keel.uc": no such part in handplot.txt',
             '"board.uc", "sail.uc", "last.uc"'),
            (parts(name=""), "parts[0].name"), ({"parts": [BOARD, BOARD]}, "parts[1].name", "once"),
            ({"sheet": {"count": 2}}, "sheet.count", "3, 4 or 5"), ({"sheet": {"height": 0}}, "sheet.height"),
            ({"sheet": {"length": 1e5}}, "sheet.length"), ({"sheets": 3}, '"sheets"'),
            ({"parts": [BOARD, {**BOARD, "name": "Board.UC"}]}, "once", '"Board.UC"'),
            ({"parts": [BOARD] * 31}, "parts: expected at most 30, found 31"),
            ('{"parts": ' + "[" * 60000, "at most 16 levels"), ('{"a":' * 60000, "at most 16 levels"),
            ({"parts": [[[BOARD]]]}, "found a list"), (parts(x=BOARD), "found an object"),
            ('{"parts": [], "sheet": {}, "parts": []}', 'once, found "parts"'),
        ]
        for command, out in (("nest-table", []), ("nest-print", ["--pdf", "out.pdf"])):
            for layout, *words in cases:
                done = self.run_nest(command, layout, *out)
                self.assertEqual((done.returncode, done.stdout), (1, ""), layout)
                for word in ("layout.json: ", *words):
                    self.assertIn(word, done.stderr)
        for text in ('"' + "a\x7f\u20ac" * 100, '{"parts": 1' + "0" * 500 + "}"):
            told = self.run_nest("nest-table", text).stderr
            self.assertTrue(told.endswith("...\n") and told[:-1].isprintable() and told.isascii(), told)
            self.assertLess(len(told), 260)
        self.assertEqual(sorted(os.listdir(self.folder)), ["handplot.txt", "layout.json"])

    def test_the_hull_is_the_one_of_the_table_unless_it_is_named(self):
        titles = [("dory.tvh  12:00:00      11-16-2026", "dory.tvh"), ("a.tvh12:00:0011-16-2026", "a.tvh"),
                  ("my boat 7:00  12:00:00", "my boat 7:00"), ("12:00:00  11-16-2026", "default.tvh"),
                  (None, "default.tvh")]
        for title, name in titles:
            first = "no title" if title is None else "Hand plotting file for " + title
            (self.folder / "handplot.txt").write_text("\r\n".join([first, *TABLE[1:]]))
            self.assertRegex(self.table({"parts": []})[0], f"^Nested hand plotting file for {name} +/ ")
        self.assertRegex(self.table({"parts": []}, "--hull", "b.tvh")[0], "for b.tvh +/ ")
        done = subprocess.run([PROGRAM, "nest-table", "--handplot", ".\\handplot.txt", "--layout",
                               ".\\Layout.json", "--out", ".\\new.txt"], cwd=self.folder, capture_output=True)
        self.assertTrue((self.folder / "new.txt").exists(), done.stderr)

    def test_files_that_are_missing_or_would_be_lost_are_refused(self):
        layout = {"parts": [BOARD]}
        (self.folder / "kept.pdf").write_text("kept")
        (self.folder / "kept.pdf").chmod(0o444)
        before = (self.folder / "handplot.txt").read_bytes()
        for command, arguments, word in [
            ("nest-table", ["--out", "handplot.txt"], "which is read"),
            ("nest-table", ["--out", "Layout.json"], "which is read"),
            ("nest-table", ["--out", ".\\handplot.txt"], "which is read"),
            ("nest-print", ["--pdf", ".\\layout.json"], "which is read"),
            ("nest-table", ["--out", "no/nest.txt"], "no/nest.txt"),
            ("nest-print", ["--pdf", "kept.pdf"], "kept.pdf")]:
            done = self.run_nest(command, layout, *arguments)
            self.assertEqual((done.returncode, done.stdout), (1, ""), arguments)
            self.assertIn(word, done.stderr)
        self.assertEqual((self.folder / "handplot.txt").read_bytes(), before)
        self.assertEqual((self.folder / "kept.pdf").read_text(), "kept")
        for text, word in (("no parts here\r\n", "found no parts"), (None, "no such hand plotting table")):
            (self.folder / "handplot.txt").unlink()
            if text:
                (self.folder / "handplot.txt").write_text(text)
            done = self.run_nest("nest-table", layout)
            self.assertEqual(done.returncode, 1)
            self.assertIn(word, done.stderr)
        for arguments in (["nest-print", "--handplot", "a", "--layout", "b"], ["nest-table", "--layout", "b"],
                          ["nest-print", "--handplot", "a", "--layout", "b", "--pdf", "c", "--fit", "wide"]):
            done = subprocess.run([PROGRAM, *arguments], capture_output=True, text=True)
            self.assertEqual(done.returncode, 2, arguments)
            self.assertNotIn("expected a command", done.stderr)


if __name__ == "__main__":
    unittest.main()
