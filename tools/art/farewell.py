"""The last page of "El Faro" about a president: the empty page, and the four pictures for it, 476 x 182.

The game sets every other word itself. The pictures are drawn 190 high and lose four pixels at the top and
at the foot.
"""
import math
import random

from machines import helicopter
from newspaper import blank_page
from outlaws import marksman
from palace import PRINT, palace
from palette import News
from people import crowd, dark_glasses, officers_cap, rebel
from president import president
from recolour import printed
from scenery import burst, flame, palm, plume
from svg import circle, clipped, ellipse, fmt, frame, layers, path, placed, rect, ring, stroke
from texture import disc_dots, dots, grain, rays

WIDTH, HEIGHT = 476, 190
FRAME_HEIGHT = 182
CUT = 4                 # at the top and at the foot
FLYING_NOTES = (
    # x, y, turn, size
    (286, 96, 24, 1), (316, 74, -30, .9), (352, 60, 14, .8), (250, 112, 60, .9), (390, 86, -14, .9), (410, 118, 40, 1),
    (300, 120, -12, 1), (428, 60, 24, .7), (270, 58, -50, .7), (412, 150, 10, 1.1), (262, 166, -20, 1.2))


def page():
    """Masthead and ears, and room for everything else."""
    return blank_page('No. 2,001')


def framed(picture):
    """One of the pictures below in the frame that the page keeps for it."""
    return layers(clipped('picture', WIDTH, FRAME_HEIGHT, placed(0, -CUT, picture)),
                  grain(WIDTH, FRAME_HEIGHT, .09),
                  frame(0, 0, WIDTH, FRAME_HEIGHT, News.INK, 3))


def _sky(cx, cy, ray_count):
    return layers(rect(0, 0, WIDTH, HEIGHT, News.PAPER), rays(cx, cy, ray_count, 620, News.RAY, turn=.05),
                  dots(0, 0, WIDTH, 80, 6, lambda x, y: 2.5 - y / 32, News.INK, .7))


def executed():
    """The road to the airfield: the committee has been waiting, and the suitcase did not hold."""
    return layers(_sky(352, 118, 22), circle(352, 118, 60, News.LIGHT), circle(352, 118, 52, News.RED),
                  disc_dots(352, 118, 50, 6, lambda x, y: (y - 84) / 15, News.INK, .9, (300, 66)),
                  path('M0,118 C60,104 140,112 220,116 C300,112 380,108 476,114 V190 H0 Z', News.GREY),
                  dots(0, 112, WIDTH, 190, 6, lambda x, y: 2.8 - (y - 112) / 26, News.PAPER, .5),
                  placed(392, 96, _airliner()), _road(), _suitcase(), *(_banknote(*place) for place in FLYING_NOTES),
                  officers_cap(222, 160, .46, rotate=-22),
                  *(placed(x, 40 + (1.34 - s) * 96, _committee_man(), scale=s)
                    for x, s in ((14, 1.34), (74, 1.18), (128, 1.04))), path('M0,186 H476 V190 H0 Z', News.INK))


def _airliner():
    return layers(path('M-4,14 C-4,6 10,4 20,4 H70 C82,4 88,8 92,12 L96,-6 H104 L102,16 C90,20 20,22 6,20 C0,20 '
                       '-4,18 -4,14 Z M34,12 L60,28 H70 L56,12 Z', News.INK),
                  path('M6,10 h5 v3 h-5 Z M18,10 h4 v3 h-4 Z M26,10 h4 v3 h-4 Z M64,10 h4 v3 h-4 Z', News.LIGHT),
                  path('M12,20 L4,30 H8 L16,20 Z', News.INK))


def _road():
    """With its dashes (y, width, height), which grow towards us."""
    dashes = ((122, 3, 6), (134, 4.4, 9), (150, 6, 12), (170, 8, 16))
    return layers(path('M236,116 H262 L420,190 H120 Z', News.MUD),
                  path(''.join(fmt('M%s,%s h%s l%s,%s h-%s Z', 248 - w / 2, y, w, w * .12, h, w * 1.2)
                               for y, w, h in dashes), News.LIGHT))


def _suitcase():
    return placed(330, 158, path('M-44,6 L-38,-20 H36 L44,6 Z', News.INK), path('M-44,6 H44 V22 H-44 Z', News.SOOT),
                  path('M-36,-18 L-60,-46 H20 L36,-18 Z', News.INK),
                  path('M-33,-21 L-53,-43 H18 L31,-21 Z', News.LIGHT), path('M-30,-6 H30 V4 H-36 Z', News.LIGHT),
                  path('M-12,22 v5 h24 v-5 Z', News.INK), stroke('M-36,6 H40', News.RED, 3))


