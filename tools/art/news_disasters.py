"""Newspaper illustrations: drought, hurricane and earthquake."""
from newsprint import HEIGHT, WIDTH, ground, sky, sun_shade
from palace import PRINT, palace
from palette import News
from people import crowd
from scenery import hut, palm, plume
from svg import fmt, group, layers, path, placed, polyline, rect, stroke
from texture import dots

CRACKS = (
    ((30, 292), (52, 262), (40, 238), (66, 214), (60, 196)), ((52, 262), (98, 250), (122, 226), (118, 204)),
    ((66, 214), (96, 206), (112, 194)), ((190, 292), (208, 264), (186, 236), (208, 210), (200, 192)),
    ((208, 264), (252, 250), (264, 222), (290, 206)), ((186, 236), (150, 246), (122, 226)),
    ((330, 292), (318, 258), (350, 232), (342, 206), (356, 190)), ((318, 258), (282, 268), (252, 250)),
    ((350, 232), (402, 226), (424, 204)), ((440, 292), (424, 258), (450, 232), (448, 206)), ((424, 258), (402, 226)),
)
FISSURE = 'M232,240 L246,252 L238,262 L262,276 L250,292 L300,292 L288,272 L296,260 L270,250 L266,238 Z'


def drought():
    tree = ('M352,262 C358,220 350,190 362,150 L352,118 L358,116 L368,138 L384,96 L390,98 L376,142 L404,120 L408,125 '
            'L376,156 C370,190 376,226 386,262 Z M356,176 L326,150 L329,145 L360,166 Z')
    vulture = 'M382,96 c-8,-16 2,-28 14,-26 c2,-8 10,-10 14,-5 l7,2 l-7,3 c4,10 -2,24 -14,28 l-4,10 l-4,0 l1,-9 Z'
    return layers(
        sky(130, 96, 74),
        sun_shade(130, 96, 72, 76, 34, origin=(50, 20), opacity=.8),
        path('M0,196 C90,180 200,190 280,184 C360,178 420,186 476,180 L476,292 L0,292 Z', News.GREY),
        dots(0, 186, WIDTH, HEIGHT, 6, lambda x, y: 2.8 - (y - 190) / 40 if y > 196 else 0, News.PAPER, .5),
        stroke(''.join(polyline(crack) for crack in CRACKS), News.INK, 3.4, stroke_linejoin='round'),
        path(tree, News.INK), path(vulture, News.INK),
        group('skull', placed(
            232, 240,
            path('M-24,-14 C-52,-16 -58,-34 -60,-40 C-48,-28 -36,-28 -22,-26 C-16,-32 16,-32 22,-26 C36,-28 48,-28 '
                 '60,-40 C58,-34 52,-16 24,-14 L14,16 C12,28 6,30 0,30 C-6,30 -12,28 -14,16 Z', News.LIGHT,
                 stroke=News.INK, stroke_width=3),
            path('M-18,-12 l12,2 l-4,10 l-9,-4 Z M18,-12 l-12,2 l4,10 l9,-4 Z M-6,20 l4,2 l-2,5 Z M6,20 l-4,2 l2,5 Z',
                 News.INK))))


def hurricane():
    return layers(
        rect(0, 0, WIDTH, HEIGHT, News.PAPER),
        dots(0, 0, WIDTH, 230, 6, lambda x, y: 4.2 - y / 60, News.INK, .85),
        _whirl(),
        rect(0, 0, WIDTH, 30, News.INK),
        plume(0, 26, 480, -4, 34, 40, 16, News.INK, 3), plume(10, 2, 470, 0, 40, 40, 12, News.GREY, 8),
        path('M0,246 C120,236 300,238 476,244 L476,292 L0,292 Z', News.INK),
        palm(70, 262, 110, 74, 62, News.INK, 3), palm(420, 262, 120, -86, 66, News.INK, 5),
        hut(330, 96, .8, News.RED, 38), hut(140, 172, .6, rotate=-50), hut(384, 176, .55, rotate=118),
        _splinters(),
        _flying_cow(),
        crowd(-6, 120, 262, .9, News.RED, 4, fists=.5, step=30))


def _whirl():
    funnel = ('M196,40 C150,84 214,104 182,142 C166,166 214,182 200,214 C196,230 214,240 210,262 C226,262 236,252 '
              '240,240 C276,218 246,196 282,172 C326,140 266,116 330,86 C352,70 356,56 350,40 Z')
    bands = ((70, 132, 184), (104, 104, 194), (138, 86, 184), (172, 64, 200), (206, 46, 202), (234, 28, 212))
    return layers(
        path(funnel, News.INK),
        *(path(fmt('M%s,%s c%s,12 %s,12 %s,-4 c%s,22 %s,22 %s,4 Z', x, y, wide * .3, wide * .8, wide, -wide * .2,
                   -wide * .8, -wide), News.PAPER, opacity=.9)
          for y, wide, x in bands))


def _splinters():
    places = ((60, 120, 18), (112, 92, 12), (300, 150, 16), (352, 216, 18), (262, 122, 10), (130, 220, 14),
              (312, 202, 9))
    return layers(*(path(fmt('M%s,%s l%s,-4 l1,3 l%s,4 Z', x, y, long, -long), News.INK) for x, y, long in places))


def _flying_cow():
    return group('cow', placed(
        96, 66,
        path('M0,10 C2,0 14,-3 30,-2 C44,-3 54,0 58,4 L70,-4 L74,2 L82,4 L80,12 L66,16 L60,20 L58,44 L53,44 L51,26 '
             'L20,26 L17,44 L12,44 L10,26 L4,22 L-4,36 L-7,34 L0,18 Z M72,-4 l2,-8 l3,8 Z', News.INK),
        path('M20,2 h12 v9 h-12 Z M40,10 h9 v8 h-9 Z', News.PAPER), scale=.9, rotate=-24))


def earthquake():
    chunks = ('M40,292 L60,270 L50,258 L84,246 L78,240 L60,244 L34,258 L42,270 L18,292 Z M400,292 L392,272 L410,262 '
              'L396,246 L410,242 L430,262 L416,274 L432,292 Z')
    tremor = ''.join('M%d,150 q6,-8 0,-16 q-6,-8 0,-16' % x for x in (84, 98, 378, 392))
    return layers(
        sky(238, 170, ray_count=26),
        group('ruins', placed(22, 10, hut(10, 222, 1.1, News.GREY, -14), hut(66, 226, .9, News.GREY, 12),
                              hut(378, 226, 1.0, News.GREY, 16), hut(432, 220, 1.2, News.GREY, -10))),
        group('palace', placed(108, 86, palace(PRINT), scale=.62)),
        ground(240),
        path(chunks, News.RED),
        *_cheering_crowd(-6, 214, 240, 6, 16),
        *_cheering_crowd(310, 490, 490, 9, 19),
        path(FISSURE, News.LIGHT),
        stroke(tremor, News.RED, 3))


def _cheering_crowd(left, rear_right, front_right, rear_seed, front_seed):
    return (crowd(left, rear_right, 246, 1.0, News.RED, rear_seed, fists=.6, flags=.12, flag_fill=News.LIGHT, depth=24),
            crowd(left, front_right, 272, 1.4, News.INK, front_seed, fists=.5))
