"""The program's icon: a steel gear whose hub carries a K built like a lever, two arms turning on one amber pin.

The 32 and 48 pixel pictures are vector shapes, sampled on a fine grid; at 16 pixels nothing of that would survive, so
that picture is a text grid.  Shapes live on a square from -1 to 1 with y pointing down and light from the top left.
"""

from math import hypot

import tree_images

SIZES = (48, 32, 16)
DEPTHS = (4, 8, 32)
SAMPLES = 8     # per pixel and axis

BODY_RADIUS = 0.80
TOOTH_RADIUS = 1.0
TOOTH_ROOT, TOOTH_TIP = 0.235, 0.15     # half the width of a tooth at the body and at its end
# These two keep their thickness on every size, or they would fade away on the smaller one.
OUTLINE_PIXELS = 1.2
BEVEL_PIXELS = 1.3
HUB_RADIUS = 0.60
PIN, PIN_RADIUS = (-0.19, 0.0), 0.165
STROKE = 0.105                          # half the thickness of the letter's strokes
STROKES = (
    ((-0.19, -0.35), (-0.19, 0.35)),
    ((-0.19, 0.0), (0.26, -0.35)),
    ((-0.19, 0.0), (0.26, 0.35)),
)
DIAGONAL = 0.5 ** 0.5
TOOTH_AXES = ((1.0, 0.0), (0.0, 1.0), (DIAGONAL, DIAGONAL), (DIAGONAL, -DIAGONAL))

# Each layer's colour at the light and at the dark end of the picture.
SMOOTH_COLOURS = {
    "outline": ((44, 54, 78), (22, 28, 44)),
    "highlight": ((255, 255, 255), (232, 238, 246)),
    "shadow": ((150, 162, 184), (104, 116, 142)),
    "gear": ((232, 238, 246), (152, 164, 188)),
    "hub edge": ((22, 40, 92), (14, 28, 66)),
    "hub": ((92, 158, 242), (22, 64, 160)),
    "letter": ((255, 255, 255), (226, 236, 250)),
    "letter shade": ((16, 48, 128), (12, 38, 104)),
    "pin edge": ((120, 72, 18), (92, 52, 12)),
    "pin": ((255, 226, 120), (214, 138, 20)),
    "pin light": ((255, 250, 220), (255, 236, 170)),
}

BLACK, SILVER, GREY, WHITE = (0, 0, 0), (192, 192, 192), (128, 128, 128), (255, 255, 255)
NAVY, YELLOW, OLIVE = (0, 0, 128), (255, 255, 0), (128, 128, 0)
# The sixteen colours every display of that depth has.
SIXTEEN_COLOURS = (
    BLACK, (128, 0, 0), (0, 128, 0), OLIVE, NAVY, (128, 0, 128), (0, 128, 128), SILVER,
    GREY, (255, 0, 0), (0, 255, 0), YELLOW, (0, 0, 255), (255, 0, 255), (0, 255, 255), WHITE,
)
FLAT_COLOURS = {
    "outline": BLACK, "highlight": WHITE, "shadow": GREY, "gear": SILVER, "hub edge": NAVY, "hub": NAVY,
    "letter": WHITE, "letter shade": NAVY, "pin edge": OLIVE, "pin": YELLOW, "pin light": WHITE,
}

SMALL_GRID = """
......kkkk......
..kk..kwgk..kk..
.kwlkkkwgkkklgk.
.klllllllllllgk.
..kllnnnnnnggk..
..klnwwbbwwngk..
kkklnwwbwwbngkkk
kwllnwyywbbnggdk
klllnwyawbbnggdk
kkklnwwbwwbngkkk
..klnwwbbwwngk..
..klgnnnnnngdk..
.klggggggggggdk.
.kggkkkgdkkkddk.
..kk..kgdk..kk..
......kkkk......
"""
SMALL_FLAT = {"k": BLACK, "w": WHITE, "l": SILVER, "g": SILVER, "d": GREY, "n": NAVY, "b": NAVY, "y": YELLOW,
              "a": YELLOW}


def in_gear(x, y, grow):
    """Whether a point lies in the gear, made larger by `grow` on every side."""
    if hypot(x, y) <= BODY_RADIUS + grow:
        return True
    for axis_x, axis_y in TOOTH_AXES:
        along = abs(x * axis_x + y * axis_y)
        across = abs(x * axis_y - y * axis_x)
        slope = (along - BODY_RADIUS) / (TOOTH_RADIUS - BODY_RADIUS)
        half_width = TOOTH_ROOT + (TOOTH_TIP - TOOTH_ROOT) * slope
        if BODY_RADIUS / 2 < along <= TOOTH_RADIUS + grow and across <= half_width + grow:
            return True
    return False