def _banknote(x, y, turn, size):
    return placed(x, y, rect(-11, -6, 22, 12, News.LIGHT, stroke=News.INK, stroke_width=1.6),
                  circle(0, 0, 3.2, News.RED), scale=size, rotate=turn)


def _committee_man():
    """A man with a rifle on his shoulder, seen from behind, down to the frame's edge."""
    return layers(path('M-24,150 L-26,70 C-28,44 -16,38 0,38 C16,38 28,44 26,70 L24,150 Z', News.INK),
                  circle(0, 22, 13, News.INK),
                  path('M-22,20 C-12,14 12,14 22,20 C14,24 -14,24 -22,20 Z M-11,18 C-10,0 10,0 11,18 Z', News.INK),
                  path('M-11,15 H11 V19 H-11 Z', News.RED),
                  path('M20,74 L36,-16 L40,-15 L28,76 Z M38,-15 L40,-40 L42,-15 Z', News.INK),
                  path('M-18,60 L18,84 L16,90 L-19,66 Z', News.GREY))


def found_in_the_basement():
    """The palace burns, the people are on the stairs, and he sits behind the last barrel."""
    return layers(rect(0, 0, WIDTH, HEIGHT, News.PAPER), rays(238, 90, 24, 420, News.RAY, turn=.05),
                  dots(0, 0, WIDTH, 60, 6, lambda x, y: 2.5 - y / 26, News.INK, .7),
                  placed(134, -58, printed(palace(PRINT)), scale=.5), plume(176, 8, 40, -40, 6, 20, 8, News.INK, 3),
                  plume(306, 6, 40, -40, 7, 20, 8, News.INK, 5),
                  crowd(-8, 486, 54, .62, News.GREY, 5, fists=.55, hats=.3, flags=.08, flag_fill=News.RED, step=15,
                        depth=16), path('M0,66 C120,60 340,60 476,66 V190 H0 Z', News.INK), _cellar(), _visitors(),
                  _wine(), _hidden_president(), rect(0, 176, WIDTH, 14, News.INK))


def _cellar():
    return layers(path('M86,84 H404 a8,8 0 0,1 8,8 V176 H86 Z', News.PAPER),
                  path('M86,84 H404 a8,8 0 0,1 8,8 V98 H86 Z', News.GREY),
                  dots(86, 92, 412, 176, 6, lambda x, y: math.hypot((x - 286) * .6, y - 140) / 26 - .8, News.INK,
                       .75), path('M86,176 V62 H44 L44,66 L62,66 V84 L86,108 Z', News.PAPER),
                  path('M44,62 h14 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v30 H86 V62 Z', News.GREY),
                  path('M44,60 h14 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v14 h12 v4 h-16 v-14 h-12 v-14 '
                       'h-12 v-14 h-12 v-14 h-12 v-14 h-12 v-14 h-12 Z', News.INK))


def _visitors():
    """Two of the people on the stairs, with a torch."""
    return layers(rebel(78, 90, .62, fill=News.INK), rebel(106, 118, .66, fill=News.INK),
                  placed(98, 66, flame(0, 0, .34, News.RED, News.LIGHT)), path('M97,66 h2.4 L101,96 h-3 Z', News.INK),
                  path('M98,62 L220,100 L210,176 L146,150 Z', News.LIGHT, opacity=.35))


def _wine():
    """Barrels, and the better bottles on a shelf."""
    barrel = layers(ellipse(0, 0, 17, 18, News.INK), ellipse(0, 0, 14, 15, News.GREY),
                    stroke('M-11,-9 H11 M-14,0 H14 M-11,9 H11', News.INK, 1.4), circle(0, 0, 2.6, News.RED))
    bottle = 'M-2,0 h4 v7 l3,4 v16 h-10 v-16 l3,-4 Z'
    return layers(*(placed(x, y, barrel) for x, y in ((352, 158), (386, 158), (369, 128))),
                  *(placed(176 + k * 13, 100, path(bottle, News.INK if k % 2 else News.RED)) for k in range(5)),
                  rect(166, 127, 70, 3, News.INK), rect(168, 97, 3, 33, News.INK), rect(231, 97, 3, 33, News.INK))


