#!/usr/bin/env python3
"""Traces the outlines of an airspace's land, rivers and borders into a text that the build draws from.

    scripts/trace-outline.py assets/airspaces/new_york.toml...

writes assets/airspaces/outlines/new_york.outline. It needs the packages gmt and gmt-gshhg-full. Only whoever adds an
airspace or moves its grid runs it; what it wrote is kept. docs/formats.md has the format.
"""

import math
import pathlib
import subprocess
import sys
import tempfile
import tomllib

CELLS = 49
MARGIN = 1  # cells around the picture, so that no shore runs along its edge
SAMPLES = 28  # a cell: two a pixel of the larger picture
LEAST_AREA = 0.025  # square cells of the smallest island or lake
TOLERANCE = 0.025  # cells that a simplified line may lie off at first
LARGEST_TEXT = 40_000  # bytes; above that lines are simplified further
COARSER = 1.25
LINE_WIDTH = 110
RIVER_GRADES = range(1, 5)
BORDER_GRADES = range(1, 3)
NOTICE = """\
# {name}: land (lakes are holes in it), rivers and borders, in cells of the grid; [24, 24] is its latitude and longitude.
# Made by scripts/trace-outline.py from GSHHG and WDBII (LGPL 3 or later): see NOTICE.
"""


class Grid:
    def __init__(self, table):
        self.latitude = table["latitude"]
        self.longitude = table["longitude"]
        self.degrees = table["nm_per_cell"] / 60  # of latitude in a cell
        self.shrink = math.cos(math.radians(self.latitude))

    def region(self):
        """The picture and its margin, as gmt wants it."""
        middle = CELLS // 2
        before, behind = (middle + MARGIN) * self.degrees, (CELLS - middle + MARGIN) * self.degrees
        west, east = self.longitude - before / self.shrink, self.longitude + behind / self.shrink
        return f"-R{west:.6f}/{east:.6f}/{self.latitude - behind:.6f}/{self.latitude + before:.6f}"

    def cell(self, longitude, latitude):
        east = math.remainder(longitude - self.longitude, 360)
        middle = CELLS // 2
        return (middle + east * self.shrink / self.degrees, middle + (self.latitude - latitude) / self.degrees)


def gmt(*words):
    with tempfile.TemporaryDirectory() as folder:  # where it leaves its history
        return subprocess.run(["gmt", *words], check=True, capture_output=True, cwd=folder).stdout


def land_mask(grid):
    """Rows of bytes from north to south, 1 on land, with a rim of water."""
    side = (CELLS + 2 * MARGIN) * SAMPLES
    with tempfile.TemporaryDirectory() as folder:
        file = f"{folder}/mask.nc"
        gmt("grdlandmask", grid.region(), "-Df", f"-I{side}+n/{side}+n", "-r", "-N0/1/0/1/0", f"-G{file}")
        values = gmt("grd2xyz", file, "-ZTLu")
    flat = bytes(map(int, values.split())) if len(values) != side * side else values
    rim = bytes(side + 2)
    return [rim, *(b"\0" + flat[row * side : (row + 1) * side] + b"\0" for row in range(side)), rim]


def shore_edges(mask):
    """From each corner of a sample the next ones around the land, which lies on the left."""
    following = {}
    for y in range(1, len(mask) - 1):
        above, row, below = mask[y - 1], mask[y], mask[y + 1]
        for x, is_land in enumerate(row):
            if is_land:
                if not above[x]:
                    following.setdefault((x + 1, y), []).append((x, y))
                if not row[x - 1]:
                    following.setdefault((x, y), []).append((x, y + 1))
                if not below[x]:
                    following.setdefault((x, y + 1), []).append((x + 1, y + 1))
                if not row[x + 1]:
                    following.setdefault((x + 1, y + 1), []).append((x + 1, y))
    return following


