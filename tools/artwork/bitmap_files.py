"""Writers for the two file formats of the artwork: 24-bit .bmp, and .ico whose images are 4, 8 or 32 bits deep.

A picture is a list of rows from top to bottom.  Both formats store rows from bottom to top, each padded to four bytes.
"""

import struct

FILE_HEADER_SIZE = 14
INFO_HEADER_SIZE = 40
ICON_DIRECTORY_SIZE = 6
ICON_ENTRY_SIZE = 16


def padded(row):
    return row + bytes(-len(row) % 4)


def info_header(width, height, depth, data_size):
    return struct.pack("<IiiHHIIiiII", INFO_HEADER_SIZE, width, height, 1, depth, 0, data_size, 0, 0, 0, 0)


def bmp_file(rows):
    """The bytes of a 24-bit .bmp file; a pixel is (red, green, blue)."""
    data = b"".join(padded(b"".join(bytes((b, g, r)) for r, g, b in row)) for row in reversed(rows))
    offset = FILE_HEADER_SIZE + INFO_HEADER_SIZE
    header = struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset)
    return header + info_header(len(rows[0]), len(rows), 24, len(data)) + data


def packed_bits(values, depth):
    """One row of palette indices, `depth` bits each, the leftmost pixel in the highest bits of its byte."""
    per_byte = 8 // depth
    values = list(values) + [0] * (-len(values) % per_byte)
    packed = bytearray()
    for start in range(0, len(values), per_byte):
        byte = 0
        for value in values[start:start + per_byte]:
            byte = byte << depth | value
        packed.append(byte)
    return padded(bytes(packed))


def icon_image(rows, depth, palette=()):
    """One image of an .ico file; a pixel is (red, green, blue, alpha).

    At 32 bits alpha is kept; below that a pixel is drawn when it is at least half opaque, and must then be a colour of
    `palette`.  Systems that know nothing of alpha go by the AND mask alone and invert the screen wherever a masked
    pixel is not black, so at 32 bits the mask covers only what is wholly transparent.
    """
    threshold = 1 if depth == 32 else 128
    opaque = [[pixel[3] >= threshold for pixel in row] for row in rows]
    if depth == 32:
        colours = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
        table = b""
    else:
        black = (0, 0, 0)
        full = list(palette) + [black] * (2 ** depth - len(palette))
        index_of = {colour: index for index, colour in reversed(list(enumerate(full)))}
        lines = [[index_of[pixel[:3] if shown else black] for pixel, shown in zip(row, line)]
                 for row, line in zip(rows, opaque)]
        colours = b"".join(packed_bits(line, depth) for line in reversed(lines))
        table = b"".join(bytes((b, g, r, 0)) for r, g, b in full)
    mask = b"".join(packed_bits([int(not shown) for shown in line], 1) for line in reversed(opaque))
    # The header of an icon counts both the colours and the mask in its height.
    header = info_header(len(rows[0]), 2 * len(rows), depth, len(colours) + len(mask))
    return header + table + colours + mask


def ico_file(images):
    """The bytes of an .ico file made of (size in pixels, depth, bytes from icon_image)."""
    directory = struct.pack("<HHH", 0, 1, len(images))
    offset = ICON_DIRECTORY_SIZE + ICON_ENTRY_SIZE * len(images)
    for size, depth, data in images:
        # One byte holds the number of colours; 256 and more are written as 0.
        colours = 2 ** depth if depth < 8 else 0
        directory += struct.pack("<BBBBHHII", size, size, colours, 0, 1, depth, len(data), offset)
        offset += len(data)
    return directory + b"".join(data for _, _, data in images)
