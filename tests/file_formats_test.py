"""The examples of docs/file-formats.md: each block that names a file stands, line for line, in what the
commands of that page write; "..." leaves lines out."""

import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

PROGRAM, PAGE, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])


def place_of(chunk, lines, start):
    """Where the lines of a chunk stand behind `start`, without a gap; -1 if nowhere."""
    for at in range(start, len(lines) - len(chunk) + 1):
        if lines[at:at + len(chunk)] == chunk:
            return at
    return -1


def faults_of(name, example, text):
    if not text.endswith("\r\n") or text.count("\n") != text.count("\r\n"):
        return [f"{name}: a line does not end with CR LF"]
    lines, start, faults = text.split("\r\n"), 0, []
    for chunk in re.split(r"^\.\.\.\n", example, flags=re.M):
        chunk = chunk.split("\n")[:-1]
        at = place_of(chunk, lines, start)
        if at < 0:
            faults.append(f"{name}: not written today, or not in this order:\n  " + "\n  ".join(chunk))
        start = max(start, at + len(chunk))
    return faults


def main():
    page = PAGE.read_text()
    commands = re.findall(r"^    tarve-batch (.*)$", page, re.M)
    examples = re.findall(r"^```text (\S+)\n(.*?)^```$", page, re.M | re.S)
    if len(commands) != 3 or len(examples) < 11:
        sys.exit("the page has lost its commands or its examples")
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        for command in commands:
            subprocess.run([PROGRAM, *shlex.split(command)], cwd=folder, check=True, stdout=subprocess.DEVNULL)
        for name, example in examples:
            path = pathlib.Path(folder) / "out" / name
            text = (path if path.exists() else DATA / name).read_bytes().decode()
            faults += faults_of(name, example, text)
    if faults:
        sys.exit("\n".join(faults))


main()