def shore_rings(mask):
    following = shore_edges(mask)
    rings = []
    while following:
        start = here = next(iter(following))
        ring = []
        while True:
            ring.append(here)
            ways = following[here]
            there = ways.pop()
            if not ways:
                del following[here]
            here = there
            if here == start:
                break
        # The middles of the edges take the steps out.
        rings.append([((a[0] + b[0]) / 2, (a[1] + b[1]) / 2) for a, b in zip(ring, ring[1:] + ring[:1])])
    return [[((x - 1) / SAMPLES - MARGIN, (y - 1) / SAMPLES - MARGIN) for x, y in ring] for ring in rings]


def area(ring):
    return abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(ring, ring[1:] + ring[:1]))) / 2


def distance(point, start, end):
    along, down = end[0] - start[0], end[1] - start[1]
    length = math.hypot(along, down)
    x, y = point[0] - start[0], point[1] - start[1]
    return abs(along * y - down * x) / length if length > 1e-9 else math.hypot(x, y)


def simplified(line, tolerance):
    """By Douglas and Peucker: no point that is left out lies further off."""
    kept = {0, len(line) - 1}
    pieces = [(0, len(line) - 1)]
    while pieces:
        first, last = pieces.pop()
        farthest, most = 0, tolerance
        for i in range(first + 1, last):
            if (off := distance(line[i], line[first], line[last])) > most:
                farthest, most = i, off
        if farthest:
            kept.add(farthest)
            pieces += [(first, farthest), (farthest, last)]
    return [line[i] for i in sorted(kept)]


def lines_of(grid, *choice):
    """The lines of the map inside the region, in cells."""
    text = gmt("coast", grid.region(), "-Df", "-M", *choice).decode()
    lines = [[]]
    for row in text.splitlines():
        if row.startswith(">"):
            lines.append([])
        elif row and not row.startswith("#"):
            lines[-1].append(grid.cell(*map(float, row.split()[:2])))
    return [line for line in joined(lines) if len(line) > 1]


def joined(lines):
    """Lines that go on where another one ends, as one."""
    rest = [line for line in lines if len(line) > 1]
    whole = []
    while rest:
        line = rest.pop()
        at = 0
        while at < len(rest):
            other = rest[at]
            if math.dist(other[-1], line[0]) < 1e-6:
                line = other[:-1] + line
            elif math.dist(other[0], line[-1]) < 1e-6:
                line = line + other[1:]
            else:
                at += 1
                continue
            rest.pop(at)
            at = 0
        whole.append(line)
    return whole


def wrapped(words, line):
    text = words
    rows = []
    for x, y in line:
        pair = f" {x:.2f},{y:.2f}"
        if len(text) + len(pair) > LINE_WIDTH:
            rows.append(text)
            text = " "
        text += pair
    return "\n".join([*rows, text]) + "\n"


def outline_text(name, rings, lines, tolerance):
    text = NOTICE.format(name=name)
    for ring in rings:
        simple = simplified(ring, tolerance)
        if len(simple) > 3:
            text += wrapped("land", simple)
    for words, line in lines:
        text += wrapped(words, simplified(line, tolerance))
    return text


def trace(source):
    airspace = tomllib.loads(source.read_text())
    grid = Grid(airspace["grid"])
    rings = [ring for ring in shore_rings(land_mask(grid)) if area(ring) > LEAST_AREA]
    rings.sort(key=area, reverse=True)
    lines = [(f"river {grade}", line) for grade in RIVER_GRADES for line in lines_of(grid, f"-I{grade}")]
    lines += [(f"border {grade}", line) for grade in BORDER_GRADES for line in lines_of(grid, f"-N{grade}")]
    tolerance = TOLERANCE
    while len(text := outline_text(airspace["name"], rings, lines, tolerance)) > LARGEST_TEXT:
        tolerance *= COARSER
    target = source.parent / "outlines" / (source.stem + ".outline")
    target.parent.mkdir(exist_ok=True)
    target.write_text(text)
    print(f"{target}: {len(text)} bytes, {tolerance:.3f} cells off at most")


if __name__ == "__main__":
    for name in sys.argv[1:]:
        trace(pathlib.Path(name))
