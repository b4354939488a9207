"""Plants, mountains, huts, fire and smoke. Light falls from the left."""
import math
import random

from palette import News
from svg import disc, fmt, layers, path, placed, polygon

FROND_STEPS = 15
FRONDS = (
    # tip x, tip y, sag, all in parts of the palm's size
    (-1.0, .30, .45), (-.95, -.08, .36), (-.62, -.42, .22), (-.12, -.62, .08), (.45, -.50, .18),
    (.85, -.20, .32), (1.02, .18, .44), (-.62, .55, .42), (.66, .52, .42),
)


def _frond(x0, y0, x1, y1, sag, breadth, seed):
    """A palm leaf along an arc from (x0, y0) to (x1, y1): smooth above, feathered below."""
    chance = random.Random(seed)
    bend_x, bend_y = (x0 + x1) / 2, (y0 + y1) / 2 - sag
    above, below = [], []
    for i in range(FROND_STEPS + 1):
        t = i / FROND_STEPS
        x = (1 - t) ** 2 * x0 + 2 * t * (1 - t) * bend_x + t * t * x1
        y = (1 - t) ** 2 * y0 + 2 * t * (1 - t) * bend_y + t * t * y1
        dx = 2 * (1 - t) * (bend_x - x0) + 2 * t * (x1 - bend_x)
        dy = 2 * (1 - t) * (bend_y - y0) + 2 * t * (y1 - bend_y)
        length = math.hypot(dx, dy) or 1
        nx, ny = -dy / length, dx / length
        if ny < 0:      # the feathers always hang
            nx, ny = -nx, -ny
        here = breadth * math.sin(math.pi * min(1, .12 + t * .88)) ** .7
        above.append((x - nx * here * .22, y - ny * here * .22))
        feather = here * (1 + chance.uniform(-.15, .2))
        below.append((x + dx / length * breadth * .35 + nx * feather,
                      y + dy / length * breadth * .35 + ny * feather))
        if i < FROND_STEPS:
            below.append((x + nx * here * .25, y + ny * here * .25))
    return polygon(above + below[::-1])


def palm(x, y, height, lean, size, fill, seed):
    """A palm with its foot at (x, y); lean moves its top sideways, size is the reach of its leaves."""
    top_x, top_y = x + lean, y - height
    mid_x, mid_y = x + lean * .15, y - height * .55
    foot, neck = max(2.2, size * .085), max(1.3, size * .045)
    data = fmt('M%s,%s Q%s,%s %s,%s L%s,%s Q%s,%s %s,%s Z',
               x - foot, y, mid_x - foot * .7, mid_y, top_x - neck, top_y,
               top_x + neck, top_y, mid_x + foot * .7, mid_y, x + foot, y)
    chance = random.Random(seed)
    for i, (reach, rise, sag) in enumerate(FRONDS):
        grown = size * chance.uniform(.86, 1.1)
        data += _frond(top_x, top_y, top_x + reach * grown, top_y + rise * grown, sag * size, size * .17,
                       seed * 31 + i)
    return path(data, fill)


def volcano(cx, base, width, height, lit, dark, ridge, lava=None):
    """A volcano whose foot is centred at (cx, base); with lava it is active."""
    def at(part_x, part_y):
        return cx + width * part_x, base - height * part_y

    top, lip = base - height, width * .055
    crater = ((cx - lip, top), (cx - lip * .3, top + 5), (cx + lip * .3, top + 2), (cx + lip, top))

    def data(template, *points):
        return fmt(template, *(value for point in points for value in point))
    parts = [
        path(data('M%s,%s C%s,%s %s,%s %s,%s L%s,%s L%s,%s L%s,%s C%s,%s %s,%s %s,%s Z', at(-.5, 0),
                  at(-.28, .22), at(-.14, .62), *crater, at(.14, .62), at(.28, .22), at(.5, 0)), lit),
        path(data('M%s,%s L%s,%s C%s,%s %s,%s %s,%s L%s,%s L%s,%s L%s,%s L%s,%s L%s,%s L%s,%s Z', crater[2],
                  crater[3], at(.14, .62), at(.28, .22), at(.5, 0), at(.06, 0), at(.10, .30), at(.045, .38),
                  at(.07, .58), at(.02, .66), (cx + lip * .7, base - height * .84)), dark),
        path(polygon([at(-.30, 0), at(-.20, .26), at(-.15, .20), at(-.11, .44), at(-.07, .30), at(-.09, .14),
                      at(-.13, 0)]), ridge),
    ]
    if lava:
        parts += [path(polygon(crater), lava), path(_lava_streams(cx, top, lip, height), lava)]
    return layers(*parts)