def _hidden_president():
    return layers(placed(290, 148, path('M-34,28 C-34,4 -20,-6 0,-6 C20,-6 34,4 34,28 Z', News.INK),
                         ellipse(0, -18, 15, 17, News.MUD),
                         path('M0,-35 C10,-35 15,-28 15,-18 C15,-8 10,-1 0,-1 C6,-8 6,-26 0,-35 Z', News.GREY)),
                  dark_glasses(290, 129, .34), officers_cap(290, 112, .36),
                  path('M283,138 C286,135 294,135 297,138 C294,140 286,140 283,138 Z', News.INK),
                  placed(292, 162, path('M-26,-16 C-30,-4 -30,4 -26,16 H26 C30,4 30,-4 26,-16 Z', News.INK),
                         path('M-24,-13 C-27,-4 -27,4 -24,13 H24 C27,4 27,-4 24,-13 Z', News.GREY),
                         stroke('M-28,-7 H28 M-28,7 H28', News.INK, 3)),
                  placed(246, 168, path('M-3,6 V-12 H3 V6 Z', News.LIGHT), path('M-9,8 H9 V5 H-9 Z', News.INK),
                         placed(0, -12, flame(0, 0, .18, News.RED, News.LIGHT))))


def assassinated():
    """The balcony in the sight; the microphones are still on."""
    cx, cy = 220, 84
    return layers(_sky(cx, cy, 26), circle(cx, cy, 92, News.LIGHT), ring(cx, cy, 92, News.INK, 3), _balcony(),
                  _microphones(), officers_cap(236, 44, .52, rotate=28),
                  stroke('M196,86 C204,70 210,64 218,58 M208,92 C214,80 220,74 228,70', News.LIGHT, 2.2,
                         stroke_dasharray='5 4'), ring(cx, cy, 92, News.RED, 2.4), ring(cx, cy, 34, News.RED, 2),
                  stroke('M%d,%d H%d M%d,%d V%d' % (cx - 104, cy, cx + 104, cx, cy - 84, cy + 30), News.RED, 1.6),
                  _roof_opposite(), _frightened_birds(),
                  crowd(-8, 486, 172, .74, News.INK, 15, fists=0, hats=.5, step=17, depth=30))


def _balcony():
    pillars = layers(rect(110, 0, 18, 120, News.SHADE), rect(122, 0, 6, 120, News.GREY),
                     rect(312, 0, 18, 120, News.SHADE), rect(324, 0, 6, 120, News.GREY))
    return layers(pillars, path('M158,120 V40 a62,56 0 0,1 124,0 V120 Z', News.INK),
                  path('M164,120 V42 a56,50 0 0,1 112,0 V120 Z', News.SOOT), rect(92, 116, 256, 10, News.LIGHT),
                  rect(92, 124, 256, 3, News.GREY),
                  path(''.join(('M%d,126 h9 v24 h-9 Z' % x for x in range(98, 340, 17))), News.SHADE),
                  rect(88, 150, 264, 9, News.LIGHT), rect(88, 157, 264, 3, News.GREY),
                  path('M170,118 H270 V160 L220,178 L170,160 Z', News.RED),
                  path('M170,118 H270 V125 H170 Z', News.LIGHT), ring(220, 143, 13, News.LIGHT, 4.4),
                  path('M222,145 l12,14 l-4,4 l-11,-14 Z', News.LIGHT))


def _microphones():
    one = layers(path('M-1.6,0 V-30 H1.6 V0 Z', News.LIGHT), path('M-5,-28 V-42 a5,5 0 0,1 10,0 V-28 Z', News.LIGHT),
                 path('M-5,-36 H5 V-34 H-5 Z', News.INK))
    return layers(*(placed(x, 118, one, rotate=turn) for x, turn in ((206, -16), (220, 0), (234, 16))))


def _roof_opposite():
    tiles = ((392, 98), (412, 91), (432, 84), (452, 77), (392, 114), (412, 107), (432, 100), (452, 93))
    return layers(path('M476,60 L380,96 V190 H476 Z', News.INK),
                  path(''.join(('M%d,%d l14,-5 v4 l-14,5 Z' % tile for tile in tiles)), News.GREY),
                  placed(448, 66, marksman(News.INK, News.LIGHT), flip=-1, scale=.5),
                  burst(342, 58, 13, News.RED, 3, points=11), burst(342, 58, 7, News.LIGHT, 5, points=11),
                  stroke('M328,60 L262,64', News.INK, 1.6, stroke_dasharray='8 5'))


