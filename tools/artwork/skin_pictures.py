#!/usr/bin/env python3
"""Draws the default skin's splash and background picture: data/Skin/Splash.bmp and data/Skin/BG.jpg.

    python3 tools/artwork/skin_pictures.py [folder]

Shapes are the icon's own, drawn here; ImageMagick adds the lettering (DejaVu, the package fonts-dejavu) and writes the
JPEG.  Its releases smooth letters a little differently, so the files need not come out the same byte for byte.
"""

import pathlib
import subprocess
import sys
from math import hypot

import bitmap_files
import icon

SAMPLES = 4     # per pixel and axis

# The colours of the default skin.
NIGHT, SLATE, SKY = (27, 62, 98), (43, 92, 138), (79, 134, 184)
CREAM, AMBER, WHITE = (236, 233, 216), (232, 163, 61), (255, 255, 255)

SPLASH_SIZE = 400, 240
BAND_TOP = 192                              # of the cream band below
BAND_LINE = 3
SPLASH_GEAR, SPLASH_GEAR_RADIUS = (322, 66), 150
ICON_PLACE, ICON_SIZE = (34, 48), 96

BACKGROUND_SIZE = 320, 320
BACKGROUND_GEAR, BACKGROUND_GEAR_RADIUS = (216, 216), 150
PALE_GEAR, PALE_HUB, PALE_LETTER, PALE_PIN = (239, 244, 249), (227, 235, 244), (246, 249, 252), (252, 238, 216)


def mix(first, second, share):
    return tuple(a + (b - a) * share for a, b in zip(first, second))


def offsets():
    for step in range(SAMPLES * SAMPLES):
        yield (step % SAMPLES + 0.5) / SAMPLES, (step // SAMPLES + 0.5) / SAMPLES


def average(column, row, colour_at):
    """The colour of a pixel, the mean of its samples."""
    total = (0.0, 0.0, 0.0)
    for right, down in offsets():
        total = tuple(sum_ + part for sum_, part in zip(total, colour_at(column + right, row + down)))
    return tuple(sum_ / SAMPLES ** 2 for sum_ in total)


def splash_ground(x, y):
    """The slate field with a large, faint gear rising from its right edge."""
    width, _ = SPLASH_SIZE
    across = min(1.0, max(0.0, (x / width + y / BAND_TOP) / 2))
    field = mix(NIGHT, SLATE, across * 2) if across < 0.5 else mix(SLATE, SKY, across * 2 - 1)
    gear_x, gear_y = (x - SPLASH_GEAR[0]) / SPLASH_GEAR_RADIUS, (y - SPLASH_GEAR[1]) / SPLASH_GEAR_RADIUS
    if icon.in_gear(gear_x, gear_y, 0.0) and hypot(gear_x, gear_y) > icon.HUB_RADIUS:
        return mix(field, WHITE, 0.09)
    return field


def splash_pixel(column, row, icon_rows):
    width, height = SPLASH_SIZE
    if column in (0, width - 1) or row in (0, height - 1):
        return NIGHT
    if row >= BAND_TOP + BAND_LINE:
        return mix(WHITE, CREAM, min(1.0, (row - BAND_TOP - BAND_LINE + 4) / 12))
    if row >= BAND_TOP:
        return mix(AMBER, WHITE, 0.25) if row == BAND_TOP else AMBER
    ground = average(column, row, splash_ground)
    icon_column, icon_row = column - ICON_PLACE[0], row - ICON_PLACE[1]
    if 0 <= icon_column < ICON_SIZE and 0 <= icon_row < ICON_SIZE:
        pixel = icon_rows[icon_row][icon_column]
        return mix(ground, pixel[:3], pixel[3] / 255)
    return ground


def background_at(x, y):
    """A pale gear with the lever letter in its hub, fading to white towards the rows' beginning."""
    gear_x = (x - BACKGROUND_GEAR[0]) / BACKGROUND_GEAR_RADIUS
    gear_y = (y - BACKGROUND_GEAR[1]) / BACKGROUND_GEAR_RADIUS
    if not icon.in_gear(gear_x, gear_y, 0.0):
        return WHITE
    if hypot(gear_x, gear_y) > icon.HUB_RADIUS:
        colour = PALE_GEAR
    elif hypot(gear_x - icon.PIN[0], gear_y - icon.PIN[1]) <= icon.PIN_RADIUS:
        colour = PALE_PIN
    else:
        colour = PALE_LETTER if icon.in_letter(gear_x, gear_y) else PALE_HUB
    return mix(WHITE, colour, min(1.0, max(0.0, (x + y - 150) / 250)))


def rounded(rows):
    return [[tuple(round(part) for part in pixel) for pixel in row] for row in rows]


def picture(size, pixel_at):
    return rounded([[pixel_at(column, row) for column in range(size[0])] for row in range(size[1])])


def convert(rows, arguments):
    """Sends the picture through ImageMagick and returns what comes out."""
    return subprocess.run(["convert", "bmp:-", *arguments], input=bitmap_files.bmp_file(rows), capture_output=True,
                          check=True).stdout


def lettering():
    """The name in two lines, each with a soft shadow, and what the program is for."""
    lines = (("DejaVu-Sans-Bold", 40, 149, 91, "Korvane"), ("DejaVu-Sans-ExtraLight", 37, 147, 134, "Manager"))
    for font, size, x, y, text in lines:
        yield from ("-kerning", "-0.5", "-font", font, "-pointsize", str(size))
        yield from ("(", "-size", "x".join(map(str, SPLASH_SIZE)), "xc:none", "-fill", "#0E2640A0",
                    "-annotate", f"+{x + 1}+{y + 2}", text, "-blur", "0x1.5", ")", "-composite")
        yield from ("-fill", "white", "-annotate", f"+{x}+{y}", text)
    yield from ("-kerning", "0", "-font", "DejaVu-Sans", "-pointsize", "13", "-fill", "#3C5468",
                "-annotate", f"+{ICON_PLACE[0]}+{BAND_TOP + 30}",
                "The settings of Windows in one place")


def splash_file():
    icon_rows, _ = icon.picture(ICON_SIZE, 32)
    rows = picture(SPLASH_SIZE, lambda column, row: splash_pixel(column, row, icon_rows))
    return convert(rows, [*lettering(), "-alpha", "off", "-type", "TrueColor", "bmp3:-"])


def background_file():
    rows = picture(BACKGROUND_SIZE, lambda column, row: average(column, row, background_at))
    return convert(rows, ["-strip", "-sampling-factor", "1x1", "-quality", "92", "jpeg:-"])


def main(arguments):
    if len(arguments) > 1:
        raise SystemExit(__doc__)
    default = pathlib.Path(__file__).resolve().parent.parent.parent / "data" / "Skin"
    folder = pathlib.Path(arguments[0]) if arguments else default
    files = {"Splash.bmp": splash_file(), "BG.jpg": background_file()}
    folder.mkdir(parents=True, exist_ok=True)
    for name, data in files.items():
        (folder / name).write_bytes(data)


if __name__ == "__main__":
    main(sys.argv[1:])
