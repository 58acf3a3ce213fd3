"""A whole session with the real program on a real X server: the about text, every view, a dragged node,
the waterline, the spin by keys, another window size, the closing question, and the next start that finds
the edited hull. Pictures of each step are kept in a folder that the last line tells."""

from desktop import DARK, MAIN, Program, Session, has_colour, run_at_each_scale

LIGHT_BLUE, LIGHT_RED, MAGENTA = (0, 0, 255), (255, 0, 0), (255, 0, 255)


def offset(hull, bulkhead, chine, axis):
    """One offset out of a hull file's text."""
    lines = hull.split("\r\n")
    chines = int(lines[0])
    return float(lines[1 + (bulkhead * chines + chine - 1) * 3 + axis])


def shape(session):
    session.start()
    spin, surface = session.look("1-spin")
    assert has_colour(spin, DARK, surface) > 300, "the spin view draws its chines black"

    for letter, name, colour in (("s", "2-sections", LIGHT_RED), ("p", "3-profile", LIGHT_RED), ("l", "4-plan", LIGHT_RED)):
        session.menu("v", letter)
        view, surface = session.look(name)
        assert has_colour(view, colour, surface) > 20, name
        assert view.crop(surface).tobytes() != spin.crop(surface).tobytes(), name

    # Sections at one scale: the margin is a 25th of the half-beam, the hull 38 inches high.
    session.menu("v", "s")
    _, (left, top, right, bottom) = session.look("5-before-drag")
    margin = 37 / 25
    shape_of_surface = (bottom - top) / (right - left)
    across = (right - left) / ((38 + margin) / shape_of_surface + margin)
    up = (bottom - top) / (38 + 2 * margin)

    def place(x, y):
        return round(left + (x + margin) * across), round(bottom - (y + margin) * up)

    session.program.drag(place(30, 14.5), place(31, 15), place(33.5, 17))
    session.look("6-after-drag")


def water(session):
    """Turns the waterline on and raises it by the keyboard, in the profile view."""
    session.menu("c", "Down", "Return")
    session.menu("v", "p")
    _, surface = session.look("7-waterline-bar")
    for _ in range(40):  # to the slider, wherever it stands in the order of the keyboard
        session.program.keys(MAIN, "Tab", "Prior")
        if has_colour(session.program.desktop.picture(), LIGHT_BLUE, surface) > 200:
            return session.look("8-waterline")
    raise AssertionError("no key brought the waterline onto the picture")


def run(desktop, command, folder, pictures):
    with Program(desktop, command, folder) as program:
        session = Session(program, pictures)
        shape(session)
        after, surface = water(session)
        assert has_colour(after, MAGENTA, surface) > 5, "the center of lateral area is marked"

        session.menu("v", "t")
        session.look("9-false-view")
        session.menu("v", "t")
        program.keys(MAIN, "Left", "Left", "Up")
        spun, surface = session.look("10-spun")
        assert has_colour(spun, DARK, surface) > 300, "the arrow keys show the spin view"
        program.keys(MAIN, "Left")
        turned, _ = session.look("11-spun-again")
        assert spun.tobytes() != turned.tobytes(), "a key turns the hull"

        program.do("windowsize", "--sync", program.window(MAIN), 960 * desktop.scale, 540 * desktop.scale)
        session.look("12-smaller")
        session.close()

    saved = (folder / "default.tvh").read_bytes().decode()
    x, y = offset(saved, 2, 3, 0), offset(saved, 2, 3, 1)
    assert abs(x - 33.5) < 0.3 and abs(y - 17) < 0.3, f"the dragged node is at {x}, {y}"

    with Program(desktop, command, folder) as program:
        session = Session(program, pictures)
        session.start()
        session.menu("v", "s")
        session.look("13-found-again")
        session.close()
    again = (folder / "default.tvh").read_bytes().decode()
    assert offset(again, 2, 3, 0) == x and offset(again, 2, 3, 1) == y, "the next start finds the edited hull"


if __name__ == "__main__":
    run_at_each_scale(run, (1100, 760))
