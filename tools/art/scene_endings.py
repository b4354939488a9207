"""Pictures of how it may end: the civil war won, the execution, and the president lying in state; 620 x 250."""
import math
import random
import re

from machines import tank
from palace import DAY, NIGHT, palace
from palette import (CREAM, FOAM, GREEN, INK, MAROON, OCHRE, OCHRE2, RED, RED2, SEA, SHADE, SKIN2, SUN, TEAL, TEAL2,
                     TEAL3)
from people import crowd, dark_glasses, officers_cap, soldier, waver
from scenery import flame, plume
from svg import circle, ellipse, layers, path, placed, polygon, rect, ring, stroke
from texture import disc_dots, dots, glow, grain, rays

WIDTH, HEIGHT = 620, 250
OUTLINE = (     # of a waving man, feet at y=0
    (-30, 0), (-31, -22), (-33, -44), (-35, -66), (-34, -86), (-26, -100), (-13, -107), (-17, -122), (-17, -136),
    (-33, -140), (-31, -154), (-17, -165), (0, -168), (17, -165), (31, -154), (33, -140), (18, -136), (17, -122),
    (13, -107), (27, -103), (40, -118), (51, -136), (60, -156), (73, -164), (80, -152), (70, -140), (60, -120),
    (50, -100), (38, -82), (34, -64), (33, -44), (31, -22), (30, 0))
STRAY_HOLES = ((250, 80), (560, 70), (318, 60), (506, 178), (272, 160), (590, 140))


def civil_war_won():
    """The president on the barricade, which he has won; a lady sweeps up the other opinion."""
    cx, cy = 310, 128
    return layers(rect(0, 0, WIDTH, HEIGHT, TEAL2), rays(cx, cy, 26, 700, TEAL, turn=.03),
                  glow(WIDTH, HEIGHT, cx, cy, 8, 4.2, 74, SUN, .7), circle(cx, cy, 118, OCHRE),
                  circle(cx, cy, 103, SUN), disc_dots(cx, cy, 101, 7, lambda x, y: (y - 118) / 22, OCHRE),
                  placed(24, 92, palace(DAY), scale=.36), plume(118, 92, 50, -100, 5, 22, 14, TEAL3, 4),
                  plume(560, 132, 40, -150, 7, 30, 16, TEAL3, 9), _burning_quarter(), _heap(), _victor_and_flag(),
                  placed(-16, 172, tank(INK, '#33403C'), scale=1.25),
                  placed(636, 172, tank(INK, '#33403C'), flip=-1, scale=1.25),
                  *(placed(120 + i * 30, 176 + i % 2 * 2, soldier(INK, SHADE), scale=.52) for i in range(3)),
                  path('M0,238 C140,230 480,230 620,238 V250 H0 Z', INK), _cleaner(), _swept_up(),
                  grain(WIDTH, HEIGHT, .15, .05))


def _burning_quarter():
    fires = ((480, 126), (498, 110), (506, 130), (524, 142), (548, 130), (580, 146), (600, 146))
    return layers(path('M470,180 V118 h22 v-18 h26 v26 h18 v-12 h30 v22 h54 V200 H470 Z', TEAL3),
                  path(''.join(('M%d,%d h6 v8 h-6 Z' % place for place in fires)), '#E2542A'))


def _heap():
    """Sacks, a wheel and beams."""
    rows = ((232, 214, 7), (216, 230, 6), (200, 262, 4), (185, 296, 2))
    return layers(path('M170,250 C200,214 240,196 286,186 C330,180 372,190 404,208 C430,222 448,236 456,250 Z',
                       MAROON), path('M232,214 l-34,-40 l6,-5 l34,40 Z M392,212 l42,-44 l6,6 l-40,44 Z', INK),
                  placed(428, 214, ring(0, 0, 23, INK, 5),
                         stroke('M-23,0 H23 M0,-23 V23 M-16,-16 L16,16 M-16,16 L16,-16', INK, 2.6)),
                  *(rect(x + 32 * i - 15, y - 8, 30, 15, OCHRE2, 6, stroke=INK, stroke_width=2)
                    for y, x, count in rows
                    for i in range(count)))


def _victor_and_flag():
    return layers(rect(352, 34, 4, 150, INK), path('M356,36 c34,-18 56,14 106,-4 v58 c-46,18 -74,-12 -106,4 Z', RED),
                  path('M420,37 c14,2 28,1 42,-5 v58 c-14,6 -28,6 -42,4 Z', RED2), ring(408, 64, 16, SUN, 5.4),
                  path('M410,67 l16,20 l-6,5 l-15,-20 Z', SUN), placed(306, 178, waver(INK, SUN), scale=2.7),
                  path('M349,63 l30,-34 l3,3 l-28,36 Z', CREAM))


