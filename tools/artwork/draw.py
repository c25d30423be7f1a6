#!/usr/bin/env python3
"""Draws the program's artwork: res/tree/132.bmp to 161.bmp (the tree's images) and res/korvane.ico.

    python3 tools/artwork/draw.py [folder]

Without a folder the files in the source tree are written anew; they come out the same byte for byte, so comparing with
a run into another folder tells whether drawing and files still agree.  Needs nothing but Python 3.
"""

import pathlib
import sys

import bitmap_files
import icon
import tree_images

FIRST_TREE_RESOURCE = 132
TREE_IMAGE_COUNT = 30
TREE_IMAGE_SIZE = 16


def grid_rows(name, grid, size, palette):
    """The pixels of a text grid; a grid of the wrong shape or with an unknown letter is refused."""
    lines = grid.split()
    if len(lines) != size:
        raise SystemExit(f"{name}: {len(lines)} rows instead of {size}")
    for number, line in enumerate(lines):
        if len(line) != size:
            raise SystemExit(f"{name}: row {number} is {len(line)} wide instead of {size}: {line}")
        unknown = set(line) - set(palette)
        if unknown:
            raise SystemExit(f"{name}: row {number} has letters without a colour: {sorted(unknown)}")
    return [[palette[letter] for letter in line] for line in lines]


def tree_files():
    palette = tree_images.PALETTE
    if list(palette.values()).count(tree_images.MASK_COLOUR) != 1:
        raise SystemExit("the mask colour must have one letter only, or parts of a motif become transparent")
    if len(tree_images.TREE_IMAGES) != TREE_IMAGE_COUNT:
        raise SystemExit(f"{len(tree_images.TREE_IMAGES)} tree images instead of {TREE_IMAGE_COUNT}")
    for index, (title, grid) in enumerate(tree_images.TREE_IMAGES):
        rows = grid_rows(title, grid, TREE_IMAGE_SIZE, palette)
        yield f"tree/{FIRST_TREE_RESOURCE + index}.bmp", bitmap_files.bmp_file(rows)


def icon_file():
    images = []
    for depth in icon.DEPTHS:
        for size in icon.SIZES:
            rows, palette = icon.picture(size, depth)
            images.append((size, depth, bitmap_files.icon_image(rows, depth, palette)))
    return bitmap_files.ico_file(images)


def main(arguments):
    if len(arguments) > 1:
        raise SystemExit(__doc__)
    default = pathlib.Path(__file__).resolve().parent.parent.parent / "res"
    folder = pathlib.Path(arguments[0]) if arguments else default
    # Everything is drawn before anything is written, so a faulty grid leaves the files alone.
    files = dict(tree_files())
    files["korvane.ico"] = icon_file()
    for name, data in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


if __name__ == "__main__":
    main(sys.argv[1:])
