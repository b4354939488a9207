"""The pieces that the state of the country adds to the office at night, each a picture of its own.

They are already cut where the window's frame, the curtains and the desk lie in front of them, so that the game
only lays them over each other. Where each lies says the game's table, src/office/layers.cpp.
"""
import math

from country_map import anchor, plane_mark
from emblem import star
from lettering import POSTER, text
from machines import gunboat, helicopter
from office_view import FRONT_LEFT, FRONT_RIGHT, ISLANDS, REAR_LEFT, REAR_MIDDLE, REAR_RIGHT
from palette import CREAM, FOAM, INK, MAROON, OCHRE, RED, RED2, SHADE, SKIN, SKIN2, SUN, TEAL
from people import crowd, rebel
from scenery import burst, flame
from svg import circle, ellipse, fmt, layers, path, placed, rect, rim, stroke
from texture import dots

FRONT_PILE = (0, 1, 3, 6, 11, 16)       # envelopes, by step
SIDE_PILE = (0, 0, 0, 0, 6, 12)
FOG, FOG_DOTS = '#4E6F6B', '#7FA39C'
BANNER_PLACES = ((246, 380, 1.2), (404, 379, 1.15), (556, 379, 1.2), (332, 338, .95), (462, 340, 1.0))
# What stands on the banners of a faction, 24 x 17, around 0, 0.
SIGNS = {
    'workers': ('M-2,-7.5h4v3h-4Z M-2,4.5h4v3h-4Z M-7.5,-2h3v4h-3Z M4.5,-2h3v4h-3Z '
                'M-5,0a5,5 0 1,1 10,0a5,5 0 1,1 -10,0'),
    'peasants': 'M-11,2 C-5,-1 5,-1 11,2 C5,5 -5,5 -11,2 Z M-5,1 C-4,-7 4,-7 5,1 Z',
    'businessmen': 'M-7,5h14v3h-14Z M-7,1h14v3h-14Z M-7,-3h14v3h-14Z M-7,-7h14v3h-14Z',
    'industrialists': 'M-9,7V-7h4V0l5,-3v3l5,-3v3l4,-3V7Z',
    'landowners': 'M-9,7V-1L0,-7.5L9,-1V7H3V1h-6V7Z',
    'army': star(0, .6, 8.4),
    'police': 'M-10,-4H-1C-1,2 -2,5 -5.5,5C-9,5 -10,2 -10,-4Z M1,-4H10C10,2 9,5 5.5,5C2,5 1,2 1,-4Z M-2,-3.4h4v2h-4Z',
}


def _sentry(fill=INK, belt=CREAM):
    """Standing at attention, feet at y=0, 46 high."""
    return layers(path('M-6,0 L-5,-20 H5 L6,0 H1.5 L0,-16 L-1.5,0 Z', '#143F42'),
                  path('M-7,-18 C-8,-32 -6,-34 0,-34 C6,-34 8,-32 7,-18 Z', RED),
                  path('M0,-34 C6,-34 8,-32 7,-18 H1 Z', RED2), rect(-7, -22, 14, 2.4, belt),
                  circle(0, -37.5, 3.6, SKIN), path('M-5,-39 C-5,-48 5,-48 5,-39 Z', fill),
                  path('M8,-44 h1.6 V-4 h-2.4 V-30 Z', fill), path('M8,-44 l.8,-8 l.8,8 Z', CREAM))


def crowd_some():
    return layers(crowd(290, 512, 340, .34, '#3A1A14', 5, fists=0, hats=.4, step=34, depth=10),
                  crowd(256, 548, 362, .42, '#2A1210', 8, fists=0, hats=.4, step=40, depth=12),
                  crowd(220, 590, 386, .5, INK, 21, fists=.05, hats=.4, step=44, depth=14))


