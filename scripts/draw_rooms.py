#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""draw_rooms.py [--check]: draws docs/rooms.svg, the folders of the sources and which includes
from which, as the sources have it; with --check, fails if the picture there is another."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
PICTURE = ROOT / "docs" / "rooms.svg"
ROOMS = ["shell", "settings", "views", "model", "platform"]
WIDTH, HEIGHT, GAP, TOP, LEFT, LANE = 380, 46, 34, 20, 20, 26


def sources(folder):
    return [path for path in sorted(folder.rglob("*")) if path.suffix in (".h", ".cpp")]


def included_rooms(paths):
    found = {room for path in paths
             for room in re.findall(r'#include "(\w+)/', path.read_text(encoding="utf-8"))}
    return [room for room in ROOMS if room in found]


def boxes():
    """(name, folders inside, rooms it includes from), from the top of the picture down."""
    yield "main.cpp", [], included_rooms([ROOT / "src" / "main.cpp"])
    for room in ROOMS:
        folder = ROOT / "src" / room
        inside = sorted(path.name for path in folder.iterdir() if path.is_dir())
        yield room, inside, [other for other in included_rooms(sources(folder)) if other != room]
    inside = sorted(path.name for path in (ROOT / "helpers").iterdir() if path.is_dir())
    yield "helpers", inside, included_rooms(sources(ROOT / "helpers"))


def draw():
    all_boxes = list(boxes())
    row = {name: number for number, (name, _, _) in enumerate(all_boxes)}
    top = [TOP + number * (HEIGHT + GAP) for number in range(len(all_boxes))]
    shapes, lane = [], 0
    for name, inside, others in all_boxes:
        y = top[row[name]]
        label = "".join(f'<tspan class="inside" dx="10">{folder}/</tspan>' for folder in inside)
        shapes.append(f'<rect x="{LEFT}" y="{y}" width="{WIDTH}" height="{HEIGHT}" rx="8"/>')
        shapes.append(f'<text x="{LEFT + 16}" y="{y + 29}">{name}{label}</text>')
        neighbours = [other for other in others if abs(row[other] - row[name]) == 1]
        for other in neighbours:
            down = row[other] > row[name]
            start, end = (y + HEIGHT, top[row[other]]) if down else (y, top[row[other]] + HEIGHT)
            shapes.append(f'<path d="M{LEFT + WIDTH // 2} {start}V{end}" marker-end="url(#arrow)"/>')
        distant = [other for other in others if other not in neighbours]
        if distant:  # a lane to the right of the boxes, with a branch to each
            x = LEFT + WIDTH + LANE * (lane + 1)
            shapes.append(f'<path d="M{LEFT + WIDTH} {y + HEIGHT // 2 + 6}H{x}"/>')
            for other in distant:
                end = top[row[other]] + 8 + 7 * lane
                shapes.append(f'<path d="M{x} {y + HEIGHT // 2 + 6}V{end}H{LEFT + WIDTH}"'
                              ' marker-end="url(#arrow)"/>')
            lane += 1
    width, height = 2 * LEFT + WIDTH + LANE * (lane + 1), top[-1] + HEIGHT + TOP
    return "\n".join([
        "<!--",
        "SPDX-License-" "Identifier: MIT",
        "Drawn by scripts/draw_rooms.py.",
        "-->",
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}">',
        "<style>",
        "text { font: 600 15px sans-serif; fill: #1f2933 }",
        ".inside { font-weight: 400; fill: #52606d }",
        "rect { fill: #e8f1f0; stroke: #2f7a73 } .paper { fill: #fff; stroke: none }",
        "path { fill: none; stroke: #52606d; stroke-width: 1.5 } .tip { fill: #52606d; stroke: none }",
        "</style>",
        '<defs><marker id="arrow" viewBox="0 0 10 10" refX="9" refY="5" markerWidth="8"'
        ' markerHeight="8" orient="auto"><path class="tip" d="M0 0L10 5L0 10z"/></marker></defs>',
        f'<rect class="paper" width="{width}" height="{height}"/>',
        *shapes, "</svg>", ""])


picture = draw()
if sys.argv[1:] != ["--check"]:
    PICTURE.write_text(picture, encoding="utf-8")
elif not PICTURE.exists() or PICTURE.read_text(encoding="utf-8") != picture:
    sys.exit("docs/rooms.svg is not what scripts/draw_rooms.py draws")