def _frightened_birds():
    bird = path('M0,0 C-6,-8 -14,-8 -20,-4 C-12,-4 -6,0 0,6 C6,0 12,-4 20,-4 C14,-8 6,-8 0,0 Z', News.INK)
    return layers(*(placed(x, y, bird, scale=size)
                    for x, y, size in ((60, 40, 1), (34, 70, .8), (82, 78, .7), (40, 24, .6), (290, 20, .6))))


def escaped():
    """His first free day: a foreign coast, a drink, and everything that could be carried."""
    return layers(_sky(160, 96, 24), circle(160, 92, 88, News.LIGHT), circle(160, 92, 78, News.RED),
                  disc_dots(160, 92, 76, 6, lambda x, y: (y - 44) / 24, News.INK, .8, (82, 14)), _towers_and_sea(),
                  path('M0,144 C140,132 320,138 476,140 V190 H0 Z', News.PAPER),
                  dots(0, 136, WIDTH, 190, 6, lambda x, y: (y - 138) / 18, News.GREY, .6),
                  placed(282, 34, helicopter(News.INK), scale=.62, rotate=-5),
                  placed(42, -2, printed(president()), scale=.395), _drink(), _luggage(),
                  *(_banknote(x, y, turn, .8)
                    for x, y, turn in ((322, 178, 12), (404, 184, -20), (300, 160, 40), (452, 182, 16))),
                  palm(452, 150, 120, -16, 50, News.INK, 5), palm(8, 186, 150, 16, 52, News.INK, 9),
                  rect(0, 186, WIDTH, 4, News.INK))


def _towers_and_sea():
    chance = random.Random(4)
    drawn, x = [], 250
    while x < 480:
        wide, high = (chance.uniform(14, 26), chance.uniform(34, 96))
        drawn.append(_tower(x, 128 - high, wide, high, chance))
        x += wide + chance.uniform(0, 3)
    glints = ''.join(fmt('M%s,%s h16 v1.4 h-16 Z', chance.uniform(240, 460), chance.uniform(127, 144))
                     for _ in range(22))
    return layers(*drawn, path('M236,124 H476 V146 H236 Z', News.MUD), path(glints, News.LIGHT))


def _tower(x, top, wide, high, chance):
    panes = ''.join(fmt('M%s,%sh2.4v3h-2.4Z', x + 3 + column * 5, top + 5 + row * 7)
                    for column in range(int((wide - 4) / 5))
                    for row in range(int((high - 6) / 7)) if chance.random() < .6)
    mast = rect(x + wide / 2 - 1, top - 16, 2, 16, News.GREY) if high > 76 else ''
    return layers(rect(x, top, wide, high + 10, News.GREY), mast, path(panes, News.PAPER))


def _drink():
    return placed(258, 172,
                  path('M-15,-40 H15 L3,-16 V-3 H10 V0 H-10 V-3 H-3 V-16 Z', News.LIGHT, stroke=News.INK,
                       stroke_width=1.6), path('M-11,-33 H11 L2,-18 H-2 Z', News.RED),
                  stroke('M3,-36 L16,-62', News.INK, 1.6),
                  path('M-2,-58 C4,-70 24,-70 32,-54 C22,-58 8,-60 -2,-58 Z', News.RED),
                  path('M12,-66 C18,-66 22,-60 22,-56 L14,-58 Z', News.LIGHT))


def _luggage():
    pieces = ((330, 146, 62, 34, News.INK), (398, 150, 50, 30, News.SOOT), (346, 116, 52, 30, News.SOOT),
              (404, 124, 38, 26, News.INK), (362, 92, 34, 24, News.INK))
    return layers(*(_suitcase_of_the_state(*piece) for piece in pieces))


def _suitcase_of_the_state(x, y, wide, high, fill):
    return layers(rect(x, y, wide, high, fill, 3),
                  rect(x + wide / 2 - 8, y - 5, 16, 6, 'none', 2, stroke=News.INK, stroke_width=2),
                  rect(x + 8, y, 4, high, News.GREY), rect(x + wide - 12, y, 4, high, News.GREY),
                  ring(x + wide / 2, y + high / 2, 6, News.LIGHT, 1.8),
                  path(fmt('M%s,%s l6,6 l-2,1.6 l-5,-6 Z', x + wide / 2 + 1, y + high / 2 + 1), News.LIGHT))
