"""Newspaper illustrations: what the guerrillas burn, blow up and break."""
from newsprint import HEIGHT, WIDTH, dashes, ground, sky
from palette import News
from people import rebel
from scenery import blast, flames, plume
from svg import circle, fmt, group, layers, path, placed, rect, stroke
from texture import dots


def burning_estate():
    fires = ((20, 250, 1.2), (62, 246, .8), (98, 250, 1.5), (150, 250, 1.0), (322, 246, .9), (362, 250, 1.4),
             (408, 248, 1.0), (452, 252, 1.5), (206, 134, .6), (272, 132, .8))
    return layers(
        sky(350, 150, 70),
        plume(130, 170, 150, -190, 20, 54, 18, News.INK, 3), plume(330, 190, 110, -160, 14, 40, 12, News.GREY, 9),
        group('estate', placed(
            240, 222, path('M-58,0 V-44 H58 V0 Z M-68,-42 L-44,-72 H44 L68,-42 Z', News.INK),
            *(rect(i * 22 - 50, -34, 12, 16, News.RED) for i in range(5)), rect(-66, -8, 132, 4, News.PAPER),
            scale=1.25)),
        ground(226),
        group('fires', flames(fires, News.RED, News.LIGHT)),
        _sugar_cane(),
        rebel(44, 250, 1.1), rebel(444, 250, 1.1, flip=-1))


def _sugar_cane():
    canes = ''
    for i in range(32):
        x, high = i * 15 + 2, 34 + i * 37 % 22
        canes += fmt('M%s,292 l3,%s l3,%s Z M%s,%s l-12,-8 l13,3 Z M%s,%s l13,-6 l-12,9 Z',
                     x, -high, high, x + 2, 292 - high * .6, x + 3, 292 - high * .75)
    return path(canes, News.INK)


def exploding_factory():
    rubble = ('M280,56 l10,-30 l14,6 l-12,30 Z M400,96 l26,-14 l6,10 l-24,16 Z M392,204 l30,10 l-4,12 l-30,-10 Z '
              'M236,98 l-22,-22 l9,-8 l22,22 Z')
    return layers(
        sky(150, 140),
        plume(120, 60, -90, -70, 14, 34, 8, News.GREY, 3), plume(196, 50, -70, -60, 14, 34, 8, News.GREY, 4),
        _factory(),
        blast(330, 150, 116, 11), plume(330, 70, 70, -90, 20, 54, 8, News.INK, 6),
        path(rubble, News.INK),
        group('cog', placed(
            420, 60, path('M-5,-14 h10 l2,4 l8,2 v8 l-8,2 l-2,4 h-10 l-2,-4 l-8,-2 v-8 l8,-2 Z', News.INK),
            circle(0, -4, 4, News.PAPER), rotate=20)),
        ground(248),
        rebel(30, 258, 1.0),
        group('detonator', rect(150, 276, 40, 14, News.RED),
              stroke('M156,276 v-8 h28 v8 M170,268 v-16', News.RED, 4),
              stroke('M190,284 C220,270 240,296 280,262', News.RED, 2.6)))


def _factory():
    return group(
        'factory',
        path('M60,250 V150 L100,126 V150 L140,126 V150 L180,126 V150 L220,126 V250 Z M108,140 L112,60 H130 L134,140 Z '
             'M184,140 L188,50 H206 L210,140 Z M216,250 V166 H420 V250 Z', News.INK),
        *(rect(72 + i * 36, y, 18, 16, News.PAPER) for i in range(4) for y in (176, 208)))


def broken_bridge():
    def on_a_cliff(x, y):
        left, right = x < 112 + (y - 182) * .34 and y > 178, x > 366 - (y - 182) * .36 and y > 180
        return 1.5 if left or right else 0
    debris = 'M196,196 l36,16 l-4,9 l-36,-16 Z M262,190 l28,-14 l5,9 l-28,14 Z M222,240 l30,-6 l2,9 l-30,6 Z'
    return layers(
        sky(238, 90),
        path('M0,170 C40,150 80,156 112,182 L150,292 L0,292 Z M476,150 C430,140 396,160 366,182 L326,292 L476,292 Z',
             News.GREY),
        dots(0, 150, WIDTH, HEIGHT, 6, on_a_cliff, News.PAPER, .45),
        _bridge_ends(),
        blast(240, 150, 82, 21),
        path(debris, News.INK),
        _train(),
        plume(102, 108, -90, -60, 8, 24, 8, News.GREY, 5),
        dashes(((160, 262, 50), (230, 270, 60), (190, 282, 80), (262, 256, 40)), News.INK),
        rebel(420, 262, .9, flip=-1), rebel(456, 256, .8, flip=-1))


def _bridge_ends():
    left = ''.join('M%d,150 l14,-30 h3 l14,30 h-3 l-12.5,-26 l-12.5,26 Z' % x for x in (6, 38, 70, 102, 134))
    right = ''.join('M%d,152 l14,-30 h3 l14,30 h-3 l-12.5,-26 l-12.5,26 Z' % x for x in (310, 342, 374, 406, 438))
    return group(
        'bridge',
        path('M0,150 H196 L204,160 L190,164 H0 Z M286,152 H476 V166 H292 L278,160 Z', News.INK),
        path(left + right + 'M20,120 h140 v4 h-140 Z M324,122 h140 v4 h-140 Z', News.INK),
        path('M96,164 h20 l8,128 h-36 Z M372,166 h20 l8,126 h-36 Z', News.INK))


def _train():
    return group('train', placed(
        0, 150,
        path('M-10,-2 V-34 H66 V-2 Z M70,-2 V-26 H140 C152,-26 158,-16 158,-2 Z M96,-26 v-14 h12 v14 Z M72,-26 v-12 '
             'h18 v12 Z', News.RED),
        *(rect(x, -28, 14, 12, News.PAPER) for x in (0, 22, 44)),
        *(circle(x, 0, 6, News.INK) for x in (6, 24, 44, 60, 82, 100, 120, 142))))
