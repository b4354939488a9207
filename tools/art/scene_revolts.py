"""Pictures of the revolts, 620 x 250: the revolution, the guerrillas and the prisoners."""
import random

from outlaws import convict, marching_rebel
from palace import DAY, NIGHT, palace
from palette import CREAM, GREEN2, INK, MAROON, OCHRE, OCHRE2, RED, RED2, SEA, SKIN, SKIN3, SUN, TEAL3
from people import crowd, rebel
from scenery import burst, flames, palm, smoke, volcano
from svg import circle, fmt, group, layers, path, placed, rect, stroke
from texture import disc_dots, dots, glow, grain, rays

WIDTH, HEIGHT = 620, 250


def revolution():
    """The palace burns; the people watch the flames."""
    fires = ((186, 150, .9), (214, 152, .6), (240, 150, .8), (392, 150, .7), (424, 152, 1.0), (450, 152, .6),
             (286, 78, .6), (330, 88, .7), (312, 60, .45), (268, 124, .5), (356, 124, .5))
    return layers(
        rect(0, 0, WIDTH, HEIGHT, '#1A0D0B'),
        rays(310, 250, 26, 640, RED2, turn=.03),
        circle(310, 240, 176, '#C9401C'), circle(310, 240, 150, '#E86A24'), circle(310, 240, 120, OCHRE),
        glow(WIDTH, HEIGHT, 310, 240, 8, 3.6, 84, SUN, .85),
        _columns_of_smoke(),
        group('palace', placed(159, 76, palace(NIGHT), scale=.72)),
        group('flames', flames(fires)),
        crowd(-10, 640, 200, 1.1, '#6E2015', 3, fists=.5, flags=.10, signs=.05, flag_fill=RED, step=17),
        crowd(-10, 640, 226, 1.6, INK, 8, fists=.55, flags=.05, signs=.04, flag_fill=RED, step=21, depth=80),
        grain(WIDTH, HEIGHT, .15, .05))


def _columns_of_smoke():
    chance = random.Random(2)
    columns = []
    for foot, puffs, fill in ((196, 15, '#120A09'), (430, 15, '#1D0F0C'), (310, 12, '#170C0A')):
        cloud = []
        for i in range(puffs):
            t = i / puffs
            cloud.append((foot + (foot - 310) * .9 * t ** 1.3 + chance.uniform(-7, 7), 120 - 150 * t, 8 + 34 * t))
        columns.append(smoke(cloud, fill))
    return group('smoke', *columns)


def guerrillas():
    """Fighters come down from the volcano in the evening; far below lies the palace."""
    column = ((596, 70, .42), (560, 84, .48), (522, 98, .55), (480, 116, .64), (432, 136, .74), (378, 160, .86))
    return layers(
        rect(0, 0, WIDTH, HEIGHT, RED), rays(150, 170, 22, 700, RED2, turn=.06),
        glow(WIDTH, HEIGHT, 150, 170, 8, 4.2, 70, SUN, .85),
        circle(150, 170, 112, OCHRE), circle(150, 170, 98, SUN),
        group('far-ridge', path('M0,196 C70,170 120,176 200,188 C270,196 330,190 400,196 V250 H0 Z', MAROON)),
        group('volcano', volcano(468, 250, 560, 222, '#8A2A18', MAROON, '#B0411D', SUN)),
        group('palace', placed(58, 136, palace(DAY), scale=.24)),
        _slope(),
        group('column', *(marching_rebel(x, y, scale, flip=-1) for x, y, scale in column)),
        group('vanguard', marching_rebel(312, 192, 1.02, flip=-1), rebel(226, 234, 1.3, flip=-1, fill=INK, scarf=RED)),
        group('palms', palm(566, 262, 150, -30, 62, INK, 12), palm(26, 262, 120, 20, 52, INK, 5)),
        grain(WIDTH, HEIGHT, .15, .05))


def _slope():
    return group('slope',
                 path('M620,62 C560,84 500,100 440,134 C380,164 330,188 262,206 C190,226 90,232 0,236 V250 H620 '
                      'Z', GREEN2),
                 dots(0, 60, WIDTH, HEIGHT, 7, _slope_shade, INK, .8))


