#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

"""Expected placements of a picture in its frame, computed from the geometry.

    python3 placement.py > placement.tsv

Nothing here follows the library's steps:

* A turned picture. Both half-diagonals of a centred rectangle of half-width a and half-height b stand at the angles
  +-atan2(b, a). Turned by t they point at t +- atan2(b, a). From the centre of the box, a ray at the angle p leaves the
  box after min(a / |cos p|, b / |sin p|), so the fitted rectangle's half-diagonal is the smaller of the two rays'
  lengths, and its sides are (r, 1) / sqrt(r^2 + 1) of its diagonal. The library intersects lines with edges instead.

* The transform. A picture point (x, y) goes to c + s * R * ((x, y) - (W, H) / 2) with c the place of its centre, s the
  scale and R the clockwise rotation of a y-down plane. That is written out as six numbers; the library multiplies
  matrices. Sines and cosines are taken of the angle reduced to one turn.

* Upright and lying pictures are exact fractions, but for one comparison, which is made in double precision because
  there a difference in the last bit decides between two sizes. Such a row is rare, and meant to be there.

A row whose size comes within 1e-7 of half a pixel, where rounding up or down is a matter of the last bit, is left out,
except upright and lying ones that are exactly half a pixel by construction with a ratio that a double holds exactly.
"""

import math
from fractions import Fraction

SIZES = [
    (800, 600), (600, 800), (4000, 3000), (3000, 4000), (1920, 1080), (1080, 1920), (512, 512),
    (401, 199), (3, 100), (100, 3), (1, 1), (30000, 200), (0, 100), (100, 0), (-5, 7),
]
ANGLES = [
    0, 90, -90, 180, -180, 270, -270, 360, 450, -450, 45, -45, 30, -17, 89, 91, 1, -1, 359, 721, 135, 60, 3600045,
    3600090, -1800000,
]
MARGINS = [
    (0, 0, 0, 0), (5, 5, 5, 5), (10, 20, 30, 40), (40, 5, 3, 0), (0, 30, 0, 50), (10, 0, 10, 0), (300, 0, 300, 0),
    (0, 300, 0, 300), (7, 0, -7, 0), (0, -11, 0, 11), (-20, -10, -20, -10), (1, 1, 1, 1), (400, 0, 399, 0),
]


def nearly_half(value):
    return abs(value - math.floor(value) - 0.5) < 1e-7


def rounded(value):
    return math.floor(value + Fraction(1, 2)) if isinstance(value, Fraction) else math.floor(value + 0.5)


def upright(w, h, margins):
    left, top, right, bottom = margins
    free_w, free_h = w - left - right, h - top - bottom
    ratio = Fraction(w, h)
    if w >= h:
        # The largest rectangle of the ratio in the free area.
        width = min(Fraction(free_w), free_h * ratio)
        return width, width / ratio
    # Portraits: the height decides, unless the width that follows passes a limit that takes the margins above and
    # below off the width.
    if free_h * (w / h) > float(w - top - bottom):
        return Fraction(free_w), free_w / ratio
    return free_h * ratio, Fraction(free_h)


def lying(w, h, margins):
    left, top, right, bottom = margins
    ratio = Fraction(w, h)
    if w >= h:
        length = Fraction(h - top - bottom)
        return length, length / ratio
    length = Fraction(w - left - right)
    return length * ratio, length


def distance(edge, slope):
    return edge / abs(slope) if slope else math.inf


def turned(w, h, margins, angle):
    left, top, right, bottom = margins
    ratio = Fraction(w, h)
    box_w = min(Fraction(w - left - right), (h - top - bottom) * ratio)
    a, b = float(box_w) / 2, float(box_w / ratio) / 2
    half = math.inf
    for diagonal in (math.atan2(b, a), -math.atan2(b, a)):
        direction = math.radians(angle % 360) + diagonal
        half = min(half, distance(a, math.cos(direction)), distance(b, math.sin(direction)))
    unit = math.hypot(w, h)
    return 2 * half * w / unit, 2 * half * h / unit


def exact_sine_cosine(angle):
    turns = {0: (0.0, 1.0), 90: (1.0, 0.0), 180: (0.0, -1.0), 270: (-1.0, 0.0)}
    reduced = angle % 360
    return turns.get(reduced) or (math.sin(math.radians(reduced)), math.cos(math.radians(reduced)))


def matrix(w, h, angle, scale, centre):
    sine, cosine = exact_sine_cosine(angle)
    m11, m12, m21, m22 = scale * cosine, scale * sine, -scale * sine, scale * cosine
    return m11, m12, m21, m22, centre[0] - (m11 * w + m21 * h) / 2, centre[1] - (m12 * w + m22 * h) / 2


def row(w, h, angle, margins):
    left, top, right, bottom = margins
    if w <= 0 or h <= 0:
        return (w, h), (1, 0, 0, 1, 0, 0), "empty"
    if left + right >= w or top + bottom >= h:
        return (-1, -1), (1, 0, 0, 1, 0, 0), "nothing free"
    if angle % 180 == 0:
        branch, picture = "upright", upright(w, h, margins)
    elif angle % 90 == 0:
        branch, picture = "lying", lying(w, h, margins)
    else:
        branch, picture = "turned", turned(w, h, margins, angle)
    if any(nearly_half(side) for side in picture):
        if branch == "turned" or h & (h - 1):
            return None
    size = tuple(rounded(side) for side in picture)
    if size == (w, h):
        return size, matrix(w, h, angle, 1.0, (w / 2, h / 2)), branch + ", whole"
    centre = (w + left - right) / 2, (h + top - bottom) / 2
    return size, matrix(w, h, angle, float(picture[0]) / w, centre), branch


def main():
    print("\t".join("width height angle left top right bottom outWidth outHeight "
                    "m11 m12 m21 m22 dx dy branch".split()))
    for w, h in SIZES:
        for angle in ANGLES:
            for margins in MARGINS:
                expected = row(w, h, angle, margins)
                if expected is None:
                    continue
                size, numbers, branch = expected
                if branch in ("empty", "nothing free") and angle not in (0, 90, 30):
                    continue
                fields = [w, h, angle, *margins, *size, *(repr(float(n)) for n in numbers), branch]
                print("\t".join(str(field) for field in fields))


if __name__ == "__main__":
    main()
