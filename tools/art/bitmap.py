"""Writes the picture files.

    write_opaque(image, "title.bmp")     # BMP, 24 bits, BITMAPINFOHEADER, no alpha
    write_alpha(image, "emblem.bmp")     # BMP, 32 bits, BITMAPV4HEADER, straight alpha
    write_palette(image, "title.png", 128)    # PNG of at most so many colours, with or without alpha

The bitmaps are uncompressed and stored bottom row first. Nothing but the pixels goes into a
file, so equal pictures give equal bytes.
"""
import os
import struct
import subprocess

from PIL import Image

FILE_HEADER = 14
INFO_HEADER = 40
V4_HEADER = 108
BI_RGB, BI_BITFIELDS = 0, 3
PIXELS_PER_METRE = 2835         # 72 dpi
SRGB = 0x73524742               # 'sRGB', the colour space tag of the V4 header
MASKS = (0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000)    # red, green, blue, alpha


def _headers(image, header_size, bits, compression, data_size):
    offset = FILE_HEADER + header_size
    width, height = image.size
    return (struct.pack('<2sIHHI', b'BM', offset + data_size, 0, 0, offset) +
            struct.pack('<IiiHHIIiiII', header_size, width, height, 1, bits, compression, data_size,
                        PIXELS_PER_METRE, PIXELS_PER_METRE, 0, 0))


def over_black(image):
    black = Image.new('RGBA', image.size, (0, 0, 0, 255))
    return Image.alpha_composite(black, image.convert('RGBA')).convert('RGB')


def write_palette(image, file_name, colours):
    """Chooses the colours for this picture; in one thread, so that the choice is always the same."""
    image.save(file_name, compress_level=1)
    subprocess.run(['pngquant', '--force', '--strip', '--nofs', '--speed', '3', '--output', str(file_name),
                    str(colours), str(file_name)], check=True, env=dict(os.environ, OMP_NUM_THREADS='1'))


def write_opaque(image, file_name):
    """Lays the picture over black and writes 24 bits a pixel."""
    flat = over_black(image)
    stride = (flat.width * 3 + 3) & ~3      # rows are padded to whole double words
    data = flat.tobytes('raw', 'BGR', stride, -1)
    with open(file_name, 'wb') as out:
        out.write(_headers(flat, INFO_HEADER, 24, BI_RGB, len(data)) + data)


def write_alpha(image, file_name):
    """Writes 32 bits a pixel with the masks that tell a reader where the alpha is."""
    data = image.convert('RGBA').tobytes('raw', 'BGRA', 0, -1)
    colour_space = struct.pack('<IIIII', *MASKS, SRGB) + bytes(36 + 12)    # no end points, no gamma
    with open(file_name, 'wb') as out:
        out.write(_headers(image, V4_HEADER, 32, BI_BITFIELDS, len(data)) + colour_space + data)