def crowd_full():
    """Admirers: flags, hats, no fists."""
    return layers(crowd(316, 486, 324, .32, '#7A5A34', 5, fists=0, hats=.4, flags=.1, flag_fill='#E3A52F', step=15,
                        depth=14),
                  crowd(292, 512, 338, .4, '#64472A', 6, fists=0, hats=.4, flags=.12, flag_fill=RED, step=16,
                        depth=18),
                  crowd(256, 548, 356, .5, '#4A3420', 7, fists=0, hats=.4, flags=.12, flag_fill=CREAM, step=17,
                        depth=22),
                  crowd(220, 586, 376, .6, '#2E2116', 9, fists=0, hats=.4, flags=.1, flag_fill=RED, step=18, depth=26),
                  crowd(184, 622, 396, .7, INK, 12, fists=0, hats=.4, flags=.07, flag_fill=OCHRE, step=19, depth=20))


def mob_some():
    """A knot of them at the gate and two more along the fence: those who may join."""
    return layers(crowd(350, 452, 374, .6, '#4A1613', 9, fists=.4, hats=.3, step=15, depth=26),
                  crowd(196, 300, 392, .7, INK, 4, fists=.35, hats=.3, step=16, depth=24),
                  crowd(350, 452, 394, .74, INK, 12, fists=.4, hats=.3, step=15, depth=24),
                  crowd(508, 612, 392, .7, INK, 17, fists=.35, hats=.3, step=16, depth=24))


def mob_full():
    return layers(crowd(310, 490, 322, .32, '#A8402A', 5, fists=.3, hats=.3, step=14, depth=14),
                  crowd(288, 516, 336, .4, '#8A2E1C', 6, fists=.34, hats=.3, step=14, depth=18),
                  crowd(252, 552, 354, .5, '#6E2116', 7, fists=.36, hats=.3, step=14, depth=22),
                  crowd(214, 590, 374, .62, '#4A1613', 9, fists=.36, hats=.3, step=15, depth=26),
                  crowd(178, 626, 395, .74, INK, 12, fists=.3, hats=.3, step=15, depth=24))


def banners(faction, count=3):
    cloth = layers(path('M-19,-12 h1.8 V30 h-1.8 Z M17.2,-12 h1.8 V30 h-1.8 Z', INK),
                   path('M-18,-12 C-8,-9 8,-15 18,-12 V8 C8,5 -8,11 -18,8 Z', CREAM),
                   path('M4,-13 C10,-13 14,-13 18,-12 V8 C14,7 10,7 4,8 Z', SHADE),
                   placed(0, -2, path(SIGNS[faction], RED2), scale=.95))
    return layers(*(placed(x, y, cloth, scale=size) for x, y, size in BANNER_PLACES[:count]))


def _torch(x, y, s):
    return placed(x, y, ellipse(0, -24, 15, 15, SUN, opacity='.20'), ellipse(0, -24, 9, 10, SUN, opacity='.28'),
                  path('M-1.2,-16 h2.4 L1,8 h-2 Z', '#3A1C10'), placed(0, -15, flame(0, 0, .3)), scale=s)


def torches():
    return layers(*(_torch(x, y, s)
                    for x, y, s in ((332, 340, .8), (362, 334, .75), (430, 336, .75), (468, 342, .85), (300, 356, 1),
                                    (346, 362, 1), (448, 362, 1), (502, 358, 1), (258, 380, 1.2),
                                    (312, 386, 1.2), (376, 392, 1.25), (424, 388, 1.2), (484, 386, 1.2),
                                    (540, 382, 1.2), (220, 398, 1.3), (580, 398, 1.3))))


def _fire(x, y, s):
    return placed(x, y, ellipse(0, -6, 17, 12, '#E2542A', opacity='.26'), ellipse(0, -6, 10, 8, SUN, opacity='.26'),
                  flame(0, 0, .26), path('M-7,-1 L7,1.4 L6,3 L-8,.6 Z M-7,1 L7,-1.4 L8,0 L-6,2.8 Z', '#2A1210'),
                  scale=s)


def fires_weak():
    return layers(*(_fire(*p) for p in ((548, 176, .62), (606, 206, .66))))


def fires_strong():
    return layers(*(_fire(*p)
                    for p in ((548, 176, .66), (606, 206, .74), (524, 214, .8), (580, 234, .9), (640, 232, .9),
                              (532, 250, 1), (484, 240, .8), (672, 262, .9))),
                  *(placed(x, y, rebel(0, 0, .17, fl, '#050D0E', RED))
                    for x, y, fl in ((560, 254, 1), (640, 264, -1), (602, 236, 1))))