def _cleaner():
    sweep = layers(path('M-9,0 L-12,-34 C-12,-50 -6,-56 2,-56 C10,-56 14,-50 12,-40 L16,0 Z', INK),
                   circle(3, -65, 7.6, INK), path('M-6,-66 C-8,-78 12,-78 12,-66 L9,-62 C6,-70 0,-70 -6,-66 Z', RED),
                   path('M8,-50 L26,-36 L23,-31 L6,-42 Z M0,-46 L22,-26 L19,-22 L-2,-38 Z', INK),
                   path('M18,-52 l3,-1 L40,-6 l-3,1 Z', OCHRE2), path('M34,-8 l8,-3 l9,13 h-20 Z', OCHRE))
    return placed(462, 242, placed(-1.4, -1.4, sweep.replace(INK, FOAM)), sweep, scale=1.15)


def _swept_up():
    return layers(placed(528, 238, path('M-10,0 C-6,-5 6,-5 10,0 Z M-5,-3 C-4,-9 4,-9 5,-3 Z', OCHRE)),
                  placed(550, 240, path('M-12,0 L-8,-16 L14,-12 L10,2 Z', CREAM),
                         stroke('M-5,-10 L9,-7 M-6,-6 L6,-3', INK, 1.4)),
                  placed(574, 240, path('M-8,0 h14 l4,-5 l-4,-3 h-8 l-8,4 Z', MAROON)))


def execution():
    """Dawn at the wall: the holes know whom they met. The cigar still burns."""
    chance = random.Random(6)
    return layers(rect(0, 0, WIDTH, HEIGHT, RED), rays(70, 190, 24, 760, RED2, turn=.02),
                  glow(WIDTH, HEIGHT, 70, 190, 8, 4.2, 80, SUN, .8), circle(70, 190, 92, OCHRE),
                  circle(70, 190, 79, SUN), disc_dots(70, 190, 77, 7, lambda x, y: (y - 150) / 20, OCHRE),
                  _brick_wall(),
                  *(_bullet_hole(x + chance.uniform(-1.6, 1.6), y + chance.uniform(-1.6, 1.6), chance.uniform(2.6, 3.8),
                                chance) for x, y in _outline_of_holes()),
                  *(_bullet_hole(x, y, 3.4, chance) for x, y in STRAY_HOLES),
                  path('M0,214 C100,206 200,212 300,212 H620 V250 H0 Z', MAROON),
                  path('M190,214 H620 V219 H190 Z', '#3A0E0E'),
                  dots(300, 214, 620, 250, 7, lambda x, y: (y - 208) / 14, INK, .8), _what_is_left(),
                  *(placed(-6 + i * 36, 122 + i % 2 * 2, soldier(INK, SHADE), scale=1.04) for i in range(5)),
                  path('M0,238 C120,230 400,240 620,234 V250 H0 Z', INK), grain(WIDTH, HEIGHT, .15, .05))


def _brick_wall():
    joints = ''.join('M190,%d H620 ' % (40 + row * 18) +
                     ''.join('M%d,%d v18 ' % (210 + column * 42 + 21 * (row % 2), 40 + row * 18)
                             for column in range(10)) for row in range(10))
    wire = 'M196,24 q8,-10 16,0 ' + 't16,0 ' * 25
    return layers(path('M190,34 H620 V214 H190 Z', '#C9A267'), path('M470,34 H620 V214 H470 Z', '#B08A50'),
                  rect(182, 26, 438, 11, CREAM), rect(182, 37, 438, 3, '#7A5723'), stroke(joints, '#A37F48', 1.4),
                  stroke(wire, INK, 1.8))


def _outline_of_holes():
    """Points along his outline, about eleven apart."""
    points = []
    for (xa, ya), (xb, yb) in zip(OUTLINE, OUTLINE[1:]):
        steps = max(1, round(math.hypot(xb - xa, yb - ya) / 11))
        points += [(430 + xa + (xb - xa) * step / steps, 212 + ya + (yb - ya) * step / steps)
                   for step in range(steps)]
    return points


def _bullet_hole(x, y, radius, chance):
    corners = []
    for i in range(14):
        angle = math.pi * i / 7
        reach = radius * 1.9 * (chance.uniform(.85, 1.2) if i % 2 == 0 else .66)
        corners.append((reach * math.cos(angle), reach * math.sin(angle)))
    return placed(x, y, path(polygon(corners), '#E9D2A0'), circle(0, 0, radius * .8, INK))


def _what_is_left():
    return layers(placed(336, 214, officers_cap(0, 0, .48, rotate=-12, fill=TEAL2, band=RED, trim=OCHRE)),
                  dark_glasses(500, 226, .34, fill=INK, glint=CREAM),
                  placed(214, 2, path('M318,226 l30,-6 l1.6,6.6 l-30,6 Z', '#6B3A1E'),
                         path('M318,226 l30,-6 l.6,2.4 l-30,6 Z', '#93562F'),
                         path('M326,224.4 l4,-.8 l1.6,6.4 l-4,.8 Z', OCHRE),
                         path('M347,220 l5,-1 l1.4,6.4 l-5,1 Z', '#E8542A'),
                         path('M352,218 C346,204 362,196 354,182 C348,170 358,162 354,148 C364,162 354,172 360,184 '
                              'C368,200 352,206 357,219 Z', CREAM, opacity='.75')))


