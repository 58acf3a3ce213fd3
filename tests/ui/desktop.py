"""A screen without a monitor, and a program on it that is used as a person uses it: by keys, the mouse
and the eye. Needs Xvfb, xdotool and the imaging library of the distribution.

Places are told in the pixels of the screen. What stands where is found by eye, because fonts differ from
machine to machine; what is nowhere to be seen is reached by the keyboard."""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

from PIL import ImageGrab

MAIN = "Tarve Designer 1.91"
ABOUT = "Tarve Ply Designer"
WHITE = (255, 255, 255)
DARK = ((0, 0, 0), (90, 90, 90))  # black, smoothed at its edges


class Desktop:
    """An X server of its own; `with Desktop((1024, 768)) as desktop:`."""

    def __init__(self, size, scale=1):
        self.size, self.scale = size, scale

    def __enter__(self):
        reader, writer = os.pipe()
        # Without -noreset the server begins anew, and turns programs away, whenever its last one leaves:
        # xdotool does, should it look for a window before the program has come.
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % self.size, "-nolisten", "tcp",
             "-noreset"], pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as lines:
            self.display = ":" + lines.readline().strip()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def picture(self):
        return ImageGrab.grab(xdisplay=self.display).convert("RGB")


class Program:
    """The program, started in a folder of its own; closed for good when the `with` ends. Its home lies
    beside the folder, with a `bin` that is all it finds programs in, and what it says on the terminal."""

    def __init__(self, desktop, command, folder):
        self.desktop, self.command, self.folder = desktop, command, pathlib.Path(folder)
        self.home = self.folder.parent / "home"
        self.messages = self.home / "messages.txt"

    def __enter__(self):
        (self.home / "bin").mkdir(mode=0o700, parents=True, exist_ok=True)
        self.home.chmod(0o700)
        # Neither a printer of this machine is in reach, so what is printed goes to a file, nor its desktop.
        self.environment = dict(
            os.environ, DISPLAY=self.desktop.display, HOME=str(self.home), LC_ALL="C.UTF-8",
            XDG_CONFIG_HOME=str(self.home / "config"), XDG_RUNTIME_DIR=str(self.home),
            CUPS_SERVER=str(self.home / "no-printers"), DBUS_SESSION_BUS_ADDRESS="disabled:", QT_QPA_PLATFORM="xcb",
            QT_SCALE_FACTOR=str(self.desktop.scale))
        with open(self.messages, "w") as messages:
            self.process = subprocess.Popen([self.command], cwd=self.folder, stderr=messages,
                                            env=dict(self.environment, PATH=str(self.home / "bin")))
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()

    def do(self, *words):
        """One xdotool command; returns what it prints."""
        return subprocess.run(["xdotool", *map(str, words)], env=self.environment, capture_output=True,
                              text=True, check=False).stdout

    def window(self, title, seconds=20):
        """The id of the visible window with this title, a regular expression, waited for."""
        return wait_for(lambda: self.do("search", "--onlyvisible", "--name", f"^{title}$").split()[-1:], seconds,
                        f"window {title!r}")[0]

    def no_window(self, title, seconds=10):
        wait_for(lambda: not self.do("search", "--onlyvisible", "--name", f"^{title}$").split(), seconds,
                 f"window {title!r} to go")

    def keys(self, title, *keys):
        """Presses keys in the window with this title."""
        self.do("windowfocus", "--sync", self.window(title))
        self.do("key", "--clearmodifiers", "--delay", 40, *keys)
        time.sleep(0.1)

    def type(self, title, text):
        self.do("windowfocus", "--sync", self.window(title))
        self.do("type", "--delay", "20", text)
        time.sleep(0.1)

    def place(self, title):
        """Left, top, width and height of a window on the screen."""
        lines = self.do("getwindowgeometry", "--shell", self.window(title)).split()
        values = dict(line.split("=") for line in lines)
        return [int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT")]

    def drag(self, start, *places, button=1):
        self.do("mousemove", *start)
        self.do("mousedown", button)
        for place in places:
            self.do("mousemove", *place)
            time.sleep(0.05)
        self.do("mouseup", button)
        time.sleep(0.15)

    def click(self, place, button=1):
        self.drag(place, button=button)

    def ends(self, seconds=20):
        self.process.wait(seconds)
        return self.process.returncode


class Session:
    """What all sessions do: start the program, look at it, choose from its menus, close it."""

    def __init__(self, program, pictures):
        self.program, self.pictures, self.scale = program, pathlib.Path(pictures), program.desktop.scale

    def start(self):
        self.program.window(MAIN)
        self.program.keys(ABOUT, "Return")
        self.program.no_window(ABOUT)

    def menu(self, letter, *more):
        self.program.keys(MAIN, "alt+" + letter, *more)

    def picture(self, name):
        """A picture of the screen, kept."""
        time.sleep(0.3)
        picture = self.program.desktop.picture()
        picture.save(self.pictures / f"{name}.png", compress_level=1)
        return picture

    def look(self, name):
        """The same, and the place of the drawing surface of the main window on it."""
        picture = self.picture(name)
        window = left, top, width, _ = self.program.place(MAIN)
        # No line of the hull runs along the very corner of the surface.
        corner = (left + width - 14 * self.scale, top + 175 * self.scale)
        return picture, white_box(picture, corner, window)

    def close(self):
        """Ends the program and answers that the hull is to be saved; not a word has come from it."""
        self.menu("f", "e")
        self.program.keys("Tarve Designer", "alt+y")
        status, said = self.program.ends(), self.program.messages.read_text()
        assert (status, said) == (0, ""), f"ended with {status} and said: {said}"


def run_at_each_scale(run, size):
    """Runs `run(desktop, command, folder, pictures)` for the arguments PROGRAM PICTURES [SCALE...]."""
    command, pictures, *scales = sys.argv[1:]
    for scale in map(int, scales or ("1", "2")):
        kept = pathlib.Path(pictures) / f"{scale}x"
        kept.mkdir(parents=True, exist_ok=True)
        with new_folder() as folder, Desktop((size[0] * scale, size[1] * scale), scale) as desktop:
            boats = pathlib.Path(folder) / "boats"
            boats.mkdir()
            run(desktop, command, boats, kept)
    print("pictures are in", pictures)


def wait_for(found, seconds, what):
    limit = time.monotonic() + seconds
    while True:
        result = found()
        if result:
            return result
        if time.monotonic() > limit:
            raise AssertionError(f"waited {seconds} s for {what}")
        time.sleep(0.1)


def has_colour(picture, colour, box):
    """How many pixels of the box have this colour, or lie between two colours."""
    low, high = colour if isinstance(colour[0], tuple) else (colour, colour)
    return sum(count for count, found in picture.crop(box).getcolors(1 << 24)
               if all(a <= c <= b for a, c, b in zip(low, found, high)))


def runs(line, is_wanted, least):
    """The stretches of at least so many wanted pixels in a list, as pairs of first and end."""
    found, start = [], None
    for at, pixel in enumerate([*line, None]):
        wanted = pixel is not None and is_wanted(pixel)
        if wanted and start is None:
            start = at
        elif not wanted and start is not None:
            if at - start >= least:
                found.append((start, at))
            start = None
    return found


def column(picture, x, top, bottom):
    return [picture.getpixel((x, y)) for y in range(top, bottom)]


def row(picture, y, left, right):
    return [picture.getpixel((x, y)) for x in range(left, right)]


def is_white(pixel):
    return pixel == WHITE


def text_lines(picture, box):
    """The middles of the lines of dark text in a box."""
    left, top, right, bottom = box
    grey = picture.crop(box).convert("L")
    inked = [grey.crop((0, y, right - left, y + 1)).getextrema()[0] < 120 for y in range(bottom - top)]
    return [top + (start + end) // 2 for start, end in runs(inked, bool, 3)]


def middle_of(picture, colour, box):
    """The middle of all pixels of a colour in a box, or nothing."""
    left, top, right, bottom = box
    pixel = picture.load()
    found = [(x, y) for y in range(top, bottom) for x in range(left, right) if pixel[x, y] == colour]
    if not found:
        return None
    xs, ys = zip(*found)
    return round((min(xs) + max(xs)) / 2), round((min(ys) + max(ys)) / 2)


def white_box(picture, inside, window):
    """The white rectangle around a place near its right edge: the drawing surface, found by eye. Lines of
    the hull may lie to the left of the place, but the surface stands in the middle of its window."""
    x, y = inside
    right, top, bottom = x, y, y
    pixel = picture.load()

    def light(at):
        return min(pixel[at]) > 248

    while light((right + 1, y)):
        right += 1
    while light((x, top - 1)):
        top -= 1
    while light((x, bottom + 1)):
        bottom += 1
    window_left, _, window_width, _ = window
    margin = window_left + window_width - (right + 1)
    return window_left + margin, top, right + 1, bottom + 1


def new_folder():
    return tempfile.TemporaryDirectory(prefix="tarve-desktop-")
