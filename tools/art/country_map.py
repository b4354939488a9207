"""The map of Quenvale and its neighbours, 744 x 420, and the marks that the game lays on it.

The lands differ by hatching as well as by colour. The game's labels and marks have their places in the
army screen; keep the middle of the seas free for them.
"""
import math
import random

from emblem import star
from lettering import POSTER, text, width as text_width
from palace import palace
from palette import BAND_TEXT, CREAM, FOAM, GREEN, GREEN2, INK, MAROON, RED, RED2
from scenery import palm, peaks, volcano
from svg import circle, disc, fmt, frame, group, layers, path, placed, polygon, rect, ring, stroke
from texture import grain

WIDTH, HEIGHT = 744, 420
HERMOSITA = [(-30, -30), (268, -30), (252, 26), (206, 60), (190, 104), (128, 112), (92, 156), (44, 168), (-30, 176)]
FERAZ = [(772, -30), (774, 280), (716, 262), (682, 214), (640, 196), (622, 142), (566, 112), (548, 62), (500, 34),
         (488, -30)]
DESCALZA = [(-30, 288), (26, 286), (72, 314), (142, 318), (182, 356), (236, 372), (252, 450), (-30, 450)]
QUENVALE = [(236, 196), (276, 150), (336, 128), (398, 136), (452, 158), (498, 196), (514, 240), (494, 276), (446, 292),
            (402, 322), (346, 330), (290, 312), (252, 282), (228, 240)]
ISLANDS = (
    # x, y, radius, seed
    (592, 336, 33, 1), (672, 350, 27, 2), (622, 390, 23, 3),
)
LAND_INK = {'hermosita': '#9DB48A', 'feraz': '#CF7B4A', 'descalza': '#B9A07C', 'quenvale': '#F2C65A'}
HATCHING = {'hermosita': (45, 7, .16), 'feraz': (-45, 7, .2), 'descalza': (0, 6, .2)}   # angle, step, opacity
SHORTEST_SHORE = 5      # pixels; shorter pieces of the coast are not broken again


def country_map():
    lands = {'hermosita': coast(HERMOSITA, 5), 'feraz': coast(FERAZ, 9), 'descalza': coast(DESCALZA, 14),
             'quenvale': coast(QUENVALE, 22, rough=.2)}
    islands = [_island(*island) for island in ISLANDS]
    return layers(
        _sea(lands, islands),
        *(_land(name, shore, LAND_INK[name], name in HATCHING) for name, shore in lands.items()),
        *(_land('island-%d' % (i + 1), shore, LAND_INK['quenvale'], False) for i, shore in enumerate(islands)),
        _relief(),
        _sights(),
        _names(),
        _compass(414, 50),
        grain(WIDTH, HEIGHT, .14, .06),
        frame(1.5, 1.5, WIDTH - 3, HEIGHT - 3, INK, 3),
        frame(5.5, 5.5, WIDTH - 11, HEIGHT - 11, CREAM, 1))


def hatch_patterns():
    """Definitions of the hatching of the lands."""
    def pattern(name, angle, step, opacity):
        return ('<pattern id="hatch-%s" width="%d" height="%d" patternUnits="userSpaceOnUse" '
                'patternTransform="rotate(%d)"><rect width="%d" height="1.6" fill="%s" fill-opacity="%s"/></pattern>'
                % (name, step, step, angle, step, INK, opacity))
    return '\n'.join(pattern(name, *lines) for name, lines in HATCHING.items())


def coast(corners, seed, rounds=4, rough=.17):
    """Path data of a shore: in every round each stretch gets a corner in its middle, pushed aside by chance."""
    chance = random.Random(seed)
    shore = list(corners)
    for _ in range(rounds):
        broken = []
        for (ax, ay), (bx, by) in zip(shore, shore[1:] + shore[:1]):
            length = math.hypot(bx - ax, by - ay)
            mid_x, mid_y = (ax + bx) / 2, (ay + by) / 2
            if length > SHORTEST_SHORE:
                push = chance.uniform(-1, 1) * length * rough
                mid_x, mid_y = mid_x - (by - ay) / length * push, mid_y + (bx - ax) / length * push
            broken += [(ax, ay), (mid_x, mid_y)]
        shore = broken
    return polygon(shore)


def _island(x, y, radius, seed):
    corners = [(x + radius * math.cos(i * math.pi / 4), y + radius * .72 * math.sin(i * math.pi / 4)) for i in range(8)]
    return coast(corners, seed + 40, rounds=3, rough=.16)


def _sea(lands, islands):
    ripples = ''.join(fmt('M0,%s h%s v1 h%s Z', y, WIDTH, -WIDTH) for y in range(0, HEIGHT, 6))
    meridians = ''.join(fmt('M%s,0 h1 v%s h-1 Z', x, HEIGHT) for x in range(62, WIDTH, 62))
    parallels = ''.join(fmt('M0,%s h%s v1 h%s Z', y, WIDTH, -WIDTH) for y in range(60, HEIGHT, 60))
    shores = ''.join(lands.values()) + ''.join(islands)
    shoals = (stroke(shores, '#5FA79B', reach, stroke_opacity=opacity, stroke_linejoin='round')
              for reach, opacity in ((34, .16), (22, .18), (11, .25)))
    return layers(
        group('sea', rect(0, 0, WIDTH, HEIGHT, '#1B5558'), path(ripples, '#16494C', opacity=.55)),
        group('shoals', *shoals),
        group('graticule', path(meridians + parallels, FOAM, opacity=.28)))