def in_letter(x, y):
    for (start_x, start_y), (end_x, end_y) in STROKES:
        run, rise = end_x - start_x, end_y - start_y
        along = ((x - start_x) * run + (y - start_y) * rise) / (run * run + rise * rise)
        along = min(1.0, max(0.0, along))
        if hypot(x - start_x - along * run, y - start_y - along * rise) <= STROKE:
            return True
    return False


def layer_at(x, y, pixel):
    """The name of the topmost layer at a point, or None beside the icon; `pixel` is the width of one pixel."""
    outline, bevel = OUTLINE_PIXELS * pixel, BEVEL_PIXELS * pixel
    pin = hypot(x - PIN[0], y - PIN[1])
    if pin <= PIN_RADIUS + outline * 0.8:
        if pin > PIN_RADIUS:
            return "pin edge"
        return "pin light" if hypot(x - PIN[0] + 0.05, y - PIN[1] + 0.05) <= 0.055 else "pin"
    from_centre = hypot(x, y)
    if from_centre <= HUB_RADIUS:
        if in_letter(x, y):
            return "letter"
        if from_centre > HUB_RADIUS - outline:
            return "hub edge"
        return "letter shade" if in_letter(x - bevel, y - bevel) else "hub"
    if in_gear(x, y, -outline):
        if not in_gear(x - bevel, y - bevel, -outline):
            return "highlight"
        return "gear" if in_gear(x + bevel, y + bevel, -outline) else "shadow"
    return "outline" if in_gear(x, y, 0.0) else None


def samples_of_pixel(column, row, size):
    for step in range(SAMPLES * SAMPLES):
        x = column + (step % SAMPLES + 0.5) / SAMPLES
        y = row + (step // SAMPLES + 0.5) / SAMPLES
        yield 2 * x / size - 1, 2 * y / size - 1


def smooth_pixel(column, row, size):
    """The average colour of the pixel's samples, and as alpha how much of the pixel is covered."""
    total, covered = [0.0, 0.0, 0.0], 0
    for x, y in samples_of_pixel(column, row, size):
        layer = layer_at(x, y, 2 / size)
        if layer is None:
            continue
        light, dark = SMOOTH_COLOURS[layer]
        darkness = min(1.0, max(0.0, 0.5 + (x + y) / 2.6))
        total = [sum_ + a + (b - a) * darkness for sum_, a, b in zip(total, light, dark)]
        covered += 1
    if not covered:
        return (0, 0, 0, 0)
    return tuple(round(sum_ / covered) for sum_ in total) + (round(255 * covered / SAMPLES ** 2),)


def flat_pixel(column, row, size):
    """The colour of the layer that has most of the pixel: sixteen colours allow no blends."""
    counts = {}
    for x, y in samples_of_pixel(column, row, size):
        layer = layer_at(x, y, 2 / size)
        counts[layer] = counts.get(layer, 0) + 1
    winner = max(counts, key=counts.get)
    return (0, 0, 0, 0) if winner is None else FLAT_COLOURS[winner] + (255,)


def small_pixel(column, row, colours):
    letter = SMALL_GRID.split()[row][column]
    return (0, 0, 0, 0) if letter == "." else colours[letter] + (255,)


def reduced_to_256(rows):
    """The picture with colours rounded just coarsely enough for a palette, and that palette; black is its first."""
    step = 1
    while True:
        reduced = [[tuple(min(255, round(part / step) * step) for part in pixel[:3]) + pixel[3:] for pixel in row]
                   for row in rows]
        colours = {(0, 0, 0)} | {pixel[:3] for row in reduced for pixel in row if pixel[3] >= 128}
        if len(colours) <= 256:
            return reduced, sorted(colours)
        step += 1


def picture(size, depth):
    """The rows of (red, green, blue, alpha) pixels of one icon image, and its palette where the depth has one."""
    if size == 16:
        draw, given = small_pixel, SMALL_FLAT if depth == 4 else tree_images.PALETTE
    else:
        draw, given = flat_pixel if depth == 4 else smooth_pixel, size
    rows = [[draw(column, row, given) for column in range(size)] for row in range(size)]
    if depth == 4:
        return rows, SIXTEEN_COLOURS
    return reduced_to_256(rows) if depth == 8 else (rows, ())