def _lava_streams(cx, top, lip, height):
    data = ''
    for place, length, breadth in ((-.72, .17, .16), (-.28, .40, .22), (.12, .24, .18), (.55, .50, .20)):
        x0 = cx + lip * place
        x1 = x0 + lip * place * 2.2 * length / .4
        wide, down = lip * breadth, height * length
        data += fmt('M%s,%s L%s,%s C%s,%s %s,%s %s,%s C%s,%s %s,%s %s,%s Z',
                    x0 - wide, top + 3, x0 + wide, top + 3,
                    x0 + wide * 1.2, top + down * .5, x1 + wide * .9, top + down * .7, x1, top + down,
                    x1 - wide * .6, top + down * .6, x0 - wide * .7, top + down * .5, x0 - wide, top + 3)
    return data


def peaks(places, lit, dark):
    """Small mountains of a map; a place is (x, y of the foot, half the width)."""
    drawn = []
    for x, y, size in places:
        top = (x, y - size * 1.25)
        drawn += [path(polygon([(x - size, y), top, (x + size * .15, y)]), lit),
                  path(polygon([top, (x + size, y), (x + size * .15, y)]), dark)]
    return layers(*drawn)


def hut(x, y, scale, fill=News.INK, rotate=0, cut=News.PAPER):
    return placed(x, y,
                  path('M-22,0 V-20 H22 V0 Z', fill), path('M-30,-18 L0,-42 L30,-18 Z', fill),
                  path('M-6,0 V-13 H6 V0 Z M-28,-19.5 L0,-41 L28,-19.5 L24,-19.5 L0,-37 L-24,-19.5 Z', cut),
                  scale=scale, rotate=rotate)


def flame(x, y, scale, outer='#E2542A', inner='#F2C14E'):
    data = ('M-15,0 C-24,-14 -15,-24 -14,-38 C-8,-30 -5,-25 -6,-17 C-2,-30 6,-38 3,-58 C14,-45 17,-30 12,-18 '
            'C16,-22 19,-28 18,-35 C26,-20 22,-6 15,0 Z')
    return placed(x, y, path(data, outer), path(data, inner, transform='translate(.5,0) scale(.58)'), scale=scale)


def flames(places, outer='#E2542A', inner='#F2C14E'):
    return layers(*(flame(x, y, scale, outer, inner) for x, y, scale in places))


def smoke(puffs, fill):
    """A cloud of round puffs (x, y, radius)."""
    return path(''.join(disc(x, y, radius) for x, y, radius in puffs), fill)


def plume(x, y, drift, rise, first, last, puffs, fill, seed):
    """Smoke from (x, y) that drifts, rises and grows from the first puff's radius to the last one's."""
    chance = random.Random(seed)
    cloud = []
    for i in range(puffs + 1):
        t = i / puffs
        cloud.append((x + drift * t ** 1.2 + chance.uniform(-1, 1) * first * .7,
                      y + rise * t + chance.uniform(-1, 1) * first * .4, first + (last - first) * t))
    return smoke(cloud, fill)


def burst(cx, cy, radius, fill, seed, points=15):
    """The ragged star of an explosion."""
    chance = random.Random(seed)
    corners = []
    for i in range(2 * points):
        angle = math.pi * i / points
        reach = radius * (chance.uniform(.82, 1.15) if i % 2 == 0 else .55 * chance.uniform(.85, 1.1))
        corners.append((cx + reach * math.cos(angle), cy + reach * math.sin(angle)))
    return path(polygon(corners), fill)


def blast(cx, cy, radius, seed, inks=(News.INK, News.RED, News.LIGHT)):
    outer, middle, core = inks
    return layers(burst(cx, cy, radius, outer, seed), burst(cx, cy, radius * .82, middle, seed + 1),
                  burst(cx, cy, radius * .5, core, seed + 2))