def _slope_shade(x, y):
    edge = 236 - max(0, x - 190) * .40
    return (y - edge - 8) / 26 if y > edge + 8 else 0


def prisoners():
    """A hole in the prison's wall, and everybody is leaving."""
    runaways = (
        # x, y, scale, flip, skin, drags his ball
        (288, 210, .62, -1, SKIN, False), (350, 212, .66, 1, SKIN3, False), (210, 226, .86, -1, SKIN3, False),
        (430, 228, .9, 1, SKIN, False), (66, 242, 1.12, -1, SKIN, True), (552, 244, 1.16, 1, SKIN3, True),
    )
    return layers(
        rect(0, 0, WIDTH, HEIGHT, TEAL3), glow(WIDTH, 190, 316, 170, 8, 4.4, 82, SEA, .6),
        circle(74, 52, 30, CREAM), disc_dots(74, 52, 28, 6, lambda x, y: (x - 68) / 12, OCHRE, .8),
        _prison(),
        _searchlight(),
        _hole_in_the_wall(),
        rect(0, 206, WIDTH, 44, '#3A2416'), rect(0, 204, WIDTH, 3, '#8A5A14'),
        path('M230,206 L402,206 L470,250 L160,250 Z', OCHRE2, opacity=.55),
        group('runaways', *(convict(x, y, scale, skin, flip, ball) for x, y, scale, flip, skin, ball in runaways)),
        grain(WIDTH, HEIGHT, .15, .05))


def _prison():
    windows = ''.join(fmt('M%s,%s h22 v24 h-22 Z', x, y) for x in (146, 196, 396, 446) for y in (104, 148))
    bars = ''.join(fmt('M%s,%s v24 m7,-24 v24 m-3.5,-24 m-10.5,12 h22', x + 7.5, y)
                   for x in (146, 196, 396, 446) for y in (104, 148))
    merlons = ''.join('M%d,84 h14 v-12 h-14 Z' % x for x in range(112, 500, 26))
    return group(
        'prison',
        path('M112,84 H500 V206 H112 Z', '#6B5A44'), path('M316,84 H500 V206 H316 Z', '#57482F'),
        path(merlons, '#6B5A44'), rect(106, 84, 400, 5, '#8A7657'),
        path(windows, INK), stroke(bars, '#8A7657', 2.2),
        _watch_tower(92), _watch_tower(520),
        path('M0,150 H70 V206 H0 Z M550,150 H620 V206 H550 Z', '#4A3D2A'),
        stroke('M0,146 q7,-9 14,0 t14,0 t14,0 t14,0 t14,0 M550,146 q7,-9 14,0 t14,0 t14,0 t14,0 t14,0', '#8A7657', 2))


def _watch_tower(x):
    return placed(x, 0, rect(-22, 76, 44, 130, '#7A6849'), rect(4, 76, 18, 130, '#57482F'),
                  rect(-28, 70, 56, 7, '#8A7657'), rect(-20, 46, 40, 24, INK), rect(-16, 50, 32, 14, SUN),
                  path('M-32,46 L0,26 L32,46 Z', MAROON))


def _searchlight():
    return group('searchlights', path('M92,56 L620,-10 L620,70 Z', SUN, opacity=.16),
                 path('M520,56 L0,2 L0,96 Z', SUN, opacity=.14))


def _hole_in_the_wall():
    return group('hole', burst(316, 172, 66, '#2A1D12', 5), burst(316, 174, 56, SUN, 9), burst(316, 178, 36, CREAM, 3),
                 path('M244,206 l16,-14 l20,8 l10,6 Z M340,206 l14,-12 l18,6 l16,6 Z', '#8A7657'),
                 path('M238,120 l14,-8 l6,12 l-14,8 Z M380,108 l12,4 l-4,14 l-13,-5 Z M300,92 l10,-10 l9,9 l-9,11 Z',
                      '#8A7657'))
