"""A screen without a monitor, and a program on it that is used as a person uses it: by keys, the mouse
and the eye. Needs Xvfb, xdotool and the imaging library of the distribution."""

import os
import pathlib
import subprocess
import tempfile
import time

from PIL import ImageGrab

WHITE = (255, 255, 255)


class Desktop:
    """An X server of its own; `with Desktop((1024, 768)) as desktop:`."""

    def __init__(self, size, scale=1):
        self.size, self.scale = size, scale

    def __enter__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % self.size, "-nolisten", "tcp",
             "-noreset"],
            pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
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
    """The program, started in a folder of its own; closed for good when the `with` ends."""

    def __init__(self, desktop, command, folder):
        self.desktop, self.command, self.folder = desktop, command, pathlib.Path(folder)

    def __enter__(self):
        home = self.folder.parent / "home"
        home.mkdir(mode=0o700, exist_ok=True)
        self.environment = dict(
            os.environ, DISPLAY=self.desktop.display, HOME=str(home), XDG_CONFIG_HOME=str(home / "config"),
            XDG_RUNTIME_DIR=str(home), QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR=str(self.desktop.scale))
        self.process = subprocess.Popen([self.command], cwd=self.folder, env=self.environment)
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
        """The id of the visible window with this title, waited for."""
        return wait_for(lambda: self.do("search", "--onlyvisible", "--name", f"^{title}$").split()[-1:], seconds,
                        f"window {title!r}")[0]

    def no_window(self, title, seconds=10):
        wait_for(lambda: not self.do("search", "--onlyvisible", "--name", f"^{title}$").split(), seconds,
                 f"window {title!r} to go")

    def keys(self, title, *keys):
        """Presses keys in the window with this title."""
        self.do("windowfocus", "--sync", self.window(title))
        for key in keys:
            self.do("key", "--clearmodifiers", key)
            time.sleep(0.08)

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
