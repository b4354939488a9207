"""What lies outside the president's window at night: the country of Quenvale, dark and with empty squares.

Who and what is there is a matter of the layers (office_layers.py). Places are those of the 800 x 600 screen.
"""
import math
import random

from palette import CREAM, FOAM, INK, OCHRE, RED, SEA, SHADE, TEAL
from people import waver
from scenery import palm, smoke, volcano
from svg import circle, fmt, group, layers, path, placed, polygon, rect, rim, stroke
from texture import disc_dots, dots

NIGHT = ('#0C2A2D', '#12363A', '#1B4A4C')
ISLANDS = ((168, 23), (221, 23), (272, 22))     # middle, half width


class Houses:
    """A row of houses with flat and gabled roofs standing on y, and where their windows are.

    Each window is (x, y, chance): one whose chance is below a share is lit at that share.
    """

    def __init__(self, x0, x1, y, heights, wall, roof, seed, widths):
        self.chance = random.Random(seed)
        self.wall, self.roof = wall, roof
        self.drawn, self.windows = '', []
        x = x0
        while x < x1:
            wide = min(self.chance.uniform(*widths), x1 - x + 4)
            self._house(x, y, wide, self.chance.uniform(*heights))
            x += wide

    def _house(self, x, y, wide, high):
        top = y - high
        gable = polygon([(x - 1.5, top), (x + wide / 2, top - wide * .3), (x + wide + 1.5, top)])
        roof = path(gable, self.roof) if self.chance.random() < .45 else rect(x - 1, top - 2, wide + 2, 3, self.roof)
        self.drawn += layers(rect(x, top, wide + .6, high, self.wall), roof,
                             rect(x + wide * .66, top, wide * .34 + .6, high, self.roof, opacity='.55'))
        self.windows += [(column, row, self.chance.random())
                         for row in range(int(top + 5), int(y - 5), 8)
                         for column in range(int(x + 4), int(x + wide - 4), 7)]

    def lights(self, share, fill, wide=2.6, high=3.8):
        return path(''.join(fmt('M%s,%sh%sv%sh-%sZ', x, y, wide, high, wide)
                            for x, y, chance in self.windows if chance < share), fill)


REAR_MIDDLE = Houses(318, 500, 306, (12, 30), '#17474A', '#11383B', 3, (12, 24))
FRONT_LEFT = Houses(108, 246, 372, (44, 84), '#113438', '#0B2629', 7, (22, 38))
REAR_LEFT = Houses(108, 318, 330, (26, 54), '#16454A', '#103639', 17, (14, 28))
FRONT_RIGHT = Houses(556, 700, 372, (40, 72), '#0F2F33', '#0A2326', 9, (22, 36))
REAR_RIGHT = Houses(486, 700, 336, (14, 34), '#143F43', '#0E3134', 19, (14, 28))


def outside():
    return layers(_sky(), _stars(), _moon(), _smoke(), _sea(), _islands(), _volcano(), _foothills(), _naval_base(),
                  _air_base(), _prison(), _ground(), _city_back(), _factory(), _square(), _city_front(), _monument(),
                  _lawn())


def _sky():
    return group('sky', rect(100, 50, 600, 180, NIGHT[0]), circle(232, 140, 190, NIGHT[1]), circle(232, 140, 128, NIGHT[2]),
                 dots(100, 54, 700, 232, 8, lambda x, y: 4 - math.hypot(x - 232, y - 128) / 66, SEA, .55))


def _stars():
    chance = random.Random(5)
    return group('stars',
                 path(''.join(fmt('M%s,%sh1.6v1.6h-1.6Z', chance.uniform(112, 690), chance.uniform(66, 176))
                              for _ in range(54)), CREAM, opacity=.7))


def _moon():
    return group('moon', circle(206, 124, 31, CREAM),
                 disc_dots(206, 124, 29.5, 6, lambda x, y: (x - 200) / 13, SHADE, origin=(174, 92)))


def _smoke():
    chance = random.Random(9)
    return group('smoke',
                 smoke([(556 + 70 * (i / 18) ** 1.3 + chance.uniform(-5, 5), 100 - 58 * (i / 18) ** .8,
                         6 + 20 * i / 18) for i in range(19)], '#0A2022'))


