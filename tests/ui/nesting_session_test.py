"""Nesting with the real program on a real X server: five pieces on two sheets by the mouse, one of them
flipped, one turned, one copied; the table with all of them, the desktop's viewer asked to show it, and a
PDF with a page for each sheet."""

import pathlib
import re
import subprocess
import sys

from desktop import MAIN, Program, Session, column, middle_of, row, run_at_each_scale, runs, text_lines, wait_for

HULL = pathlib.Path(__file__).resolve().parents[2] / "data" / "hulls" / "dinghy.tvh"
BATCH = pathlib.Path(sys.argv[1]).resolve().with_name("tarve-batch")
LIGHT_GREEN, LIGHT_GREY = (0, 255, 0), (192, 192, 192)
TITLE = r"(r dinghy\.tvh|\w+\.uc:) .*"  # eight characters before the dot
PARTS = ("transom.uc", "bhead1.uc", "bhead2.uc", "bhead3.uc")
# The buttons behind the list, in the order of the keyboard.
FLIP, QUARTER_TURN, COPY, SAVE, PRINT = 1, 3, 6, 8, 9
# Centers on the row of sheets, in inches; handles lie further apart than the mouse reaches.
PLACES = {"transom.uc": (24, 14), "bhead1.uc": (76, 24), "bhead2.uc": (30, 37), "bhead3.uc": (130, 34),
          "Copy of bhead3.uc": (126, 12)}


class Nesting(Session):
    def open(self):
        self.menu("p", "n")
        self.left, self.top, width, height = self.program.place(TITLE)
        self.right, self.bottom = self.left + width, self.top + height
        self.measure(self.picture("1-empty"))

    def measure(self, picture):
        """Finds the rows of the list and the frames of the first sheets on the screen."""
        s = self.scale
        self.rows = text_lines(picture, (self.left + 10 * s, self.top + 8 * s, self.left + 180 * s, self.top + 112 * s))
        middle = self.top + 400 * s
        grey = runs(row(picture, middle, self.left + 10 * s, self.right - 10 * s), LIGHT_GREY.__eq__, 1)
        edges = [self.left + 10 * s + start for start, end in grey if end - start <= s]
        self.sheet_left, self.inch = edges[0], (edges[1] - edges[0]) / 96
        lines = runs(column(picture, self.left + 300 * s, self.top + 120 * s, self.bottom), LIGHT_GREY.__eq__, 1)
        self.sheet_bottom = self.top + 120 * s + [start for start, end in lines if end - start <= s][-1]
        self.box = (edges[0], self.top + 120 * s, self.right - 8 * s, self.bottom - 8 * s)

    def on_screen(self, x, y):
        return round(self.sheet_left + x * self.inch), round(self.sheet_bottom - y * self.inch)

    def press(self, button):
        """Presses a button by the keyboard, which is in the list of parts."""
        self.program.keys(TITLE, *["Tab"] * button, "space")

    def back_to_list(self, button):
        self.program.keys(TITLE, *["shift+Tab"] * button)

    def handle(self):
        """The handle of the piece that is chosen."""
        return wait_for(lambda: middle_of(self.program.desktop.picture(), LIGHT_GREEN, self.box), 10, "a handle")

    def put(self, name):
        """Shows a part by a click in the list and drags it to its place."""
        self.program.click((self.left + 60 * self.scale, self.rows[PARTS.index(name)]))
        self.drag(name, self.handle())

    def drag(self, name, handle):
        target = self.on_screen(*PLACES[name])
        self.program.drag(handle, (target[0] - 9, target[1] + 5), target)
        wait_for(lambda: apart(self.handle(), target) <= 2, 10, f"{name} at its place")


def arrange(session):
    for name in PARTS:
        session.put(name)
        if name == "bhead2.uc":
            session.press(FLIP)
            session.back_to_list(FLIP)
        if name == "bhead1.uc":
            session.press(QUARTER_TURN)
            session.back_to_list(QUARTER_TURN)
    session.press(COPY)
    session.back_to_list(COPY)
    x, y = PLACES["bhead3.uc"]
    session.drag("Copy of bhead3.uc", session.on_screen(x + 3, y + 3))
    session.picture("2-arranged")

    # The title reads out the point under the mouse.
    outline = around_middle(plotted_outlines(session.program.folder)["transom.uc"])
    corner = tuple(a + b for a, b in zip(PLACES["transom.uc"], outline[0]))
    session.program.do("mousemove", *session.on_screen(*corner))
    told = session.program.do("getwindowname", session.program.window(r"transom\.uc: .*"))
    read = map(float, re.match(r"transom\.uc: (\S+)'' (\S+)'' \(", told).groups())
    assert apart(tuple(read), corner) < 0.3, told


