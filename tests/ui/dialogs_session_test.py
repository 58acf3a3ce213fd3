"""The dialogs of the real program on a real X server: a sample hull opened by a click, a figure and the
rig beside it, an offset typed in eighths, everything created that can be. What the window writes is
what the command line program writes for the same hull, byte by byte."""

import pathlib
import re
import shutil
import subprocess
import sys

from desktop import (MAIN, Program, Session, column, has_colour, is_white, row, run_at_each_scale, runs,
                     text_lines, wait_for)

HULLS = pathlib.Path(__file__).resolve().parents[2] / "data" / "hulls"
BATCH = pathlib.Path(sys.argv[1]).resolve().with_name("tarve-batch")
LIGHT_RED, LIGHT_MAGENTA = (255, 0, 0), (255, 0, 255)
SAVE = "Save and Create Patterns"
NEW_NAME = "boat"


class Dialogs(Session):
    def status(self):
        """What the first panels of the status bar look like."""
        left, top, width, height = self.program.place(MAIN)
        box = (left, top + height - 24 * self.scale, left + width // 3, top + height)
        return self.program.desktop.picture().crop(box)

    def drawing(self):
        """The part of the main drawing that no dialog covers."""
        left, top, _, height = self.program.place(MAIN)
        return self.program.desktop.picture().crop(
            (left + 10 * self.scale, top + 140 * self.scale, left + 300 * self.scale, top + height - 30 * self.scale))

    def drawn(self, colour):
        drawing = self.drawing()
        return has_colour(drawing, colour, (0, 0, *drawing.size)) > 20


def figure_names():
    lines = (HULLS.parent / "persons.fig").read_text().splitlines()
    return [name for start, name in zip(lines, lines[1:]) if "start" in start]


def open_a_hull(session, name):
    """Opens a sample hull by a click on its row, adds a figure and the rig, and is done."""
    program, scale = session.program, session.scale
    session.menu("v", "p")
    session.menu("f", "o")
    program.window("Open")
    picture = session.picture("1-open")
    left, top, _, height = program.place("Open")

    # From the top: the box with the file's name, the list of files; no text reaches so far right.
    edge = left + 280 * scale
    box, files = runs(column(picture, edge, top, top + height), is_white, 14 * scale)[:2]
    lines = text_lines(picture, (left + 26 * scale, top + files[0], edge, top + files[1]))
    names = sorted(path.name for path in program.folder.glob("*.tvh"))
    assert len(lines) == len(names), "a line for each hull"
    before = session.status()
    program.click((edge - 60 * scale, lines[names.index(name)]))

    # At the height of the box a row of figures stands to the right, the third with its head low.
    beside = left + 340 * scale
    square = runs(row(picture, top + box[0] + 3 * scale, beside, left + 700 * scale), is_white, 60 * scale)[-1]
    program.click((beside + sum(square) // 2, top + box[0] + 40 * scale))
    figure = figure_names()[2]
    program.window(figure)  # the title tells it
    wait_for(lambda: session.drawn(LIGHT_RED), 10, "the figure in the drawing")

    assert not session.drawn(LIGHT_MAGENTA), "no rig yet"
    program.keys(figure, *["shift+Tab"] * 5, "space")  # backward from the files: their box, three of ballast
    wait_for(lambda: session.drawn(LIGHT_MAGENTA), 10, "the rig in the drawing")
    session.picture("2-figure-and-rig")
    program.keys(figure, "space", *["Tab"] * 5)  # takes the rig off, goes back to the files
    wait_for(lambda: not session.drawn(LIGHT_MAGENTA), 10, "the rig to go")
    program.keys(figure, *["Tab"] * 3, "Return")
    program.no_window(figure)
    wait_for(lambda: session.status().tobytes() != before.tobytes(), 10, "word that the hull is worked on")


def type_an_offset(session):
    """Types into the half-breadth of bulkhead 1 at the keel, in eighths and a sixteenth."""
    program, scale = session.program, session.scale
    session.menu("v", "s")
    session.menu("d", "o")
    program.keys("Offsets Table", "Return")
    program.no_window("Offsets Table")
    left, top, width, height = program.place("Offsets")
    picture = session.picture("3-offsets")
    # The heading and one line for each of the four chines at each bulkhead; X is the third column.
    lines = text_lines(picture, (left + 10 * scale, top + 8 * scale, left + width - 40 * scale, top + height - 8 * scale))
    before = session.drawing()
    program.click((left + width // 2, lines[5]))
    program.type("Offsets", "12-3+")
    wait_for(lambda: session.drawing().tobytes() != before.tobytes(), 10, "the section that follows the typing")
    session.picture("4-offset-typed")


def save_and_create(session):
    """Under a new name, with a frame and all that can be created."""
    program = session.program
    session.menu("f", "s")
    program.window(SAVE)
    # Backward from Save: nine options, the one that is on, eight frames, ten more to the file's name.
    program.keys(SAVE, *["shift+Tab", "space"] * 9, *["shift+Tab"] * 9)
    program.type(SAVE, "31.5")
    program.keys(SAVE, *["shift+Tab"] * 10)
    program.type(SAVE, NEW_NAME)
    session.picture("5-save")
    program.keys(SAVE, "Return")
    hull, copy = program.folder / (NEW_NAME + ".tvh"), program.folder / "default.tvh"
    wait_for(lambda: hull.exists() and copy.exists() and copy.read_bytes() == hull.read_bytes(), 60, "the patterns")
    session.picture("6-created")


def write_a_solid(session):
    """Presses VRML, the eleventh from the first box: four boxes, chines with two arrows, three spins."""
    session.menu("v", "s")
    session.program.keys(MAIN, *["Tab"] * 11, "space")
    wait_for((session.program.folder / "default.wrl").exists, 20, "the solid")


def by_the_command_line(folder, other):
    """The same from the hull that the window saved, at the date and time that it wrote."""
    head = (folder / "handplot.txt").read_text().splitlines()[0]
    time, date = re.search(r"(\d\d:\d\d:\d\d) +(\d\d-\d\d-\d{4})", head).groups()
    options = "--keel --deck --soles --stem --spar --text --half-frames --dxf --hpgl".split()
    for command in (["patterns", *options, "--date", date, "--time", time], ["vrml"]):
        subprocess.run([BATCH, command[0], folder / (NEW_NAME + ".tvh"), "--into", other, *command[1:]],
                       check=True, stdout=subprocess.DEVNULL)


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir() if path.is_file()}


def offset(hull, bulkhead, chine, axis):
    """One offset out of a hull file."""
    items = hull.decode().split("\r\n")
    chines = int(items[0])
    return float(items[1 + (bulkhead * chines + chine - 1) * 3 + axis])


def run(desktop, command, folder, pictures):
    for hull in HULLS.glob("*.tvh"):
        shutil.copy(hull, folder)
    samples = contents(folder)
    with Program(desktop, command, folder) as program:
        session = Dialogs(program, pictures)
        session.start()
        open_a_hull(session, "dinghy.tvh")
        type_an_offset(session)
        save_and_create(session)
        write_a_solid(session)
        session.close()

    by_window = contents(folder)
    assert {name: by_window.pop(name) for name in samples} == samples, "the samples are as they were"
    assert offset(by_window["boat.tvh"], 1, 1, 0) == 12.4375, "12 3/8 and a sixteenth"
    assert by_window.pop("hull.dat").split()[:10] == [b"1"] * 10, "every option stays ticked"
    by_window.pop("temp.txt")  # opening a hull leaves it
    other = folder.parent / "other"
    by_the_command_line(folder, other)
    by_batch = contents(other)
    assert sorted(by_window) == sorted(by_batch), set(by_window) ^ set(by_batch)
    for name, text in by_batch.items():
        assert by_window[name] == text, name
    made = {pathlib.Path(name).suffix for name in by_batch}
    assert {".uc", ".tri", ".dxf", ".plt", ".wrl", ".txt", ".tvh"} <= made, made


if __name__ == "__main__":
    run_at_each_scale(run, (1400, 900))