def _sea():
    chance = random.Random(19)
    return group('sea', rect(100, 216, 400, 90, TEAL), rect(100, 216, 400, 3, SEA),
                 path(''.join(fmt('M%s,%s h%s v1.5 h-%s Z', x, y, w, w)
                              for x, y, w in [(chance.uniform(108, 450), chance.uniform(221, 272),
                                               chance.uniform(8, 30)) for _ in range(52)]), FOAM, opacity=.45),
                 path(''.join(fmt('M%s,%s h%s v1.7 h-%s Z', 206 - w / 2 + chance.uniform(-8, 8), y, w, w)
                              for y, w in [(221 + k * 4.5, chance.uniform(14, 34)) for k in range(12)]), CREAM,
                      opacity=.6))


def _islands():
    return group('islands', *(_island(i, x, half) for i, (x, half) in enumerate(ISLANDS)))


def _volcano():
    return group('volcano', volcano(568, 330, 470, 226, '#1A4C49', '#0D2E2E', '#236360', None),
                 path('M542,104 L553,109 L575,106 L594,104 C580,100 556,100 542,104 Z', '#B4541F'),
                 dots(520, 66, 620, 106, 6,
                      lambda x, y: 3 - math.hypot((x - 568) * .7, (y - 106) * 1.3) / 13, '#C9501F', .7),
                 dots(420, 120, 700, 300, 7, _shaded_slope, '#081A1C', .6))


def _shaded_slope(x, y):
    crest = 300 - (300 - 104) * max(0, 1 - abs(x - 568) / 190)
    return (x - 590) / 46 if y > crest else 0


def _foothills():
    return group('foothills',
                 path('M330,286 C380,262 430,270 470,258 C520,246 560,270 610,262 C650,258 680,268 700,262 V330 H330 '
                      'Z', '#0F3436'))


def _naval_base():
    return group('naval-base',
                 placed(16, 0, path('M92,262 H186 L192,268 H92 Z', '#0A2225'), rect(112, 246, 34, 16, '#0D2B2E'),
                        path('M110,246 L129,239 L148,246 Z', '#0A2225'),
                        path('M160,262 V232 L158,230 H182 L182,233 H164 V262 Z M180,233 h1 v10 h-1 Z', '#0A2225')))


def _air_base():
    return group('air-base',
                 placed(-22, -28, path('M586,300 H730 V312 H580 Z', '#0B282A'),
                        path('M636,300 V290 a17,15 0 0,1 34,0 V300 Z', '#0A2225'),
                        path('M682,300 V280 H678 L680,271 H694 L696,280 H692 V300 Z', '#0A2225')))


def _prison():
    return group('prison',
                 placed(444, 282, path('M-44,8 C-40,-2 -34,-4 -30,-4 H32 C40,-2 46,4 50,12 H-46 Z', '#0A2225'),
                        rect(-30, -24, 62, 22, '#2C6A68'), rect(4, -24, 28, 22, '#1F5352'),
                        path(''.join(('M%d,-24 v-4 h5 v4 Z' % x for x in range(-30, 30, 9))), '#2C6A68'),
                        rect(-38, -38, 12, 36, '#367C78'), rect(28, -38, 12, 36, '#1F5352'),
                        path('M-41,-38 L-32,-47 L-23,-38 Z M25,-38 L34,-47 L43,-38 Z', '#0A2225'),
                        path(''.join('M%d,%d h4 v5 h-4 Z' % (x, y)
                                     for x in (-22, -13, -4, 5, 14, 22)
                                     for y in (-19, -10)), '#0A2022')))


def _ground():
    return group('ground', rect(100, 322, 600, 124, '#0D2B2E'))


def _city_back():
    return group('city-back', REAR_LEFT.drawn, REAR_MIDDLE.drawn, REAR_RIGHT.drawn,
                 _cathedral(350, 314, '#205A5C', '#164649'))


def _factory():
    return group('factory',
                 placed(270, 326, rect(-14, -26, 44, 26, '#103639'),
                        path('M-14,-26 l11,-7 v7 l11,-7 v7 l11,-7 v7 l11,-7 v7 Z', '#0B2A2D'),
                        rect(-24, -52, 7, 52, '#0B2A2D'), rect(-12, -44, 6, 44, '#0B2A2D')))


def _square():
    return group('square', path('M318,312 H482 L560,372 L640,412 H160 L240,372 Z', '#2A6160'),
                 path('M400,312 L482,312 L640,412 H400 Z', '#245655'),
                 stroke('M318,322 H482 M296,336 H506 M268,354 H534 M236,376 H566 M196,398 H606 M360,312 L296,412 '
                        'M400,312 V412 M440,312 L504,412', '#1B4A4C', 1.2))


