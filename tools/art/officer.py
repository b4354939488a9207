"""The strip beside the tables of officers: a uniform that waits for somebody."""
import math
import re

import president
from emblem import star
from lettering import POSTER, text
from palette import INK, OCHRE, RED, RED2, SEA, SUN
from svg import circle, fmt, layers, path, placed, rect
from texture import dots, rays

WIDTH, HEIGHT = 176, 487
MIDDLE = WIDTH / 2
SCALE = .62
BUST_MIDDLE = 230       # of the bust's box


def unknown_officer():
    return layers(_rising_sun(), _bust(), _ribbons_and_stars(), rect(WIDTH - 2, 0, 2, HEIGHT, OCHRE))


def _rising_sun():
    return layers(
        rect(0, 0, WIDTH, HEIGHT, RED),
        rays(MIDDLE, 210, 18, 460, RED2, .05),
        circle(MIDDLE, 190, 76, OCHRE),
        dots(0, 0, WIDTH, HEIGHT, 8, lambda x, y: 3.4 - math.hypot(x - MIDDLE, y - 190) / 70, SUN, .8))


def _bust():
    """The face is not known yet; only the edge of the cap catches the light."""
    in_ink = re.sub(r'(fill|stroke)="#[0-9A-Fa-f]+"', r'\1="%s"' % INK, president.officer())
    piping = fmt('M%s,171 C%s,163.5 %s,163.5 %s,171 L%s,176 C%s,168.5 %s,168.5 %s,176 Z',
                 *(MIDDLE + x for x in (-61, -30, 30, 61, 60, 30, -30, -60)))
    return layers(placed(MIDDLE - BUST_MIDDLE * SCALE, 88, in_ink, scale=SCALE), path(piping, OCHRE),
                  text(MIDDLE, 268, '?', 84, SUN, POSTER, anchor='middle'),
                  rect(0, 400, WIDTH, HEIGHT - 400, INK))


def _ribbons_and_stars():
    def ribbon(place):
        return fmt('M%s,%s h22 v12 h-22 Z', 100 + place % 3 * 25, 372 + place // 3 * 15)
    stars = [star(111 + i * 25, 414, 9) for i in range(3)] + [star(111 + i * 25, 440, 9) for i in range(2)]
    return layers(path(''.join(ribbon(place) for place in (0, 2, 4)), RED),
                  path(''.join(ribbon(place) for place in (1, 3, 5)), SEA), path(''.join(stars), OCHRE))
