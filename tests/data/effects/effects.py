#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

"""Writes effects.tsv: effects on small pictures, with the values that come out, computed here from the definitions.

Columns: effect, parameters, channels of colour, bits, alpha (0 or 1), width, height, values, width, height and values of
the result, and by how much a value may differ. Values stand line by line, the channels of a pixel together.
"""

import json
import math
import sys


def noise(count, largest, seed):
    """Numbers by chance, the extremes among them more often than chance would have it."""
    values, state = [], seed
    for _ in range(count):
        state = (state * 6364136223846793005 + 1442695040888963407) % 2**64
        kind, value = state >> 60, (state >> 33) % (largest + 1)
        values.append(0 if kind == 0 else largest if kind == 1 else value)
    return values


class Picture:
    def __init__(self, colours, bits, alpha, width, height, seed):
        self.colours, self.bits, self.alpha, self.width, self.height = colours, bits, alpha, width, height
        self.largest = 2**bits - 1
        self.bands = colours + alpha
        self.values = noise(width * height * self.bands, self.largest, seed)

    def pixel(self, x, y):
        """Colour and opacity, 0 to 1; beyond the border as at the border."""
        x, y = min(max(x, 0), self.width - 1), min(max(y, 0), self.height - 1)
        at = (y * self.width + x) * self.bands
        values = [v / self.largest for v in self.values[at:at + self.bands]]
        return values[:self.colours], values[self.colours] if self.alpha else 1.0

    def sample(self, value):
        return math.floor(min(max(value, 0.0), 1.0) * self.largest + 0.5)


def light(v):
    return v / 12.92 if v <= 0.04045 else ((v + 0.055) / 1.055) ** 2.4


def stored(l):
    return 12.92 * l if l <= 0.0031308 else 1.055 * l ** (1 / 2.4) - 0.055


def weighted(c):
    return c[0] if len(c) == 1 else 0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2]


def clamp(v, low=0.0, high=1.0):
    return min(max(v, low), high)


# Effects on one value.

def exposure(v, stops):
    return stored(light(v) * 2**stops)


def brightness_contrast(v, brightness=0, contrast=0):
    slope = 1 + contrast / 100 if contrast < 0 else 1 / max(1 - contrast / 100, 1e-9)
    return (v + brightness / 100 - 0.5) * slope + 0.5


def levels(v, black=0, white=100, gamma=1):
    return clamp((v - black / 100) / ((white - black) / 100)) ** (1 / gamma)


def posterize(v, levels):
    return math.floor(v * (levels - 1) + 0.5) / (levels - 1)


def invert(v):
    return 1 - v


# Effects on one colour.

def white_balance(c, temperature=0, tint=0):
    gains = [2 ** (temperature / 200), 2 ** (-tint / 200), 2 ** (-temperature / 200)]
    whole = weighted(gains)
    return c if len(c) == 1 else [stored(light(v) * g / whole) for v, g in zip(c, gains)]


def saturation(c, amount):
    return [weighted(c) + (1 + amount / 100) * (v - weighted(c)) for v in c]


def vibrance(c, amount):
    factor = 1 + amount / 100 * (1 - (max(c) - min(c)))
    return [weighted(c) + factor * (v - weighted(c)) for v in c]


def hue(c, angle):
    if len(c) == 1:
        return c
    cos, sin = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    weights = [0.213, 0.715, 0.072]
    turning = [[-0.213, -0.715, 0.928], [0.143, 0.140, -0.283], [-0.787, 0.715, 0.072]]
    return [sum((weights[j] + cos * ((i == j) - weights[j]) + sin * turning[i][j]) * c[j] for j in range(3))
            for i in range(3)]


def grayscale(c, method):
    if len(c) == 1:
        return c
    grey = {"luminance": stored(weighted([light(v) for v in c])), "luma": weighted(c), "average": sum(c) / 3}[method]
    return [grey] * 3


def sepia(c, amount):
    r, g, b = c if len(c) == 3 else c * 3
    toned = [0.393 * r + 0.769 * g + 0.189 * b, 0.349 * r + 0.686 * g + 0.168 * b, 0.272 * r + 0.534 * g + 0.131 * b]
    return [v + amount / 100 * (t - v) for v, t in zip((r, g, b), toned)]


# Effects on a colour with its neighbours.

def gaussian(picture, x, y, sigma):
    """The mean colour around a pixel by weight and opacity, and the mean opacity."""
    reach = math.floor(3 * sigma)
    weights = [math.exp(-d * d / (2 * sigma * sigma)) for d in range(-reach, reach + 1)]
    total, opacity, sums = 0.0, 0.0, [0.0] * picture.colours
    for j, down in enumerate(range(-reach, reach + 1)):
        for i, across in enumerate(range(-reach, reach + 1)):
            weight = weights[i] * weights[j]
            colour, alpha = picture.pixel(x + across, y + down)
            total += weight
            opacity += weight * alpha
            sums = [s + weight * alpha * v for s, v in zip(sums, colour)]
    return [s / opacity if opacity else 0.0 for s in sums], opacity / total


