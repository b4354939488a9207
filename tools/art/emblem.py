"""The emblem of Quenvale: a laurel ring crossed by a sabre, which reads as a Q; and stars."""
import math

from palette import CREAM, OCHRE
from svg import circle, fmt, layers, path, polygon, ring, stroke

LEAVES_A_SIDE = 8


def star(cx, cy, radius, turn=0, waist=.42, points=5):
    """Path data of a star; waist is the inner radius as a part of the outer one."""
    corners = []
    for i in range(2 * points):
        angle = math.radians(-90 + turn + i * 180 / points)
        reach = radius if i % 2 == 0 else radius * waist
        corners.append((cx + reach * math.cos(angle), cy + reach * math.sin(angle)))
    return polygon(corners)


def _leaf(x, y, angle):
    """A laurel leaf with its middle at (x, y), along the angle."""
    along_x, along_y = 9 * math.cos(angle), 9 * math.sin(angle)
    across_x, across_y = -4.5 * math.sin(angle), 4.5 * math.cos(angle)
    return fmt('M%s,%sQ%s,%s %s,%sQ%s,%s %s,%sZ', x - along_x, y - along_y, x + across_x, y + across_y,
               x + along_x, y + along_y, x - across_x, y - across_y, x - along_x, y - along_y)


def _laurel():
    leaves = []
    for side in (-1, 1):
        for i in range(LEAVES_A_SIDE):
            angle = math.radians(90 - side * (28 + i * 19))
            for reach, tilt in ((40, 32), (27, -32)):
                leaves.append(_leaf(reach * math.cos(angle), reach * math.sin(angle),
                                    angle + side * math.radians(tilt - 90)))
    return ''.join(leaves)


def emblem_symbol():
    """The definition that use('emblem', ...) draws; its square is 112 wide."""
    return '<symbol id="emblem" viewBox="-56 -56 112 112" overflow="visible">\n%s\n</symbol>' % layers(
        ring(0, 0, 33, OCHRE, 5),
        path(_laurel(), OCHRE),
        path('M2,4 C16,14 34,32 47,50 L41,54 C30,38 14,20 -2,9 Z', CREAM),
        path('M-12,-6 L-3,1 L-8,8 L-17,1 Z', OCHRE),
        stroke('M4,-3 C-1,0 -4,6 -5,13', OCHRE, 3.4, stroke_linecap='round'))


def seal(x, y, radius, colour, width):
    """The emblem at its smallest, as on flags: a ring with the sabre's tail."""
    k = radius / 11
    tail = fmt('M%s,%s l%s,%s l%s,%s l%s,%s Z',
               x + 2 * k, y + 2 * k, 10 * k, 13 * k, -4 * k, 3 * k, -10 * k, -13 * k)
    return layers(ring(x, y, radius, colour, width), path(tail, colour))


def medal(x, y, radius, colour, core):
    return layers(circle(x, y, radius, colour), circle(x, y, radius * .58, core))