def save_table(session):
    session.press(SAVE)
    session.program.keys("Hand Plotting", "Return")  # as it is offered
    wait_for((session.program.folder / "nest.txt").exists, 10, "the table")
    session.program.no_window("Hand Plotting")
    session.back_to_list(SAVE)


def print_sheets(session):
    """By the dialog of the toolkit, which knows no printer here and offers a file in the home folder."""
    session.press(PRINT)
    session.program.keys("Beta Print: Beware", "Return")
    session.program.window("Print")
    session.picture("3-print")
    session.program.keys("Print", "Return")
    session.program.no_window("Print")
    pdf = session.program.home / "Tarve Designer.pdf"
    wait_for(pdf.exists, 20, "the printed file")
    return pdf


def outlines(text, parts_of_row):
    """The outlines of a table, by name: rows of points behind a line with a name and a line of dashes."""
    found, points = {}, None
    for line in text.splitlines():
        point = parts_of_row(line)
        if point:
            points.append(point)
        elif ".uc" in line:
            points = found[line.split("   ")[0].split("  (")[0]] = []
    return found


def plotted(line):
    """A point of the hand plotting table, in inches; Y is read in as many characters as X has."""
    numbers = re.match(r"(-?\d+\.\d+) +(-?\d+\.\d+) ", line)
    return numbers and (float(numbers[1]), float(numbers[2][:len(numbers[1])]))


def nested(line):
    """A point of the nesting table in millimetres, as inches on the row of sheets."""
    numbers = re.match(r"( *)(-?\d+) x (-?\d+) mm", line)
    return numbers and (len(numbers[1]) // 14 * 96 + int(numbers[2]) / 25.4, int(numbers[3]) / 25.4)


def around_middle(points):
    """Points as seen from the middle of their extents."""
    middle_x, middle_y = [(min(values) + max(values)) / 2 for values in zip(*points)]
    return [(x - middle_x, y - middle_y) for x, y in points]


def apart(a, b):
    return max(abs(a[0] - b[0]), abs(a[1] - b[1]))


def plotted_outlines(folder):
    return outlines((folder / "handplot.txt").read_text(), plotted)


def check_table(folder):
    before = plotted_outlines(folder)
    table = (folder / "nest.txt").read_text()
    after = outlines(table[table.rindex("Sheet 1"):], nested)
    assert set(after) == set(PLACES), sorted(after)
    for name, place in PLACES.items():
        outline = around_middle(before[name.removeprefix("Copy of ")])
        if name.startswith("Copy"):
            outline.pop()  # a copy goes without its last point
        if name == "bhead2.uc":
            outline = [(x, -y) for x, y in outline]
        if name == "bhead1.uc":
            outline = [(-y, x) for x, y in outline]
        assert len(after[name]) == len(outline), name
        moves = [(at[0] - wanted[0], at[1] - wanted[1]) for at, wanted in zip(after[name], outline)]
        assert apart(moves[0], place) < 0.3, (name, moves[0])
        assert all(apart(move, moves[0]) < 0.1 for move in moves), (name, moves)


def run(desktop, command, folder, pictures):
    subprocess.run([BATCH, "patterns", HULL, "--into", folder], check=True, stdout=subprocess.DEVNULL)
    program = Program(desktop, command, folder)
    viewed = program.home / "viewed.txt"
    with program:
        session = Nesting(program, pictures)
        if desktop.scale == 1:  # otherwise there is no viewer, and nobody hears of it
            viewer = program.home / "bin" / "xdg-open"
            viewer.write_text(f'#!/bin/sh\necho "$1" > {viewed}\n')
            viewer.chmod(0o755)
        session.start()
        session.open()
        arrange(session)
        save_table(session)
        if desktop.scale == 1:
            wait_for(viewed.exists, 10, "the viewer")
            assert viewed.read_text().endswith("/boats/nest.txt\n"), viewed.read_text()
        pdf = print_sheets(session)
        session.close()
    check_table(folder)
    facts = subprocess.run(["pdfinfo", pdf], capture_output=True, text=True, check=True).stdout
    assert re.search(r"^Pages: +3$", facts, re.M), facts
    width, height = map(float, re.search(r"^Page size: +(\S+) x (\S+)", facts, re.M).groups())
    assert width > height, "the sheets lie"


if __name__ == "__main__":
    run_at_each_scale(run, (1400, 900))