def helicopter_layer():
    return placed(512, 410, ellipse(64, 26, 70, 5, '#0A1F17'),
                  rim(helicopter, '#0B1412', '#9CC9B8', (-.9, -1.1)),
                  path('M24,3 C24,-4 32,-8 40,-8 L42,4 H24 Z', SUN), path('M46,-8 h8 v12 h-8 Z', SUN),
                  path('M92,-4 L128,-7 V-4.4 L92,-1.4 Z', RED), circle(74, 2, 5, OCHRE), circle(74, 2, 2.4, '#0B1412'),
                  circle(133, -22, 2, '#FF5A3C'))


def sentries_content():
    return layers(placed(338, 432, _sentry(), flip=-1, scale=1.12), placed(462, 432, _sentry(), scale=1.12))


def sentries_sullen():
    lounge = layers(path('M-6,0 L-3,-20 H5 L7,0 H3 L1,-16 L-2,0 Z', '#143F42'),
                    path('M-6,-18 C-7,-31 -4,-33 1,-33 C6,-33 7,-31 6,-18 Z', MAROON), circle(2, -36, 3.6, SKIN),
                    path('M-4,-37 C-2,-43 6,-43 8,-38 L9,-36 H4 Z', INK),
                    path('M5,-30 L13,-26 L12,-23 L4,-26 Z', MAROON), rect(6, -35.4, 6, 1.4, CREAM),
                    circle(12.4, -34.6, 1.3, '#E8542A'))
    return layers(placed(335, 434, lounge, scale=1.12),
                  placed(308, 432, path('M0,0 L7,-44 l2.4,.4 L3.4,0 Z', INK), path('M7,-44 l2.4,-8 l0,8.4 Z', CREAM)),
                  placed(458, 438, path('M-12,0 l16,-3 l1,2 l-16,4 Z', INK),
                         path('M4,-5 C4,-11 14,-11 14,-5 L16,-3 H3 Z', '#143F42')))


def warships():
    return layers(placed(376, 213, rim(gunboat, '#081A1C', FOAM, (-1.5, -2)), scale=.26),
                  placed(312, 217, rim(gunboat, '#081A1C', FOAM, (-1.5, -2)), scale=.4),
                  burst(387, 225, 7, SUN, 3, points=9), burst(372, 219, 4.4, '#E8542A', 3, points=9),
                  stroke('M392,222 C410,200 430,190 452,192', '#E8542A', 1.2, stroke_dasharray='3 3'))


def searchlights():
    d = ''
    for bx, by, ang in ((250, 300, -72), (352, 306, -104), (520, 300, -108), (640, 310, -84)):
        a, b = (math.radians(ang - 4), math.radians(ang + 4))
        d += fmt('M%s,%s L%s,%s L%s,%s Z', bx, by, bx + 330 * math.cos(a), by + 330 * math.sin(a),
                 bx + 330 * math.cos(b), by + 330 * math.sin(b))
    return layers(path(d, SUN, opacity='.20'),
                  *(circle(x, y, 3, '#FBE6A2') for x, y in ((250, 300), (352, 306), (520, 300), (640, 310))))


def _roundel(x, y, mark):
    return layers(circle(x, y, 15, SUN, opacity='.18'), circle(x, y, 9.6, '#FBE6A2'), circle(x, y, 8.2, '#2B4A86'),
                  placed(x, y, mark))


