"""How long the program takes from its start to a visible window, and how much memory it has then, against
an empty window of the same toolkit on the same screen; and what it does when nobody touches it.
start_up.py TARVE-DESIGNER EMPTY-WINDOW; needs Xvfb and xdotool."""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests" / "ui"))
from desktop import Desktop, Program  # noqa: E402

RUNS = 15


def visible(environment, title):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], env=environment,
                           capture_output=True, check=False)
    return bool(found.stdout.split())


def memory(pid):
    """Kilobytes that belong to the process alone: shared libraries are counted by their share."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text()
    return next(int(line.split()[1]) for line in text.splitlines() if line.startswith("Pss:"))


def cpu_ticks(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return int(fields[11]) + int(fields[12])


def start(command, title, environment, folder):
    begin = time.perf_counter()
    process = subprocess.Popen([command], cwd=folder, env=environment)
    while not visible(environment, title):
        if process.poll() is not None:
            raise SystemExit(f"{command} ended with {process.returncode}")
    took = time.perf_counter() - begin
    time.sleep(0.3)
    return process, took, memory(process.pid)


def main(designer, empty):
    with Desktop((1280, 900)) as desktop, tempfile.TemporaryDirectory() as folder:
        environment = dict(os.environ, DISPLAY=desktop.display, HOME=folder, XDG_RUNTIME_DIR=folder,
                           QT_QPA_PLATFORM="xcb")
        boats = pathlib.Path(folder) / "boats"
        boats.mkdir()
        figures = {designer: ([], []), empty: ([], [])}
        for _ in range(RUNS):
            for command, title in ((designer, "Tarve Designer 1.91"), (empty, "Empty window")):
                process, took, kilobytes = start(command, title, environment, boats)
                process.kill()
                process.wait()
                figures[command][0].append(took)
                figures[command][1].append(kilobytes)
        for place, what in enumerate(("start to visible window", "memory")):
            ours, other = (statistics.median(figures[command][place]) for command in (designer, empty))
            print(f"{what} / empty window  {ours / other:6.2f}  (wanted <= 2)   {ours:.3f} against {other:.3f}")

        with Program(desktop, designer, boats) as program:
            program.window("Tarve Ply Designer")
            time.sleep(1)
            program.keys("Tarve Ply Designer", "Return")
            program.no_window("Tarve Ply Designer")
            time.sleep(2)
            before = cpu_ticks(program.process.pid)
            time.sleep(10)
            print("processor time in 10 s of idleness:", cpu_ticks(program.process.pid) - before, "ticks of 10 ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