def _city_front():
    return group('city-front', FRONT_LEFT.drawn, FRONT_RIGHT.drawn)


def _monument():
    return group('monument',
                 placed(400, 366, path('M-17,6 L-14,0 H14 L17,6 Z', '#0D2B2E'), rect(-11, -12, 22, 12, '#D6C495'),
                        rect(2, -12, 9, 12, '#A58D58'), rect(-5, -40, 10, 28, '#D6C495'),
                        rect(1, -40, 4, 28, '#A58D58'), rect(-8, -43, 16, 3.5, CREAM),
                        rim(lambda c: placed(0, -43, waver(c, OCHRE), scale=.7), '#2F5A4C', '#9CC9B8', (-.8, -.6))))


def _lawn():
    return group('lawn', path('M108,446 V424 C200,414 300,418 360,416 L352,446 Z', '#16402F'),
                 path('M692,446 V424 C600,414 500,418 440,416 L448,446 Z', '#123626'),
                 path('M364,412 H436 L452,446 H348 Z', '#3A6E69'), path('M400,412 H436 L452,446 H400 Z', '#2E5F5B'))


def fence():
    return layers(_railings_and_gate(), _sentry_boxes())


def _railings_and_gate():
    rail = ''.join(fmt('M%s,%s v-26 l1,-4 l1,4 v26 Z', x, 420)
                   for x in [v for v in range(112, 692, 7) if not 352 < v < 446])
    pier = layers(*(layers(rect(x, 384, 9, 38, '#B98C3F'), rect(x + 5, 384, 4, 38, '#7A5723'),
                           rect(x - 2, 381, 13, 4, '#D9B368')) for x in (134, 198, 262, 530, 594, 658)))
    gate = ''.join(('M%d,420 V%d l1,-4 l1,4 V420 Z' % (x, 384 + abs(x - 399) * .28) for x in range(366, 434, 6)))
    return group('fence', path(rail, '#081A1C'), rect(108, 397, 244, 2, '#081A1C'), rect(448, 397, 244, 2, '#081A1C'),
                 rect(108, 414, 244, 2, '#081A1C'), rect(448, 414, 244, 2, '#081A1C'), pier, path(gate, INK),
                 stroke('M364,396 H436 M364,414 H436', INK, 2),
                 *(layers(rect(x, 370, 14, 54, '#D9B368'), rect(x + 8, 370, 6, 54, '#7A5723'),
                          rect(x - 3, 366, 20, 5, '#F3D58E'), circle(x + 7, 359, 5.5, '#FBE6A2')) for x in (350, 436)))


def _sentry_boxes():
    return group('sentry-boxes',
                 *(placed(x, 424, path('M-12,0 V-44 L0,-54 L12,-44 V0 Z', CREAM),
                          path('M-12,-36 l24,-8 v9 l-24,8 Z M-12,-18 l24,-8 v9 l-24,8 Z M-12,0 v0 l24,-8 v8 Z', RED),
                          path('M-7,0 V-32 a7,7 0 0,1 14,0 V0 Z', '#0A1614')) for x in (322, 478)))


def _island(index, x, half):
    return layers(path(fmt('M%s,219 C%s,206 %s,203 %s,205 C%s,203 %s,210 %s,219 Z', x - half, x - half * .6,
                           x - half * .3, x, x + half * .4, x + half * .7, x + half), '#0A2326'),
                  palm(x - 9, 208, 17, -3, 9, '#0A2326', 3 + index), palm(x + 12, 209, 13, 3, 8, '#0A2326', 8 + index),
                  rect(x - half, 219, 2 * half, 1.5, FOAM, opacity='.4'))


def _cathedral(x, y, c, d):
    return placed(x, y, rect(-22, -34, 44, 34, c), rect(-26, -58, 13, 58, c), rect(13, -58, 13, 58, d),
                  path('M-27,-58 L-19.5,-74 L-12,-58 Z M12,-58 L19.5,-74 L27,-58 Z', d),
                  path('M-13,-34 L0,-46 L13,-34 Z', c), path('M-20,-78 h1.2 v-3 h2 v-1.2 h-2 v-3 h-1.2 Z', d),
                  path('M-6,0 v-14 a6,6 0 0,1 12,0 v14 Z', '#0A2022'), circle(0, -28, 4, '#0A2022'))