def naval_lights():
    return placed(16, 0, path(''.join(('M%d,252 h4 v4 h-4 Z' % x for x in (115, 122, 129, 136))), '#FBE6A2'),
                  *(circle(x, 261, 1.8, SUN) for x in (150, 158, 166, 174, 182)),
                  path(''.join(('M%d,%d h6 v1.6 h-6 Z' % (x, 270 + x // 4 % 3 * 3) for x in range(116, 186, 9))), SUN,
                       opacity='.7'), circle(160, 230, 2.4, '#FF5A3C'),
                  placed(190, 254, rim(gunboat, '#06181A', '#9CC9B8', (-1.4, -2)), scale=.24),
                  _roundel(129, 236, placed(-5.6, -5.6, anchor(), scale=.4)))


def air_lights():
    return placed(-22, -28, *(circle(x, 309, 1.8, SUN) for x in range(588, 692, 9)),
                  *(circle(x, 304, 1.1, FOAM) for x in range(592, 632, 9)),
                  path('M640,300 V292 a13,11 0 0,1 26,0 V300 Z', '#FBE6A2'),
                  path('M648,299 l10,-3 l-4,-1 v-4 l-3,3 l-6,1 Z', INK), rect(681, 273, 12, 5, '#FBE6A2'),
                  path('M687,274 L560,236 L560,256 Z', SUN, opacity='.16'), _roundel(604, 288, placed(-6.2, -6.4, plane_mark(), scale=.37)))


def sold(i):
    x, _ = ISLANDS[i]
    return layers(rect(x - 1, 188, 2, 20, CREAM), rect(x - 19, 178, 38, 16, CREAM, 1),
                  rect(x - 17.5, 179.5, 35, 13, RED, 1),
                  text(x, 190.6, 'SOLD', 13, '#FFF3D6', POSTER, anchor='middle', spacing=.8),
                  path(fmt('M%s,213 h4 v-5 h3 v-4 h7 v4 h3 v5 Z', x - 6), '#06181A'),
                  path(''.join((fmt('M%s,209.5h1.8v1.8h-1.8Z', x + k) for k in (-3, 0, 3, 6))), '#FBE6A2'),
                  path(''.join((fmt('M%s,221h2.4v5h-2.4Z', x + k) for k in (-8, 0, 8))), SUN, opacity='.6'))


def prison_some():
    """Every third cell is lit."""
    return _cells(3)


def prison_full():
    beams = path('M-32,-33 L-110,-8 L-104,10 Z M34,-33 L92,-2 L80,14 Z', SUN, opacity='.28')
    return layers(_cells(1), placed(444, 282, beams))


def _cells(step):
    lit = [(x, y) for x in (-22, -13, -4, 5, 14, 22) for y in (-19, -10)][::step]
    return placed(444, 282, path(''.join('M%d,%d h4 v5 h-4 Z' % place for place in lit), '#FFE48A'),
                  path(''.join(fmt('M%s,%s v5', x + 2, y) for x, y in lit), stroke=INK, stroke_width=.9),
                  circle(-32, -33, 3.2, '#FBE6A2'), circle(34, -33, 3.2, '#FBE6A2'))


def city_rich():
    lamps = ((318, 312), (482, 312), (278, 342), (522, 342), (238, 368), (562, 368))
    return layers(_windows(.46, .42, .5), circle(350, 286, 3.4, SUN),
                  path('M345,314 v-13 a5,5 0 0,1 10,0 v13 Z', SUN, opacity='.9'),
                  stroke('M300,322 C306,316 312,316 318,318 M482,318 C488,316 494,316 500,322', SUN, 1),
                  *(circle(x, y, 2, '#FBE6A2') for x, y in lamps))


def city_poor():
    return _windows(.10, .08, .10)


def _windows(front, rear, middle):
    """The lit share of the windows in each row of houses."""
    return layers(*(row.lights(front, '#FBE6A2') for row in (FRONT_LEFT, FRONT_RIGHT)),
                  *(row.lights(rear, SUN, 2.2, 3) for row in (REAR_LEFT, REAR_RIGHT)),
                  REAR_MIDDLE.lights(middle, OCHRE, 1.8, 2.4))


def _envelope(x, y, rot, w=64):
    return placed(x, y,
                  path('M0,0 L%d,-4 L%d,15 L-8,20 Z' % (w, w + 9), '#5E4E2B', opacity='.55',
                       transform='translate(2,3)'),
                  path('M0,0 L%d,-4 L%d,15 L-8,20 Z' % (w, w + 9), '#FFF8E4', stroke='#6B5628', stroke_width='.8'),
                  stroke(fmt('M0,0 L%s,9 L%s,-4', w / 2 + 2, w), '#A8925F', 1.2),
                  placed(w / 2 + 1, 9, circle(0, 0, 4.4, RED), circle(0, 0, 2, '#E0574A')),
                  path('M%d,-1 l6,-.4 l1.6,5 l-6,.6 Z' % (w - 10), TEAL), rotate=rot)


def envelopes(count):
    """1 to 5: a thin letter, a few, a bundle, two bundles, two towers."""
    front = layers(*(_envelope(224 + (0, 3, -3, 2, -1, 4)[i % 6], 530 - i * 5.2, (0, 2, -2, 1, -1, 2)[i % 6], 64)
                     for i in range(FRONT_PILE[count])))
    side = layers(*(_envelope(152 + (2, -2, 3, 0)[i % 4], 544 - i * 5.2, (1, -2, 0, 2)[i % 4], 58)
                    for i in range(SIDE_PILE[count])))
    return layers(ellipse(268, 548, 54, 8, '#2E150C', opacity='.6'), front, side)


def _guard(x, flip=1):
    """Personal army: dark suit, dark glasses, hand in the jacket; feet hidden by the desk."""
    b = layers(path('M-26,0 L-25,-96 C-25,-112 -14,-116 0,-118 C14,-116 25,-112 25,-96 L26,0 Z', '#0C1412'),
               path('M-26,0 L-25,-96 C-25,-112 -14,-116 0,-118 L-3,0 Z', '#22302C'),
               path('M-7,-117 L0,-92 L7,-117 L0,-121 Z', CREAM), path('M-2.6,-112 h5.2 l1.6,22 l-4,6 l-4,-6 Z', RED2),
               path('M-25,-92 C-31,-70 -29,-58 -22,-54 L6,-64 L4,-74 L-14,-70 L-15,-88 Z', '#2C3C37'),
               circle(6, -69, 5, SKIN2), rect(-7, -128, 14, 12, SKIN2),
               path('M-13,-152 H13 C15,-134 11,-122 0,-120 C-11,-122 -15,-134 -13,-152 Z', SKIN),
               path('M2,-152 H13 C15,-134 11,-122 0,-120 C8,-128 8,-140 2,-152 Z', SKIN2),
               path('M-14,-144 H-1 C-1,-135 -12,-134 -14,-144 Z M1,-144 H14 C12,-134 1,-135 1,-144 Z M-2,-143.4 h4 '
                    'v2 h-4 Z', INK),
               path('M-15,-150 C-17,-170 17,-170 15,-150 L24,-148 C24,-145 -24,-145 -24,-148 Z', '#0C1412'),
               path('M-15,-152 H15 V-156 H-15 Z', RED),
               stroke('M-24,-148 C-24,-150 -20,-150 -15,-150 C-16,-160 -10,-165 -2,-165', '#5F7A72', 1.2))
    return placed(x, 474, b, flip=flip, scale=1.35)


def guards(count):
    return layers(_guard(722), _guard(782, flip=-1) if count > 1 else '')


def fog():
    """What nobody has reported: the square, the mountain and the prison lie in it."""
    banks = ((110, 176, 300, .20), (420, 158, 300, .34), (340, 214, 380, .40), (90, 268, 420, .34), (330, 262, 400, .44),
             (60, 318, 460, .56), (300, 306, 440, .58), (90, 352, 660, .62), (60, 394, 700, .50))
    return layers(*(path(_bank(x, y, wide), FOG, opacity=opacity) for x, y, wide, opacity in banks),
                  dots(108, 150, 692, 446, 8, lambda x, y: min(2.6, (y - 170) / 70), FOG_DOTS, .35))


def _bank(x, y, wide):
    """A long low cloud with round ends."""
    return fmt('M%s,%s c%s,-26 %s,-30 %s,-14 c%s,-26 %s,-20 %s,2 c%s,-10 %s,4 %s,20 c%s,26 -%s,40 -%s,38 c-%s,12 -%s,14 -%s,2 '
               'c-%s,10 -%s,-8 -%s,-48 Z',
               x, y + 24, wide * .06, wide * .16, wide * .26, wide * .1, wide * .24, wide * .3, wide * .12, wide * .3,
               wide * .38, wide * .02, wide * .1, wide * .3, wide * .2, wide * .3, wide * .36, wide * .2, wide * .3, wide * .28)
