#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
#
# Draws the stapling pictures as SVG files beside this script: the same sheets, staples and booklet
# in two series, seen from above and lying on a table. Run it again after a change here.

from dataclasses import dataclass
from pathlib import Path

# The picture is 104 x 96; a page is drawn in its own 60 x 80 coordinates, top left at the origin.
PICTURE_WIDTH, PICTURE_HEIGHT = 104, 96
PAGE_WIDTH, PAGE_HEIGHT = 60, 80
SHEETS_IN_STACK = 3


@dataclass(frozen=True)
class Series:
    """What tells one series from the other: its file prefix, its colours and where pages lie."""

    prefix: str
    outline: str
    shade: str
    accent: str
    halo: str
    text: str
    page: str  # matrix from page coordinates to the picture
    stack_step: tuple  # from one sheet of the stack to the next one below it
    left_page: str  # matrices of an open booklet's two pages, the spine being the common edge
    right_page: str


SERIES = (
    Series(
        prefix="Stapling_", outline="#5c6773", shade="#dfe4ea", accent="#1c6dd0", halo="#ffd43b",
        text="#aab4bf", page="matrix(1 0 0 1 20 6)", stack_step=(2, 2),
        left_page="matrix(0.72 0.13 0 0.88 8.8 9)", right_page="matrix(0.72 -0.13 0 0.88 52 16.8)",
    ),
    Series(
        prefix="Stapling_Quince_", outline="#4f6b66", shade="#d5e3df", accent="#0b7a68", halo="#ffa94d",
        text="#a3b8b3", page="matrix(0.86 0.26 -0.48 0.68 44 9)", stack_step=(0, 2.6),
        left_page="matrix(0.5 0.22 -0.4 0.74 38 9)", right_page="matrix(0.5 -0.06 -0.4 0.74 68 22.2)",
    ),
)

# Staples in page coordinates: centre x, centre y, angle. The front of the machine is the foot of
# the page; a flipped set is bound at its other long edge, so front and rear change places there.
STAPLES = {
    "None": (),
    "Front": ((10, 70, 45),),
    "Rear": ((10, 10, -45),),
    "Dual": ((9, 22, 90), (9, 58, 90)),
    "FrontFlipped": ((50, 10, 45),),
    "RearFlipped": ((50, 70, -45),),
    "DualFlipped": ((51, 22, 90), (51, 58, 90)),
}
SPINE_STAPLES = ((0, 24, 90), (0, 56, 90))


def sheet(series, fill):
    return (f'<rect width="{PAGE_WIDTH}" height="{PAGE_HEIGHT}" rx="1.5" fill="{fill}" '
            f'stroke="{series.outline}" stroke-width="1.5"/>')


def print_on_page(series):
    """A heading, a picture and lines of text, kept clear of every place where a staple may sit."""
    lines = "".join(f'<rect x="18" y="{y}" width="{width}" height="2.5" rx="1" fill="{series.text}"/>'
                    for y, width in ((42, 24), (48, 24), (54, 21), (60, 24), (66, 14)))
    return (f'<rect x="20" y="9" width="20" height="4.5" rx="1" fill="{series.accent}"/>'
            f'<rect x="18" y="19" width="24" height="17" rx="1" fill="{series.accent}" fill-opacity="0.22"/>'
            f'<path d="M18 35 L26 25 L31 31 L35 27 L42 35 Z" fill="{series.accent}" fill-opacity="0.45"/>'
            + lines)


def staple(series, x, y, angle):
    """A staple's crown and its two bent ends, on a disc that draws the eye to it."""
    return (f'<g transform="translate({x} {y}) rotate({angle})">'
            f'<circle r="8.5" fill="{series.halo}" fill-opacity="0.75"/>'
            f'<path d="M-6 1.8 V-1.2 H6 V1.8" fill="none" stroke="#212b36" stroke-width="2.4" '
            f'stroke-linecap="round" stroke-linejoin="round"/></g>')


def stapled_set(series, staples):
    step_x, step_y = series.stack_step
    below = "".join(
        f'<g transform="translate({depth * step_x} {depth * step_y}) {series.page}">'
        f'{sheet(series, series.shade)}</g>' for depth in range(SHEETS_IN_STACK - 1, 0, -1))
    marks = "".join(staple(series, *place) for place in staples)
    return (f'{below}<g transform="{series.page}">{sheet(series, "#ffffff")}'
            f'{print_on_page(series)}{marks}</g>')


def booklet(series):
    step_x, step_y = 0, series.stack_step[1]
    leaves = "".join(
        f'<g transform="translate({step_x} {step_y}) {page}">{sheet(series, series.shade)}</g>'
        for page in (series.left_page, series.right_page))
    pages = "".join(
        f'<g transform="{page}">{sheet(series, fill)}{print_on_page(series)}</g>'
        for page, fill in ((series.left_page, "#ffffff"), (series.right_page, "#f3f6f9")))
    spine = "".join(staple(series, *place) for place in SPINE_STAPLES)
    return f'{leaves}{pages}<g transform="{series.right_page}">{spine}</g>'


def document(body):
    return ('<?xml version="1.0" encoding="UTF-8"?>\n'
            '<!-- SPDX-License-Identifier: Apache-2.0. Made by draw.py; change that instead. -->\n'
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{PICTURE_WIDTH}" height="{PICTURE_HEIGHT}" '
            f'viewBox="0 0 {PICTURE_WIDTH} {PICTURE_HEIGHT}">\n'
            + body.replace("><", ">\n<") + "\n</svg>\n")


def drawings():
    """Every picture's file name with its SVG text."""
    for series in SERIES:
        for name, staples in STAPLES.items():
            yield f"{series.prefix}{name}.svg", document(stapled_set(series, staples))
        yield f"{series.prefix}Saddle.svg", document(booklet(series))


if __name__ == "__main__":
    for file_name, text in drawings():
        (Path(__file__).parent / file_name).write_text(text, encoding="utf-8")