def _land(name, shore, fill, hatched):
    parts = [path(shore, INK, transform='translate(3,4)', opacity=.55), path(shore, fill)]
    if hatched:
        parts.append(path(shore, 'url(#hatch-%s)' % name))
    parts.append(stroke(shore, INK, 1.6, stroke_linejoin='round'))
    return group(name, *parts)


def _relief():
    trees = ''
    for i in range(34):
        x, y = 456 + random.Random(i).uniform(-36, 34), 212 + random.Random(i + 50).uniform(-20, 24)
        trees += disc(x, y, 7, 5.6)
    return layers(
        group('mountains',
              peaks([(40, 70, 13), (62, 78, 15), (88, 70, 12), (120, 60, 13)], '#C3D3AC', '#6E8760'),
              peaks([(686, 92, 13), (708, 104, 15), (664, 76, 12)], '#E7A87C', '#8C4623'),
              peaks([(150, 384, 11), (172, 392, 13), (196, 386, 10)], '#D8C7A8', '#7F6A4A')),
        group('jungle', path(trees, GREEN2), path(trees, GREEN, transform='translate(-1.5,-2)')),
        group('volcano', volcano(368, 252, 112, 62, '#B4541F', MAROON, '#D9812F', '#FFF0B8')))


def _sights():
    palms = (layers(palm(x - 6, y + 4, 20, -3, 11, GREEN2, seed), palm(x + 7, y + 6, 15, 4, 9, GREEN2, seed + 4))
             for x, y, _, seed in ISLANDS)
    return layers(
        group('road', stroke('M300,282 C330,270 350,268 380,272 C410,276 430,272 452,262', '#7A4A1B', 2,
                             stroke_dasharray='5 3')),
        group('capital', placed(250, 252, palace(), scale=.135)),
        group('island-palms', *palms))


def _names():
    def name(x, y, words, size, fill=INK, spacing=4):
        return text(x, y, words, size, fill, POSTER, anchor='middle', spacing=spacing)
    return group('names', name(100, 44, 'HERMOSITA', 27), name(662, 48, 'FERAZ', 27),
                 name(66, 410, 'DESCALZA', 26, spacing=3), name(362, 178, 'QUENVALE', 30, RED2, 5))


def _compass(x, y):
    return group('compass', ring(x, y, 24, CREAM, 1.2), ring(x, y, 20, CREAM, .7),
                 path(star(x, y, 30, waist=.2, points=4), CREAM),
                 path(star(x, y, 17, turn=45, waist=.3, points=4), FOAM))


def _button(fill):
    return layers(circle(17, 17, 16, INK), circle(17, 17, 14, fill))


def anchor():
    """28 x 28."""
    return layers(stroke('M14,4 v20 M8,9 h12 M4,16 C4,23 9,25 14,25 C19,25 24,23 24,16', CREAM, 2.6,
                         stroke_linecap='round'),
                  ring(14, 4.5, 2.6, CREAM, 2))


def plane_mark():
    """34 x 34."""
    return path('M17,4 C19,6 19,10 19,13 L30,19 L30,22 L19,19 L18.4,26 L22,29 L22,31 L17,29.6 L12,31 L12,29 '
                'L15.6,26 L15,19 L4,22 L4,19 L15,13 C15,10 15,6 17,4 Z', CREAM)


def naval_mark():
    return layers(_button('#2B4A86'), placed(3.6, 3.4, anchor(), scale=.96))


def air_mark():
    return layers(_button('#2B4A86'), plane_mark())


def guerrillas_mark():
    """A masked head before crossed rifles."""
    return layers(
        _button(RED),
        path('M5,28 L27,7 L29,9 L7,30 Z M29,28 L7,7 L5,9 L27,30 Z', INK),
        path('M10,15 C10,8 24,8 24,15 L24,19 C24,24 20,26 17,26 C14,26 10,24 10,19 Z', CREAM),
        path('M9.4,17.4 C14,19.4 20,19.4 24.6,17.4 L24,21 C23,25 20,27 17,28 C14,27 11,25 10,21 Z', INK),
        path('M8,13.6 C8,4.6 26,4.6 26,13.6 C20,11.6 14,11.6 8,13.6 Z', INK),
        path('M12.6,14.4 h3 v1.8 h-3 Z M18.4,14.4 h3 v1.8 h-3 Z', INK))


def sold_stamp():
    """The rubber stamp on an island that was sold, 96 x 40."""
    words, size = 'Sold!', 22
    wide, high = text_width(words, size, POSTER, 700) + 24 + len(words) * 1.5, size * 1.02
    return placed(48, 20,
                  rect(-wide / 2, -high / 2, wide, high, BAND_TEXT, 4, stroke=RED, stroke_width=3),
                  frame(-wide / 2 + 4, -high / 2 + 4, wide - 8, high - 8, RED, 1, 2),
                  text(0, size * .355, words, size, RED, POSTER, anchor='middle', spacing=1.5),
                  rotate=-12)