def dead():
    """Lying in state at night. On the balcony behind, the next one is already waving."""
    cx, cy = 448, 84
    return layers(rect(0, 0, WIDTH, HEIGHT, TEAL3), circle(cx, cy, 210, '#12363A'), circle(cx, cy, 150, '#1B4A4C'),
                  glow(WIDTH, HEIGHT, cx, cy, 8, 4.2, 76, SEA, .6), circle(92, 70, 44, CREAM),
                  disc_dots(92, 70, 42, 7, lambda x, y: (x - 86) / 17, SHADE),
                  placed(310, 58, palace(NIGHT), scale=.64), placed(444.4, 168, waver(INK, SUN), scale=.72),
                  _palace_flag(344), _palace_flag(528),
                  crowd(276, 640, 194, .62, '#8A2E1C', 31, fists=.5, flags=.12, flag_fill=RED, step=15, depth=40),
                  crowd(286, 640, 208, .8, MAROON, 38, fists=.5, flags=.06, flag_fill=OCHRE, step=17, depth=40),
                  path('M0,212 C140,204 330,214 620,208 V250 H0 Z', '#241410'),
                  path('M0,212 C140,204 330,214 620,208 V212 C330,218 140,208 0,216 Z', '#5B3A1B'), _catafalque(),
                  _cap_and_cigar(), _candle(30), _candle(290), _wreath(), _guard_of_honour(8), _guard_of_honour(312),
                  path('M0,238 C160,232 420,244 620,236 V250 H0 Z', INK), grain(WIDTH, HEIGHT, .15, .05))


def _palace_flag(x):
    return placed(x, 132, rect(0, 0, 17, 58, RED), path('M0,58 l8.5,7 l8.5,-7 Z', RED), ring(8.5, 22, 5, SUN, 2.2))


def _catafalque():
    return layers(path('M42,232 V204 H58 V188 H262 V204 H278 V232 Z', INK), rect(58, 188, 204, 4, OCHRE2),
                  rect(42, 204, 236, 4, OCHRE2),
                  path('M58,192 C80,206 100,206 120,192 C140,206 160,206 180,192 C200,206 220,206 262,192 V204 H58 Z',
                       MAROON), path('M76,188 L84,150 H232 L246,188 Z', RED),
                  path('M160,150 H232 L246,188 H166 Z', RED2), path('M76,188 l2,-8 H243 l3,8 Z', OCHRE),
                  ring(156, 166, 11, SUN, 4), path('M158,168 l11,14 l-4,3 l-10,-14 Z', SUN),
                  rect(82, 147, 152, 4, OCHRE2))


def _cap_and_cigar():
    return layers(officers_cap(200, 138, .42, rotate=4, fill=TEAL2, band=RED, trim=OCHRE),
                  path('M94,146 C120,142 150,143 178,147 L177,149.6 C150,146 120,145.6 94,149 Z', CREAM),
                  path('M96,140 l5,0 l2,10 l-5,1 Z', OCHRE), path('M90,143.6 h10 v4 h-10 Z', OCHRE))


def _candle(x):
    return layers(rect(x - 3, 170, 6, 62, CREAM), rect(x + .6, 170, 2.4, 62, SHADE),
                  path('M%d,232 h18 l-3,-5 h-12 Z' % (x - 9), OCHRE), ellipse(x, 158, 16, 18, SUN, opacity='.22'),
                  flame(x, 170, .34))


def _wreath():
    berries = layers(*(circle(17 * math.cos(i * math.pi / 4), 17 * math.sin(i * math.pi / 4), 3,
                              RED if i % 2 else SUN) for i in range(8)))
    return placed(160, 222, ring(0, 0, 17, GREEN, 8), berries,
                  path('M-3,14 l-14,16 l8,1 l3,6 l8,-18 Z M3,14 l14,16 l-8,1 l-3,6 l-8,-18 Z', CREAM))


def _guard_of_honour(x):
    """He looks at the balcony."""
    figure = layers(path('M-9,0 L-8,-42 H8 L9,0 H2 L0,-36 L-2,0 Z', TEAL3),
                    path('M-11,-38 C-13,-64 -8,-68 0,-68 C8,-68 13,-64 11,-38 Z', INK), rect(-11, -46, 22, 3.6, CREAM),
                    circle(0, -75, 6.6, SKIN2), path('M-9,-77 C-9,-92 9,-92 9,-77 L14,-75 H-9 Z', INK),
                    path('M-9,-78 H9 V-81 H-9 Z', RED), path('M12,-84 h2.6 V0 h-4 V-58 Z', INK),
                    path('M12,-84 l1.3,-14 l1.3,14 Z', CREAM))
    light = re.sub('fill="#[0-9A-Fa-f]{6}"', 'fill="%s"' % FOAM, figure)
    return placed(x, 240, placed(-1, -1, light), figure)