def blur(picture, x, y, sigma):
    return gaussian(picture, x, y, sigma)


def sharpen(picture, x, y, sigma, amount, threshold=0):
    colour, alpha = picture.pixel(x, y)
    mean, _ = gaussian(picture, x, y, sigma)
    return [v + (amount / 100 * (v - m) if abs(v - m) >= threshold / 100 else 0) for v, m in zip(colour, mean)], alpha


def clarity(picture, x, y, sigma, amount):
    colour, alpha = picture.pixel(x, y)
    luma, around = weighted(colour), weighted(gaussian(picture, x, y, sigma)[0])
    return [v + amount / 100 * 4 * luma * (1 - luma) * (luma - around) for v in colour], alpha


def denoise(picture, x, y, strength, sigma):
    reach = math.ceil(2 * sigma)
    colour, alpha = picture.pixel(x, y)
    total, sums = 0.0, [0.0] * picture.colours
    for down in range(-reach, reach + 1):
        for across in range(-reach, reach + 1):
            other, opacity = picture.pixel(x + across, y + down)
            squares = sum((a - b) ** 2 for a, b in zip(colour, other)) / len(colour)
            exponent = squares / (2 * (strength / 100) ** 2)
            weight = opacity * math.exp(-(across**2 + down**2) / (2 * sigma**2))
            weight *= math.exp(-exponent) if exponent < 10 else 0
            total += weight
            sums = [s + weight * v for s, v in zip(sums, other)]
    return [s / total for s in sums] if total else colour, alpha


def vignette(picture, x, y, amount, start=40, softness=60):
    colour, alpha = picture.pixel(x, y)
    across = (x + 0.5) / picture.width * 2 - 1
    down = (y + 0.5) / picture.height * 2 - 1
    t = clamp((math.hypot(across, down) / math.sqrt(2) - start / 100) / (softness / 100))
    share = abs(amount) / 100 * (3 * t**2 - 2 * t**3)
    return [v * (1 - share) + (share if amount > 0 else 0) for v in colour], alpha


# Effects that move pixels: where a pixel of the result comes from, and the size of the result.

def moved(effect, picture, parameters):
    w, h = picture.width, picture.height
    if effect == "flip":
        direction = parameters["direction"]
        mirror_x, mirror_y = direction in ("horizontal", "both"), direction in ("vertical", "both")
        return w, h, lambda x, y: (w - 1 - x if mirror_x else x, h - 1 - y if mirror_y else y)
    turn = parameters["angle"] % 360
    return {90: (h, w, lambda x, y: (y, h - 1 - x)),
            180: (w, h, lambda x, y: (w - 1 - x, h - 1 - y)),
            270: (h, w, lambda x, y: (w - 1 - y, x))}[turn]


def border(picture, parameters):
    left, top, right, bottom = (parameters.get(side, 0) for side in ("left", "top", "right", "bottom"))
    if parameters.get("unit") == "percent":
        short = min(picture.width, picture.height)
        left, top, right, bottom = (math.floor(v * short / 100 + 0.5) for v in (left, top, right, bottom))
    colour = [int(parameters["colour"][i:i + 2], 16) / 255 for i in (1, 3, 5)][:picture.colours]
    ink = [picture.sample(v) for v in colour + [1.0] * picture.alpha]
    width, height = picture.width + left + right, picture.height + top + bottom
    values = []
    for y in range(height):
        for x in range(width):
            inside = left <= x < left + picture.width and top <= y < top + picture.height
            at = ((y - top) * picture.width + x - left) * picture.bands
            values += picture.values[at:at + picture.bands] if inside else ink
    return width, height, values


