"""What the newspaper's illustrations share: the sky, the sun and the ground, 476 x 292 in three inks."""
from palette import News
from svg import circle, layers, path, rect
from texture import disc_dots, dots, rays

WIDTH, HEIGHT = 476, 292


def sky(cx, cy, sun_radius=0, ray_count=20):
    """Paper with rays around (cx, cy), a red sun there if it has a radius, dark halftone along the top."""
    parts = [rect(0, 0, WIDTH, HEIGHT, News.PAPER), rays(cx, cy, ray_count, 620, News.RAY, turn=.05)]
    if sun_radius:
        parts += [circle(cx, cy, sun_radius + 10, News.LIGHT), circle(cx, cy, sun_radius, News.RED)]
    parts.append(dots(0, 0, WIDTH, 120, 6, lambda x, y: 2.6 - y / 44, News.INK, .75))
    return layers(*parts)


def sun_shade(cx, cy, radius, begins, fade, origin, opacity=.85):
    """Halftone over the lower part of a sun: none above y = begins."""
    return disc_dots(cx, cy, radius, 6, lambda x, y: (y - begins) / fade, News.INK, opacity, origin)


def ground(y):
    """Black ground whose top is slightly arched at about y."""
    return path('M0,%d C120,%d 300,%d %d,%d L%d,%d L0,%d Z' % (y + 8, y - 10, y - 10, WIDTH, y, WIDTH, HEIGHT, HEIGHT),
                News.INK)


def dashes(places, fill, height=3):
    """Short horizontal lines (x, y, length), as on water."""
    return layers(*(rect(x, y, length, height, fill) for x, y, length in places))
