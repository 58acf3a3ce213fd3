"""Writes the pen-down moves of a pattern file as DXF lines with r12writer and prints the CPU seconds."""

import sys
import time

from ezdxf.addons import r12writer

SCALE = 500


def write_lines(pattern_path, drawing_path):
    current = (0.0, 0.0)
    down = False
    with open(pattern_path) as pattern, r12writer(drawing_path) as drawing:
        for line in pattern:
            if "penup" in line:
                down = False
            elif "pendown" in line:
                down = True
            elif "acut" in line:
                x, y, _ = line.split(" ", 2)
                last, current = current, (float(x) / SCALE, float(y) / SCALE)
                if down:
                    drawing.add_line(last, current)


start = time.process_time()
write_lines(sys.argv[1], sys.argv[2])
print(time.process_time() - start)