def auto_levels(picture, clip=0.1, channels="together"):
    pixels = [picture.pixel(i % picture.width, i // picture.width) for i in range(picture.width * picture.height)]
    seen = [colour for colour, alpha in pixels if alpha > 0]
    ranges = []
    for band in range(picture.colours):
        values = sorted(colour[band] for colour in seen)
        # The first value below which, itself included, lie more than the share that may clip.
        skipped = math.floor(len(values) * clip / 100 + 1e-12)
        ranges.append((values[skipped], values[-1 - skipped]))
    if channels == "together":
        ranges = [(min(r[0] for r in ranges), max(r[1] for r in ranges))] * picture.colours
    return [([(v - low) / (high - low) for v, (low, high) in zip(colour, ranges)], alpha) for colour, alpha in pixels]


on_values = {"exposure": exposure, "brightness-contrast": brightness_contrast, "levels": levels,
             "posterize": posterize, "invert": invert}
on_colours = {"white-balance": white_balance, "saturation": saturation, "vibrance": vibrance, "hue": hue,
              "grayscale": grayscale, "sepia": sepia}
on_neighbours = {"blur": blur, "sharpen": sharpen, "clarity": clarity, "denoise": denoise, "vignette": vignette}


def result(effect, picture, parameters):
    """Width, height and values."""
    w, h = picture.width, picture.height
    if effect in ("flip", "rotate"):
        width, height, source = moved(effect, picture, parameters)
        values = []
        for y in range(height):
            for x in range(width):
                from_x, from_y = source(x, y)
                at = (from_y * w + from_x) * picture.bands
                values += picture.values[at:at + picture.bands]
        return width, height, values
    if effect == "border":
        return border(picture, parameters)
    if effect == "auto-levels":
        pixels = auto_levels(picture, **parameters)
    else:
        pixels = []
        for y in range(h):
            for x in range(w):
                colour, alpha = picture.pixel(x, y)
                if effect in on_values:
                    colour = [on_values[effect](v, **parameters) for v in colour]
                elif effect in on_colours:
                    colour = on_colours[effect](colour, **parameters)
                else:
                    colour, alpha = on_neighbours[effect](picture, x, y, **parameters)
                pixels.append((colour, alpha))
    values = []
    for colour, alpha in pixels:
        values += [picture.sample(v) for v in colour]
        values += [picture.sample(alpha)] * picture.alpha
    return w, h, values


grey8, grey16, rgb8, rgb16 = (1, 8, 0), (1, 16, 0), (3, 8, 0), (3, 16, 0)
grey8a, grey16a, rgb8a, rgb16a = (1, 8, 1), (1, 16, 1), (3, 8, 1), (3, 16, 1)
every = (grey8, grey16, rgb8, rgb16, grey8a, grey16a, rgb8a, rgb16a)

small = (6, 5)
exact = [
    ("exposure", {"stops": 1}), ("exposure", {"stops": -1.5}), ("exposure", {"stops": 10}),
    ("brightness-contrast", {"brightness": 12.5}), ("brightness-contrast", {"contrast": 40}),
    ("brightness-contrast", {"brightness": -20, "contrast": -55}), ("brightness-contrast", {"contrast": 100}),
    ("levels", {"black": 10, "white": 90}), ("levels", {"gamma": 2.2}),
    ("levels", {"black": 3, "white": 55.5, "gamma": 0.45}),
    ("auto-levels", {"clip": 10}), ("auto-levels", {"clip": 8, "channels": "each"}),
    ("white-balance", {"temperature": 35}), ("white-balance", {"temperature": -80, "tint": 25}),
    ("saturation", {"amount": 50}), ("saturation", {"amount": -100}), ("vibrance", {"amount": 70}),
    ("vibrance", {"amount": -35}), ("hue", {"angle": 90}), ("hue", {"angle": -37.5}),
    ("grayscale", {"method": "luminance"}), ("grayscale", {"method": "luma"}), ("grayscale", {"method": "average"}),
    ("sepia", {"amount": 100}), ("sepia", {"amount": 35}), ("invert", {}), ("posterize", {"levels": 2}),
    ("posterize", {"levels": 5}), ("vignette", {"amount": -75}),
    ("vignette", {"amount": 45.7, "start": 10, "softness": 30}),
    ("rotate", {"angle": 90}), ("rotate", {"angle": 180}), ("rotate", {"angle": -90}), ("rotate", {"angle": 270}),
    ("flip", {"direction": "horizontal"}), ("flip", {"direction": "vertical"}), ("flip", {"direction": "both"}),
    ("border", {"left": 1, "top": 2, "right": 3, "bottom": 4, "colour": "#808080"}),
    ("border", {"left": 40, "bottom": 30, "unit": "percent", "colour": "#ffffff"}),
]
# Computed in single precision, or by tables: how far a value of 8 and of 16 bits may be off.
near = [
    ("blur", {"sigma": 1}, small, 1, 2), ("blur", {"sigma": 2.5}, small, 1, 2),
    ("blur", {"sigma": 12}, (24, 16), 1, 330),
    ("sharpen", {"sigma": 1, "amount": 80}, small, 1, 4),
    ("sharpen", {"sigma": 2, "amount": 150, "threshold": 20}, small, 1, 4),
    ("sharpen", {"sigma": 10, "amount": 100}, (24, 16), 2, 330),
    ("clarity", {"sigma": 5, "amount": 60}, small, 1, 4), ("clarity", {"sigma": 9, "amount": -100}, (24, 16), 2, 330),
    ("denoise", {"strength": 25, "sigma": 1.5}, small, 1, 60), ("denoise", {"strength": 60, "sigma": 0.7}, small, 1, 60),
]


def main():
    cases = [(effect, parameters, small, 0, 0) for effect, parameters in exact] + near
    for effect, parameters, size, off8, off16 in cases:
        forms = every if size == small else (grey8, rgb16, rgb8a)
        for number, (colours, bits, alpha) in enumerate(forms):
            picture = Picture(colours, bits, alpha, *size, seed=1000 + number)
            if effect == "border" and parameters["colour"] not in ("#808080", "#ffffff"):
                raise ValueError("only grey borders keep a grey picture grey")
            width, height, values = result(effect, picture, parameters)
            fields = [effect, json.dumps(parameters), colours, bits, alpha, *size,
                      " ".join(map(str, picture.values)), width, height, " ".join(map(str, values)),
                      off8 if bits == 8 else off16]
            sys.stdout.write("\t".join(map(str, fields)) + "\n")


if __name__ == "__main__":
    main()
